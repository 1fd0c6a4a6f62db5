// The one record behind every living thing: villager, soldier, hero or monster. Gauges
// are written only through their Definir_* operation, which limits the value and turns
// every loss into experience, so a character grows by being used.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "characters/ClsJeuObjet.h"
#include "characters/Jauge.h"
#include "rules/Empreinte.h"

class ClsJeuParam;
class ClsJeuFief;
class ClsJeuBatiment;
class ClsJeuRessources;
class ClsJeuCommentaires;
struct CiblesDeplacement;

// Every character stands in a box of 24 × 32 metres.
inline constexpr int32_t LargeurPerso = 24;
inline constexpr int32_t HauteurPerso = 32;

class ClsJeuPerso {
public:
    // Place and movement
    int32_t PositionX = 0, PositionY = 0;
    int32_t VitesseBase = 0, Vitesse = 0;
    int16_t EtapeAnimation = 0;
    int16_t ApparenceBase = 0;
    int32_t DestinationX = 0, DestinationY = 0;

    // Identity and side
    int32_t Numero = 0;          // own index in Persos
    std::string Nom;
    int32_t Joueur = 0;          // above 0 for a hero kept in a character file
    int32_t Fief = 0;
    int32_t Equipe = 0;
    int32_t Chef = -1;           // the character it follows; an invocation has one
    int32_t DecalageChefX = 0, DecalageChefY = 0;
    int16_t Attitude = 0, Formation = 0, Reserve = 0;
    int32_t NombreInvocations = 0;
    int16_t Peuple = 0;          // 0 human, anything else a monster people
    int16_t Monstre = 0;         // monster type + 1, 0 for none
    bool Parole = true, Volant = false;
    bool ApparenceFichier = false;
    std::string FichierApparence;
    int16_t Grade = 0;
    bool Feminin = false;
    bool Progresse = true;
    double CompteResurrection = 0;
    double DateCommentaire = 0;

    // Gauges
    Jauge Vie, Energie, Magie, Moral, Attaque, Defense;
    int16_t PorteeAttaqueBase = 0, EffetAttaqueBase = 0;
    bool Kamikaze = false, AttaqueImmediate = false;
    int16_t PerteRessourceIndice = 0;
    double PerteRessourceQuantite = 0;
    int16_t ArmureBase = 0;

    // Behaviour
    bool ModeAuto = false;
    bool IA = false;
    bool IA_Equiper = true, IA_Manger = true, IA_Pacifique = false, IA_Temeraire = false, IA_Berserk = false;
    std::string FichierIA;
    int16_t EtapeIA = 0;
    bool EstActif = false;

    // Action and targets
    int16_t Direction = 0;
    bool EnMouvement = false;
    double DureeImmobilisation = 0;
    bool DansMaison = false, DansSaMaison = false, DansChateau = false, DansSonChateau = false;
    int32_t MaisonCible = 0, RessourceCible = 0, ChateauCible = 0, PersoCible = 0;
    int32_t RessourceRecoltee = -1;
    int32_t ServiceEnCours = 0;
    int32_t NiveauObjetsDepart = 0;
    int16_t ObjetFabrique = 0;
    double ProgressionFabrication = 0;
    int16_t ObjetUtilise = -1;
    double CoefForme = 1;
    int32_t LongueurPas = 0;
    int32_t Apparence = 0;
    std::string Commentaire;

    // Effective values with objects
    int16_t SurfaceAttaqueBase = 0, SurfaceAttaque = 0;
    int16_t PorteeAttaque = 0;
    double SeuilsArme[4] = {0, 0, 0, 0};   // health, energy, magic, morale paid per blow
    int16_t Armure = 0;

