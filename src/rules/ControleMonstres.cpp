// Checks of the peoples and their monsters.
#include <string>
#include <vector>

#include "rules/ClsJeuParam.h"
#include "rules/ControleRegles.h"

namespace {

int Peuple_De(const ClsJeuParam& p, int m) { return std::stoi(p.Monstre_Peuple(m)); }

// A monster's blow shows its effect with no test; the upper bound is checked with the
// other indices.
void Effets_Monstres(ControleRegles& c) {
    for (int m = 0; m < c.P.NombreTotalMonstres; ++m)
        if (c.P.Monstre_EffetAttaque(m) < 0)
            c.Signaler(FichierMonstres, "Monstre_", m, "EffetAttaque",
                       "vaut " + std::to_string(c.P.Monstre_EffetAttaque(m)) +
                           " : un monstre montre l'effet de ses coups, il en faut un de la table");
}

// Every people but the humans (people 0) has one monster of each grade 0 … count − 1. With
// the count of monsters already matched against the table, a grade outside that range or
// taken twice is the only way to miss one.
void Grades(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    std::vector<std::vector<int>> pris(p.NombrePeuples);
    for (int n = 1; n < p.NombrePeuples; ++n) pris[n].assign(std::max<int>(p.Peuples_NombreMonstres(n), 0), -1);
    for (int m = 0; m < p.NombreTotalMonstres; ++m) {
        const int peuple = Peuple_De(p, m);
        if (!Dans_Table(peuple, p.NombrePeuples) || peuple == 0) continue;
        const int grade = std::stoi(p.Monstre_Grade(m));
        const int nombre = static_cast<int>(pris[peuple].size());
        if (!Dans_Table(grade, nombre))
            c.Signaler(FichierMonstres, "Monstre_", m, "Grade",
                       "vaut " + std::to_string(grade) + " : les " + std::to_string(nombre) + " monstres de « " +
                           p.Peuples_Nom(peuple) + " » ont les grades 0 à " + std::to_string(nombre - 1));
        else if (pris[peuple][grade] >= 0)
            c.Signaler(FichierMonstres, "Monstre_", m, "Grade",
                       "le grade " + std::to_string(grade) + " est déjà celui de Monstre_" +
                           std::to_string(pris[peuple][grade] + 1) + " : un monstre par grade");
        else
            pris[peuple][grade] = m;
    }
}

// A fief of a monster people is made of its monsters; berserkers charge at once and die
// when no enemy is left, so a people of berserkers alone empties itself.
void Peuples_Monstres(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    std::vector<int> nombre(p.NombrePeuples, 0), berserks(p.NombrePeuples, 0);
    for (int m = 0; m < p.NombreTotalMonstres; ++m) {
        const int peuple = Peuple_De(p, m);
        if (!Dans_Table(peuple, p.NombrePeuples)) continue;
        ++nombre[peuple];
        berserks[peuple] += p.Monstre_IA_Berserk(m) ? 1 : 0;
    }
    for (int n = 1; n < p.NombrePeuples; ++n) {
        if (p.Peuples_NombreMonstres(n) < 1)
            c.Signaler(FichierMonstres, "Peuple_", n, "NombreMonstres",
                       "un peuple de monstres en compte au moins un : ses fiefs en sont faits");
        else if (nombre[n] > 0 && berserks[n] == nombre[n])
            c.Signaler(FichierMonstres, "Peuple_", n, "Nom",
                       "tous ses monstres sont IA_Berserk : ils meurent dès qu'il n'y a plus d'ennemi");
    }
}

}  // namespace

void Controler_Monstres(ControleRegles& c) {
    Effets_Monstres(c);
    Grades(c);
    Peuples_Monstres(c);
}
