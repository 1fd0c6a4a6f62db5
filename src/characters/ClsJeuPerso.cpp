#include "characters/ClsJeuPerso.h"

#include <algorithm>

#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "rules/Horloge.h"
#include "world/ClsJeuBatiment.h"

namespace {

std::size_t Taille(int n) { return static_cast<std::size_t>(std::max(n, 0)); }

void Remplir_Jauge(Jauge& j, int32_t max, double seuilHaut) {
    j.Valeur = j.MaxBase = j.Max = max;
    j.Reserve = j.Exp = j.SeuilBas = 0;
    j.Niveau = 0;
    j.SeuilHaut = seuilHaut;
}

std::vector<Competence> Table(int longueur, int32_t depart, double seuilHaut) {
    Competence c;
    c.Valeur = c.Effectif = depart;
    c.SeuilHaut = seuilHaut;
    return std::vector<Competence>(Taille(longueur), c);
}

}  // namespace

void ClsJeuPerso::Init(int32_t numero, const ClsJeuParam& param) {
    ApparenceBase = static_cast<int16_t>(Int(Rnd() * param.PersosNombreApparences));
    ApparenceFichier = false;
    FichierApparence.clear();

    Numero = numero;
    PersoCible = numero;
    ChateauCible = Fief;
    Chef = -1;
    RessourceCible = 0;
    ObjetUtilise = -1;

    Parole = Progresse = true;
    IA_Equiper = IA_Manger = true;
    Volant = IA = IA_Pacifique = IA_Temeraire = IA_Berserk = Kamikaze = false;
    SurfaceAttaqueBase = 0;

    Remplir_Jauge(Vie, param.PersosMaxVie, 20);
    Remplir_Jauge(Energie, param.PersosMaxEnergie, 20);
    Remplir_Jauge(Magie, param.PersosMaxMagie, 20);
    Remplir_Jauge(Moral, param.PersosMaxMoral, 20);
    Remplir_Jauge(Attaque, param.PersosAttaque, 400);
    Remplir_Jauge(Defense, param.PersosDefense, 400);
    PorteeAttaqueBase = static_cast<int16_t>(param.PersosPorteeAttaque);
    VitesseBase = param.PersosVitesse;

    CompetencesSpeciales = Table(param.NombreCompetencesSpeciales, param.PersosNiveauSpecialesDepart, 20);
    CompetencesRessources = Table(param.NombreRessources, param.PersosMaxRessources, 15);
    for (Competence& c : CompetencesRessources) c.Effectif = 0;   // levels count from 0, Valeur is the load
    CompetencesServices = Table(param.NombreServices - 1, param.PersosNiveauServicesDepart, 20);
    CompetencesObjets = Table(param.NombreCompetencesObjets, param.PersosNiveauObjetsDepart, 20);
    NiveauObjetsDepart = param.PersosNiveauObjetsDepart;
    Ressources.assign(Taille(param.NombreRessources), 0.0);

    ObjetsEquipes.assign(Taille(param.PersosNombreObjetsEquipes), ClsJeuObjet{});
    ObjetsInventaire.assign(Taille(param.PersosNombreObjetsInventaire), ClsJeuObjet{});
    Ajuster_Bonus();
    Calculer_CoefForme();
    Bestiaire.assign(Taille(param.NombreTotalMonstres + 1), 0);
    Arreter();
}

void ClsJeuPerso::Definir_Argent(double valeur) { Argent = std::max(valeur, 0.0); }

double ClsJeuPerso::Definir_Ressources(int r) const {
    return r < 0 ? 0 : Ressources[static_cast<std::size_t>(r)];
}

void ClsJeuPerso::Definir_Ressources(int r, double quantite) {
    Ressources[static_cast<std::size_t>(r)] = std::clamp(quantite, 0.0, static_cast<double>(Definir_MaxRessources(r)));
}

int32_t ClsJeuPerso::Definir_MaxRessources(int r) const {
    return r < 0 ? 0 : CompetencesRessources[static_cast<std::size_t>(r)].Valeur + BonusMaxRessources;
}

void ClsJeuPerso::Definir_MaxRessources(int r, double valeur) {
    CompetencesRessources[static_cast<std::size_t>(r)].Valeur = Arrondir_En<int32_t>(valeur);
}

void ClsJeuPerso::Definir_DureeImmobilisation(double duree) {
    DureeImmobilisation = duree;
    RessourceRecoltee = -1;
}

