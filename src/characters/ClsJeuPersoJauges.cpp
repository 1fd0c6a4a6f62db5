// The six gauges: every write below the present value earns experience by what was lost;
// recovery, death and resurrection.
#include <algorithm>

#include "characters/ClsJeuPerso.h"
#include "characters/ExperienceObjets.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "world/Globales.h"

// Experience of a loss: to the gauge itself, and, when objects raise its maximum, to the
// competence of each worn object that gives that bonus.
void ClsJeuPerso::Gagner_Experience(Jauge& j, double gain, GenreExperience genre, BonusObjet bonus,
                                    double gainObjet) {
    Ajouter_Experience(j.MaxBase, gain, j.Exp, j.Niveau, j.SeuilBas, j.SeuilHaut, genre);
    if (j.Bonus() > 0)
        Partager_Experience_Objets(*this, gainObjet, Param, [bonus](int16_t o) { return (Param.*bonus)(o); });
}

namespace {
double Ramenee_A_La_Base(const Jauge& j, double perte) {
    return perte * j.MaxBase / static_cast<double>(j.Max);
}
}  // namespace

void ClsJeuPerso::Definir_Vie(double v) {
    if (Vivant() && v <= 0) {
        v = 0;
        Vivant(false);
    }
    if (v < Vie.Valeur) {
        const double gain = Ramenee_A_La_Base(Vie, Vie.Valeur - v);
        Gagner_Experience(Vie, gain, GenreJauge, &ClsJeuParam::Objet_BonusVie, gain * 0.2);
    }
    Vie.Valeur = std::clamp(v, 0.0, static_cast<double>(Vie.Max));
}

void ClsJeuPerso::Definir_Energie(double v) {
    if (v < Energie.Valeur) {
        const double perte = Energie.Valeur - v;
        Gagner_Experience(Energie, perte, GenreJauge, &ClsJeuParam::Objet_BonusEnergie, 2 * perte);
    }
    Energie.Valeur = std::clamp(v, 0.0, static_cast<double>(Energie.Max));
}

void ClsJeuPerso::Definir_Magie(double v) {
    if (v < Magie.Valeur) {
        const double gain = Ramenee_A_La_Base(Magie, Magie.Valeur - v);
        Gagner_Experience(Magie, gain, GenreJauge, &ClsJeuParam::Objet_BonusMagie, gain * 0.2);
    }
    Magie.Valeur = std::clamp(v, 0.0, static_cast<double>(Magie.Max));
}

void ClsJeuPerso::Definir_Moral(double v) {
    if (v < Moral.Valeur) {
        const double perte = Moral.Valeur - v;
        Gagner_Experience(Moral, perte, GenreJauge, &ClsJeuParam::Objet_BonusMoral, 10 * perte);
    }
    Moral.Valeur = std::clamp(v, 0.0, static_cast<double>(Moral.Max));
}

void ClsJeuPerso::Definir_Attaque(double v) {
    v = std::clamp(v, 0.0, static_cast<double>(Attaque.Max));
    if (v < Attaque.Valeur) {
        const double gain = Ramenee_A_La_Base(Attaque, Attaque.Valeur - v);
        Gagner_Experience(Attaque, gain, GenreCombat, &ClsJeuParam::Objet_BonusAttaque, gain * 0.1);
    }
    Attaque.Valeur = v;
}

// Armour is a floor that no blow removes.
void ClsJeuPerso::Definir_Defense(double v) {
    if (v < Armure)
        v = Armure;
    else if (v > Defense.Max)
        v = Defense.Max;
    if (v < Defense.Valeur) {
        const double gain = Ramenee_A_La_Base(Defense, Defense.Valeur - v);
        Gagner_Experience(Defense, gain, GenreCombat, &ClsJeuParam::Objet_BonusDefense, gain * 0.1);
    }
    Defense.Valeur = v;
}

