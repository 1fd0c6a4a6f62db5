#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "ReglesParDefaut.h"
#include "characters/ClsJeuPerso.h"

namespace {

class Niveaux : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Peupler(1);
    }
    ClsJeuPerso& p() { return Persos[0]; }
};

TEST_F(Niveaux, ChaqueGenreMonteAuSeuilExactPasEnDessousEtFranchitPlusieursSeuilsDUnCoup) {
    struct Cas { GenreExperience genre; double seuils[4]; };
    for (const Cas& c : {Cas{GenreJauge, {20, 60, 120, 200}}, Cas{GenreCombat, {400, 1200, 2400, 4000}},
                         Cas{GenreRessource, {15, 45, 90, 150}}, Cas{GenreService, {20, 60, 120, 200}},
                         Cas{GenreObjet, {20, 60, 120, 200}}, Cas{GenreSpeciale, {20, 60, 120, 200}}}) {
        int32_t valeur = 7, compte = 0;
        double exp = 0, bas = 0, haut = c.seuils[0];
        p().Ajouter_Experience(valeur, c.seuils[0] - 0.5, exp, compte, bas, haut, c.genre);
        EXPECT_EQ(std::tuple(valeur, compte, haut), std::tuple(7, 0, c.seuils[0])) << c.genre;
        p().Ajouter_Experience(valeur, 0.5, exp, compte, bas, haut, c.genre);
        EXPECT_EQ(std::tuple(valeur, compte, bas, haut), std::tuple(8, 1, c.seuils[0], c.seuils[1])) << c.genre;
        p().Ajouter_Experience(valeur, c.seuils[3] - exp, exp, compte, bas, haut, c.genre);   // 3 more at once
        EXPECT_EQ(std::tuple(valeur, compte, bas), std::tuple(11, 4, c.seuils[3])) << c.genre;
    }
}

// The record after a level equals the record before with just the rule's changes applied.
TEST_F(Niveaux, UnNiveauChangeCeQueDitLaRegleEtRienDAutre) {
    using P = ClsJeuPerso;
    struct Cas {
        std::vector<Competence> P::*table;
        GenreExperience genre;
        double seuil, suivant;
        double (P::*progression)(int) const;
    };
    const Cas cas[] = {
        {&P::CompetencesSpeciales, GenreSpeciale, 20, 60, &P::Progression_CompetenceSpeciale},
        {&P::CompetencesRessources, GenreRessource, 15, 45, &P::Progression_CompetenceRessource},
        {&P::CompetencesServices, GenreService, 20, 60, &P::Progression_CompetenceService},
        {&P::CompetencesObjets, GenreObjet, 20, 60, &P::Progression_CompetenceObjet},
    };
    for (const Cas& c : cas) {
        ClsJeuPerso avant = p(), apres = p();
        Competence& e = (apres.*c.table)[1];
        apres.Ajouter_Experience(e.Valeur, c.seuil, e.Exp, e.Compte, e.SeuilBas, e.SeuilHaut, c.genre);
        Competence& attendu = (avant.*c.table)[1];
        const bool ressource = c.genre == GenreRessource;
        attendu = {attendu.Valeur + 1, 1, ressource ? 1 : attendu.Valeur + 1, c.seuil, c.seuil, c.suivant};
        Empreinte a, b;
        avant.Empreindre(a);
        apres.Empreindre(b);
        EXPECT_EQ(a.Valeur(), b.Valeur()) << c.genre;
        EXPECT_EQ((apres.*c.progression)(1), 0) << c.genre;
    }
}

TEST_F(Niveaux, LExperienceEcriteSeLitTelleEtSesNiveauxReviennentAuChargement) {
    ClsJeuPerso& q = p();
    EXPECT_EQ(std::tuple(q.Nombre_CompetencesSpeciales(), q.Nombre_CompetencesRessources(),
                         q.Nombre_CompetencesServices(), q.Nombre_CompetencesObjets()),
              std::tuple(4, 17, 2, 8));
    q.Definir_ExpSpeciales(3, 60);
    q.Definir_ExpRessources(4, 50);
    q.Definir_ExpServices(1, 130);
    q.Definir_ExpObjets(7, 20);
    q.Attaque.Exp = 1200;
    q.Energie.Exp = 40;
    EXPECT_EQ(std::tuple(q.Definir_ExpSpeciales(3), q.Definir_ExpRessources(4), q.Definir_ExpServices(1),
                         q.Definir_ExpObjets(7)),
              std::tuple(60, 50, 130, 20));
    EXPECT_EQ(std::tuple(q.Definir_ExpSpeciales(-1), q.Definir_ExpRessources(-1), q.Definir_ExpServices(-1),
                         q.Definir_ExpObjets(-1)),
              std::tuple(0, 0, 0, 0));
    EXPECT_EQ(q.Niveau_CompetenceServices(1), 0);   // a write alone gives no level
    q.Gestion_Tous_Niveaux();
    EXPECT_EQ(std::tuple(q.Niveau_CompetenceSpeciales(3), q.Niveau_CompetenceRessources(4),
                         q.Niveau_CompetenceServices(1), q.Niveau_CompetenceObjets(7)),
              std::tuple(2, 2, 3, 1));
    EXPECT_EQ(std::tuple(q.Definir_Niveau_CompetenceSpeciales(3), q.Definir_Niveau_CompetenceServices(1),
                         q.Definir_MaxRessources(4), q.Definir_MaxAttaque(), q.Attaque.Niveau),
              std::tuple(12, 13, Param.PersosMaxRessources + 2, Param.PersosAttaque + 2, 2));
    EXPECT_EQ(std::tuple(q.Progression_Attaque(), q.Progression_energie(), q.Progression_Vie(),
                         q.Progression_Magie(), q.Progression_Moral(), q.Progression_Defense(),
                         q.Progression_CompetenceService(1)),
              std::tuple(0.0, 0.5, 0.0, 0.0, 0.0, 0.0, 10.0 / 80));
}

