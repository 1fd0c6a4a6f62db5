#include <cmath>

#include "ReglesParDefaut.h"
#include "characters/ClsJeuPerso.h"
#include "characters/Deplacement.h"

namespace {

// Three workers of fief 0 and their house slots; the castle stands, for the epoch climb.
class Travail : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Peupler(3);
        Initialiser_Chateau(Chateaux[0], Fiefs[0], Param);
    }

    static ClsJeuPerso& P(int i) { return Persos[static_cast<std::size_t>(i)]; }

    // House of character i of the first type that passes the test, finished or a site.
    template <class Predicat>
    static ClsJeuBatiment& Maison(int i, Predicat predicat, bool finie) {
        int16_t type = 0;
        while (type < Param.NombreTypeBatiments && !predicat(type)) ++type;
        EXPECT_LT(type, Param.NombreTypeBatiments) << "aucun type ne convient";
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(i)];
        m.Creer(300, 500, type, P(i), Param);
        if (finie) m.Definir_Vie(m.MaxVie);
        return m;
    }

    // The first resource made from a raw material, and that material.
    static int Transformee() {
        for (int r = 0; r < Param.NombreRessources; ++r)
            if (Param.Ressources_TypeMatierePremiere(r) >= 0) return r;
        ADD_FAILURE() << "aucune ressource transformée";
        return 0;
    }
};

// A deposit is never used up; a harvester fills itself to its exact capacity, its house
// only when it works at home, and earns its fraction of a tick as experience.
TEST_F(Travail, LaRecolteRemplitLePorteurPuisLaMaisonEtSArreteAuPlein) {
    ClsJeuPerso& p = P(0);
    const int r = 0;
    ASSERT_LT(Param.Ressources_TypeMatierePremiere(r), 0);
    Ressources.assign(1, ClsJeuRessources{p.PositionX, p.PositionY, "", 0, r, 100, 100});
    p.Aller_Ressource(Ressources[0], 0, 0, 0);
    p.PositionX = p.DestinationX, p.PositionY = p.DestinationY;
    CiblesDeplacement c = Lire_Cibles(p);
    int32_t commentaire = -1;
    p.Deplacement(c, commentaire, Param);

    // Level 0, full form, a capacity of 20: a twentieth of the extraction speed a tick.
    const double f = (0 + Param.PersosMaxRessources) / 400.0;
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(r), Param.Ressources_VitesseExtraction(r) * f);
    EXPECT_DOUBLE_EQ(p.CompetencesRessources[r].Exp, f);
    EXPECT_DOUBLE_EQ(p.Energie.Valeur, Param.PersosMaxEnergie - 0.00625);
    EXPECT_DOUBLE_EQ(p.Moral.Valeur, Param.PersosMaxMoral - 0.00125);

    int ticks = 1;
    for (; commentaire < 0 && ticks < 5000; ++ticks) {
        EXPECT_LE(p.Definir_Ressources(r), p.Definir_MaxRessources(r));
        p.Deplacement(c, commentaire, Param);
    }
    EXPECT_EQ(commentaire, 0);   // full, and a deposit is no home to overflow into
    EXPECT_EQ(p.Definir_Ressources(r), p.Definir_MaxRessources(r));
    EXPECT_EQ(p.Definir_Action(), 0);
    EXPECT_EQ(Ressources[0].Quantite, 100);

    // At home the overflow goes into the house until its stock is full too.
    ClsJeuBatiment& m = Maison(1, [](int16_t b) { return Param.Batiment_RessourceFabrique(b) == 0; }, true);
    ClsJeuPerso& q = P(1);
    q.Definir_Ressources(r, q.Definir_MaxRessources(r));
    q.DansSaMaison = true;
    q.Definir_Action(102);
    commentaire = -1;
    while (commentaire < 0) q.Recolter_Ressources(r, m, commentaire, Param);
    EXPECT_EQ(std::tuple(commentaire, q.Definir_Action(), m.Stock), std::tuple(0, 100, m.MaxStock));
    const double exp = q.CompetencesRessources[r].Exp;
    q.Recolter_Ressources(r, m, commentaire, Param);   // stopped, it earns nothing more
    EXPECT_EQ(q.CompetencesRessources[r].Exp, exp);
}

