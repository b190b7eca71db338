#!/bin/sh
# Builds the Debian package of the course from this tree:
#
#   tools/paki.sh
#
# The tree is copied without build/ and .git, built there with debhelper
# (which makes the sounds, the film and the song afresh) and checked with
# lintian. The package lands in pako/.
set -eu
cd "$(dirname "$0")/.."
fonto=$(pwd)
tools/dependoj.sh debhelper dpkg-dev fakeroot lintian
dpkg-checkbuilddeps

versio=$(dpkg-parsechangelog -S Version)
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
ujo="$tmp/lernilo-melo-$versio"
mkdir "$ujo"
tar -C "$fonto" --exclude=./build --exclude=./pako --exclude=./.git -cf - . | tar -C "$ujo" -xf -

cd "$ujo"
DEB_BUILD_OPTIONS="parallel=$(nproc) ${DEB_BUILD_OPTIONS:-}" dpkg-buildpackage -us -uc -b
mkdir -p "$fonto/pako"
cp "$tmp"/*.deb "$tmp"/*.buildinfo "$tmp"/*.changes "$fonto/pako/"
lintian --fail-on error "$fonto"/pako/lernilo-melo_"$versio"_*.deb
ls -l "$fonto"/pako/lernilo-melo_"$versio"_*.deb
