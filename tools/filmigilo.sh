#!/bin/sh
# Makes the short film of lesson 2, "Jen!": a few scenes, each one sentence
# spoken by espeak-ng's Esperanto voice and written on the picture, stored as
# Ogg Theora with Vorbis sound.
#
#   filmigilo.sh OUT.ogv
set -eu
eligo=$1
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
tiparo=/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf

# sentence | background colour
sceno() {
cat <<'SCENOJ'
Jen!|0x046AB7
Jen la suno.|0xE8A317
La suno estas flava.|0xD35828
Jen la domo.|0x3A9D23
La domo estas blanka.|0x2E4272
Jen la knabo kaj la knabino.|0x046AB7
La knabo vidas la domon.|0x3A9D23
La knabino amas la sunon.|0xD35828
Ĉu vi vidas la domon?|0x2E4272
Jes, mi vidas ĝin!|0x3A9D23
Ĝis revido!|0x046AB7
SCENOJ
}

i=0
: > "$tmp/listo.txt"
: > "$tmp/sonoj.txt"
sceno | while IFS='|' read -r frazo koloro; do
    espeak-ng -v eo+m3 -s 120 -w "$tmp/v$i.wav" "$frazo" < /dev/null
    sox "$tmp/v$i.wav" -r 22050 -c 1 "$tmp/s$i.wav" pad 0.4 0.8
    dauro=$(soxi -D "$tmp/s$i.wav")
    ffmpeg -nostdin -loglevel error -y -f lavfi -i "color=c=$koloro:s=320x240:r=15:d=$dauro" \
        -vf "drawtext=fontfile=$tiparo:text='Jen!':fontcolor=white@0.6:fontsize=16:x=10:y=8,drawtext=fontfile=$tiparo:text='$frazo':fontcolor=white:fontsize=20:x=(w-text_w)/2:y=(h-text_h)/2" \
        -c:v libtheora -q:v 7 "$tmp/s$i.ogv"
    echo "file '$tmp/s$i.ogv'" >> "$tmp/listo.txt"
    echo "$tmp/s$i.wav" >> "$tmp/sonoj.txt"
    i=$((i + 1))
done

# shellcheck disable=SC2046
sox $(cat "$tmp/sonoj.txt") "$tmp/sono.wav"
mkdir -p "$(dirname "$eligo")"
ffmpeg -loglevel error -y -f concat -safe 0 -i "$tmp/listo.txt" -i "$tmp/sono.wav" \
    -c:v libtheora -q:v 7 -c:a libvorbis -q:a 4 -shortest "$eligo.nova.ogv"
mv "$eligo.nova.ogv" "$eligo"
