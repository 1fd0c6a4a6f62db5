#!/usr/bin/env bash
# Whole-world ticks per second: new worlds of about 1 000, 10 000 and 50 000 characters and a
# battle of 2 × 5 000 soldiers (korvalis-sim --banc says how each is made).
set -euo pipefail
build=${1:-build}
"$build/korvalis-sim" --dossier "$build/jeu" --graine 1 --banc
