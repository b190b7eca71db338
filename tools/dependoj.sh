#!/bin/sh
# Installs the Debian packages that building, running and testing the course
# need, and the packages named as arguments. Only packages that are missing
# are installed, so a second run is quick.
set -eu

# Fonts for the scripts of the course's languages: DejaVu (Latin, Greek,
# Cyrillic), Noto UI (Arabic and Persian, in italics too, and Devanagari),
# WenQuanYi (Chinese, Korean) and IPA Gothic (Japanese).
PAKOJ="
build-essential cmake pkg-config
qtbase5-dev qtbase5-dev-tools qtmultimedia5-dev libqt5multimedia5-plugins libqt5svg5-dev
gstreamer1.0-plugins-base gstreamer1.0-plugins-good gstreamer1.0-tools
gstreamer1.0-pulseaudio gstreamer1.0-alsa pulseaudio pulseaudio-utils
espeak-ng sox vorbis-tools ffmpeg
fluidsynth timgm6mb-soundfont
fonts-dejavu-core fonts-noto-ui-core fonts-wqy-microhei fonts-ipafont-gothic
hunspell myspell-eo
poppler-utils xvfb xauth nginx
clang libclang-rt-14-dev
$*
"

mankas=""
for p in $PAKOJ; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        mankas="$mankas $p"
    fi
done

[ -z "$mankas" ] && exit 0

echo "Installing:$mankas"
if [ "$(id -u)" -eq 0 ]; then
    SUDO=""
else
    SUDO="sudo"
fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
# shellcheck disable=SC2086
$SUDO apt-get install -y -qq --no-install-recommends $mankas
