#include "characters/ClsJeuPerso.h"

#include "ReglesParDefaut.h"
#include "rules/Conversions.h"

namespace {

using Perso = ReglesParDefaut;

TEST_F(Perso, InitRemplitLesJaugesEtLesTablesDepuisLesRegles) {
    Peupler(1);
    const ClsJeuPerso& p = Persos[0];
    EXPECT_EQ(p.Definir_Vie(), Param.PersosMaxVie);
    EXPECT_EQ(p.Definir_MaxMagie(), Param.PersosMaxMagie);
    EXPECT_EQ(p.Vie.SeuilHaut, 20);
    EXPECT_EQ(p.Attaque.SeuilHaut, 400);
    EXPECT_EQ(p.CompetencesRessources[0].SeuilHaut, 15);
    EXPECT_EQ(p.Definir_MaxRessources(2), Param.PersosMaxRessources);
    EXPECT_EQ(p.Definir_Niveau_CompetenceSpeciales(0), Param.PersosNiveauSpecialesDepart);
    EXPECT_EQ(p.CompetencesServices.size(), static_cast<std::size_t>(Param.NombreServices - 1));
    EXPECT_EQ(p.ObjetsEquipes.size(), 9u);
    EXPECT_EQ(p.Bestiaire.size(), static_cast<std::size_t>(Param.NombreTotalMonstres + 1));
    EXPECT_LT(p.ApparenceBase, Param.PersosNombreApparences);
    EXPECT_EQ(p.CoefForme, 1.0);
}

TEST_F(Perso, UnePerteDevientDeLExperienceEtUnGainNeDepassePasLeMaximum) {
    Peupler(1);
    ClsJeuPerso& p = Persos[0];
    p.Definir_Energie(90);   // raw loss of 10
    EXPECT_DOUBLE_EQ(p.Energie.Exp, 10);
    p.Definir_Moral(p.Moral.Valeur - 4);
    EXPECT_DOUBLE_EQ(p.Moral.Exp, 4);
    p.Definir_Attaque(5);   // loss of 15 at base 20 / max 20
    EXPECT_DOUBLE_EQ(p.Attaque.Exp, 15);
    p.Definir_Energie(500);
    EXPECT_EQ(p.Energie.Valeur, p.Energie.Max);
    EXPECT_DOUBLE_EQ(p.Energie.Exp, 10);   // a gain earns nothing
    p.Definir_Energie(-30);   // energy stops at 0, the raw loss counts
    EXPECT_EQ(p.Energie.Valeur, 0);
    EXPECT_DOUBLE_EQ(p.Energie.Exp, 10 + 100 + 30);
    EXPECT_EQ(p.Energie.Niveau, 3);   // 20, 60 and 120 passed in one write
}

TEST_F(Perso, UnGainQuiFranchitTroisSeuilsDonneTroisNiveaux) {
    Peupler(1);
    ClsJeuPerso& p = Persos[0];
    p.Definir_Vie(p.Vie.Valeur - 70);   // 70 passes the thresholds 20 and 60
    EXPECT_EQ(p.Vie.Niveau, 2);
    EXPECT_EQ(p.Vie.MaxBase, 102);
    EXPECT_EQ(p.Vie.SeuilBas, 60);
    EXPECT_EQ(p.Vie.SeuilHaut, 120);
    p.Vie.Exp = 0;
    p.Vie.Niveau = 0;
    p.Vie.SeuilBas = 0;
    p.Vie.SeuilHaut = 20;
    p.Ajouter_Experience(p.Vie.MaxBase, 125, p.Vie.Exp, p.Vie.Niveau, p.Vie.SeuilBas, p.Vie.SeuilHaut, GenreJauge);
    EXPECT_EQ(p.Vie.Niveau, 3);
    EXPECT_EQ(p.Vie.SeuilHaut, 200);
}

TEST_F(Perso, GestionTousNiveauxRejoueLExperienceEnregistree) {
    Peupler(1);
    ClsJeuPerso& p = Persos[0];
    p.Vie.Exp = 125;
    p.CompetencesRessources[2].Exp = 50;   // 15 and 45 passed: two levels of load
    p.Gestion_Tous_Niveaux();
    EXPECT_EQ(p.Vie.Niveau, 3);
    EXPECT_EQ(p.Vie.MaxBase, Param.PersosMaxVie + 3);
    EXPECT_EQ(p.Vie.SeuilHaut, 200);
    EXPECT_EQ(p.Definir_MaxVie(), Param.PersosMaxVie + 3);
    EXPECT_EQ(p.Definir_MaxRessources(2), Param.PersosMaxRessources + 2);
    EXPECT_EQ(p.Definir_Niveau_CompetenceRessources(2), 2);
    EXPECT_DOUBLE_EQ(p.CompetencesRessources[2].Progression(), (50.0 - 45) / (90 - 45));
}

TEST_F(Perso, LaMortAZeroNeRapportePasDExperienceEtRemetLesReservesAZero) {
    Peupler(2);
    ClsJeuPerso& p = Persos[1];
    p.Energie.Reserve = 12;
    p.DureeImmobilisation = 30;
    p.Definir_Vie(0);
    EXPECT_FALSE(p.Vivant());
    EXPECT_EQ(p.Vie.Exp, 0);
    EXPECT_EQ(p.Energie.Reserve, 0);
    EXPECT_EQ(p.DureeImmobilisation, 0);
    EXPECT_EQ(p.CompteResurrection, 100);
    EXPECT_EQ(Fiefs[0].NombreMorts, 1);
    EXPECT_EQ(p.Definir_Action(), 0);
}

TEST_F(Perso, LesMortsReviennentDansLeurChateauEtJamaisAilleurs) {
    Peupler(4);
    Chateaux[0].Definir_Vie(Chateaux[0].MaxVie = 1000);
    ClsJeuPerso& dehors = Persos[1];
    ClsJeuPerso& dedans = Persos[2];
    dehors.Definir_Vie(-5);
    dedans.Definir_Vie(-5);
    dedans.DansSonChateau = true;
    dedans.Energie.Valeur = 33;
    dedans.Definir_Attaque(2);
    // Two dead of four: the count falls by 0.25 / (4 / 3) a tick.
    int ticks = 0;
    while (!dedans.Vivant() && ticks < 1000) {
        dedans.Recuperation(Fiefs[0]);
        dehors.Recuperation(Fiefs[0]);
        ++ticks;
    }
    EXPECT_EQ(ticks, 534);
    EXPECT_FALSE(dehors.Vivant());
    EXPECT_EQ(dedans.Definir_Vie(), dedans.Definir_MaxVie());
    EXPECT_EQ(dedans.Definir_Attaque(), dedans.Definir_MaxAttaque());
    EXPECT_EQ(dedans.Energie.Valeur, 33);   // left as it was
    EXPECT_EQ(Fiefs[0].NombreMorts, 1);
}

TEST_F(Perso, LesReservesCoulentParTranchesEtUnResteTropPetitEstPerdu) {
    Peupler(1);
    ClsJeuPerso& p = Persos[0];
    p.Vie.Valeur = 50;
    p.Vie.Reserve = 0.6;   // slices of 100 × 0.0025 = 0.25
    p.Recuperation(Fiefs[0]);
    EXPECT_DOUBLE_EQ(p.Vie.Valeur, 50.25);
    EXPECT_DOUBLE_EQ(p.Definir_Vie(), 50.25 + 0.35);
    p.Recuperation(Fiefs[0]);
    p.Recuperation(Fiefs[0]);
    EXPECT_DOUBLE_EQ(p.Vie.Valeur, 50.5);
    EXPECT_EQ(p.Vie.Reserve, 0);
}

TEST_F(Perso, LaFormeSuitLEnergieEtLeMoral) {
    Peupler(1);
    ClsJeuPerso& p = Persos[0];
    p.Energie.Valeur = 9;
    p.Moral.Valeur = 9;
    p.Calculer_CoefForme();
    EXPECT_NEAR(p.CoefForme, 0.1, 1e-12);
    p.Energie.Valeur = 30;
    p.Moral.Valeur = 100;
    p.Calculer_CoefForme();
    EXPECT_DOUBLE_EQ(p.CoefForme, 0.875);
}

TEST_F(Perso, LArmureEstUnPlancherDeLaDefense) {
    Peupler(1);
    ClsJeuPerso& p = Persos[0];
    p.ArmureBase = 4;
    p.Ajuster_Bonus();
    p.Definir_Defense(1);
    EXPECT_EQ(p.Definir_Defense(), 4);
    p.Definir_Defense(1e6);
    EXPECT_EQ(p.Definir_Defense(), p.Definir_MaxDefense());
}

TEST_F(Perso, PorterUnObjetGardeLeRemplissageDesJauges) {
    Peupler(1);
    ClsJeuPerso& p = Persos[0];
    const int16_t o = Objet_Tel_Que([](int16_t o) { return !Param.Objet_Utilisable(o) && Param.Objet_BonusVie(o) > 0; });
    const int32_t bonus = p.Objet_Equipe_BonusSup(Param.Objet_Competence(o), Param.Objet_BonusVie(o));
    ASSERT_GT(bonus, 0);
    p.Vie.Valeur = 50;
    p.Objet_Ajouter_Inventaire(o, Param, true);
    EXPECT_FALSE(p.ObjetsInventaire[0].Actif());
    EXPECT_EQ(p.Definir_MaxVie(), 100 + bonus);
    EXPECT_DOUBLE_EQ(p.Vie.Valeur, 50.0 * (100 + bonus) / 100);
    EXPECT_EQ(p.Definir_BonusVie(), bonus);
}

TEST_F(Perso, ChangerDeRaceDonneLeMonstreDuGradeDemandeEtGardeCeQuOnLuiDit) {
    Peupler(1);
    for (int16_t peuple = 1; peuple < Param.NombrePeuples; ++peuple) {
        for (int16_t grade = 0; grade < Param.Peuples_NombreMonstres(peuple); ++grade) {
            ClsJeuPerso p = Persos[0];
            p.Changer_Race(peuple, Param, grade, -1, false);
            EXPECT_EQ(p.Peuple, peuple);
            EXPECT_EQ(p.Grade, grade);
            ASSERT_GT(p.Monstre, 0);
            EXPECT_EQ(p.Nom, Param.Monstre_Nom(p.Monstre - 1));
            EXPECT_EQ(p.Definir_MaxVie(), Param.Monstre_Vie(p.Monstre - 1));
            EXPECT_FALSE(p.Progresse);
        }
    }
    // A grade above the people's last takes the last.
    ClsJeuPerso loup = Persos[0];
    loup.Changer_Race(1, Param, 5, -1, false);
    EXPECT_EQ(loup.Grade, Param.Peuples_NombreMonstres(1) - 1);
    // People 0 leaves the record untouched.
    Empreinte avant, apres;
    Persos[0].Empreindre(avant);
    Persos[0].Changer_Race(0, Param, 2, -1, false);
    Persos[0].Empreindre(apres);
    EXPECT_EQ(avant.Valeur(), apres.Valeur());
    // Keeping: resources stay with the record.
    ClsJeuPerso garde = Persos[0];
    garde.Ressources[2] = 7;
    garde.Changer_Race(2, Param, 0, -1, true);
    EXPECT_EQ(garde.Ressources[2], 7);
}

TEST_F(Perso, UnMonstreInfatigableNeSeFatiguePasEtNApprendRien) {
    Peupler(1);
    ClsJeuPerso& p = Persos[0];
    int16_t monstre = -1;
    for (int16_t m = 0; m < Param.NombreTotalMonstres && monstre < 0; ++m)
        if (Param.Monstre_Infatigable(m) != 0) monstre = m;
    ASSERT_GE(monstre, 0);
    p.Changer_Race(Souple_En<int16_t>(Param.Monstre_Peuple(monstre)), Param, 0, monstre, false);
    EXPECT_EQ(p.Definir_MaxEnergie(), 9999);
    EXPECT_EQ(p.Definir_MaxMoral(), 9999);
    for (int t = 0; t < 10000; ++t) {
        p.Definir_Attaque(0);
        p.Recuperation(Fiefs[0]);
    }
    EXPECT_GT(p.Definir_Energie(), 9999 * 0.5);
    EXPECT_EQ(p.Energie.Exp, 0);
    EXPECT_EQ(p.Attaque.Exp, 0);
}

TEST_F(Perso, LeMarchandageTendVersLaMoitieDuPrix) {
    Peupler(1);
    ClsJeuPerso& p = Persos[0];
    EXPECT_EQ(p.Prix_Marchandee(101, Param), 101);
    p.CompetencesSpeciales[3].Effectif = 3 * Param.PersosNiveauSpecialesDepart;
    EXPECT_EQ(p.Prix_Marchandee(90, Param), 60);
}

}  // namespace
