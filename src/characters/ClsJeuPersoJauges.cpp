// The six gauges: every write below the present value earns experience by what was lost;
// recovery, death and resurrection.
#include <algorithm>

#include "characters/ClsJeuPerso.h"
#include "characters/ExperienceObjets.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "world/Globales.h"

// A write below the gauge earns experience: the loss itself, or the loss scaled back to the
// maximum without objects; worn objects that raise this maximum get a share. The gauge then
// stays between 0 and its maximum.
void ClsJeuPerso::Ecrire_Jauge(Jauge& j, double v, GenreExperience genre, bool ramener, BonusObjet bonus,
                               double partObjets) {
    if (v < j.Valeur) {
        const double perte = j.Valeur - v;
        const double gain = ramener ? perte * j.MaxBase / static_cast<double>(j.Max) : perte;
        Ajouter_Experience(j.MaxBase, gain, j.Exp, j.Niveau, j.SeuilBas, j.SeuilHaut, genre);
        if (j.Bonus() > 0)
            Partager_Experience_Objets(*this, gain * partObjets, Param,
                                       [bonus](int16_t o) { return (Param.*bonus)(o); });
    }
    j.Valeur = std::clamp(v, 0.0, static_cast<double>(j.Max));
}

// A fatal blow earns nothing: the gauge is already 0 when the loss is measured.
void ClsJeuPerso::Definir_Vie(double v) {
    if (Vivant() && v <= 0) {
        v = 0;
        Vivant(false);
    }
    Ecrire_Jauge(Vie, v, GenreJauge, true, &ClsJeuParam::Objet_BonusVie, 0.2);
}

void ClsJeuPerso::Definir_Energie(double v) {
    Ecrire_Jauge(Energie, v, GenreJauge, false, &ClsJeuParam::Objet_BonusEnergie, 2);
}

void ClsJeuPerso::Definir_Magie(double v) {
    Ecrire_Jauge(Magie, v, GenreJauge, true, &ClsJeuParam::Objet_BonusMagie, 0.2);
}

void ClsJeuPerso::Definir_Moral(double v) {
    Ecrire_Jauge(Moral, v, GenreJauge, false, &ClsJeuParam::Objet_BonusMoral, 10);
}

void ClsJeuPerso::Definir_Attaque(double v) {
    v = std::clamp(v, 0.0, static_cast<double>(Attaque.Max));
    Ecrire_Jauge(Attaque, v, GenreCombat, true, &ClsJeuParam::Objet_BonusAttaque, 0.1);
}

// Armour is a floor that no blow removes.
void ClsJeuPerso::Definir_Defense(double v) {
    if (v < Armure)
        v = Armure;
    else if (v > Defense.Max)
        v = Defense.Max;
    Ecrire_Jauge(Defense, v, GenreCombat, true, &ClsJeuParam::Objet_BonusDefense, 0.1);
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
