// The rule book: every table of the game, read once at start-up from the seven
// "Ini_Parametres_" files and then asked through one accessor per column.
//
// Accessors check no bounds (Ressources_Recoltable alone guards). A few answer the text of
// their value and leave the conversion to the caller; Batiment_TypeMatierePremiere draws
// random numbers. Indices count from 0 in memory; -1 means none.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class RapportParam;

class ClsJeuParam {
public:
    double CoefficientAchat = 0;
    int16_t PersosNombreApparences = 0;
    int32_t PersosMaxVie = 0, PersosMaxEnergie = 0, PersosMaxMagie = 0, PersosMaxMoral = 0;
    int32_t PersosNiveauSpecialesDepart = 0;
    int32_t PersosMaxRessources = 0;
    int32_t PersosNiveauServicesDepart = 0, PersosNiveauObjetsDepart = 0;
    int32_t PersosAttaque = 0, PersosPorteeAttaque = 0, PersosDefense = 0;
    int16_t PersosVitesse = 0, PersosNombreObjetsEquipes = 0, PersosNombreObjetsInventaire = 0;
    int16_t ChateauxMaxVie = 0, ChateauxLargeur = 0, ChateauxHauteur = 0;
    int16_t NombreEpoques = 0;
    int16_t NombreCompetencesSpeciales = 0;
    int16_t NombreRessources = 0;
    int16_t NombreTerrainRessource = 0;
    int16_t NombreTypeBatiments = 0;
    int16_t NombrePeuples = 0;
    int16_t NombreTotalMonstres = 0;
    int16_t NombreCompetencesObjets = 0;
    int16_t NombreObjets = 0;
    int16_t NombreServices = 0;
    int16_t NombreEffets = 0;
    int16_t EffetMaisonEnFeu = 0, EffetMaisonDetruite = 0, EffetChateauDetruit = 0;

    // Loads one group of tables: 0 characters, 1 fiefs, 2 resources, 3 buildings, 4 services
    // and objects, 5 peoples and monsters, 6 effects; any other number does nothing. Groups
    // build on the earlier ones, so they load in that order. A value that cannot be read ends
    // the program with a message naming the last key read.
    void Init(int section);
    // The same loading in check mode: every problem goes to the report and loading goes on
    // with 0 in place of what could not be read (see VerificationParam.h).
    void Init(int section, RapportParam& rapport);

    // Back to an empty rule book, as at the start of the process.
    void Reinitialiser() { *this = ClsJeuParam{}; }

    // Epochs.
    const std::string& Epoque_Nom(int e) const { return Epoques[e].Nom; }
    std::string Epoque_BonusVieChateau(int e) const { return std::to_string(Epoques[e].BonusVieChateau); }
    double Epoque_ChateauxRessourcesDepart(int e) const { return Epoques[e].ChateauxRessourcesDepart; }
    double Epoque_PersosRessourcesDepart(int e) const { return Epoques[e].PersosRessourcesDepart; }
    double Epoque_PersosArgentDepart(int e) const { return Epoques[e].PersosArgentDepart; }

    // Special skills.
    const std::string& Speciales_NomCompetences(int k) const { return CompetencesSpeciales[k]; }

    // Resources and deposits.
    const std::string& Ressources_Nom(int r) const { return TypesRessources[r].Nom; }
    const std::string& Ressources_NomCompetence(int r) const { return TypesRessources[r].NomCompetence; }
    double Ressources_VitesseExtraction(int r) const { return TypesRessources[r].VitesseExtraction; }
    int32_t Ressources_TypeMatierePremiere(int r) const { return TypesRessources[r].TypeMatierePremiere; }
    double Ressources_QuantiteMatierePremiere(int r) const { return TypesRessources[r].QuantiteMatierePremiere; }
    double Ressources_PrixVente(int r) const { return TypesRessources[r].PrixVente; }
    bool Ressources_NecessairePourConstruire(int r) const { return TypesRessources[r].NecessairePourConstruire; }
    bool Ressources_NecessairePourAttaquer(int r) const { return TypesRessources[r].NecessairePourAttaquer; }
    bool Ressources_Recoltable(int r) const {
        return r >= 0 && r < static_cast<int>(TypesRessources.size()) && TypesRessources[r].Recoltable;
    }
    int16_t Ressources_TypeTerrainRessource(int r) const { return TypesRessources[r].TypeTerrainRessource; }
    bool Ressources_Mangeable(int r) const { return TypesRessources[r].Mangeable; }
    double Ressources_GainVie(int r) const { return TypesRessources[r].GainVie; }
    double Ressources_GainEnergie(int r) const { return TypesRessources[r].GainEnergie; }
    double Ressources_GainMagie(int r) const { return TypesRessources[r].GainMagie; }
    double Ressources_GainMoral(int r) const { return TypesRessources[r].GainMoral; }
    double Ressources_Epoque(int r) const { return TypesRessources[r].Epoque; }
    const std::string& TerrainRessources_Nom(int t) const { return TerrainsRessources[t].Nom; }
    int16_t TerrainRessources_TypeRessource(int t) const { return TerrainsRessources[t].TypeRessource; }
    double TerrainRessources_Quantite(int t) const { return TerrainsRessources[t].Quantite; }

