#!/usr/bin/env bash
# Builds Korvex and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup-debian.sh
cmake --preset default >/dev/null
cmake --build --preset default
ctest --preset default
