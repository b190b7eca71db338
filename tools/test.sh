#!/bin/sh
# Builds the course and runs every test.
set -eu
cd "$(dirname "$0")/.."
tools/dependoj.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build --parallel "$(nproc)"
cd build
ctest --output-on-failure --parallel "$(nproc)"
