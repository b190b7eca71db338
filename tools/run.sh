#!/bin/sh
# Builds the course and starts it.
set -eu
cd "$(dirname "$0")/.."
tools/dependoj.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build --parallel "$(nproc)"
exec build/lernilo "$@"