    // Building types.
    const std::string& Batiment_Nom(int b) const { return TypesBatiments[b].Nom; }
    const std::string& Batiment_Description(int b) const { return TypesBatiments[b].Description; }
    const std::string& Batiment_Metier(int b, bool feminin) const {
        return feminin ? TypesBatiments[b].MetierF : TypesBatiments[b].MetierM;
    }
    int32_t Batiment_Prix(int b, int r) const { return TypesBatiments[b].PrixRessources[r]; }
    int32_t Batiment_MaxVie(int b) const { return TypesBatiments[b].MaxVie; }
    int32_t Batiment_RessourceFabrique(int b) const { return TypesBatiments[b].RessourceFabrique; }
    int16_t Batiment_NombreObjetsFabriques(int b) const { return TypesBatiments[b].NombreObjetsFabriques; }
    int16_t Batiment_ObjetFabrique(int b, int k) const { return TypesBatiments[b].ObjetsFabriques[k]; }
    // The raw material the building needs now; a workshop picks among its objects'
    // ingredients at random, so two calls may answer differently.
    int16_t Batiment_TypeMatierePremiere(int b) const;
    bool Batiment_Magasin(int b) const { return TypesBatiments[b].Magasin; }
    bool Batiment_Fabrique(int b) const { return TypesBatiments[b].Fabrique; }
    int16_t Batiment_Service(int b) const { return TypesBatiments[b].Service; }
    double Batiment_MaxStockVente(int b) const { return TypesBatiments[b].MaxStock; }
    int32_t Batiment_Niveau(int b) const { return TypesBatiments[b].Niveau; }
    int16_t Batiment_NoEpoque(int b) const { return TypesBatiments[b].NoEpoque; }
    int16_t Batiment_Largeur(int b) const { return TypesBatiments[b].Largeur; }
    int16_t Batiment_Hauteur(int b) const { return TypesBatiments[b].Hauteur; }
    int32_t Batiment_EntreePositionX(int b) const { return TypesBatiments[b].EntreePositionX; }
    int32_t Batiment_EntreePositionY(int b) const { return TypesBatiments[b].EntreePositionY; }
    int16_t Batiment_NombreEtapeFabrication(int b) const { return TypesBatiments[b].NombreEtapeFabrication; }
    int16_t Batiment_NombreEtapeAnimation(int b) const { return TypesBatiments[b].NombreEtapeAnimation; }
    int16_t Batiment_ApparencePerso(int b) const { return TypesBatiments[b].ApparencePerso; }

    // Services (entry 0 stands for no service). Several answer the text of their number.
    const std::string& Service_Nom(int s) const { return Services[s].Nom; }
    const std::string& Service_Description(int s) const { return Services[s].Description; }
    const std::string& Service_NomCompetence(int s) const { return Services[s].NomCompetence; }
    std::string Service_VitesseCreation(int s) const;
    std::string Service_MatierePremiere(int s) const { return std::to_string(Services[s].TypeMatierePremiere); }
    std::string Service_QuantiteMatierePremiere(int s) const;
    std::string Service_CoefExp(int s) const;
    std::string Service_Effet(int s) const { return std::to_string(Services[s].Effet); }
    double Service_Prix(int s) const;
    double Service_Coefficient(int s) const { return Services[s].Coefficient; }
    // The figures of a service's making as numbers, for the work of every tick.
    double Service_VitesseCreation_Reel(int s) const { return Services[s].VitesseCreation; }
    int16_t Service_MatierePremiere_Indice(int s) const { return Services[s].TypeMatierePremiere; }
    double Service_QuantiteMatierePremiere_Reel(int s) const { return Services[s].QuantiteMatierePremiere; }
    double Service_CoefExp_Reel(int s) const { return Services[s].CoefExp; }