    // Goods and growth
    double Argent = 0;
    std::vector<double> Ressources;                  // carried, one per resource
    int32_t BonusMaxRessources = 0;
    std::vector<Competence> CompetencesSpeciales;    // 0 building, 1 attacking buildings, 2 hard blows, 3 bargaining
    std::vector<Competence> CompetencesRessources;   // Valeur is the carrying capacity
    std::vector<Competence> CompetencesServices;     // entry k belongs to service k + 1
    std::vector<Competence> CompetencesObjets;
    std::vector<ClsJeuObjet> ObjetsEquipes;
    std::vector<ClsJeuObjet> ObjetsInventaire;
    std::vector<int32_t> Bestiaire;                  // kills by Monstre value

    void Init(int32_t numero, const ClsJeuParam& param);

    // Gauges: the read gives what the interface shows (gauge plus reserve, within the
    // maximum; the gauge itself for attack and defence), the write applies the rules.
    double Definir_Vie() const { return Montre(Vie); }
    double Definir_Energie() const { return Montre(Energie); }
    double Definir_Magie() const { return Montre(Magie); }
    double Definir_Moral() const { return Montre(Moral); }
    double Definir_Attaque() const { return Attaque.Valeur; }
    double Definir_Defense() const { return Defense.Valeur; }
    void Definir_Vie(double v);
    void Definir_Energie(double v);
    void Definir_Magie(double v);
    void Definir_Moral(double v);
    void Definir_Attaque(double v);
    void Definir_Defense(double v);

    // Maxima: the read is the effective maximum, the write sets the base (rounded).
    int32_t Definir_MaxVie() const { return Vie.Max; }
    int32_t Definir_MaxEnergie() const { return Energie.Max; }
    int32_t Definir_MaxMagie() const { return Magie.Max; }
    int32_t Definir_MaxMoral() const { return Moral.Max; }
    int32_t Definir_MaxAttaque() const { return Attaque.Max; }
    int32_t Definir_MaxDefense() const { return Defense.Max; }
    void Definir_MaxVie(double v);
    void Definir_MaxEnergie(double v);
    void Definir_MaxMagie(double v);
    void Definir_MaxMoral(double v);
    void Definir_MaxAttaque(double v);
    void Definir_MaxDefense(double v);

    int32_t Definir_BonusVie() const { return Vie.Bonus(); }
    int32_t Definir_BonusEnergie() const { return Energie.Bonus(); }
    int32_t Definir_BonusMagie() const { return Magie.Bonus(); }
    int32_t Definir_BonusMoral() const { return Moral.Bonus(); }
    int32_t Definir_BonusAttaque() const { return Attaque.Bonus(); }
    int32_t Definir_BonusDefense() const { return Defense.Bonus(); }
    int32_t Definir_BonusDeplacement() const { return Vitesse - VitesseBase; }
    int16_t Definir_PorteeAttaque() const { return PorteeAttaque; }
    int16_t Definir_Armure() const { return Armure; }

    double Definir_Argent() const { return Argent; }
    void Definir_Argent(double valeur);
    // Carried resource r, 0 for r below 0; a write is limited to 0 and the capacity.
    double Definir_Ressources(int r) const;
    void Definir_Ressources(int r, double quantite);
    // Capacity for resource r with objects, 0 for r below 0; the write sets the base.
    int32_t Definir_MaxRessources(int r) const;
    void Definir_MaxRessources(int r, double valeur);

    double Definir_DureeImmobilisation() const { return DureeImmobilisation; }
    void Definir_DureeImmobilisation(double duree);

    const std::string& Definir_Commentaires() const { return Commentaire; }
    void Definir_Commentaires(const std::string& texte);

    bool Vivant() const { return Vie.Valeur > 0; }
    // False kills, true brings back; the fief (or the chief of an invocation) keeps count.
    void Vivant(bool vivant);
    bool Visible() const { return !(DansMaison || DansSaMaison || DansChateau || DansSonChateau); }
    void Visible(bool visible) { DansMaison = DansSaMaison = DansChateau = DansSonChateau = !visible; }
    bool Attaquable() const { return Vivant() && Visible(); }
    bool Invocation() const { return Chef >= 0; }
    bool Inactif() const { return CodeAction == 0 || CodeAction == 100; }
    bool EnCombat() const { return CodeAction >= 300 && CodeAction <= 399; }
    int16_t Effet_Attaque(const ClsJeuParam& param) const;

