#!/bin/sh
# Builds the Debian package, installs it on this machine and checks the
# installed course as a new learner meets it:
#
#   tools/provu_pakon.sh            build the package first (tools/paki.sh)
#   tools/provu_pakon.sh pako/X.deb check a package built before
#
# The installed program starts offscreen on an empty home folder with the
# plugin of tests/desktop/kontrolilo.cpp loaded into it; it must show the
# home page, greet from its installed sound tree, play its film and write its
# settings to the XDG data folder. The desktop entry and the AppStream
# metadata must pass their validators.
set -eu
cd "$(dirname "$0")/.."
fonto=$(pwd)
if [ "$(id -u)" -eq 0 ]; then SUDO=""; else SUDO="sudo"; fi

if [ $# -ge 1 ]; then
    pako=$(readlink -f "$1")
else
    tools/paki.sh
    pako=$(ls -t pako/lernilo-melo_*_"$(dpkg --print-architecture)".deb | head -n 1)
    pako=$(readlink -f "$pako")
fi
tools/dependoj.sh desktop-file-utils appstream
echo "Installing $pako"
$SUDO env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --reinstall "$pako" >/dev/null

# The plugin that works the installed program, built with the tree's CMake.
[ -f build/CMakeCache.txt ] || cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build --target kontrolilo >/dev/null

malbone() { echo "FAIL: $*"; exit 1; }

eniro=$(dpkg -L lernilo-melo | grep '^/usr/share/applications/.*\.desktop$')
metainfo=$(dpkg -L lernilo-melo | grep '^/usr/share/metainfo/.*\.metainfo\.xml$')
id=$(basename "$eniro" .desktop)
desktop-file-validate "$eniro" || malbone "desktop entry"
appstreamcli validate --no-net "$metainfo" || malbone "AppStream metadata"
for grando in 16 22 24 32 48 64 128 256 512; do
    [ -s "/usr/share/icons/hicolor/${grando}x${grando}/apps/$id.png" ] || malbone "no icon of $grando"
done
[ -s "/usr/share/icons/hicolor/scalable/apps/$id.svg" ] || malbone "no scalable icon"
man -w lernilo-melo >/dev/null || malbone "no manual page"
komando=$(sed -n 's/^Exec=//p' "$eniro")
[ "$(command -v "$komando")" = "/usr/bin/$komando" ] || malbone "$komando is not on the path"

hejmo=$(mktemp -d)
trap 'rm -rf "$hejmo"' EXIT
eligo=$(env -i HOME="$hejmo" PATH=/usr/bin:/bin QT_QPA_PLATFORM=offscreen \
        QT_PLUGIN_PATH="$fonto/build/kromajhoj" \
        timeout 90 "$komando" -plugin kontrolilo 2>"$hejmo/eraroj") \
    || { cat "$hejmo/eraroj"; malbone "the installed program: $eligo"; }
echo "$eligo"
echo "$eligo" | grep -qx 'hejmo' || malbone "no home page"
echo "$eligo" | grep -q '^sono /usr/lib/lernilo-melo/sonoj/' || malbone "no sound"
echo "$eligo" | grep -qx 'filmo /usr/lib/lernilo-melo/video/lec02/jen_video.ogv' || malbone "no film"
agordoj="$hejmo/.local/share/Lernilo/LerniloMelo/lernilomelo.ini"
grep -q '^Dosiero=' "$agordoj" || malbone "no settings in $agordoj"
echo "The installed package works."
