#include <vector>

#include "ReglesParDefaut.h"
#include "characters/ClsJeuPerso.h"

namespace {

class Objets : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Peupler(2);
        Commentaires.Charger();
    }

    static ClsJeuPerso& P(int i = 0) { return Persos[static_cast<std::size_t>(i)]; }

    static int16_t De_Categorie(int16_t categorie, int rang = 0) {
        return Objet_Tel_Que([categorie, rang, n = 0](int16_t o) mutable {
            return Param.Objet_Categorie(o) == categorie && !Param.Objet_Utilisable(o) && n++ == rang;
        });
    }

    // Puts the object in the inventory and wears it.
    static void Porter(int16_t o) {
        P().Objet_Ajouter_Inventaire(o, Param, false);
        int slot = 0;
        while (P().ObjetsInventaire[static_cast<std::size_t>(slot)].Type != o) ++slot;
        P().Objet_Equiper(slot, Param, Commentaires);
    }

    static std::vector<int16_t> Equipes() {
        std::vector<int16_t> v;
        for (const ClsJeuObjet& o : P().ObjetsEquipes) v.push_back(o.Type);
        return v;
    }
    static std::vector<int16_t> Inventaire() {
        std::vector<int16_t> v;
        for (const ClsJeuObjet& o : P().ObjetsInventaire)
            if (o.Type >= 0) v.push_back(o.Type);
        return v;
    }
};

// Each category goes to its slot; both hands, one hand and the pair make room as they must.
TEST_F(Objets, ChaqueCategorieVaASaPlaceEtFaitDeLaPlaceCommeIlFaut) {
    const int16_t main1 = De_Categorie(0), main2 = De_Categorie(0, 1), main3 = De_Categorie(0, 2);
    const int16_t deuxMains = De_Categorie(1), corps = De_Categorie(2), tete = De_Categorie(3);
    const int16_t bague1 = De_Categorie(6), bague2 = De_Categorie(6, 1), bague3 = De_Categorie(6, 2);
    const int16_t X = -1;

    Porter(corps);
    Porter(tete);
    EXPECT_EQ(Equipes(), (std::vector<int16_t>{X, X, corps, tete, X, X, X, X, X}));
    EXPECT_FALSE(P().Objet_Emplacement_Libre(corps, Param));

    Porter(main1);
    Porter(main2);   // the second hand
    EXPECT_EQ(Equipes()[0], main1);
    EXPECT_EQ(Equipes()[1], main2);
    Porter(main3);   // both hands full: slot 0's weapon goes back
    EXPECT_EQ(Equipes()[0], main3);
    EXPECT_EQ(Equipes()[1], main2);
    EXPECT_EQ(Inventaire(), (std::vector<int16_t>{main1}));

    Porter(deuxMains);   // both hands empty out, slot 0's first
    EXPECT_EQ(Equipes()[0], deuxMains);
    EXPECT_EQ(Equipes()[1], X);
    EXPECT_EQ(Inventaire(), (std::vector<int16_t>{main1, main3, main2}));
    EXPECT_TRUE(P().Objet_Equipes_2_Mains(Param));
    EXPECT_FALSE(P().Objet_Emplacement_Libre(main1, Param));

    P().Objet_Equiper(0, Param, Commentaires);   // one hand replaces both hands in slot 0
    EXPECT_EQ(Equipes()[0], main1);
    EXPECT_EQ(Inventaire(), (std::vector<int16_t>{deuxMains, main3, main2}));

    // A two-handed weapon with a weapon in slot 1 only: that one goes back.
    P().ObjetsEquipes[0].Decharger();
    P().ObjetsEquipes[1].Charger(main1);
    P().Objet_Inventaire_Vider_Tout();
    Porter(deuxMains);
    EXPECT_EQ(Equipes()[0], deuxMains);
    EXPECT_EQ(Equipes()[1], X);
    EXPECT_EQ(Inventaire(), (std::vector<int16_t>{main1}));

    Porter(bague1);
    Porter(bague2);
    Porter(bague3);   // a third of the pair replaces slot 7, not 6
    EXPECT_EQ(Equipes()[6], bague1);
    EXPECT_EQ(Equipes()[7], bague3);
    EXPECT_EQ(P().Objet_NombreType(bague2), 1);
    EXPECT_TRUE(P().Objet_Posseder(bague1));
    EXPECT_FALSE(P().Objet_Posseder(bague3 + 100));
}

// What is worn raises the maxima and what is taken off lowers them again, never leaving a
// gauge above its maximum; a full inventory refuses what is taken off.
TEST_F(Objets, LesBonusSuiventCeQuiEstPorte) {
    const int16_t o = Objet_Tel_Que([](int16_t x) {
        return !Param.Objet_Utilisable(x) && Param.Objet_BonusVie(x) > 0 && Param.Objet_Categorie(x) > 1;
    });
    const int32_t base = P().Definir_MaxVie();
    Porter(o);
    const int slot = Param.Objet_Categorie(o);
    EXPECT_EQ(P().Definir_MaxVie(), base + Param.Objet_BonusVie(o));
    P().Vie.Valeur = P().Definir_MaxVie();

    for (std::size_t i = 0; i < P().ObjetsInventaire.size(); ++i) P().Objet_Inventaire_Charger(static_cast<int>(i), 0);
    P().Objet_Ranger(slot, Param);   // nowhere to put it
    EXPECT_EQ(P().ObjetsEquipes[static_cast<std::size_t>(slot)].Type, o);

    P().Objet_Inventaire_Detruire(3);
    P().Objet_Ranger(slot, Param);
    EXPECT_EQ(P().ObjetsEquipes[static_cast<std::size_t>(slot)].Type, -1);
    EXPECT_EQ(P().ObjetsInventaire[3].Type, o);
    EXPECT_EQ(P().Definir_MaxVie(), base);
    EXPECT_LE(P().Vie.Valeur, P().Definir_MaxVie());
    EXPECT_DOUBLE_EQ(P().Vie.Valeur, base);
}