    // The action. Every decision reads its code; the interface shows its text. A code
    // outside the table of actions is written as "Au travail" and so reads as 102.
    int16_t Definir_Action() const { return CodeAction; }
    void Definir_Action(int16_t code);
    // Code 102 showing the trade name of resource r, as a house at work does.
    void Definir_Action_Metier(int32_t r);
    // The text of the action: the trade name while a house works a resource, else the
    // text of the code.
    std::string_view Texte_Action(const ClsJeuParam& param) const;
    // A text read back: a text of the table gives its code, any other 102 (showing the
    // trade whose name it is, if any).
    void Definir_Action_Texte(std::string_view texte, const ClsJeuParam& param);

    // Orders. Each sets the destination and the action, and nothing else unless said. w
    // and h are the size of a character's box, so that the box is aimed at the centre of
    // the target; an order at a fallen building does nothing.
    void Aller_A(int32_t x, int32_t y);
    // Stands still where it is: at rest at home, else waiting.
    void Arreter();
    void Aller_Ressource(const ClsJeuRessources& ressource, int32_t numero, int32_t largeur, int32_t hauteur,
                         int32_t w = LargeurPerso, int32_t h = HauteurPerso);
    // Home, to rest or work; to build if the house is unfinished or hurt.
    void Rentrer_Maison(const ClsJeuBatiment& maison, int32_t w = LargeurPerso, int32_t h = HauteurPerso);
    // Into someone else's house, through its door.
    void Aller_Maison(const ClsJeuBatiment& maison, int32_t w = LargeurPerso, int32_t h = HauteurPerso);
    void Rentrer_Chateau(const ClsJeuBatiment& chateau, int32_t largeur, int32_t hauteur, int32_t w = LargeurPerso,
                         int32_t h = HauteurPerso);
    void Aller_Chateau(const ClsJeuBatiment& chateau, int32_t numero, int32_t largeur, int32_t hauteur,
                       int32_t w = LargeurPerso, int32_t h = HauteurPerso);
    // The attacker comes out of any building and may strike at once.
    void Attaquer_Perso(int32_t n);
    void Attaquer_Maison(int32_t n);
    void Attaquer_Chateau(int32_t n);

    // Metres walked per tick: speed by form, at least 1; 6 for the dead.
    void Calculer_Longueur_Pas();
    // One tick of the character: aim, strike, wait, walk or do what it came for.
    // commentaire receives the code of a comment the tick raised, if any.
    void Deplacement(CiblesDeplacement& cibles, int32_t& commentaire, const ClsJeuParam& param);

    // Effective values from the base ones, then with what is worn.
    void Ajuster_Bonus();
    void Actualiser_Bonus(const ClsJeuParam& param);
    int32_t Objet_Equipe_BonusSup(int competence, double valeur) const;

    // Health, energy, magic and morale flow in from their reserves; attack and defence
    // charge; the dead come back in their own castle. Every tick, after Deplacement.
    void Recuperation(ClsJeuFief& fief);
    void Calculer_CoefForme();

    void Changer_Race(int16_t peuple, const ClsJeuParam& param, int16_t grade, int16_t monstre, bool conserver);
    void Calculer_Apparence(const ClsJeuBatiment& maison, const ClsJeuParam& param);
    void Changer_Attitude() { Attitude = static_cast<int16_t>((Attitude + 1) % 2); }
    void Changer_Formation() { Formation = static_cast<int16_t>((Formation + 1) % 5); }

