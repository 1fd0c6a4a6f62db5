#include "ai/TestPoint.h"

#include <algorithm>

#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

int32_t CibleSousPoint = 0;

namespace {

std::size_t U(int32_t k) { return static_cast<std::size_t>(k); }

int32_t Code_Chateau(int32_t k, const Observateur& o) {
    if (k == o.Fief) return PointChateauPropre;
    return Fiefs[U(k)].Equipe == o.Equipe ? PointChateauAmi : PointChateauEnnemi;
}

int32_t Code_Maison(int32_t k, const Observateur& o) {
    const ClsJeuBatiment& m = Maisons[U(k)];
    if (k == o.Numero)
        return m.Termine && m.MaxVie == m.Definir_Vie() ? PointMaisonEntiere : PointMaisonAReparer;
    const int32_t equipe = k < static_cast<int32_t>(Persos.size()) ? Persos[U(k)].Equipe : -1;
    if (equipe != o.Equipe) return PointMaisonEnnemie;
    const bool rienAOffrir = !m.Magasin && !m.Fabrique && m.Service <= 0;
    if (rienAOffrir || !m.Termine) return PointMaisonAmieVide;
    return m.Service == 1 ? PointMaisonAmieService1 : PointMaisonAmieCommerce;
}

}  // namespace

bool Rectangles_Touchent(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t l1, int32_t h1, int32_t l2,
                         int32_t h2) {
    // A point (l1 = h1 = 0) lies in rectangle 2 exactly when this holds too.
    const int64_t X1 = x1, Y1 = y1, X2 = x2, Y2 = y2;
    return X1 <= X2 + l2 && X2 <= X1 + l1 && Y1 <= Y2 + h2 && Y2 <= Y1 + h1;
}

Observateur Observateur_De(int32_t i) {
    if (i < 0 || i >= static_cast<int32_t>(Persos.size())) return {};
    const ClsJeuPerso& p = Persos[U(i)];
    return {i, p.Equipe, p.Fief};
}

int32_t Nombre_Dans(GroupePoint g) {
    switch (g) {
        case GroupePoint::Persos: return static_cast<int32_t>(Persos.size());
        case GroupePoint::Chateaux: return static_cast<int32_t>(std::min(Chateaux.size(), Fiefs.size()));
        case GroupePoint::Maisons: return static_cast<int32_t>(Maisons.size());
        case GroupePoint::Gisements: return static_cast<int32_t>(Ressources.size());
    }
    return 0;
}

BoitePoint Boite_De(GroupePoint g, int32_t k) {
    switch (g) {
        case GroupePoint::Persos: {
            const ClsJeuPerso& p = Persos[U(k)];
            return {p.PositionX, p.PositionY, LargeurPerso, HauteurPerso};
        }
        case GroupePoint::Chateaux: {
            const ClsJeuBatiment& c = Chateaux[U(k)];
            return {c.PositionX, c.PositionY, Param.ChateauxLargeur, Param.ChateauxHauteur};
        }
        case GroupePoint::Maisons: {
            const ClsJeuBatiment& m = Maisons[U(k)];
            return {m.PositionX, m.PositionY, m.Largeur, m.Hauteur};
        }
        case GroupePoint::Gisements: {
            const ClsJeuRessources& r = Ressources[U(k)];
            return {r.PositionX, r.PositionY, LargeurGisement, HauteurGisement};
        }
    }
    return {};
}

bool Compte_Pour(GroupePoint g, int32_t k, const Observateur& o) {
    switch (g) {
        case GroupePoint::Persos: return Persos[U(k)].Attaquable() && Persos[U(k)].Equipe != o.Equipe;
        case GroupePoint::Chateaux: return Chateaux[U(k)].Visible();
        case GroupePoint::Maisons: return Maisons[U(k)].Visible();
        case GroupePoint::Gisements: return true;
    }
    return false;
}

int32_t Code_De(GroupePoint g, int32_t k, const Observateur& o) {
    switch (g) {
        case GroupePoint::Persos: return PointEnnemi;
        case GroupePoint::Chateaux: return Code_Chateau(k, o);
        case GroupePoint::Maisons: return Code_Maison(k, o);
        case GroupePoint::Gisements: return PointGisement;
    }
    return PointRien;
}

bool Trouve_Dans(GroupePoint g, int32_t k, const Observateur& o, const BoitePoint& boite) {
    if (!Compte_Pour(g, k, o)) return false;
    const BoitePoint b = Boite_De(g, k);
    return Rectangles_Touchent(boite.X, boite.Y, b.X, b.Y, boite.Largeur, boite.Hauteur, b.Largeur, b.Hauteur);
}

int32_t Tester_Point(int32_t i, int32_t x, int32_t y, int32_t largeur, int32_t hauteur, bool memoriser) {
    const Observateur o = Observateur_De(i);
    const BoitePoint boite{x, y, largeur, hauteur};
    for (GroupePoint g : GroupesPoint) {
        const int32_t n = Nombre_Dans(g);
        for (int32_t k = 0; k < n; ++k) {
            if (!Trouve_Dans(g, k, o, boite)) continue;
            if (memoriser) CibleSousPoint = k;
            return Code_De(g, k, o);
        }
    }
    return PointRien;
}