    // Peoples and monsters. Peuple, Parole, Volant and Grade answer the text of their value
    // (a flag as "1" or "0"); Infatigable answers the flag as a real.
    const std::string& Peuples_Nom(int p) const { return Peuples[p].Nom; }
    int16_t Peuples_NombreMonstres(int p) const { return Peuples[p].NombreMonstres; }
    const std::string& Monstre_Nom(int m) const { return Monstres[m].Nom; }
    const std::string& Monstre_NomPluriel(int m) const { return Monstres[m].NomPluriel; }
    std::string Monstre_Peuple(int m) const { return std::to_string(Monstres[m].Peuple); }
    std::string Monstre_Parole(int m) const { return Monstres[m].Parole ? "1" : "0"; }
    std::string Monstre_Volant(int m) const { return Monstres[m].Volant ? "1" : "0"; }
    std::string Monstre_Grade(int m) const { return std::to_string(Monstres[m].Grade); }
    int16_t Monstre_Apparence(int m) const { return Monstres[m].Apparence; }
    int32_t Monstre_Attaque(int m) const { return Monstres[m].Attaque; }
    int32_t Monstre_PorteeAttaque(int m) const { return Monstres[m].PorteeAttaque; }
    int16_t Monstre_EffetAttaque(int m) const { return Monstres[m].EffetAttaque; }
    bool Monstre_Kamikaze(int m) const { return Monstres[m].Kamikaze; }
    int32_t Monstre_Defense(int m) const { return Monstres[m].Defense; }
    int16_t Monstre_Armure(int m) const { return Monstres[m].Armure; }
    int32_t Monstre_Vitesse(int m) const { return Monstres[m].Vitesse; }
    int32_t Monstre_Vie(int m) const { return Monstres[m].Vie; }
    int32_t Monstre_Energie(int m) const { return Monstres[m].Energie; }
    int32_t Monstre_Magie(int m) const { return Monstres[m].Magie; }
    int32_t Monstre_Moral(int m) const { return Monstres[m].Moral; }
    double Monstre_Argent(int m) const { return Monstres[m].Argent; }
    double Monstre_Ressource(int m, int r) const { return Monstres[m].Ressources[r]; }
    int16_t Monstre_Objet(int m, int o) const { return Monstres[m].Objets[o]; }
    double Monstre_Infatigable(int m) const { return Monstres[m].Infatigable ? 1.0 : 0.0; }
    bool Monstre_IA_Equiper(int m) const { return Monstres[m].IA_Equiper; }
    bool Monstre_IA_Manger(int m) const { return Monstres[m].IA_Manger; }
    bool Monstre_IA_Pacifique(int m) const { return Monstres[m].IA_Pacifique; }
    bool Monstre_IA_Temeraire(int m) const { return Monstres[m].IA_Temeraire; }
    bool Monstre_IA_Berserk(int m) const { return Monstres[m].IA_Berserk; }