    // Work, one tick each, run by the arrival code. A tick's output is a fraction that grows
    // with the worker's level and form; it costs energy, morale and raw material and earns
    // experience. commentaire receives 0 when everything is full, 1 when raw material is short.
    void Recolter_Ressources(int r, ClsJeuBatiment& maison, int32_t& commentaire, const ClsJeuParam& param);
    void Preparer_Service(ClsJeuBatiment& maison, int32_t& commentaire, const ClsJeuParam& param);
    // Building; a house finished by a fief's people that belongs to a later epoch starts the
    // fief's climb to the next one.
    void Batir_Maison(ClsJeuFief& fief, ClsJeuBatiment& chateau, ClsJeuBatiment& maison, const ClsJeuParam& param);
    bool PeutConstruire_Maison(int type, const ClsJeuParam& param) const;
    // Making line n of the house's object list; its price is paid when it is finished.
    void Creer_Objet(int n);
    // True on the tick the object is finished.
    bool Fabriquer_Objet(const ClsJeuParam& param, ClsJeuBatiment& maison, int32_t& commentaire);
    bool PeutConstruire_Objet(int n, const ClsJeuBatiment& maison, const ClsJeuParam& param) const;

    // Eating fills the reserves, which flow into the gauges through Recuperation; a gain
    // scales with the eater's effective maxima.
    void Manger_Ressources(int r, const ClsJeuParam& param);
    double Manger_Ressources_Coef(int i) const;
    // One meal of the first food that feeds that gauge, just what the gauge can hold; the
    // Auto forms eat only when the gauge is not full.
    void Recuperer_Vie(const ClsJeuParam& param);
    void Recuperer_Energie(const ClsJeuParam& param);
    void Recuperer_Magie(const ClsJeuParam& param);
    void Recuperer_Moral(const ClsJeuParam& param);
    void Recuperer_AutoVie(const ClsJeuParam& param);
    void Recuperer_AutoEnergie(const ClsJeuParam& param);
    void Recuperer_AutoMagie(const ClsJeuParam& param);
    void Recuperer_AutoMoral(const ClsJeuParam& param);

    // Objects carried and worn. A slot number outside its row, or an empty slot, does nothing.
    bool Inventaire_Plein() const;
    // Puts a new object into the first empty inventory slot (lost if there is none), and
    // wears it at once when asked, if it is worn and fits without removing anything.
    void Objet_Ajouter_Inventaire(int16_t type, const ClsJeuParam& param, bool equiper);
    bool Objet_Emplacement_Libre(int16_t type, const ClsJeuParam& param) const;
    // Wears the object of an inventory slot, making room as its category says; an object
    // that is used rather than worn is used, if the gauges can pay for it (comments 17 to 20).
    void Objet_Equiper(int slot, const ClsJeuParam& param, const ClsJeuCommentaires& commentaires);
    // Back to the inventory, refused when the inventory is full.
    void Objet_Ranger(int slot, const ClsJeuParam& param);
    void Objet_Ranger_Armes(const ClsJeuParam& param);
    // Objects of a house's list n: taken from its stock, or bought at the bargained price.
    void Objet_Ramasser_Maison(int n, ClsJeuBatiment& maison, const ClsJeuParam& param);
    void Objet_Acheter_Maison(int n, ClsJeuBatiment& maison, const ClsJeuParam& param);
    // Gives an inventory object to the house; what it cannot take is dropped.
    void Objet_Deposer_Maison(int slot, ClsJeuBatiment& maison, const ClsJeuParam& param);
    void Objet_Deposer_Sol(int slot) { Objet_Inventaire_Detruire(slot); }
    void Objet_Inventaire_Detruire(int slot);
    void Objet_Equipes_Detruire(int slot);
    void Objet_Equipes_Vider_Tout();
    void Objet_Inventaire_Vider_Tout();
    // The castle pays the full price, without bargaining; the fief gets nothing.
    void Objet_Vendre_Chateau(int slot, const ClsJeuParam& param);
    bool Objet_Posseder(int16_t type) const { return Objet_NombreType(type) >= 1; }
    int32_t Objet_NombreType(int16_t type) const;
    bool Objet_Equipes_2_Mains(const ClsJeuParam& param) const;
    // Loading a saved record: the object goes into the slot with no other rule.
    void Objet_Equipe_Charger(int slot, int16_t type);
    void Objet_Inventaire_Charger(int slot, int16_t type);

