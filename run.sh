#!/usr/bin/env bash
# Builds Korvex and starts the workbench with the example open. Without a
# display it says so and assembles the example on the command line instead.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup-debian.sh
cmake --preset default >/dev/null
cmake --build --preset default
example=build/beispiel/beispiel.a51
mkdir -p "$(dirname "$example")"
cp examples/beispiel.a51 "$example"

if [[ -n ${DISPLAY:-} || -n ${WAYLAND_DISPLAY:-} ]]; then
    echo "== Starte die Werkbank: build/bin/korvex $example"
    exec build/bin/korvex "$example"
fi

echo "Keine grafische Anzeige gefunden (weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt)."
echo "Die Werkbank braucht eine; das Beispiel wird stattdessen auf der Kommandozeile übersetzt."
rm -f "${example%.a51}".[bhls]51
echo "== korvex-asm --all $example"
status=0
build/bin/korvex-asm --all "$example" || status=$?
if [ -f "${example%.a51}.h51" ]; then
    echo "== Intel-HEX-Datei ${example%.a51}.h51"
    cat "${example%.a51}.h51"
fi
exit $status
