#!/usr/bin/env bash
# Fails when a C++ file of the repository differs from what clang-format makes
# of it; `scripts/check_format.sh --fix` formats them in place.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files '*.cpp' '*.h')
if [[ ${1:-} == --fix ]]; then
    clang-format -i "${files[@]}"
    exit 0
fi
report=$(mktemp)
trap 'rm -f "$report"' EXIT
if ! clang-format --dry-run --Werror "${files[@]}" 2>"$report"; then
    grep -E '^[^ ].*: (error|warning):' "$report" | cut -d: -f1 | sort -u |
        sed 's/^/nicht formatiert: /' >&2
    echo "Formatieren mit: scripts/check_format.sh --fix" >&2
    exit 1
fi
