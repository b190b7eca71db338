#!/bin/sh
# Builds the course and runs every test, then a short run of the fuzz targets.
set -eu
cd "$(dirname "$0")/.."
tools/dependoj.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build --parallel "$(nproc)"
(cd build && ctest --output-on-failure --parallel "$(nproc)")
# A short fuzzing run of every reader of outside data (about a minute).
tools/fuzz.sh
