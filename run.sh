#!/usr/bin/env bash
# Builds Korvex and runs its main job: the example source through the assembler.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup-debian.sh
cmake --preset default >/dev/null
cmake --build --preset default
example=build/beispiel/beispiel.a51
mkdir -p "$(dirname "$example")"
cp examples/beispiel.a51 "$example"
rm -f "${example%.a51}".[bhls]51
echo "== korvex-asm --all $example"
status=0
build/bin/korvex-asm --all "$example" || status=$?
if [ -f "${example%.a51}.h51" ]; then
    echo "== Intel-HEX-Datei ${example%.a51}.h51"
    cat "${example%.a51}.h51"
fi
exit $status
