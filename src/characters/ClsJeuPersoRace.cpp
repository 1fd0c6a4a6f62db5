// Turning a record into a monster of a people.
#include <algorithm>

#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

// Grades grow rarer by half at each step: 0 three times in four, 5 once in 64.
int16_t Tirer_Grade() {
    const float r = Rnd();
    int16_t grade = 0;
    for (float seuil = 0.75f; grade < 5 && r >= seuil; seuil += (1.0f - seuil) / 2) ++grade;
    return grade;
}

// The last monster type of the people at that grade; -1 if the rules have none.
int16_t Monstre_De(int16_t peuple, int16_t grade, const ClsJeuParam& param) {
    int16_t trouve = -1;
    for (int m = 0; m < param.NombreTotalMonstres; ++m)
        if (Souple_En<int16_t>(param.Monstre_Peuple(m)) == peuple && Souple_En<int16_t>(param.Monstre_Grade(m)) == grade)
            trouve = static_cast<int16_t>(m);
    return trouve;
}

void Remplir(Jauge& j, int32_t valeur) {
    j.Valeur = valeur;
    j.MaxBase = valeur;
}

}  // namespace

void ClsJeuPerso::Changer_Race(int16_t peuple, const ClsJeuParam& param, int16_t grade, int16_t monstre,
                               bool conserver) {
    if (peuple == 0) return;
    if (monstre == -1) {
        if (grade < 0) grade = Tirer_Grade();
        grade = std::min<int16_t>(grade, static_cast<int16_t>(param.Peuples_NombreMonstres(peuple) - 1));
        monstre = Monstre_De(peuple, grade, param);
        if (monstre < 0) return;
    }
    const int m = monstre;
    Nom = param.Monstre_Nom(m);
    Peuple = Souple_En<int16_t>(param.Monstre_Peuple(m));
    Monstre = static_cast<int16_t>(m + 1);
    IA_Equiper = param.Monstre_IA_Equiper(m);
    IA_Manger = param.Monstre_IA_Manger(m);
    IA_Pacifique = param.Monstre_IA_Pacifique(m);
    IA_Temeraire = param.Monstre_IA_Temeraire(m);
    IA_Berserk = param.Monstre_IA_Berserk(m);
    Parole = Souple_Booleen(param.Monstre_Parole(m));
    Volant = Souple_Booleen(param.Monstre_Volant(m));
    Grade = Souple_En<int16_t>(param.Monstre_Grade(m));
    Remplir(Attaque, param.Monstre_Attaque(m));
    PorteeAttaqueBase = Arrondir_En<int16_t>(param.Monstre_PorteeAttaque(m));
    EffetAttaqueBase = param.Monstre_EffetAttaque(m);
    Kamikaze = param.Monstre_Kamikaze(m);
    Remplir(Defense, param.Monstre_Defense(m));
    ArmureBase = param.Monstre_Armure(m);
    VitesseBase = param.Monstre_Vitesse(m);
    Remplir(Vie, param.Monstre_Vie(m));
    Remplir(Energie, param.Monstre_Energie(m));
    Remplir(Magie, param.Monstre_Magie(m));
    Remplir(Moral, param.Monstre_Moral(m));
    ApparenceBase = param.Monstre_Apparence(m);
    Argent = param.Monstre_Argent(m);
    Ajuster_Bonus();

    if (!conserver) {
        for (int r = 0; r < param.NombreRessources; ++r)
            Ressources[static_cast<std::size_t>(r)] = param.Monstre_Ressource(m, r);
        for (ClsJeuObjet& o : ObjetsEquipes) o.Decharger();
        for (ClsJeuObjet& o : ObjetsInventaire) o.Decharger();
        for (int o = 0; o < param.NombreObjets; ++o)
            for (int n = param.Monstre_Objet(m, o); n > 0; --n)
                Objet_Ajouter_Inventaire(static_cast<int16_t>(o), param, IA_Equiper);
        Actualiser_Bonus(param);
    }
    Progresse = false;
    if (Numero >= 0 && static_cast<std::size_t>(Numero) < Maisons.size())
        Calculer_Apparence(Maisons[static_cast<std::size_t>(Numero)], param);
}
