#!/usr/bin/env bash
# Whole processes side by side: as31 and korvex-asm on the same generated
# plain source, in two pairs, run alternately so that both see the same load:
#   hex and listing:  as31 -l          against korvex-asm --hex --listing
#   binary alone:     as31 -Fbin       against korvex-asm --bin
# Prints the median of each, the ratio korvex/as31, peak memory and page
# faults, and checks that both binaries are the same. as31 gets the driver
# line (#cpu) as a comment; everything else is the same text.
#
#   bench/compare_as31.sh [KORVEX_ASM [BENCH_PROGRAM]]
#   (defaults: build/bin/korvex-asm and build/bin/korvex_bench_assembler;
#    LINES and RUNS from the environment, 23600 and 21)
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
korvex_asm=${1:-$root/build/bin/korvex-asm}
generator=${2:-$(dirname "$korvex_asm")/korvex_bench_assembler}
lines=${LINES:-23600}
runs=${RUNS:-21}

for tool in "$korvex_asm" "$generator"; do
    [[ -x $tool ]] || { echo "Programm $tool fehlt (erst bauen)." >&2; exit 1; }
done
command -v as31 >/dev/null || { echo "as31 ist nicht installiert." >&2; exit 1; }
[[ -x /usr/bin/time ]] || { echo "/usr/bin/time fehlt (Paket time)." >&2; exit 1; }

work=$(mktemp -d "${TMPDIR:-/tmp}/korvex-vergleich-XXXXXX")
trap 'rm -rf "$work"' EXIT
"$generator" --write-source "$work/quelle.asm" "$lines"
mv "$work/quelle.asm" "$work/quelle.a51"
sed '1s/^/;/' "$work/quelle.a51" >"$work/quelle.asm"
drivers=(--program-folder "$root/data/cpu")

declare -A commands=(
    [as31_lst]="as31 -l $work/quelle.asm"
    [korvex_lst]="$korvex_asm ${drivers[*]} --hex --listing $work/quelle.a51"
    [as31_bin]="as31 -Fbin $work/quelle.asm"
    [korvex_bin]="$korvex_asm ${drivers[*]} --bin $work/quelle.a51"
)
order=(as31_lst korvex_lst as31_bin korvex_bin)

# Seconds (to the microsecond), peak kilobytes and page faults of one run;
# a failure stops the script.
measure() {
    local start end
    start=$(date +%s%N)
    /usr/bin/time -f '%M %R' -o "$work/zeit" $1 >/dev/null 2>&1 ||
        { echo "fehlgeschlagen: $1" >&2; return 1; }
    end=$(date +%s%N)
    echo "$(awk -v a="$start" -v b="$end" 'BEGIN { printf "%.4f", (b - a) / 1e9 }') $(cat "$work/zeit")"
}
declare -A seconds memory faults
for ((i = 1; i <= runs; ++i)); do
    for name in "${order[@]}"; do
        read -r s m f < <(measure "${commands[$name]}")
        seconds[$name]+="$s "
        memory[$name]=$m
        faults[$name]=$f
    done
done
median() { tr ' ' '\n' | grep -v '^$' | sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

if cmp -s "$work/quelle.bin" "$work/quelle.b51"; then same=ja; else same=NEIN; fi
printf '\nQuelltext: %d Zeilen, %d Bytes Code, %d Läufe je Programm, abwechselnd\n\n' \
    "$lines" "$(stat -c %s "$work/quelle.b51")" "$runs"
printf '%-34s %9s %8s %9s %9s\n' "Programm" "Median" "Faktor" "Speicher" "Seitenf."
for pair in lst bin; do
    base=$(median <<<"${seconds[as31_$pair]}")
    for tool in as31 korvex; do
        name=${tool}_$pair
        value=$(median <<<"${seconds[$name]}")
        label=$([[ $tool == as31 ]] && { [[ $pair == lst ]] && echo "as31 -l" || echo "as31 -Fbin"; } ||
            { [[ $pair == lst ]] && echo "korvex-asm --hex --listing" || echo "korvex-asm --bin"; })
        printf '%-34s %8ss %8s %7s KB %9s\n' "$label" "$value" \
            "$(awk -v a="$value" -v b="$base" 'BEGIN { printf "%.2fx", (b > 0 ? a / b : 0) }')" \
            "${memory[$name]}" "${faults[$name]}"
    done
done
printf '\nBinärdateien gleich: %s\n' "$same"
[[ $same == ja ]]
