// The fiefs' share of a tick of the world.
#pragma once

// For every fief in index order: the market's step, the castle repair from given money, and
// the castle taking in its reserve of health.
void Gerer_Fiefs();
