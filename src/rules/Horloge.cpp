#include "rules/Horloge.h"

#include <cmath>

namespace {

struct SourceHorloge {
    std::function<float()> source;   // empty: the clock is driven
    float pilotee = 0;
};

SourceHorloge& Etat() {
    static SourceHorloge etat;
    return etat;
}

float Dans_La_Journee(double secondes) {
    double s = std::fmod(secondes, static_cast<double>(SecondesParJour));
    if (s < 0) s += SecondesParJour;
    const auto f = static_cast<float>(s);
    return f >= SecondesParJour ? 0.0f : f;   // just below midnight may round up to it
}

}  // namespace

float Horloge() {
    const SourceHorloge& e = Etat();
    return e.source ? Dans_La_Journee(e.source()) : e.pilotee;
}

void Definir_Source_Horloge(std::function<float()> source) { Etat().source = std::move(source); }

// Driving the clock takes it back from any installed source.
void Piloter_Horloge(float secondes) {
    Etat().source = nullptr;
    Etat().pilotee = Dans_La_Journee(secondes);
}

void Avancer_Horloge(float ecart) { Piloter_Horloge(static_cast<float>(static_cast<double>(Horloge()) + ecart)); }
