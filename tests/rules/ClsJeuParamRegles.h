// A small, complete and sound set of rule files, written by the tests into a temporary game
// folder. Every value is distinct enough that a key read into the wrong field shows.
//
// Three epochs; resources Blé (0), Bois (1), Planches (2, made from Bois); deposits Champ
// (Blé), Forêt and Bosquet (both Bois); buildings Ferme (makes Blé), Atelier (workshop of
// Épée and Arc), Temple (service Soins), Scierie (makes Planches); objects Épée, Arc, Potion,
// Amulette (secret), Pierre; peoples Humains and Loups; monsters Loup and Loup-garou;
// effects Feu and Explosion.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "Support.h"
#include "rules/ClsJeuParam.h"

inline constexpr std::string_view ReglesPersos = R"([Transactions]
CoefficientAchat=1.5
[Personnages]
PersosNombreApparences=4
PersosMaxVie=100
PersosMaxEnergie=90
PersosMaxMagie=80
PersosMaxMoral=70
PersosNiveauSpecialesDepart=11
PersosNiveauServicesDepart=12
PersosNiveauObjetsDepart=13
PersosMaxRessources=20
PersosAttaque=5
PersosPorteeAttaque=30
PersosDefense=6
PersosVitesse=3
PersosNombreObjetsEquipes=7
PersosNombreObjetsInventaire=8
[Competences_Speciales]
NombreCompetencesSpeciales=2
CompetencesSpeciales1=Marchandage
CompetencesSpeciales(2)=Commandement
)";

inline constexpr std::string_view ReglesFiefs = R"([Chateaux]
ChateauxMaxVie=500
ChateauxLargeur=96
ChateauxHauteur=80
[Epoques]
NombreEpoques=3
[Epoque_1]
Nom=Âge du bois
BonusVieChateau=50
ChateauxRessourcesDepart=100
PersosRessourcesDepart=5
PersosArgentDepart=20.5
[Epoque_2]
Nom=Âge de la pierre
BonusVieChateau=-10
ChateauxRessourcesDepart=12abc
PersosArgentDepart=beaucoup
[Epoque_3]
Nom=Âge du fer
BonusVieChateau=0
)";

inline constexpr std::string_view ReglesRessources = R"([Ressources]
NombreRessources=3
[Ressource_1]
Nom=Blé
NomCompetence=Agriculture
VitesseExtraction=0.5
TypeMatierePremiere=0
PrixVente=2
Mangeable=1
GainVie=3
GainEnergie=1.5
GainMagie=0.25
GainMoral=4
NecessairePourConstruire=0
Epoque=1
[Ressource_2]
Nom=Bois
NomCompetence=Bûcheronnage
VitesseExtraction=1
PrixVente=3
NecessairePourConstruire=1
Epoque=1
[Ressource_3]
Nom=Planches
NomCompetence=Menuiserie
VitesseExtraction=0.75
TypeMatierePremiere=2
QuantiteMatierePremiere=2
PrixVente=8
NecessairePourConstruire=oui
Epoque=2
[Terrain_Ressources]
NombreTerrainRessource=3
[TerrainRessource_1]
Nom=Champ
TypeRessource=1
Quantite=1000
[TerrainRessource_2]
Nom=Forêt
TypeRessource=2
Quantite=500
[TerrainRessource_3]
Nom=Bosquet
TypeRessource=2
Quantite=50
)";

inline constexpr std::string_view ReglesBatiments = R"([Batiments]
NombreTypeBatiments=4
[Batiment_1]
Nom=Ferme
MetierM=Fermier
MetierF=Fermière
Description=Produit du blé.
PrixRessources(1)=0
PrixRessources(2)=10
PrixRessources(3)=2.5
MaxVie=200
RessourceFabrique=1
NombreObjetsfabriques=0
Magasin=1
Fabrique=0
Service=0
MaxStock=50
Niveau=3.5
NoEpoque=1
Largeur=64
Hauteur=48
EntreePositionX=30
EntreePositionY=40
NombreEtapeFabrication=4
NombreEtapeAnimation=2
ApparencePerso=1
[Batiment_2]
Nom=Atelier
MaxVie=300
Fabrique=1
NombreObjetsfabriques=2
ObjetsFabriques(1)=1
ObjetsFabriques(2)=2
NoEpoque=2
[Batiment_3]
Nom=Temple
MaxVie=150
Service=1
NoEpoque=1
[Batiment_4]
Nom=Scierie
MaxVie=180
RessourceFabrique=3
NoEpoque=2
)";

