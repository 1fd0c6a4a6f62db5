#include "session/SuiviFiefs.h"

#include <ostream>
#include <utility>

#include "world/Globales.h"

SuiviFiefs::SuiviFiefs(std::vector<int64_t> jalons, uint64_t graine, std::ostream& sortie)
    : jalons_(std::move(jalons)), graine_(graine), sortie_(sortie), vivants_(Fiefs.size()), morts_(Fiefs.size()),
      extinction_(Fiefs.size(), -1) {
    comptes_.reserve(jalons_.size());
}

void SuiviFiefs::Compter() {
    vivants_.assign(Fiefs.size(), 0);
    morts_.assign(Fiefs.size(), 0);
    for (const ClsJeuPerso& p : Persos) {
        if (p.Invocation()) continue;
        const auto f = static_cast<std::size_t>(p.Fief);
        (p.Vivant() ? vivants_ : morts_)[f] += 1;
    }
}

void SuiviFiefs::Observer(int64_t tick) {
    Compter();
    for (std::size_t f = 0; f < Fiefs.size(); ++f)
        if (extinction_[f] < 0 && vivants_[f] == 0 && morts_[f] > 0) extinction_[f] = tick;
    if (comptes_.size() < jalons_.size() && tick == jalons_[comptes_.size()]) Ecrire_Jalon(tick);
}

void SuiviFiefs::Ecrire_Jalon(int64_t tick) {
    Compte compte;
    for (std::size_t f = 0; f < Fiefs.size(); ++f) {
        const int16_t epoque = Fiefs[f].Epoque;
        compte.Fiefs += 1;
        compte.Epoque2 += epoque >= 2 ? 1 : 0;
        compte.TousMorts += extinction_[f] >= 0 ? 1 : 0;
        sortie_ << "graine=" << graine_ << " tick=" << tick << " fief=" << f << " epoque=" << epoque
                << " vivants=" << vivants_[f] << " morts=" << morts_[f] << '\n';
    }
    sortie_.flush();
    comptes_.push_back(compte);
}

void SuiviFiefs::Ecrire_Extinctions() const {
    for (std::size_t f = 0; f < extinction_.size(); ++f)
        if (extinction_[f] >= 0)
            sortie_ << "graine=" << graine_ << " fief=" << f << " tous_morts_au=" << extinction_[f] << '\n';
}

BilanSerie::BilanSerie(std::vector<int64_t> jalons) : jalons_(std::move(jalons)), comptes_(jalons_.size()) {}

void BilanSerie::Ajouter(const SuiviFiefs& suivi) {
    const auto& comptes = suivi.Comptes();
    for (std::size_t j = 0; j < comptes.size() && j < comptes_.size(); ++j) {
        comptes_[j].Fiefs += comptes[j].Fiefs;
        comptes_[j].Epoque2 += comptes[j].Epoque2;
        comptes_[j].TousMorts += comptes[j].TousMorts;
    }
}

void BilanSerie::Ecrire(std::ostream& sortie) const {
    for (std::size_t j = 0; j < jalons_.size(); ++j)
        sortie << "bilan tick=" << jalons_[j] << " fiefs=" << comptes_[j].Fiefs << " epoque2=" << comptes_[j].Epoque2
               << " tous_morts=" << comptes_[j].TousMorts << '\n';
}