    // Levels and competences.
    void Ajouter_Experience(int32_t& valeur, double gain, double& exp, int32_t& compte, double& bas,
                            double& haut, GenreExperience genre);
    void Ajouter_Experience(Competence& c, double gain, GenreExperience genre) {
        Ajouter_Experience(c.Valeur, gain, c.Exp, c.Compte, c.SeuilBas, c.SeuilHaut, genre);
    }
    void Gestion_Tous_Niveaux();
    void Gestion_Niveau_Comp_Speciale(int k, double montant, const ClsJeuParam& param);
    void Gestion_Niveau_Prime(double montant, const ClsJeuParam& param);
    int16_t Definir_Niveau_CompetenceSpeciales(int k) const { return Effectif(CompetencesSpeciales, k); }
    int16_t Definir_Niveau_CompetenceRessources(int r) const { return Effectif(CompetencesRessources, r); }
    int16_t Definir_Niveau_CompetenceServices(int s) const { return Effectif(CompetencesServices, s); }
    int16_t Definir_Niveau_CompetenceObjets(int k) const { return Effectif(CompetencesObjets, k); }
    // Effective level above the level without objects.
    bool Bonus_CompetenceSpeciales(int k) const { return Entree(CompetencesSpeciales, k).Bonus(false); }
    bool Bonus_CompetenceRessources(int r) const { return Entree(CompetencesRessources, r).Bonus(true); }
    bool Bonus_CompetenceServices(int s) const { return Entree(CompetencesServices, s).Bonus(false); }
    bool Bonus_CompetenceObjets(int k) const { return Entree(CompetencesObjets, k).Bonus(false); }
    int32_t Nombre_CompetencesSpeciales() const { return static_cast<int32_t>(CompetencesSpeciales.size()); }
    int32_t Nombre_CompetencesRessources() const { return static_cast<int32_t>(CompetencesRessources.size()); }
    int32_t Nombre_CompetencesServices() const { return static_cast<int32_t>(CompetencesServices.size()); }
    int32_t Nombre_CompetencesObjets() const { return static_cast<int32_t>(CompetencesObjets.size()); }
    // Experience reads 0 below index 0. A write sets the counter alone: a record loaded
    // with its experience gets its levels back from Gestion_Tous_Niveaux.
    double Definir_ExpSpeciales(int k) const { return Exp_Lue(CompetencesSpeciales, k); }
    double Definir_ExpRessources(int r) const { return Exp_Lue(CompetencesRessources, r); }
    double Definir_ExpServices(int s) const { return Exp_Lue(CompetencesServices, s); }
    double Definir_ExpObjets(int k) const { return Exp_Lue(CompetencesObjets, k); }
    void Definir_ExpSpeciales(int k, double exp) { Entree(CompetencesSpeciales, k).Exp = exp; }
    void Definir_ExpRessources(int r, double exp) { Entree(CompetencesRessources, r).Exp = exp; }
    void Definir_ExpServices(int s, double exp) { Entree(CompetencesServices, s).Exp = exp; }
    void Definir_ExpObjets(int k, double exp) { Entree(CompetencesObjets, k).Exp = exp; }
    // Levels gained.
    int16_t Niveau_CompetenceSpeciales(int k) const { return Gagnes(CompetencesSpeciales, k); }
    int16_t Niveau_CompetenceRessources(int r) const { return Gagnes(CompetencesRessources, r); }
    int16_t Niveau_CompetenceServices(int s) const { return Gagnes(CompetencesServices, s); }
    int16_t Niveau_CompetenceObjets(int k) const { return Gagnes(CompetencesObjets, k); }
    // How far through its level a counter is, from 0 to 1, for the interface's bars.
    double Progression_CompetenceSpeciale(int k) const { return Entree(CompetencesSpeciales, k).Progression(); }
    double Progression_CompetenceRessource(int r) const { return Entree(CompetencesRessources, r).Progression(); }
    double Progression_CompetenceService(int s) const { return Entree(CompetencesServices, s).Progression(); }
    double Progression_CompetenceObjet(int k) const { return Entree(CompetencesObjets, k).Progression(); }
    double Progression_Vie() const { return Vie.Progression(); }
    double Progression_energie() const { return Energie.Progression(); }
    double Progression_Magie() const { return Magie.Progression(); }
    double Progression_Moral() const { return Moral.Progression(); }
    double Progression_Attaque() const { return Attaque.Progression(); }
    double Progression_Defense() const { return Defense.Progression(); }
    // The overall level shown to the player, 1 for a fresh character.
    double Niveau() const;
    // The trade of the building type the character is best at; empty while it has
    // learnt nothing.
    std::string_view Metier(const ClsJeuParam& param) const;
    // Over every effective level and every carrying capacity, for the character sheet.
    int32_t Definir_Min_Competence() const;
    double Definir_Moy_Competence() const;
    int32_t Definir_Max_Competence() const;
    // Kills by Monstre value; row 0 counts the non-monsters.
    int32_t Nombre_de_lignes_du_bestiaire() const { return static_cast<int32_t>(Bestiaire.size()); }
    int32_t Definir_Bestiaire(int m) const { return Bestiaire[static_cast<std::size_t>(m)]; }
    void Definir_Bestiaire(int m, int32_t tues) { Bestiaire[static_cast<std::size_t>(m)] = tues; }
    int32_t Definir_Bestiaire_Total() const;
    // The bargained price of something worth prix: unchanged at the starting level, tending
    // to half as bargaining grows.
    int16_t Prix_Marchandee(double prix, const ClsJeuParam& param) const;

