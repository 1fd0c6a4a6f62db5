// How characters speak to one another in a fight. A character in trouble calls its team;
// those free to come answer, each on a draw, and go for what the caller fights, or for
// whoever attacks it. A leader gives its followers three orders: charge, stop, take formation.
#pragma once

#include <cstdint>

// The call for help of character n. Only team mates that decide for themselves, are no
// invocation, are in full form, have more than half their health and are not busy indoors
// or fighting may answer, each with a chance of 3 in (subjects of the caller's fief + 1).
// Caller and helpers say so (comments 6 to 10).
void Appeler_Aide(int32_t n);

// The leader's followers attack: the target given (genre 0 a character, 1 a house, 2 a
// castle), else what the leader attacks, else whoever attacks the leader, else they take
// their places around where it is heading. Followers already fighting keep their fight;
// with shift 5 (10 with ctrl) obey, with ctrl alone 1, else all. The leader says how many
// obeyed (comments 22 to 30, 32 for none); a follower now and then answers (31).
void Ordonner_Charge(int32_t chef, int16_t genre, int32_t cible, bool ctrl, bool shift, bool alt);
// Every living follower stops where it is; the leader says so (21) if there was one.
void Ordonner_Arret(int32_t chef);
// Writes each living follower's place around the leader for its formation (the next one
// with changer); nobody moves. Unless silencieux the leader says so (22 standing, 23 moving).
void Placer_Formation(int32_t chef, bool changer, bool silencieux);
