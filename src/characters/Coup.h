// The blow of a fighter that stands in reach of its target, one tick of it.
#pragma once

#include <cstdint>

class ClsJeuPerso;
class ClsJeuParam;
struct CiblesDeplacement;

// Strikes when the gauge is full, when the blow may fall at once (a fresh attack order), or
// when a blow on a character would already kill it. The equipment's cost per blow must be
// within the fighter's means, strictly for the gauges: else commentaire receives 17 to 20
// (health, energy, magic, morale) or 34 (ammunition), the weapons go back into the bag, the
// fighter stops and no blow falls. After the blow the fighter pays for it; a kamikaze dies.
void Porter_Coup(ClsJeuPerso& p, const CiblesDeplacement& cibles, int32_t& commentaire, const ClsJeuParam& param);