TEST_F(Niveaux, SansProgresRienNeSApprend) {
    ClsJeuPerso& q = p();
    q.Progresse = false;
    Empreinte avant, apres;
    q.Empreindre(avant);
    for (int k = 0; k < 4; ++k) q.Gestion_Niveau_Comp_Speciale(k, 1e6, Param);
    q.Gestion_Niveau_Prime(1e6, Param);
    q.Ajouter_Experience(q.Vie.MaxBase, 1e6, q.Vie.Exp, q.Vie.Niveau, q.Vie.SeuilBas, q.Vie.SeuilHaut, GenreJauge);
    q.Empreindre(apres);
    EXPECT_EQ(avant.Valeur(), apres.Valeur());
}

TEST_F(Niveaux, UnBonusDeCompetenceNeCompteQueSIlEleveAuDessusDeLaBase) {
    ClsJeuPerso& q = p();
    q.ObjetsEquipes[0].Charger(28);   // +2 to object competence 7
    q.ObjetsEquipes[1].Charger(4);    // +2 to resource competences 0 and 12
    q.Actualiser_Bonus(Param);
    for (int k = 0; k < 8; ++k) EXPECT_EQ(q.Bonus_CompetenceObjets(k), k == 7) << k;
    for (int r = 0; r < 17; ++r) EXPECT_EQ(q.Bonus_CompetenceRessources(r), r == 0 || r == 12) << r;
    EXPECT_FALSE(q.Bonus_CompetenceSpeciales(0) || q.Bonus_CompetenceServices(1));
}

TEST_F(Niveaux, LeMetierEstCeluiDuMeilleurTypeDeBatiment) {
    struct Cas { std::function<void(ClsJeuPerso&)> apprendre; bool feminin; std::string metier; };
    const Cas cas[] = {
        {[](ClsJeuPerso&) {}, false, ""},
        {[](ClsJeuPerso& q) { q.Definir_ExpRessources(3, 5); }, false, "Tailleur de pierre"},   // a third of a level
        {[](ClsJeuPerso& q) { q.Definir_ExpRessources(0, 20), q.Definir_ExpRessources(1, 20); }, false, "Cueilleur"},
        {[](ClsJeuPerso& q) { q.Definir_ExpRessources(2, 20); }, true, "Bûcheronne"},
        {[](ClsJeuPerso& q) { q.Definir_ExpServices(0, 20); }, true, "Prêtresse"},   // before the canon
        {[](ClsJeuPerso& q) { q.Definir_ExpServices(1, 20); }, false, "Homme d'armes"},
        // A workshop scores the mean over what it makes: 1 for the jeweller, all of whose objects
        // are of competence 5; then a resource at 0.8 loses and one at 1.27 wins.
        {[](ClsJeuPerso& q) { q.Definir_ExpObjets(5, 20), q.Definir_ExpRessources(7, 12); }, false, "Joaillier"},
        {[](ClsJeuPerso& q) { q.Definir_ExpObjets(5, 20), q.Definir_ExpRessources(7, 23); }, false, "Orpailleur"},
    };
    for (const Cas& c : cas) {
        ClsJeuPerso q = p();
        q.Feminin = c.feminin;
        c.apprendre(q);
        q.Gestion_Tous_Niveaux();
        EXPECT_EQ(q.Metier(Param), c.metier);
    }
}

// Default rules: 17 resources, 2 services, 8 object competences make n = 24 and k = 6.
TEST_F(Niveaux, NiveauGeneralReleveDesCompetencesEtBestiaire) {
    struct Cas { std::function<void(ClsJeuPerso&)> apprendre; double niveau; int32_t min; double moy; int32_t max; };
    const Cas cas[] = {
        {[](ClsJeuPerso&) {}, 1, 10, 480.0 / 31, 20},
        {[](ClsJeuPerso& q) { q.Vie.Exp = 125; }, 1 + 18.0 / 60, 10, 480.0 / 31, 20},
        {[](ClsJeuPerso& q) { q.Definir_ExpRessources(0, 45), q.Definir_ExpSpeciales(2, 20); },
         1 + 3.0 / 60, 10, 483.0 / 31, 22},
        {[](ClsJeuPerso& q) { q.Definir_MaxRessources(5, 3), q.Definir_ExpObjets(1, 20); },
         1 + 1.0 / 60, 3, 464.0 / 31, 20},
    };
    for (const Cas& c : cas) {
        ClsJeuPerso q = p();
        c.apprendre(q);
        q.Gestion_Tous_Niveaux();
        EXPECT_DOUBLE_EQ(q.Niveau(), c.niveau);
        EXPECT_EQ(std::tuple(q.Definir_Min_Competence(), q.Definir_Max_Competence()), std::tuple(c.min, c.max));
        EXPECT_DOUBLE_EQ(q.Definir_Moy_Competence(), c.moy);
    }

    ClsJeuPerso& q = p();
    EXPECT_EQ(std::tuple(q.Nombre_de_lignes_du_bestiaire(), q.Definir_Bestiaire_Total()),
              std::tuple(Param.NombreTotalMonstres + 1, 0));
    q.Definir_Bestiaire(0, 2);
    q.Definir_Bestiaire(Param.NombreTotalMonstres, 5);
    EXPECT_EQ(std::tuple(q.Definir_Bestiaire(0), q.Definir_Bestiaire_Total()), std::tuple(2, 7));
}

}  // namespace