// A used object is paid for by the gauges, each of which must hold more than its cost; a
// single-use object vanishes; nothing while a use is pending.
TEST_F(Objets, UnObjetUtiliseSePaieParLesJaugesEtDisparaitSIlEstUnique) {
    const int16_t o = Objet_Tel_Que([](int16_t x) { return Param.Objet_Utilisable(x) && Param.Objet_UtilisationUnique(x); });
    P().Objet_Ajouter_Inventaire(o, Param, true);   // a used object is never worn
    EXPECT_EQ(P().ObjetsInventaire[0].Type, o);

    P().Magie.Valeur = Param.Objet_PerteMagie(o);   // as much as the cost is not enough
    P().Objet_Equiper(0, Param, Commentaires);
    EXPECT_EQ(P().ObjetUtilise, -1);
    ASSERT_GT(Commentaires.Nombre_Messages(19), 0);
    EXPECT_FALSE(P().Definir_Commentaires().empty());   // it says which gauge is too low

    P().Magie.Valeur = Param.Objet_PerteMagie(o) + 1;
    const double vie = P().Vie.Valeur, exp = P().CompetencesObjets[Param.Objet_Competence(o)].Exp;
    P().Objet_Equiper(0, Param, Commentaires);
    EXPECT_EQ(P().ObjetUtilise, o);
    EXPECT_DOUBLE_EQ(P().Vie.Valeur, vie - Param.Objet_PerteVie(o));
    EXPECT_DOUBLE_EQ(P().CompetencesObjets[Param.Objet_Competence(o)].Exp - exp, Param.Objet_Experience(o));
    EXPECT_EQ(P().ObjetsInventaire[0].Type, -1);

    P().Objet_Ajouter_Inventaire(o, Param, false);
    P().Objet_Equiper(0, Param, Commentaires);   // the first use has not been applied yet
    EXPECT_EQ(P().ObjetsInventaire[0].Type, o);
}

// Buying pays the bargained price into the till, even when nothing can arrive; selling to
// the castle pays the full price; dropping into a house keeps only what it makes.
TEST_F(Objets, AcheterPaieLeMarchandEtVendreAuChateauPaieLePrixPlein) {
    int16_t type = 0;
    while (Param.Batiment_NombreObjetsFabriques(type) == 0) ++type;
    ClsJeuBatiment& boutique = Maisons[1];
    boutique.Creer(0, 0, type, P(1), Param);
    boutique.Definir_Vie(boutique.MaxVie);
    boutique.Stock_Objets(0, 2);
    const int16_t o = Param.Batiment_ObjetFabrique(type, 0);
    const double prix = P().Prix_Marchandee(Param.Objet_PrixVente(o) * Param.CoefficientAchat, Param);

    P().Definir_Argent(prix - 1);
    P().Objet_Acheter_Maison(0, boutique, Param);   // too poor: nothing
    EXPECT_EQ(std::tuple(P().Argent, boutique.Argent, boutique.Stock_Objets(0)), std::tuple(prix - 1, 0.0, 2.0));

    P().Definir_Argent(2 * prix);
    P().Objet_Acheter_Maison(0, boutique, Param);
    EXPECT_EQ(std::tuple(P().Argent, boutique.Argent, boutique.Stock_Objets(0)), std::tuple(prix, prix, 1.0));
    EXPECT_EQ(P().Objet_NombreType(o), 1);
    EXPECT_GT(P().CompetencesSpeciales[3].Exp, 0);   // bargaining grows by trading

    for (std::size_t i = 0; i < P().ObjetsInventaire.size(); ++i) P().ObjetsInventaire[i].Actif(true);
    P().Objet_Acheter_Maison(0, boutique, Param);   // full: the money goes, no object comes
    EXPECT_EQ(std::tuple(P().Argent, boutique.Argent, boutique.Stock_Objets(0)), std::tuple(0.0, 2 * prix, 1.0));
    for (int n : {-1, 99}) P().Objet_Acheter_Maison(n, boutique, Param);   // no such line

    P().Objet_Inventaire_Vider_Tout();
    P().Objet_Ajouter_Inventaire(o, Param, false);
    P().Objet_Ajouter_Inventaire(o, Param, false);
    P().Objet_Deposer_Maison(0, boutique, Param);   // the house takes what it makes
    EXPECT_EQ(boutique.Stock_Objets(0), 2.0);
    for (int slot : {-1, 0, 40}) P().Objet_Vendre_Chateau(slot, Param);   // empty or no such slot
    EXPECT_EQ(P().Argent, 0);
    P().Objet_Vendre_Chateau(1, Param);
    EXPECT_EQ(P().Argent, Param.Objet_PrixVente(o));
    EXPECT_TRUE(Inventaire().empty());

    const int16_t autre = Objet_Tel_Que([type](int16_t x) {
        for (int n = 0; n < Param.Batiment_NombreObjetsFabriques(type); ++n)
            if (Param.Batiment_ObjetFabrique(type, n) == x) return false;
        return true;
    });
    P().Objet_Ajouter_Inventaire(autre, Param, false);
    P().Objet_Deposer_Maison(0, boutique, Param);   // not of its list: dropped
    EXPECT_TRUE(Inventaire().empty());
    EXPECT_EQ(boutique.Stock, 2.0);
}

}  // namespace