    // Object skills and objects.
    int16_t CompetenceObjet_Numero(int k) const { return CompetencesObjets[k].Numero; }
    const std::string& CompetenceObjet_Nom(int k) const { return CompetencesObjets[k].Nom; }
    const std::string& Objet_Nom(int o) const { return Objets[o].Nom; }
    const std::string& Objet_NomPluriel(int o) const { return Objets[o].NomPluriel; }
    const std::string& Objet_Description(int o) const { return Objets[o].Description; }
    bool Objet_Secret(int o) const { return Objets[o].Secret; }
    int16_t Objet_Categorie(int o) const { return Objets[o].Categorie; }
    int16_t Objet_Competence(int o) const { return Objets[o].Competence; }
    int16_t Objet_PrixRessources(int o, int r) const { return Objets[o].PrixRessources[r]; }
    int16_t Objet_Epoque(int o) const { return Objets[o].Epoque; }
    int16_t Objet_DureeFabrication(int o) const { return Objets[o].DureeFabrication; }
    int16_t Objet_PrixVente(int o) const { return Objets[o].PrixVente; }
    int16_t Objet_BonusVie(int o) const { return Objets[o].BonusVie; }
    int16_t Objet_BonusEnergie(int o) const { return Objets[o].BonusEnergie; }
    int16_t Objet_BonusMagie(int o) const { return Objets[o].BonusMagie; }
    int16_t Objet_BonusMoral(int o) const { return Objets[o].BonusMoral; }
    int16_t Objet_BonusAttaque(int o) const { return Objets[o].BonusAttaque; }
    int16_t Objet_BonusPorteeAttaque(int o) const { return Objets[o].BonusPorteeAttaque; }
    int16_t Objet_EffetAttaque(int o) const { return Objets[o].EffetAttaque; }
    int16_t Objet_SurfaceAttaque(int o) const { return Objets[o].SurfaceAttaque; }
    int16_t Objet_BonusDefense(int o) const { return Objets[o].BonusDefense; }
    int16_t Objet_BonusDeplacement(int o) const { return Objets[o].BonusDeplacement; }
    int16_t Objet_BonusCompetencesSpeciales(int o, int k) const { return Objets[o].BonusCompetencesSpeciales[k]; }
    int16_t Objet_BonusCompetencesRessources(int o, int r) const { return Objets[o].BonusCompetencesRessources[r]; }
    int16_t Objet_BonusCompetencesServices(int o, int s) const { return Objets[o].BonusCompetencesServices[s]; }
    int16_t Objet_BonusCompetencesObjets(int o, int k) const { return Objets[o].BonusCompetencesObjets[k]; }
    int16_t Objet_BonusArmure(int o) const { return Objets[o].BonusArmure; }
    int16_t Objet_BonusMaxRessources(int o) const { return Objets[o].BonusMaxRessources; }
    double Objet_PerteVie(int o) const { return Objets[o].PerteVie; }
    double Objet_PerteEnergie(int o) const { return Objets[o].PerteEnergie; }
    double Objet_PerteMagie(int o) const { return Objets[o].PerteMagie; }
    double Objet_PerteMoral(int o) const { return Objets[o].PerteMoral; }
    int16_t Objet_PerteRessourceIndice(int o) const { return Objets[o].PerteRessourceIndice; }
    double Objet_PerteRessourceQuantite(int o) const { return Objets[o].PerteRessourceQuantite; }
    int16_t Objet_ApparencePerso(int o) const { return Objets[o].ApparencePerso; }
    bool Objet_Utilisable(int o) const { return Objets[o].Utilisable; }
    bool Objet_UtilisationUnique(int o) const { return Objets[o].UtilisationUnique; }
    double Objet_Experience(int o) const { return Objets[o].Experience; }
    int16_t Objet_Invocation(int o) const { return Objets[o].Invocation; }
    int32_t Objet_Quantite(int o) const { return Objets[o].Quantite; }
    double Objet_GainVie(int o) const { return Objets[o].GainVie; }
    double Objet_GainEnergie(int o) const { return Objets[o].GainEnergie; }
    double Objet_GainMagie(int o) const { return Objets[o].GainMagie; }
    double Objet_GainMoral(int o) const { return Objets[o].GainMoral; }
    int32_t Objet_Resurrection(int o) const { return Objets[o].Resurrection; }

