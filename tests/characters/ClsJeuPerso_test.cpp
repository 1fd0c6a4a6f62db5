#include "characters/ClsJeuPerso.h"

#include <tuple>
#include <utility>

#include "ReglesParDefaut.h"
#include "rules/Conversions.h"

namespace {

class Perso : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Peupler(4);
    }
};

TEST_F(Perso, UnePerteDevientDeLExperienceQuiFranchitUnOuPlusieursSeuils) {
    ClsJeuPerso& p = Persos[0];
    p.Definir_Energie(90);   // raw loss of 10
    EXPECT_DOUBLE_EQ(p.Energie.Exp, 10);
    p.Definir_Attaque(5);   // loss of 15 at base 20 / max 20
    EXPECT_DOUBLE_EQ(p.Attaque.Exp, 15);
    p.Definir_Energie(500);   // a gain earns nothing
    EXPECT_EQ(std::tuple(p.Energie.Valeur, p.Energie.Exp), std::tuple(p.Energie.Max, 10.0));
    p.Definir_Energie(-30);   // energy stops at 0, the raw loss counts; 20, 60 and 120 passed in one write
    EXPECT_EQ(std::tuple(p.Energie.Valeur, p.Energie.Exp, p.Energie.Niveau), std::tuple(0.0, 10.0 + 100 + 30, 3));
    p.Definir_Vie(p.Vie.Valeur - 70);   // 70 passes 20 and 60
    EXPECT_EQ(std::tuple(p.Vie.Niveau, p.Vie.MaxBase, p.Vie.SeuilBas, p.Vie.SeuilHaut),
              std::tuple(2, Param.PersosMaxVie + 2, 60.0, 120.0));

    // Gestion_Tous_Niveaux replays the experience on record.
    ClsJeuPerso& q = Persos[1];
    q.Vie.Exp = 125;   // 20, 60 and 120 passed: three levels
    q.CompetencesRessources[2].Exp = 50;   // 15 and 45 passed: two levels of load
    q.Gestion_Tous_Niveaux();
    EXPECT_EQ(std::tuple(q.Vie.Niveau, q.Vie.SeuilHaut, q.Definir_MaxVie()), std::tuple(3, 200.0, Param.PersosMaxVie + 3));
    EXPECT_EQ(q.Definir_MaxRessources(2), Param.PersosMaxRessources + 2);
    EXPECT_EQ(q.Definir_Niveau_CompetenceRessources(2), 2);
    EXPECT_DOUBLE_EQ(q.CompetencesRessources[2].Progression(), (50.0 - 45) / (90 - 45));
}

TEST_F(Perso, LesReservesCoulentParTranchesEtLaFormeSuitLEnergieEtLeMoral) {
    ClsJeuPerso& p = Persos[0];
    p.Vie.Valeur = 50;
    p.Vie.Reserve = 0.6;   // slices of 100 × 0.0025 = 0.25
    p.Recuperation(Fiefs[0]);
    EXPECT_DOUBLE_EQ(p.Vie.Valeur, 50.25);
    EXPECT_DOUBLE_EQ(p.Definir_Vie(), 50.25 + 0.35);
    p.Recuperation(Fiefs[0]);
    p.Recuperation(Fiefs[0]);   // a rest smaller than a slice is lost
    EXPECT_EQ(std::pair(p.Vie.Valeur, p.Vie.Reserve), std::pair(50.5, 0.0));

    // Under a tenth, a quarter and a half of each, the form loses 0.45, 0.25 and 0.125.
    for (const auto& [energie, moral, forme] : {std::tuple{9.0, 9.0, 0.1}, std::tuple{30.0, 100.0, 0.875},
                                                std::tuple{10.0, 24.0, 0.5}, std::tuple{50.0, 50.0, 1.0}}) {
        p.Energie.Valeur = energie;
        p.Moral.Valeur = moral;
        p.Calculer_CoefForme();
        EXPECT_NEAR(p.CoefForme, forme, 1e-12) << energie << ' ' << moral;
    }
}

