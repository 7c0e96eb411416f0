#!/usr/bin/env bash
# Looks at the sources with the eyes that a jumbo build does not have:
#   check_files.sh alone   each file compiles by itself, with all warnings; tests do so over the
#                          precompiled headers of the toolkit, which would take too long otherwise
#   check_files.sh tidy    what clang-tidy finds in src/ and simulator/, a room at a time
# Both take their commands from the preset `test`, which must have been built.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/setup.sh

top=$PWD
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The commands of the jumbo build without the precompiled headers of the rooms and without its output:
# COMMAND<tab>SOURCE.
jumbo_commands() {
    ninja -C build/test -t commands all |
        sed -nE 's/^([^ ]*ccache )?([^ ]+) (.*) -o [^ ]+ -c ([^ ]+\.(cxx|cpp))$/\2 \3\t\4/p' |
        sed -E '/bornika_toolkit_headers/ s/ -Winvalid-pch -include [^ \t]+//
                s/ -MD -MT [^ ]+ -MF [^ \t]+//; s/ -Wno-subobject-linkage//'
}

# Files of ours that a source of the build stands for.
members() {
    case $1 in
        */Unity/*) sed -nE 's/^#include "(.*)"$/\1/p' "$1" ;;
        *) echo "$1" ;;
    esac
}

# run_all WHAT: runs the commands of $work/list, two at a time, and shows what they had to say.
run_all() {
    local what=$1 total number=0 command
    total=$(wc -l <"$work/list")
    while IFS= read -r command; do
        number=$((number + 1))
        printf '%s && echo "%s/%s " || touch %s\0' "$command" "$number" "$total" "$work/failed"
    done <"$work/list" >"$work/jobs"
    xargs -0 -P "$(nproc)" -I{} sh -c '{}' <"$work/jobs" 2>"$work/said" | told "$what" || true
    [ ! -s "$work/said" ] || grep -vE '^[0-9]+ warnings? (generated|treated)|^Suppressed|^Use -' "$work/said" || true
    [ ! -e "$work/failed" ]
}

check_alone() {
    local command source file
    jumbo_commands | while IFS=$'\t' read -r command source; do
        members "$source" | while IFS= read -r file; do
            case $file in
                "$top"/build/*) ;;
                "$top"/*) echo "$command -Wshadow -fsyntax-only $file" ;;
            esac
        done
    done >"$work/list"
    run_all "Compiling each file by itself"
}

check_tidy() {
    local command source
    jumbo_commands | while IFS=$'\t' read -r command source; do
        case $source in
            */build/test/src/*/Unity/* | */build/test/simulator/*/Unity/*)
                echo "clang-tidy --quiet --warnings-as-errors='*' $source -- ${command#* } -Wno-sign-conversion >&2" ;;
        esac
    done >"$work/list"
    run_all "Reading the rooms with clang-tidy"
}

case ${1:-} in
    alone) check_alone ;;
    tidy) check_tidy ;;
    *)
        sed -n 's/^#   /  /p' "$0"
        exit 2
        ;;
esac