    // Visual effects.
    const std::string& Effet_Nom(int e) const { return Effets[e].Nom; }
    const std::string& Effet_Fichier(int e) const { return Effets[e].Fichier; }
    int16_t Effet_Largeur(int e) const { return Effets[e].Largeur; }
    int16_t Effet_Hauteur(int e) const { return Effets[e].Hauteur; }
    int16_t Effet_NombreEtapes(int e) const { return Effets[e].NombreEtapes; }
    double Effet_DureeEtape(int e) const { return Effets[e].DureeEtape; }
    const std::string& Effet_Son(int e) const { return Effets[e].Son; }

private:
    struct Epoque {
        std::string Nom;
        int32_t BonusVieChateau = 0;
        double ChateauxRessourcesDepart = 0, PersosRessourcesDepart = 0, PersosArgentDepart = 0;
    };
    struct TypeRessource {
        std::string Nom, NomCompetence;
        double VitesseExtraction = 0;
        int32_t TypeMatierePremiere = -1;
        double QuantiteMatierePremiere = 0, PrixVente = 0;
        bool NecessairePourConstruire = false;
        bool NecessairePourAttaquer = false;   // set by the objects: some use burns it
        bool Recoltable = false;               // set by the deposits: it lies on the ground
        int16_t TypeTerrainRessource = 0;
        bool Mangeable = false;
        double GainVie = 0, GainEnergie = 0, GainMagie = 0, GainMoral = 0;
        int16_t Epoque = 0;
    };
    struct TerrainRessource {
        std::string Nom;
        int16_t TypeRessource = 0;
        double Quantite = 0;
    };
    struct TypeBatiment {
        std::string Nom, MetierM, MetierF, Description;
        std::vector<int32_t> PrixRessources;
        int32_t MaxVie = 0, RessourceFabrique = -1;
        int16_t NombreObjetsFabriques = 0;
        std::vector<int16_t> ObjetsFabriques;
        bool Magasin = false, Fabrique = false;
        int16_t Service = 0;
        double MaxStock = 0;
        int32_t Niveau = 0;
        int16_t NoEpoque = 0, Largeur = 0, Hauteur = 0;
        int32_t EntreePositionX = 0, EntreePositionY = 0;
        int16_t NombreEtapeFabrication = 0, NombreEtapeAnimation = 0, ApparencePerso = 0;
    };
    struct Service {
        std::string Nom, Description;
        double VitesseCreation = 0;
        int16_t TypeMatierePremiere = 0;
        double QuantiteMatierePremiere = 0;
        std::string Prix;
        double Coefficient = 0;
        std::string NomCompetence;
        double CoefExp = 0;
        int16_t Effet = 0;
    };
    struct CompetenceObjet {
        int16_t Numero = 0;
        std::string Nom;
    };
    struct Objet {
        std::string Nom, NomPluriel, Description;
        bool Secret = false;
        int16_t Categorie = 0, Competence = 0;
        std::vector<int16_t> PrixRessources;
        int16_t Epoque = 0, DureeFabrication = 0, PrixVente = 0;
        int16_t BonusVie = 0, BonusEnergie = 0, BonusMagie = 0, BonusMoral = 0;
        int16_t BonusAttaque = 0, BonusPorteeAttaque = 0, EffetAttaque = 0, SurfaceAttaque = 0;
        int16_t BonusDefense = 0, BonusDeplacement = 0;
        std::vector<int16_t> BonusCompetencesSpeciales, BonusCompetencesRessources;
        std::vector<int16_t> BonusCompetencesServices, BonusCompetencesObjets;
        int16_t BonusArmure = 0, BonusMaxRessources = 0;
        double PerteVie = 0, PerteEnergie = 0, PerteMagie = 0, PerteMoral = 0;
        int16_t PerteRessourceIndice = -1;
        double PerteRessourceQuantite = 0;
        int16_t ApparencePerso = 0;
        bool Utilisable = false, UtilisationUnique = false;
        double Experience = 0;
        int16_t Invocation = -1;
        int32_t Quantite = 0;
        double GainVie = 0, GainEnergie = 0, GainMagie = 0, GainMoral = 0;
        int32_t Resurrection = 0;
    };
    struct Peuple {
        std::string Nom;
        int16_t NombreMonstres = 0;
    };
    struct Monstre {
        std::string Nom, NomPluriel;
        int32_t Peuple = 0;
        bool Parole = false, Volant = false;
        int16_t Grade = 0, Apparence = 0;
        int32_t Attaque = 0, PorteeAttaque = 0;
        int16_t EffetAttaque = 0;
        bool Kamikaze = false;
        int32_t Defense = 0;
        int16_t Armure = 0;
        int32_t Vitesse = 0, Vie = 0, Energie = 0, Magie = 0, Moral = 0;
        double Argent = 0;
        std::vector<double> Ressources;
        std::vector<int16_t> Objets;
        bool Infatigable = false;
        bool IA_Equiper = false, IA_Manger = false, IA_Pacifique = false, IA_Temeraire = false,
             IA_Berserk = false;
    };
    struct Effet {
        std::string Nom, Fichier;
        int16_t Largeur = 0, Hauteur = 0, NombreEtapes = 0;
        double DureeEtape = 1.0;
        std::string Son;
    };

    std::vector<Epoque> Epoques;
    std::vector<std::string> CompetencesSpeciales;
    std::vector<TypeRessource> TypesRessources;
    std::vector<TerrainRessource> TerrainsRessources;
    std::vector<TypeBatiment> TypesBatiments;
    std::vector<Peuple> Peuples;
    std::vector<Monstre> Monstres;
    std::vector<CompetenceObjet> CompetencesObjets;
    std::vector<Objet> Objets;
    std::vector<Service> Services;
    std::vector<Effet> Effets;

    // One loader per group; rapport is null in the game, where a failure ends the program.
    void Charger(int section, RapportParam* rapport);
    void Charger_Persos(RapportParam* rapport);
    void Charger_Fiefs(RapportParam* rapport);
    void Charger_Ressources(RapportParam* rapport);
    void Charger_Batiments(RapportParam* rapport);
    void Charger_Objets(RapportParam* rapport);
    void Charger_Monstres(RapportParam* rapport);
    void Charger_Effets(RapportParam* rapport);
    void Corriger_Epoques_Objets();
};

extern ClsJeuParam Param;
