// The simulator's benchmark: new worlds of about 1,000, 10,000 and 50,000 characters and a
// battle of 2 × 5,000 soldiers, each played for a warm-up and then timed over a fixed number of
// ticks (a pass of the frame loop: one tick and one render without a screen). The worlds grow
// with their people, about 120 cells of 16 m and one deposit a character, four human fiefs in
// two teams at the first epoch, so that every house finds room; the battle's map holds the
// armies as they are drawn up, humans against goblins.
#pragma once

#include <cstdint>
#include <iosfwd>

// Runs every case with seed graine, one line per case:
// "banc=NOM personnages=N monde=LxH gisements=G echauffement=E ticks=T secondes=S ticks_par_seconde=V
// ticks_par_seconde_cpu=C", C counting the processor time of the simulator alone.
// False if a world could not be built.
bool Executer_Banc(uint64_t graine, std::ostream& sortie);
