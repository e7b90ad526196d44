#!/usr/bin/env bash
# Times as31 and korvex-asm on the same generated 32,000-line source and checks
# that both produce the same binary image. as31 gets the driver line (#cpu)
# as a comment; everything else is the same text.
#
#   bench/compare_as31.sh [KORVEX_ASM [BENCH_PROGRAM]]
#   (defaults: build/bin/korvex-asm and build/bin/korvex_bench_assembler;
#    LINES and RUNS from the environment, 32000 and 5)
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
korvex_asm=${1:-$root/build/bin/korvex-asm}
generator=${2:-$(dirname "$korvex_asm")/korvex_bench_assembler}
lines=${LINES:-32000}
runs=${RUNS:-5}

for tool in "$korvex_asm" "$generator"; do
    [[ -x $tool ]] || { echo "Programm $tool fehlt (erst bauen)." >&2; exit 1; }
done
command -v as31 >/dev/null || { echo "as31 ist nicht installiert." >&2; exit 1; }

work=$(mktemp -d "${TMPDIR:-/tmp}/korvex-vergleich-XXXXXX")
trap 'rm -rf "$work"' EXIT
"$generator" --write-source "$work/quelle.asm" "$lines"
mv "$work/quelle.asm" "$work/quelle.a51"
sed '1s/^/;/' "$work/quelle.a51" >"$work/quelle.asm"

# Wall-clock seconds of one run; output goes away, a failure stops the script.
seconds() {
    local TIMEFORMAT=%3R
    { time "$@" >/dev/null 2>&1; } 2>&1 || { echo "fehlgeschlagen: $*" >&2; return 1; }
}

declare -A times
for ((i = 1; i <= runs; ++i)); do
    times[as31]+="$(seconds as31 -Fbin "$work/quelle.asm") "
    times[korvex]+="$(seconds "$korvex_asm" --program-folder "$root/data/cpu" --bin --hex "$work/quelle.a51") "
done

if cmp -s "$work/quelle.bin" "$work/quelle.b51"; then same=ja; else same=NEIN; fi

printf '\nQuelltext: %d Zeilen, %d Bytes Code, %d Läufe je Assembler\n\n' \
    "$lines" "$(stat -c %s "$work/quelle.b51")" "$runs"
printf '%-28s %10s %10s  %s\n' "Assembler" "bester" "Mittel" "alle Läufe (s)"
for name in as31 korvex; do
    read -r -a t <<<"${times[$name]}"
    label=$([[ $name == as31 ]] && echo "as31 -Fbin" || echo "korvex-asm --bin --hex")
    printf '%-28s %9ss %9ss  %s\n' "$label" \
        "$(printf '%s\n' "${t[@]}" | sort -n | head -1)" \
        "$(printf '%s\n' "${t[@]}" | awk '{ s += $1 } END { printf "%.3f", s / NR }')" \
        "${t[*]}"
done
printf '\nBinärdateien gleich: %s\n' "$same"
[[ $same == ja ]]