// A processing trade pays its raw material tick by tick and stops, comment 1, when what
// is left cannot pay for a tick.
TEST_F(Travail, UneTransformationPaieSaMatiereEtSArreteQuandElleManque) {
    const int r = Transformee();
    const int m = Param.Ressources_TypeMatierePremiere(r);
    const double q = Param.Ressources_QuantiteMatierePremiere(r);
    ClsJeuBatiment& maison = Maison(0, [r](int16_t b) { return Param.Batiment_RessourceFabrique(b) == r; }, true);
    ClsJeuPerso& p = P(0);
    p.Definir_Ressources(m, 3);
    p.Definir_Action(102);
    int32_t commentaire = -1;
    int ticks = 0;
    while (commentaire < 0) {
        p.Recolter_Ressources(r, maison, commentaire, Param);
        ++ticks;
    }
    const double sortie = Param.Ressources_VitesseExtraction(r) * Param.PersosMaxRessources / 400.0;
    EXPECT_EQ(std::tuple(commentaire, p.Definir_Action()), std::tuple(1, 100));
    EXPECT_NEAR(p.Definir_Ressources(r), sortie * (ticks - 1), 1e-9);
    EXPECT_NEAR(p.Definir_Ressources(m), 3 - sortie * q * (ticks - 1), 1e-9);
    EXPECT_LT(p.Definir_Ressources(m), sortie * q);
    EXPECT_EQ(maison.Stock, 0);
}

// A service is made into the house's stock at its speed, with the service's experience
// coefficient; a full stock stops its maker.
TEST_F(Travail, UnServiceRemplitLeStockDeLaMaison) {
    ClsJeuBatiment& m = Maison(0, [](int16_t b) { return Param.Batiment_Service(b) > 0; }, true);
    const int s = m.Service;
    ClsJeuPerso& p = P(0);
    for (int r = 0; r < Param.NombreRessources; ++r) p.Definir_Ressources(r, p.Definir_MaxRessources(r));
    p.Definir_Action(101);
    int32_t commentaire = -1;
    p.Preparer_Service(m, commentaire, Param);
    const double f = Param.PersosNiveauServicesDepart / 400.0;
    const double sortie = Param.Service_VitesseCreation_Reel(s) * f;
    EXPECT_EQ(std::tuple(p.Definir_Action(), p.ServiceEnCours, commentaire), std::tuple(600, s, -1));
    EXPECT_DOUBLE_EQ(m.Stock, sortie);
    EXPECT_DOUBLE_EQ(p.CompetencesServices[s - 1].Exp, Param.Service_CoefExp_Reel(s) * sortie);

    m.Stock = m.MaxStock;
    p.Preparer_Service(m, commentaire, Param);
    EXPECT_EQ(std::tuple(commentaire, p.Definir_Action()), std::tuple(0, 0));
}

// A site grows by the builder's skill until it is finished; finishing a type of the next
// epoch starts the fief's climb, a type of its own epoch does not.
TEST_F(Travail, BatirFinitLaMaisonEtUnTypeDeLEpoqueSuivanteFaitMonterLeFief) {
    for (const bool suivante : {true, false}) {
        P(0).Init(0, Param);
        ClsJeuBatiment& m = Maison(0, [](int16_t) { return true; }, false);
        Fiefs[0].Epoque = static_cast<int16_t>(Param.Batiment_NoEpoque(m.Type) - (suivante ? 1 : 0));
        Fiefs[0].ChangementEpoque = false;
        ClsJeuPerso& p = P(0);
        p.Definir_Action(6);
        const double depart = m.Definir_Vie();
        p.Batir_Maison(Fiefs[0], Chateaux[0], m, Param);
        EXPECT_DOUBLE_EQ(m.Definir_Vie(), depart + 6);   // (level + start) × form × 3 / start
        EXPECT_DOUBLE_EQ(p.CompetencesSpeciales[0].Exp, 6 * 0.001 * 20);
        int ticks = 1;
        for (; p.Definir_Action() == 6 && ticks < 10000; ++ticks) {
            EXPECT_FALSE(m.Termine);
            p.Batir_Maison(Fiefs[0], Chateaux[0], m, Param);
        }
        EXPECT_EQ(std::tuple(p.Definir_Action(), m.Termine, m.Definir_Vie()), std::tuple(101, true, double(m.MaxVie)));
        EXPECT_EQ(Fiefs[0].ChangementEpoque, suivante);
        Maisons[0] = ClsJeuBatiment{};
    }
}