inline constexpr std::string_view ReglesObjets = R"([Services]
NombreServices=2
[Service_1]
Nom=Aucun
Effet=-1
TypeMatierePremiere=-1
[Service_2]
Nom=Soins
Description=Rend la vie.
VitesseCreation=0.25
TypeMatierePremiere=0
QuantiteMatierePremiere=1.5
Prix=12.5xyz
Coefficient=2
NomCompetence=Médecine
Effet=1
CoefExp=0.1
[CompetencesObjets]
NombreCompetencesObjets=1
[CompetenceObjet_1]
Numero=7
Nom=Armes
[Objets]
NombreObjets=5
[Objet_1]
Nom=Épée
NomPluriel=Épées
Description=Une lame.
Secret=0
Categorie=2
Competence=1
PrixRessources(2)=3
Epoque=1
DureeFabrication=4.5
PrixVente=5.5
BonusVie=1
BonusEnergie=2
BonusMagie=3
BonusMoral=4
BonusAttaque=9
BonusPorteeAttaque=10
EffetAttaque=1
SurfaceAttaque=11
BonusDefense=12
BonusDeplacement=13
BonusCompetencesSpeciales(1)=14
BonusCompetencesSpeciales(2)=15
BonusCompetencesRessources(3)=16
BonusCompetencesServices(1)=17
BonusCompetencesObjets(5)=18
BonusArmure=19
BonusMaxRessources=21
PerteVie=0.5
PerteEnergie=1.25
PerteMagie=2.5
PerteMoral=3.75
PerteRessourceIndice=2
PerteRessourceQuantite=0.5
ApparencePerso=3
Utilisable=1
UtilisationUnique=0
Experience=6.5
Invocation=0
Quantite=22
GainVie=7
GainEnergie=8
GainMagie=9
GainMoral=10
Resurrection=23
[Objet_2]
Nom=Arc
Categorie=2
Competence=1
PrixRessources(3)=1
Epoque=3
[Objet_3]
Nom=Potion
Categorie=3
Competence=1
PrixRessources(3)=1
Epoque=1
Invocation=2
[Objet_4]
Nom=Amulette
Secret=1
Categorie=4
Competence=1
PrixRessources(3)=1
Epoque=1
[Objet_5]
Nom=Pierre
Categorie=5
Competence=1
Epoque=2
)";

inline constexpr std::string_view ReglesMonstres = R"([Peuples]
NombrePeuples=2
[Peuple_1]
Nom=Humains
NombreMonstres=0
[Peuple_2]
Nom=Loups
NombreMonstres=2
[Monstres]
NombreTotalMonstres=2
[Monstre_1]
Nom=Loup
NomPluriel=Loups
Peuple=2
Parole=0
Volant=1
Grade=0
Apparence=2
Attaque=8
PorteeAttaque=20
EffetAttaque=0
Kamikaze=1
Defense=4
Armure=1
Vitesse=5
Energie=0
Magie=15
Moral=25
Argent=1.5
Ressources(1)=2.5
Ressources(3)=1
Objets(5)=2
IA_Equiper=1
IA_Manger=0
IA_Pacifique=1
IA_Temeraire=0
IA_Berserk=1
[Monstre_2]
Nom=Loup-garou
NomPluriel=Loups-garous
Peuple=2
Parole=1
Grade=1
Vie=300
Energie=40
Moral=50
Infatigable=1
)";

inline constexpr std::string_view ReglesEffets = R"([Effets]
NombreEffets=2
EffetMaisonEnFeu=1
EffetMaisonDetruite=2
EffetChateauDetruit=2
[Effet_1]
Nom=Feu
Fichier=Flammes
Largeur=32
Hauteur=48
NombreEtapes=8
DureeEtape=0.1
Son=feu.wav
[Effet_2]
Nom=Explosion
Fichier=Explosion
Largeur=64
Hauteur=64
NombreEtapes=6
DureeEtape=0
)";

inline void Ecrire_Regles(const DossierTemporaire& d) {
    d.Ecrire("Ini_Parametres_Persos.ini", ReglesPersos);
    d.Ecrire("Ini_Parametres_Fiefs.ini", ReglesFiefs);
    d.Ecrire("Ini_Parametres_Ressources.ini", ReglesRessources);
    d.Ecrire("Ini_Parametres_Batiments.ini", ReglesBatiments);
    d.Ecrire("Ini_Parametres_Objets.ini", ReglesObjets);
    d.Ecrire("Ini_Parametres_Monstres.ini", ReglesMonstres);
    d.Ecrire("Ini_Parametres_Effets.ini", ReglesEffets);
}

// Replaces the first occurrence of one line of a rule file by another (an empty text
// removes it). A line that is not there is a mistake of the test.
inline void Remplacer(const DossierTemporaire& d, std::string_view fichier, std::string_view ancienne,
                      std::string_view nouvelle) {
    std::string texte = "\n" + d.Lire(fichier);
    const std::string cherche = "\n" + std::string(ancienne) + "\n";
    const std::size_t i = texte.find(cherche);
    ASSERT_NE(i, std::string::npos) << fichier << " has no line " << ancienne;
    texte.replace(i, cherche.size(), "\n" + (nouvelle.empty() ? std::string() : std::string(nouvelle) + "\n"));
    texte.erase(0, 1);
    d.Ecrire(fichier, texte);
}

// Loads groups 0 to dernier into the global rule book.
inline void Charger_Groupes(int dernier = 6) {
    for (int g = 0; g <= dernier; ++g) Param.Init(g);
}
