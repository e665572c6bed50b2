#!/bin/bash
# Races ivorel-cli, process against process, with zip and unzip on a project of 10 000 objects that
# lies on a memory file system. Prints the median of five runs of each and their ratio.
#
#   benchmarks/compare-cli.sh [BUILD_FOLDER [OBJECTS]]
set -euo pipefail

build=$(realpath "${1:-build/bench}")
objects=${2:-10000}
runs=5
cli=$build/bin/ivorel-cli

work=$(mktemp -d /dev/shm/ivorel-compare-XXXXXX)
trap 'rm -rf "$work"' EXIT
cd "$work"
"$build/benchmarks/generateproject" "$objects" project
echo "$(find project -type f | wc -l) files, $(du -sb --apparent-size project | cut -f1) bytes"

# Runs a command after clearing what it makes; prints its wall-clock time in microseconds.
timed() {
    rm -rf out out.vellum out.zip
    local begin=${EPOCHREALTIME/./}
    "$@" > /dev/null
    echo $((${EPOCHREALTIME/./} - begin))
}

median() {
    sort -n | sed -n "$((runs / 2 + 1))p"
}

# compare NAME LIMIT: races the functions ours and theirs, by turns.
compare() {
    timed ours > /dev/null
    timed theirs > /dev/null
    for ((run = 0; run < runs; ++run)); do
        timed ours >> ours.times
        timed theirs >> theirs.times
    done
    local a b
    a=$(median < ours.times)
    b=$(median < theirs.times)
    rm ours.times theirs.times
    printf '%-8s %8d us against %8d us: %s (limit %s)\n' "$1" "$a" "$b" \
        "$(awk "BEGIN { printf \"%.2f\", $a / $b }")" "$2"
}

zip_project() { (cd project && zip -0 -r -q ../out.zip .); }
zip_project
mv out.zip source.zip
"$cli" pack project source.vellum

ours() { "$cli" pack project out.vellum; }
theirs() { zip_project; }
compare pack 0.80

ours() { "$cli" unpack source.vellum out; }
theirs() { unzip -q source.zip -d out; }
compare unpack 0.80

ours() { "$cli" convert project out.vellum; }
theirs() { zip_project; }
compare convert 1.00
