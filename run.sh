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
echo "== korvex-asm --all $example"
status=0
build/bin/korvex-asm --all "$example" || status=$?
echo "== Intel-HEX-Datei ${example%.a51}.h51"
cat "${example%.a51}.h51"
exit $status
