#!/usr/bin/env bash
# Builds the benchmarks as what is delivered and runs all of them. Each prints its ratio to a reference
# measured in the same run, with the bar that it must not pass.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/setup.sh

install_missing "${packages_build[@]}" "${packages_bench[@]}"
configure_and_build bench
for program in build/bench/bench/bench_*; do
    [ -f "$program" ] && [ -x "$program" ] || continue
    echo "== $(basename "$program")"
    around=()
    # Simulated loggers on mock USB ports, whose sockets want short names.
    [ "$(basename "$program")" != bench_usb ] || around=(env TMPDIR=/tmp umockdev-wrapper)
    QT_QPA_PLATFORM=offscreen "${around[@]}" "$program" 2>/dev/null
done
