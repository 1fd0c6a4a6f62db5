#!/usr/bin/env bash
# Korvalis: set up, build and play, or set up, build and test.
#   ./korvalis.sh          install what is missing, build in Release, assemble build/jeu, play
#   ./korvalis.sh test     same set-up, then the whole test suite, then the sanitizer build's suite
#   ./korvalis.sh bench    same set-up, then the benchmarks and the simulator benchmark
set -euo pipefail
cd "$(dirname "$0")"

PAQUETS_CONSTRUCTION=(cmake g++ make ninja-build pkg-config libsdl2-dev libsdl2-ttf-dev libsdl2-mixer-dev
  libsdl2-image-dev libgif-dev libimgui-dev libgtest-dev libbenchmark-dev fonts-dejavu-core)
PAQUETS_OPTIONNELS=(lame sox)

manquants() {
  local p
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || echo "$p"
  done
}

installer() {
  local -a absents
  mapfile -t absents < <(manquants "$@")
  [ ${#absents[@]} -eq 0 ] && return 0
  local -a apt=(env DEBIAN_FRONTEND=noninteractive apt-get)
  if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo >/dev/null 2>&1; then
      apt=(sudo env DEBIAN_FRONTEND=noninteractive apt-get)
    else
      echo "korvalis: il manque les paquets ${absents[*]} ; installez-les en root (apt-get install ${absents[*]})." >&2
      return 1
    fi
  fi
  echo "korvalis: installation de ${absents[*]}"
  "${apt[@]}" update -qq
  "${apt[@]}" install -y --no-install-recommends "${absents[@]}"
}

preparer() {
  installer "${PAQUETS_CONSTRUCTION[@]}"
  installer "${PAQUETS_OPTIONNELS[@]}" || echo "korvalis: musique non générée (lame et sox absents)" >&2
}

construire() { # dossier, options cmake…
  local dossier=$1; shift
  cmake -S . -B "$dossier" -G Ninja "$@" >/dev/null
  cmake --build "$dossier" --parallel "$(nproc)"
}

tester() { # dossier
  (cd "$1" && ctest --output-on-failure --parallel "$(nproc)")
}

commande=${1:-jouer}
case "$commande" in
  jouer)
    preparer
    construire build -DCMAKE_BUILD_TYPE=Release
    shift || true
    exec build/korvalis "$@"
    ;;
  test)
    preparer
    construire build -DCMAKE_BUILD_TYPE=Release
    tester build
    construire build-sanitize -DCMAKE_BUILD_TYPE=Debug -DKORVALIS_SANITIZE=ON
    tester build-sanitize
    ;;
  bench)
    preparer
    construire build -DCMAKE_BUILD_TYPE=Release -DKORVALIS_BENCH=ON
    for b in build/bench/bench_*; do [ -x "$b" ] && "$b"; done
    bash bench/simulateur.sh build
    ;;
  *)
    echo "usage : ./korvalis.sh [test|bench]" >&2
    exit 2
    ;;
esac
