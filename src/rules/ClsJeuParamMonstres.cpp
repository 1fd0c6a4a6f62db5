// Group 5 of the rule book, file "Ini_Parametres_Monstres": the peoples and their monsters.
#include "rules/ClsJeuParam.h"
#include "rules/ClsJeuParamLecteur.h"
#include "rules/Conversions.h"

namespace {

// A gauge of 0 (or a missing key) takes the human maximum.
int32_t Ou_Humain(int32_t valeur, int32_t humain) { return valeur == 0 ? humain : valeur; }

}  // namespace

void ClsJeuParam::Charger_Monstres(RapportParam* rapport) {
    LecteurParam l("Ini_Parametres_Monstres", rapport);
    l.Section("Peuples");
    NombrePeuples = l.Taille("NombrePeuples");
    Peuples.assign(NombrePeuples, {});
    for (int n = 0; n < NombrePeuples; ++n) {
        l.Section(Section_Numerotee("Peuple_", n + 1));
        Peuples[n].Nom = l.Texte("Nom");
        Peuples[n].NombreMonstres = l.Souple<int16_t>("NombreMonstres");
    }

    l.Section("Monstres");
    NombreTotalMonstres = l.Taille("NombreTotalMonstres");
    Monstres.assign(NombreTotalMonstres, {});
    for (int n = 0; n < NombreTotalMonstres; ++n) {
        Monstre& m = Monstres[n];
        l.Section(Section_Numerotee("Monstre_", n + 1));
        m.Nom = l.Texte("Nom");
        m.NomPluriel = l.Texte("NomPluriel");
        m.Peuple = l.Index<int32_t>("Peuple", TableParam::Peuples, GenreRenvoi::Obligatoire);
        m.Parole = l.Souple<bool>("Parole");
        m.Volant = l.Souple<bool>("Volant");
        m.Grade = l.Souple<int16_t>("Grade");
        m.Apparence = l.Souple<int16_t>("Apparence");
        m.Attaque = l.Souple<int32_t>("Attaque");
        m.PorteeAttaque = l.Souple<int32_t>("PorteeAttaque");
        m.EffetAttaque = l.Souple<int16_t>("EffetAttaque");
        l.Renvoi("EffetAttaque", m.EffetAttaque, TableParam::Effets, GenreRenvoi::NegatifAucun);
        m.Kamikaze = l.Souple<bool>("Kamikaze");
        m.Defense = l.Souple<int32_t>("Defense");
        m.Armure = l.Souple<int16_t>("Armure");
        m.Vitesse = l.Souple<int32_t>("Vitesse");
        m.Vie = Ou_Humain(l.Souple<int32_t>("Vie"), PersosMaxVie);
        m.Energie = Ou_Humain(l.Souple<int32_t>("Energie"), PersosMaxEnergie);
        m.Magie = Ou_Humain(l.Souple<int32_t>("Magie"), PersosMaxMagie);
        m.Moral = Ou_Humain(l.Souple<int32_t>("Moral"), PersosMaxMoral);
        m.Argent = l.Souple<double>("Argent");
        m.Ressources = l.Liste<double>("Ressources", NombreRessources);
        m.Objets = l.Liste<int16_t>("Objets", NombreObjets);
        m.Infatigable = l.Souple<bool>("Infatigable");
        if (m.Infatigable) m.Energie = m.Moral = 9999;
        m.IA_Equiper = l.Souple<bool>("IA_Equiper");
        m.IA_Manger = l.Souple<bool>("IA_Manger");
        m.IA_Pacifique = l.Souple<bool>("IA_Pacifique");
        m.IA_Temeraire = l.Souple<bool>("IA_Temeraire");
        m.IA_Berserk = l.Souple<bool>("IA_Berserk");
    }
}