TEST_F(Perso, LaMortEffaceLesReservesEtLesMortsReviennentDansLeurChateauSeulement) {
    Chateaux[0].Definir_Vie(Chateaux[0].MaxVie = 1000);
    ClsJeuPerso& dehors = Persos[1];
    ClsJeuPerso& dedans = Persos[2];
    dedans.Energie.Reserve = 12;
    dedans.DureeImmobilisation = 30;
    dedans.Definir_Vie(0);
    // Dying earns no experience.
    EXPECT_EQ(std::tuple(dedans.Vivant(), dedans.Vie.Exp, dedans.Definir_Action()), std::tuple(false, 0.0, 0));
    EXPECT_EQ(std::tuple(dedans.Energie.Reserve, dedans.DureeImmobilisation, dedans.CompteResurrection),
              std::tuple(0, 0, 100));
    dehors.Definir_Vie(-5);
    EXPECT_EQ(Fiefs[0].NombreMorts, 2);

    dedans.DansSonChateau = true;
    dedans.Energie.Valeur = 33;
    dedans.Definir_Attaque(2);
    // Two dead of four: the count falls by 0.25 / (4 / 3) a tick.
    int ticks = 0;
    for (; !dedans.Vivant() && ticks < 1000; ++ticks) {
        dedans.Recuperation(Fiefs[0]);
        dehors.Recuperation(Fiefs[0]);
    }
    EXPECT_EQ(std::tuple(ticks, dehors.Vivant(), Fiefs[0].NombreMorts), std::tuple(534, false, 1));
    EXPECT_EQ(dedans.Definir_Vie(), dedans.Definir_MaxVie());
    EXPECT_EQ(dedans.Definir_Attaque(), dedans.Definir_MaxAttaque());
    EXPECT_EQ(dedans.Energie.Valeur, 33);   // left as it was
}

TEST_F(Perso, ChangerDeRaceDonneLeMonstreDuGradeDemandeEtGardeCeQuOnLuiDit) {
    ClsJeuPerso& p = Persos[0];
    for (int16_t peuple = 1; peuple < Param.NombrePeuples; ++peuple) {
        for (int16_t grade = 0; grade < Param.Peuples_NombreMonstres(peuple); ++grade) {
            ClsJeuPerso q = p;
            q.Changer_Race(peuple, Param, grade, -1, false);
            ASSERT_GT(q.Monstre, 0);
            EXPECT_EQ(std::tuple(q.Peuple, q.Grade, q.Nom, q.Definir_MaxVie(), q.Progresse),
                      std::tuple(peuple, grade, Param.Monstre_Nom(q.Monstre - 1), Param.Monstre_Vie(q.Monstre - 1), false));
        }
    }
    ClsJeuPerso loup = p;   // a grade above the people's last takes the last
    loup.Changer_Race(1, Param, 5, -1, false);
    EXPECT_EQ(loup.Grade, Param.Peuples_NombreMonstres(1) - 1);
    ClsJeuPerso garde = p;   // keeping: resources stay with the record
    garde.Ressources[2] = 7;
    garde.Changer_Race(2, Param, 0, -1, true);
    EXPECT_EQ(garde.Ressources[2], 7);
    Empreinte avant, apres;   // people 0 leaves the record untouched
    p.Empreindre(avant);
    p.Changer_Race(0, Param, 2, -1, false);
    p.Empreindre(apres);
    EXPECT_EQ(avant.Valeur(), apres.Valeur());

    // A tireless monster neither tires nor learns.
    int16_t monstre = 0;
    while (monstre < Param.NombreTotalMonstres && Param.Monstre_Infatigable(monstre) == 0) ++monstre;
    ASSERT_LT(monstre, Param.NombreTotalMonstres);
    p.Changer_Race(Souple_En<int16_t>(Param.Monstre_Peuple(monstre)), Param, 0, monstre, false);
    EXPECT_EQ(std::pair(p.Definir_MaxEnergie(), p.Definir_MaxMoral()), std::pair(9999, 9999));
    for (int t = 0; t < 10000; ++t) {
        p.Definir_Attaque(0);
        p.Recuperation(Fiefs[0]);
    }
    EXPECT_GT(p.Definir_Energie(), 9999 * 0.5);
    EXPECT_EQ(std::pair(p.Energie.Exp, p.Attaque.Exp), std::pair(0.0, 0.0));
}

}  // namespace