void ClsJeuPerso::Definir_MaxVie(double v) { Vie.MaxBase = Arrondir_En<int32_t>(v); }
void ClsJeuPerso::Definir_MaxEnergie(double v) { Energie.MaxBase = Arrondir_En<int32_t>(v); }
void ClsJeuPerso::Definir_MaxMagie(double v) { Magie.MaxBase = Arrondir_En<int32_t>(v); }
void ClsJeuPerso::Definir_MaxMoral(double v) { Moral.MaxBase = Arrondir_En<int32_t>(v); }
void ClsJeuPerso::Definir_MaxAttaque(double v) { Attaque.MaxBase = Arrondir_En<int32_t>(v); }
void ClsJeuPerso::Definir_MaxDefense(double v) { Defense.MaxBase = Arrondir_En<int32_t>(v); }

void ClsJeuPerso::Vivant(bool vivant) {
    Arreter();
    ClsJeuFief& fief = Fiefs[static_cast<std::size_t>(Fief)];
    if (!vivant) {
        Vie.Valeur = 0;
        Vie.Reserve = Energie.Reserve = Magie.Reserve = Moral.Reserve = 0;
        DureeImmobilisation = 0;
        CompteResurrection = 100;
        if (Invocation())
            Persos[static_cast<std::size_t>(Chef)].NombreInvocations -= 1;
        else
            fief.NombreMorts += 1;
        return;
    }
    Vie.Valeur = Vie.Max;
    Definir_Attaque(Attaque.Max);
    Definir_Defense(Defense.Max);
    fief.NombreMorts -= 1;
}

void ClsJeuPerso::Calculer_CoefForme() {
    auto penalite = [](double part) { return part < 0.1 ? 0.45 : part < 0.25 ? 0.25 : part < 0.5 ? 0.125 : 0.0; };
    CoefForme = 1.0 - penalite(Energie.Valeur / Energie.Max) - penalite(Moral.Valeur / Moral.Max);
}

namespace {
// A reserve flows in by equal slices; one smaller than a slice is thrown away.
template <class Ecrire>
void Verser_Reserve(Jauge& j, double tranche, Ecrire ecrire) {
    if (tranche <= j.Reserve) {
        ecrire(j.Valeur + tranche);
        j.Reserve -= tranche;
    } else {
        j.Reserve = 0;
    }
}
}  // namespace

void ClsJeuPerso::Recuperation(ClsJeuFief& fief) {
    if (!Vivant()) {
        if (!DansSonChateau) return;
        const ClsJeuBatiment& chateau = Chateaux[static_cast<std::size_t>(Fief)];
        if (!chateau.Visible()) {
            Definir_Action(0);
            DansSonChateau = false;
            return;
        }
        const double s = fief.NombreSujets, m = fief.NombreMorts;
        CompteResurrection -= 0.25 / (s / (s - m + 1));
        if (CompteResurrection <= 0)
            Vivant(true);
        else
            Definir_Action(400);
        return;
    }
    Verser_Reserve(Vie, Vie.Max * 0.0025, [this](double v) { Definir_Vie(v); });
    Verser_Reserve(Energie, Energie.Max * 0.005, [this](double v) { Definir_Energie(v); });
    Verser_Reserve(Magie, Magie.Max * 0.01, [this](double v) { Definir_Magie(v); });
    Verser_Reserve(Moral, Moral.Max * 0.0025, [this](double v) { Definir_Moral(v); });
    auto payer_charge = [this] {
        Definir_Energie(Energie.Valeur - CoefForme * 0.0125);
        Definir_Moral(Moral.Valeur - CoefForme * 0.0025);
    };
    if (Attaque.Valeur < Attaque.Max) {
        Definir_Attaque(Attaque.Valeur + CoefForme * 1.25 * Attaque.Max / Attaque.MaxBase);
        payer_charge();
    }
    if (Defense.Valeur < Defense.Max) {
        Definir_Defense(Defense.Valeur + CoefForme * 0.75 * Defense.Max / Defense.MaxBase);
        payer_charge();
    }
    Definir_Vie(Vie.Valeur);
    Definir_Energie(Energie.Valeur);
    Definir_Magie(Magie.Valeur + Magie.Max * 0.02 / Magie.MaxBase);
    Definir_Moral(Moral.Valeur);
}
