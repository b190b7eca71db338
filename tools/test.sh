#!/bin/sh
# Builds the course and runs every test: first the Debian package, built,
# installed and its installed program checked (tools/provu_pakon.sh, about
# seven minutes; LERNILO_SEN_PAKO=1 leaves it out), then the unit tests.
set -eu
cd "$(dirname "$0")/.."
tools/dependoj.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build --parallel "$(nproc)"
if [ "${LERNILO_SEN_PAKO:-0}" != 1 ]; then
    tools/provu_pakon.sh
fi
cd build
ctest --output-on-failure --parallel "$(nproc)"
