// Eating. Food fills the reserves, never a gauge at once: it flows in through Recuperation,
// and its gain scales with the eater's effective maxima.
#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"

double ClsJeuPerso::Manger_Ressources_Coef(int i) const {
    const Jauge* jauges[] = {&Vie, &Energie, &Magie, &Moral};
    const Jauge& j = *jauges[i];
    return j.MaxBase > 0 ? static_cast<double>(j.Max) / j.MaxBase : 1.0;
}

void ClsJeuPerso::Manger_Ressources(int r, const ClsJeuParam& param) {
    if (static_cast<std::size_t>(r) >= Ressources.size() || Definir_Ressources(r) < 1) return;
    Definir_Ressources(r, Definir_Ressources(r) - 1);
    Vie.Reserve += param.Ressources_GainVie(r) * Manger_Ressources_Coef(0);
    Energie.Reserve += param.Ressources_GainEnergie(r) * Manger_Ressources_Coef(1);
    Magie.Reserve += param.Ressources_GainMagie(r) * Manger_Ressources_Coef(2);
    Moral.Reserve += param.Ressources_GainMoral(r) * Manger_Ressources_Coef(3);
}

// The shown value counts the reserve, so one meal eats just what the gauge can hold. Only the
// first food that feeds the gauge is eaten, even if the gauge is not full after it.
void ClsJeuPerso::Recuperer(Jauge& jauge, double (ClsJeuParam::*gain)(int) const, const ClsJeuParam& param) {
    for (int r = 0; r < param.NombreRessources; ++r) {
        const double g = (param.*gain)(r);
        if (!param.Ressources_Mangeable(r) || g <= 0 || Definir_Ressources(r) < 1) continue;
        while (jauge.Max - g > Montre(jauge) && Definir_Ressources(r) >= 1) Manger_Ressources(r, param);
        return;
    }
}

void ClsJeuPerso::Recuperer_Vie(const ClsJeuParam& param) { Recuperer(Vie, &ClsJeuParam::Ressources_GainVie, param); }
void ClsJeuPerso::Recuperer_Energie(const ClsJeuParam& param) {
    Recuperer(Energie, &ClsJeuParam::Ressources_GainEnergie, param);
}
void ClsJeuPerso::Recuperer_Magie(const ClsJeuParam& param) { Recuperer(Magie, &ClsJeuParam::Ressources_GainMagie, param); }
void ClsJeuPerso::Recuperer_Moral(const ClsJeuParam& param) { Recuperer(Moral, &ClsJeuParam::Ressources_GainMoral, param); }

void ClsJeuPerso::Recuperer_AutoVie(const ClsJeuParam& param) {
    if (Definir_MaxVie() > Definir_Vie()) Recuperer_Vie(param);
}
void ClsJeuPerso::Recuperer_AutoEnergie(const ClsJeuParam& param) {
    if (Definir_MaxEnergie() > Definir_Energie()) Recuperer_Energie(param);
}
void ClsJeuPerso::Recuperer_AutoMagie(const ClsJeuParam& param) {
    if (Definir_MaxMagie() > Definir_Magie()) Recuperer_Magie(param);
}
void ClsJeuPerso::Recuperer_AutoMoral(const ClsJeuParam& param) {
    if (Definir_MaxMoral() > Definir_Moral()) Recuperer_Moral(param);
}
