#include "session/ScriptOrdres.h"

#include <string>
#include <tuple>

#include "MondeDeTest.h"

namespace {

std::optional<ScriptOrdres> Lire(std::string_view texte, std::string& erreur) {
    return ScriptOrdres::Lire_Texte(texte, "ordres.txt", erreur);
}

// A bad line: nothing is read, and the message names the file, the line and the fault.
struct LigneFautive {
    const char* Texte;
    int Ligne;
    const char* Fragment;
};

TEST(ScriptOrdresLecture, UneLigneFautiveEstRefuseeEnNommantLeFichierEtLaLigne) {
    const LigneFautive cas[] = {
        {"0 0 voler", 1, "ordre inconnu « voler »"},
        {"; rien\n\n0 0 batir 1 2", 3, "« batir » attend 3 arguments (TYPE DX DY), pas 2"},
        {"0 0 rentrer 3", 1, "« rentrer » attend aucun argument, pas 1"},
        {"0 0 arreter 1 2 3 4 5 6 7", 1, "pas 7"},
        {"0 0 aller 1 x", 1, "« x » n'est pas un nombre entier"},
        {"0 0 aller 1 2.5", 1, "« 2.5 » n'est pas un nombre entier"},
        {"0 0 aller 1 99999999999", 1, "nombre 99999999999 hors limites"},
        {"0 0 batir 0 2000000 0", 1, "nombre 2000000 hors limites"},
        {"x 0 arreter", 1, "le tour « x » n'est pas un nombre entier"},
        {"-1 0 arreter", 1, "le tour -1 est négatif"},
        {"5 0 arreter\n# puis\n4 0 arreter", 3, "le tour 4 précède celui de la ligne 1 (5)"},
        {"0 deux arreter", 1, "le personnage « deux » n'est pas un nombre entier"},
        {"0 -2 arreter", 1, "le personnage -2 n'existe pas"},
        {"0 0", 1, "TOUR PERSO ORDRE"},
        {"0 0 recolter -1", 1, "ressource -1 hors limites"},
        {"0 0 batir -3 0 0", 1, "type de bâtiment -3 hors limites"},
        {"0 0 vendre -1", 1, "emplacement du sac -1 hors limites"},
        {"0 0 arreter\r\n0 0 Rentrer\r\n", 2, "ordre inconnu « Rentrer »"},
    };
    for (const auto& [texte, ligne, fragment] : cas) {
        std::string erreur;
        EXPECT_FALSE(Lire(texte, erreur)) << texte;
        EXPECT_NE(erreur.find("ordres.txt, ligne " + std::to_string(ligne) + " : "), std::string::npos)
            << texte << " → " << erreur;
        EXPECT_NE(erreur.find(fragment), std::string::npos) << texte << " → " << erreur;
    }
}

TEST(ScriptOrdresLecture, UnFichierAbsentEstNommeDansLeMessage) {
    std::string erreur;
    EXPECT_FALSE(ScriptOrdres::Lire("/nulle/part/ordres_absents.txt", erreur));
    EXPECT_EQ(erreur, "/nulle/part/ordres_absents.txt : impossible de lire le fichier d'ordres");
    DossierTemporaire dossier;   // a folder is not a script either
    EXPECT_FALSE(ScriptOrdres::Lire(dossier.Chemin(), erreur));
    EXPECT_NE(erreur.find("impossible de lire"), std::string::npos);
}

TEST(ScriptOrdresLecture, CommentairesLignesVidesAccentsEtFinsDeLigneWindowsSontAdmis) {
    std::string erreur;
    const auto script = Lire("\xEF\xBB\xBF; en-tête\r\n"
                             "\r\n"
                             "   # commentaire en retrait\n"
                             "0\t2 bâtir 4 -160 32   ; à gauche\r\n"
                             "0 0 récolter 3#collé\n"
                             "12 1 acheter 5 2\n"
                             "12 0 arrêter\n"
                             "40 0 château",
                             erreur);
    ASSERT_TRUE(script) << erreur;
    const auto& o = script->Ordres();
    ASSERT_EQ(o.size(), 5u);
    EXPECT_EQ(std::tuple(o[0].Tour, o[0].Perso, o[0].Ordre, o[0].Arguments, o[0].Ligne),
              std::tuple(0L, 2, Verbe::Batir, std::array<int32_t, 3>{4, -160, 32}, 4));
    EXPECT_EQ(std::tuple(o[1].Ordre, o[1].Arguments[0], o[1].Ligne), std::tuple(Verbe::Recolter, 3, 5));
    EXPECT_EQ(std::tuple(o[2].Tour, o[2].Ordre, o[2].Arguments[0], o[2].Arguments[1]),
              std::tuple(12L, Verbe::Acheter, 5, 2));
    EXPECT_EQ(std::tuple(o[3].Ordre, o[4].Ordre, o[4].Tour), std::tuple(Verbe::Arreter, Verbe::Chateau, 40L));
    EXPECT_EQ(script->Donnes(), 0u);
}

// The rules (default game) and a world of three characters, for the checks of ranges.
class ScriptOrdresMonde : public MondeDeTest {
protected:
    void SetUp() override {
        MondeDeTest::SetUp();
        Persos.resize(3);
        Maisons.resize(3);
        for (int i = 1; i < 3; ++i) {
            Persos[static_cast<std::size_t>(i)].Init(i, Param);
            Maisons[static_cast<std::size_t>(i)].Numero = i;
        }
        Fiefs.assign(1, ClsJeuFief{});
        Fiefs[0].Init(Param);
        Chateaux.assign(1, ClsJeuBatiment{});
        Initialiser_Chateau(Chateaux[0], Fiefs[0], Param);
        Chateaux[0].PositionX = 1000;
        Chateaux[0].PositionY = 2000;
    }
};

TEST_F(ScriptOrdresMonde, UnNombreHorsDuMondeOuDesReglesEstRefuseAvecSaLigne) {
    const std::tuple<const char*, const char*> cas[] = {
        {"0 3 arreter", "le personnage 3 n'existe pas (0 à 2)"},
        {"0 0 batir 28 0 0", "type de bâtiment 28 hors limites (0 à 27)"},
        {"0 0 recolter 17", "ressource 17 hors limites (0 à 16)"},
        {"0 0 manger 99", "ressource 99 hors limites (0 à 16)"},
        {"0 0 acheter 3 0", "maison 3 hors limites (0 à 2)"},
        {"0 0 acheter 2 6", "ligne d'objets 6 hors limites (0 à 5)"},
        {"0 0 fabriquer 6", "ligne d'objets 6 hors limites (0 à 5)"},
        {"0 0 ramasser 7", "ligne d'objets 7 hors limites (0 à 5)"},
        {"0 0 vendre 16", "emplacement du sac 16 hors limites (0 à 15)"},
        {"0 0 equiper 16", "emplacement du sac 16 hors limites (0 à 15)"},
        {"0 0 deposer 20", "emplacement du sac 20 hors limites (0 à 15)"},
        {"0 0 ranger 9", "emplacement d'équipement 9 hors limites (0 à 8)"},
    };
    for (const auto& [ligne, fragment] : cas) {
        std::string erreur;
        // The first line is in range; the fault is on the second.
        const auto script = Lire(std::string("0 2 batir 27 -5 -5\n") + ligne, erreur);
        ASSERT_TRUE(script) << erreur;
        const auto faute = script->Verifier();
        ASSERT_TRUE(faute) << ligne;
        EXPECT_EQ(*faute, std::string("ordres.txt, ligne 2 : ") + fragment);
    }
}

TEST_F(ScriptOrdresMonde, LesBornesSontAdmisesEtLesOrdresPartentAuTourDit) {
    std::string erreur;
    auto script = Lire("0 0 aller 100 200\n"
                       "0 2 ranger 8\n"
                       "0 2 vendre 15\n"
                       "5 0 aller 7 8\n"
                       "5 1 aller -30 40\n"
                       "9 1 arreter\n"
                       "9 0 chateau\n",
                       erreur);
    ASSERT_TRUE(script) << erreur;
    EXPECT_FALSE(script->Verifier());
    script->Appliquer(0);
    EXPECT_EQ(script->Donnes(), 3u);
    EXPECT_EQ(std::tuple(Persos[0].DestinationX, Persos[0].DestinationY, Persos[0].Definir_Action()),
              std::tuple(100, 200, int16_t{1}));
    script->Appliquer(4);   // nothing new is due
    EXPECT_EQ(script->Donnes(), 3u);
    script->Appliquer(7);   // a tick skipped still gives what was due by then
    EXPECT_EQ(script->Donnes(), 5u);
    EXPECT_EQ(std::tuple(Persos[0].DestinationX, Persos[1].DestinationX, Persos[1].DestinationY),
              std::tuple(7, -30, 40));
    script->Appliquer(9);
    EXPECT_EQ(script->Donnes(), 7u);
    EXPECT_EQ(Persos[1].Definir_Action(), 0);   // stopped where it stands
    // Into its own castle: the centre of the castle's box.
    EXPECT_EQ(std::tuple(Persos[0].Definir_Action(), Persos[0].DestinationX, Persos[0].DestinationY),
              std::tuple(int16_t{202}, 1000 + Param.ChateauxLargeur / 2 - LargeurPerso / 2,
                         2000 + Param.ChateauxHauteur / 2 - HauteurPerso / 2));
    script->Appliquer(1000);
    EXPECT_EQ(script->Donnes(), 7u);
}

TEST_F(ScriptOrdresMonde, RecolterViseLeGisementLePlusProcheDeCetteRessourceEtSinonRien) {
    Ressources.assign(4, ClsJeuRessources{});
    auto gisement = [](int k, int x, int y, int type, double quantite) {
        ClsJeuRessources& g = Ressources[static_cast<std::size_t>(k)];
        g.PositionX = x;
        g.PositionY = y;
        g.TypeRessource = type;
        g.Quantite = quantite;
    };
    gisement(0, 900, 0, 2, 50);     // wood, far
    gisement(1, 20, 20, 3, 50);     // stone, near
    gisement(2, 300, 100, 2, 50);   // wood, near: the one
    gisement(3, 10, 10, 2, 0);      // nearer still, but not on the map
    std::string erreur;
    auto script = Lire("0 0 recolter 2\n1 1 recolter 5\n", erreur);
    ASSERT_TRUE(script) << erreur;
    Persos[1].Aller_A(55, 66);
    script->Appliquer(1);
    EXPECT_EQ(std::tuple(Persos[0].RessourceCible, Persos[0].Definir_Action(), Persos[0].DestinationX,
                         Persos[0].DestinationY),
              std::tuple(2, int16_t{3}, 300 + 16 - 12, 100 + 16 - 16));
    // No deposit of resource 5: the order does nothing.
    EXPECT_EQ(std::tuple(Persos[1].Definir_Action(), Persos[1].DestinationX), std::tuple(int16_t{1}, 55));
}

}  // namespace
