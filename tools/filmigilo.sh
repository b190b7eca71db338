#!/bin/sh
# Makes the short film of lesson 2, "Jen!": scene by scene, a drawing of the
# course (tools/filmo, rendered to PNG by the build) with one sentence that
# says what it shows, spoken by espeak-ng's Esperanto voice at a learner's
# pace and written under the picture. Stored as Ogg Theora with Vorbis sound.
#
#   filmigilo.sh OUT.ogv PICTURE_FOLDER
set -eu
eligo=$1
bildoj=$2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
tiparo=/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf

# picture | sentence
sceno() {
cat <<'SCENOJ'
jen|Jen!
suno|Jen la suno.
flava_suno|La suno estas flava.
domo|Jen la domo.
blanka_domo|La domo estas blanka.
knabo_knabino|Jen la knabo kaj la knabino.
vidas_domon|La knabo vidas la domon.
amas_sunon|La knabino amas la sunon.
demando|Ĉu vi vidas la domon?
respondo|Jes, mi vidas ĝin!
ghis|Ĝis revido!
SCENOJ
}

i=0
: > "$tmp/listo.txt"
: > "$tmp/sonoj.txt"
sceno | while IFS='|' read -r bildo frazo; do
    espeak-ng -v eo+m3 -s 115 -w "$tmp/v$i.wav" "$frazo" < /dev/null
    # A moment of the picture alone, the sentence, then time to look again.
    sox "$tmp/v$i.wav" -r 22050 -c 1 "$tmp/p$i.wav" pad 0.7 1.3
    # Sound and picture of a scene last a whole number of frames, so that
    # they stay together to the end.
    aldono=$(soxi -D "$tmp/p$i.wav" | awk '{ k = int($1 * 15); if (k < $1 * 15) k++; printf "%.4f", k / 15 - $1 }')
    sox "$tmp/p$i.wav" "$tmp/s$i.wav" pad 0 "$aldono"
    dauro=$(soxi -D "$tmp/s$i.wav")
    fino=$(echo "$dauro" | awk '{ printf "%.2f", $1 - 0.35 }')
    ffmpeg -nostdin -loglevel error -y -loop 1 -framerate 15 -t "$dauro" -i "$bildoj/$bildo.png" \
        -vf "format=yuv420p,drawbox=x=0:y=ih-38:w=iw:h=38:color=0x2E4272@0.75:t=fill,drawtext=fontfile=$tiparo:text='$frazo':fontcolor=white:fontsize=19:x=(w-text_w)/2:y=h-29,fade=t=in:st=0:d=0.35,fade=t=out:st=$fino:d=0.35" \
        -c:v libtheora -q:v 7 "$tmp/s$i.ogv"
    echo "file '$tmp/s$i.ogv'" >> "$tmp/listo.txt"
    echo "$tmp/s$i.wav" >> "$tmp/sonoj.txt"
    i=$((i + 1))
done

# shellcheck disable=SC2046
sox $(cat "$tmp/sonoj.txt") "$tmp/sono.wav"
mkdir -p "$(dirname "$eligo")"
ffmpeg -nostdin -loglevel error -y -f concat -safe 0 -i "$tmp/listo.txt" -i "$tmp/sono.wav" \
    -c:v libtheora -q:v 7 -c:a libvorbis -q:a 4 -shortest "$eligo.nova.ogv"
mv "$eligo.nova.ogv" "$eligo"
