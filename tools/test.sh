#!/bin/sh
# Builds the course and runs every test: the Debian package, built, installed
# and its installed program checked (tools/provu_pakon.sh, about seven
# minutes; LERNILO_SEN_PAKO=1 leaves it out), a short run of the fuzz targets
# over every reader of outside data (tools/fuzz.sh, about a minute after their
# clang build), and last the unit tests.
set -eu
cd "$(dirname "$0")/.."
tools/dependoj.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build --parallel "$(nproc)"
if [ "${LERNILO_SEN_PAKO:-0}" != 1 ]; then
    tools/provu_pakon.sh
fi
tools/fuzz.sh
cd build
ctest --output-on-failure --parallel "$(nproc)"
