#!/bin/sh
# check.sh FOLDER [BRON.CFG] - are the rendered sounds in FOLDER the right ones, and as they should be?
# The right ones are those that the weapons file names and the ten that the game itself plays, all but
# the fanfare with two variants; each of them must be there, and no other WAV. Each is measured
# (measure.awk) against the table below.
# One line a file and a last line that sums up; exit status 1 if anything is wrong, 2 if it cannot run.
LC_ALL=C; export LC_ALL
here=$(dirname "$0")
folder=${1:-}
bron=${2:-$here/../../assets/bron.cfg}
[ -d "$folder" ] || { echo "usage: check.sh FOLDER [BRON.CFG]" >&2; exit 2; }
[ -r "$bron" ] || { echo "check.sh: cannot read $bron" >&2; exit 2; }

# what a file should be: shortest and longest s, what is measured, LUFS, +-. Variants are alike
want() {
  case $(echo "$1" | sed 's/-[23]\.wav$/.wav/') in
    guit/hard2.wav) echo 45 70 I -18 1 ;;
    wygr.wav)       echo 9 9.8 I -18 1.5 ;;
    # explosions and cannons
    czarboom.wav)   echo 2.5 3.1 M -13 2 ;;
    specgran.wav)   echo 1.9 2.3 M -13 2 ;;
    dzialo.wav)     echo 1.8 2.2 M -13 2 ;;
    reaper.wav)     echo 1.7 2.1 M -13 2 ;;
    ulti.wav)       echo 2.4 3.0 M -13 2 ;;
    # light blows, bow, marker, reload
    specammo.wav)   echo .85 1.05 M -19 2 ;;
    noz.wav)        echo .4 .6 M -19 2 ;;
    kij.wav)        echo .55 .75 M -19 2 ;;
    laska.wav)      echo .4 .6 M -19 2 ;;
    rozgacz.wav)    echo .5 .7 M -19 2 ;;
    rysik.wav)      echo .35 .55 M -19 2 ;;
    luk.wav)        echo .5 .7 M -19 2 ;;
    marker.wav)     echo .5 .7 M -19 2 ;;
    # everything else
    czar.wav|czar3a.wav|czarkac.wav) echo 1.35 1.65 M -16 2 ;;
    czaramg.wav|czarbul.wav|strzelba.wav) echo 1 1.3 M -16 2 ;;
    karabin.wav|kordelas.wav) echo .9 1.1 M -16 2 ;;
    magustaf.wav|miecz.wav|oczozlop.wav|intruz.wav) echo .85 1.05 M -16 2 ;;
    tasak.wav|multi.wav) echo .7 .9 M -16 2 ;;
    pistolet.wav)   echo .5 .7 M -16 2 ;;
    # a weapon's sound that this table does not know
    *)              echo .3 3 M -16 5 ;;
  esac
}

# The weapons file: twice a number and that many records of nine lines; the second names the sound.
named=$(tr -d '\r' < "$bron" | awk '
  left == 0 { if ($0 == "") next; if ($0 !~ /^[0-9]+$/) { bad = 1; exit }
              groups++; left = 9*$0; line = 0; next }
  { left--; line++; if (line % 9 == 2) print }
  END { exit bad || left || groups != 2 }') ||
  { echo "check.sh: $bron is not two groups of nine-line records" >&2; exit 2; }
named=$({ echo "$named"
          for n in guit/hard2 czar czaramg czarbul czarboom czar3a czarkac specammo specgran wygr; do
            echo $n.wav; done; } | tr '\\' / | sed '/^wygr\.wav$/!{p; s/\.wav$/-2.wav/p; s/-2\.wav$/-3.wav/}' | sort -u)
found=$(cd "$folder" && find . -type f \( -name '*.[wW][aA][vV]' -o -name '*.wav.*' \) | sed 's:^\./::' | sort)

total=0 bad=0 missing=0 extra=0
printf '%-16s %7s %6s %6s %6s %6s %8s %4s %4s %5s  %s\n' \
  file seconds peak true M I DC clip lead tail verdict
# is the line $1 among the lines $2?
among() { printf '%s\n' "$2" | grep -qxF -e "$1"; }
IFS='
'
set -f
for name in $named; do
  total=$((total+1))
  if ! among "$name" "$found"; then
    printf '%-16s %s\n' "$name" "BAD: missing"; missing=$((missing+1)); continue
  fi
  file=$folder/$name wrong=
  # RIFF, PCM, stereo, 44100 Hz, 16 bits, the samples from byte 44 to the end of the file
  tags=$(od -An -v -c -N40 "$file" | tr -d ' \n' | sed 's/^\(RIFF\).*\(WAVEfmt\).*\(data\)$/\1\2\3/')
  head=$(od -An -v -tu2 -j20 -N16 "$file" 2>/dev/null | tr -s ' \n' '  ' | sed 's/^ //; s/ $//')
  size=$(od -An -v -tu4 -j40 -N4 "$file" 2>/dev/null | tr -d ' ')
  bytes=$(($(wc -c < "$file")))
  # 176400 bytes a second, 4 a frame
  [ "$tags" = RIFFWAVEfmtdata ] && [ "$head" = "1 2 44100 0 45328 2 4 16" ] && [ "$size" = $((bytes-44)) ] ||
    wrong=" format"
  tail -c +45 "$file" | od -An -v -td2 |
    awk -v name="$name" -v want="$(want "$name")" -v wrong="$wrong" -f "$here/measure.awk" ||
    bad=$((bad+1))
done
for name in $found; do
  among "$name" "$named" && continue
  printf '%-16s %s\n' "$name" "BAD: no weapon and no screen plays it"; extra=$((extra+1))
done
echo "$total sounds named: $((total-bad-missing)) good, $bad bad, $missing missing; $extra more that nothing plays"
[ $((bad+missing+extra)) -eq 0 ]