    void Empreindre(Empreinte& e) const;

private:
    int16_t CodeAction = 0;
    int16_t MetierAction = -1;   // resource whose trade name the action shows, -1 for none

    double Montre(const Jauge& j) const { return std::min(static_cast<double>(j.Max), j.Valeur + j.Reserve); }
    static int16_t Effectif(const std::vector<Competence>& table, int i) {
        return static_cast<int16_t>(table[static_cast<std::size_t>(i)].Effectif);
    }
    static const Competence& Entree(const std::vector<Competence>& table, int i) {
        return table[static_cast<std::size_t>(i)];
    }
    static Competence& Entree(std::vector<Competence>& table, int i) { return table[static_cast<std::size_t>(i)]; }
    static double Exp_Lue(const std::vector<Competence>& table, int i) { return i < 0 ? 0 : Entree(table, i).Exp; }
    static int16_t Gagnes(const std::vector<Competence>& table, int i) {
        return static_cast<int16_t>(Entree(table, i).Compte);
    }
    // Wears the worn object of an inventory slot, making room as its category says.
    void Objet_Porter(int slot, const ClsJeuParam& param);
    // After a change of what is worn: bonuses, then the look.
    void Actualiser_Equipement(const ClsJeuParam& param);
    // The energy and morale that a tick of work costs.
    void Fatiguer();
    // Raw material m for quantite units at parUnite each: paid if carried, else false.
    bool Payer_Matiere(int m, double quantite, double parUnite);
    // One meal for a gauge: the first food that feeds it, while the gauge can hold it.
    void Recuperer(Jauge& jauge, double (ClsJeuParam::*gain)(int) const, const ClsJeuParam& param);
    using BonusObjet = int16_t (ClsJeuParam::*)(int) const;
    void Ecrire_Jauge(Jauge& j, double v, GenreExperience genre, bool ramener, BonusObjet bonus, double partObjets);
};
