#!/usr/bin/env bash
# Whole-world ticks per second at about 1 000, 10 000 and 50 000 characters.
set -euo pipefail
build=${1:-build}
for villageois in 250 2500 12500; do
  echo "== 4 fiefs × $villageois villageois"
  "$build/korvalis-sim" --dossier "$build/jeu" --graine 1 --ticks 2000 --fiefs 4 --villageois "$villageois" \
    --largeur 400 --hauteur 300 | grep -E '^(personnages|ticks|secondes|ticks_par_seconde)='
done