// A comment showing is not displaced, and a mute character takes none; the empty text
// clears.
void ClsJeuPerso::Definir_Commentaires(const std::string& texte) {
    if (texte.empty()) {
        Commentaire.clear();
        return;
    }
    if (!Commentaire.empty() || !Parole) return;
    Commentaire = texte;
    DateCommentaire = Horloge();
}

int16_t ClsJeuPerso::Effet_Attaque(const ClsJeuParam& param) const {
    const int16_t arme = ObjetsEquipes.empty() ? -1 : ObjetsEquipes[0].Type;
    return arme >= 0 ? param.Objet_EffetAttaque(arme) : EffetAttaqueBase;
}

// 16-bit result, as the bargaining arithmetic has always been.
int16_t ClsJeuPerso::Prix_Marchandee(double prix, const ClsJeuParam& param) const {
    const double depart = param.PersosNiveauSpecialesDepart;
    const double niveau = Definir_Niveau_CompetenceSpeciales(3);
    return Arrondir_En<int16_t>((depart / niveau + 1) * prix / 2);
}

// Clothes first, then the trade, then the look the character was born with.
void ClsJeuPerso::Calculer_Apparence(const ClsJeuBatiment& maison, const ClsJeuParam& param) {
    if (ApparenceFichier) {
        Apparence = ApparenceBase;
        return;
    }
    if (Peuple != 0) return;
    const int16_t vetement = ObjetsEquipes.size() > 2 ? ObjetsEquipes[2].Type : -1;
    if (vetement >= 0 && param.Objet_ApparencePerso(vetement) >= 1) {
        Apparence = param.Objet_ApparencePerso(vetement);
    } else if (maison.Termine && param.Batiment_ApparencePerso(maison.Type) >= 1) {
        Apparence = param.Batiment_ApparencePerso(maison.Type);
    } else {
        Apparence = ApparenceBase;
    }
}

void ClsJeuPerso::Empreindre(Empreinte& e) const {
    for (int32_t v : {PositionX, PositionY, VitesseBase, Vitesse, DestinationX, DestinationY, Numero, Joueur, Fief,
                      Equipe, Chef, DecalageChefX, DecalageChefY, NombreInvocations, MaisonCible, RessourceCible,
                      ChateauCible, PersoCible, RessourceRecoltee, ServiceEnCours, NiveauObjetsDepart, LongueurPas,
                      Apparence, BonusMaxRessources})
        e.Ajouter(v);
    for (int16_t v : {EtapeAnimation, ApparenceBase, Attitude, Formation, Reserve, Peuple, Monstre, Grade,
                      PorteeAttaqueBase, EffetAttaqueBase, PerteRessourceIndice, ArmureBase, EtapeIA, Direction,
                      ObjetFabrique, ObjetUtilise, SurfaceAttaqueBase, SurfaceAttaque, PorteeAttaque, Armure, CodeAction,
                      MetierAction})
        e.Ajouter(v);
    for (bool b : {Parole, Volant, ApparenceFichier, Feminin, Progresse, Kamikaze, AttaqueImmediate, ModeAuto, IA,
                   IA_Equiper, IA_Manger, IA_Pacifique, IA_Temeraire, IA_Berserk, EstActif, EnMouvement, DansMaison,
                   DansSaMaison, DansChateau, DansSonChateau})
        e.Ajouter(b);
    for (double v : {CompteResurrection, DateCommentaire, PerteRessourceQuantite, DureeImmobilisation,
                     ProgressionFabrication, CoefForme, Argent, SeuilsArme[0], SeuilsArme[1], SeuilsArme[2],
                     SeuilsArme[3]})
        e.Ajouter(v);
    for (const std::string* t : {&Nom, &FichierApparence, &FichierIA, &Commentaire}) e.Ajouter(*t);
    for (const Jauge* j : {&Vie, &Energie, &Magie, &Moral, &Attaque, &Defense}) j->Empreindre(e);
    e.Ajouter(Ressources);
    for (const auto* table : {&CompetencesSpeciales, &CompetencesRessources, &CompetencesServices, &CompetencesObjets}) {
        e.Ajouter(static_cast<uint64_t>(table->size()));
        for (const Competence& c : *table) c.Empreindre(e);
    }
    for (const auto* rangee : {&ObjetsEquipes, &ObjetsInventaire}) {
        e.Ajouter(static_cast<uint64_t>(rangee->size()));
        for (const ClsJeuObjet& o : *rangee) o.Empreindre(e);
    }
    e.Ajouter(Bestiaire);
}