// An object grows by the maker's skill and is paid for only when it is done.
TEST_F(Travail, UnObjetSePaieAuDernierTourEtEntreDansLeStock) {
    ClsJeuBatiment& m = Maison(0, [](int16_t b) { return Param.Batiment_NombreObjetsFabriques(b) > 0; }, true);
    ClsJeuPerso& p = P(0);
    const int16_t o = Param.Batiment_ObjetFabrique(m.Type, 0);
    EXPECT_FALSE(p.PeutConstruire_Objet(-1, m, Param));
    EXPECT_FALSE(p.PeutConstruire_Objet(Param.Batiment_NombreObjetsFabriques(m.Type), m, Param));
    for (int r = 0; r < Param.NombreRessources; ++r) p.Definir_Ressources(r, Param.Objet_PrixRessources(o, r));
    ASSERT_TRUE(p.PeutConstruire_Objet(0, m, Param));
    int paye = 0;
    while (Param.Objet_PrixRessources(o, paye) == 0) ++paye;
    const double avant = p.Definir_Ressources(paye);
    p.Creer_Objet(0);
    EXPECT_EQ(p.Definir_Action(), 500);

    int32_t commentaire = -1;
    const double pas = 0.1 * Param.PersosNiveauObjetsDepart;
    const int attendus = static_cast<int>(std::ceil(Param.Objet_DureeFabrication(o) / pas - 1e-9));
    int ticks = 0;
    while (p.Definir_Action() == 500 && ticks < 100000) {
        EXPECT_EQ(p.Definir_Ressources(paye), avant);   // nothing paid yet
        p.Fabriquer_Objet(Param, m, commentaire);
        ++ticks;
    }
    EXPECT_EQ(std::tuple(ticks, commentaire, p.Definir_Action(), m.Stock_Objets(0), m.Stock),
              std::tuple(attendus, 0, 100, 1.0, 1.0));
    for (int r = 0; r < Param.NombreRessources; ++r) EXPECT_EQ(p.Definir_Ressources(r), 0) << r;
    EXPECT_FALSE(p.PeutConstruire_Objet(0, m, Param));

    p.Creer_Objet(Param.Batiment_NombreObjetsFabriques(m.Type));   // a line the house does not make
    EXPECT_FALSE(p.Fabriquer_Objet(Param, m, commentaire));
    EXPECT_EQ(std::tuple(p.Definir_Action(), m.Stock), std::tuple(0, 1.0));
}

// Food goes into the reserves, scaled by the eater's maxima; a meal eats only the first food
// of that gauge and only what the gauge can hold, counting what has not yet flowed in.
TEST_F(Travail, MangerRemplitLesReservesEtJamaisUneJaugeDUnCoup) {
    ClsJeuPerso& p = P(0);
    int baies = -1, autre = -1;
    for (int r = 0; r < Param.NombreRessources; ++r) {
        if (!Param.Ressources_Mangeable(r) || Param.Ressources_GainVie(r) <= 0) continue;
        (baies < 0 ? baies : autre) = r;
        if (autre >= 0) break;
    }
    ASSERT_GE(autre, 0);
    const double g = Param.Ressources_GainVie(baies);

    p.Recuperer_Vie(Param);   // no food: nothing happens
    p.Vie.Valeur = p.Vie.Max - 2.5 * g;
    p.Recuperer_AutoVie(Param);
    EXPECT_EQ(p.Vie.Reserve, 0);
    p.Definir_Ressources(baies, 1);
    p.Definir_Ressources(autre, 5);
    p.Recuperer_Vie(Param);   // one unit of the first food, even though it is not enough
    EXPECT_EQ(std::tuple(p.Definir_Ressources(baies), p.Definir_Ressources(autre), p.Vie.Reserve),
              std::tuple(0.0, 5.0, g));
    EXPECT_DOUBLE_EQ(p.Vie.Valeur, p.Vie.Max - 2.5 * g);

    p.Definir_Ressources(baies, 5);
    p.Recuperer_Vie(Param);   // 1.5 g missing: one more unit, the reserve counting as eaten
    EXPECT_EQ(std::tuple(p.Definir_Ressources(baies), p.Vie.Reserve), std::tuple(4.0, 2 * g));
    p.Recuperer_AutoVie(Param);
    EXPECT_EQ(p.Definir_Ressources(baies), 4.0);

    p.Vie.Max = 2 * p.Vie.MaxBase;   // an object doubling the maximum doubles every meal
    p.Manger_Ressources(baies, Param);
    EXPECT_EQ(p.Vie.Reserve, 4 * g);
    p.Manger_Ressources(Param.NombreRessources, Param);   // outside the table: nothing
    p.Manger_Ressources(-1, Param);
}

}  // namespace
