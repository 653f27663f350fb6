#!/bin/sh
# fonts.sh OUT: cuts the typefaces of the system down to the letters of the game and lays their licences
# beside them.
set -eu
out=$1
fonts=/usr/share/fonts/truetype
letters="U+20-7E,U+A0,U+AB,U+BB,U+D3,U+F3,U+D7,U+104-107,U+118,U+119,U+141-144,U+15A,U+15B,U+179-17C,U+2013,U+2014,U+2019,U+201D,U+201E,U+2026"

cut() {
  /usr/bin/python3 -m fontTools.subset "$fonts/$1.ttf" --unicodes="$letters" --layout-features=kern,liga,lnum,tnum \
    --no-hinting --flavor=woff2 --output-file="$out/$2.woff2"
}

cut lato/Lato-Regular lato
cut lato/Lato-Bold lato-bold
cut lato/Lato-Black lato-black
cut vollkorn/Vollkorn-Bold vollkorn
cp /usr/share/doc/fonts-lato/copyright "$out/lato-licence.txt"
cp /usr/share/doc/fonts-vollkorn/copyright "$out/vollkorn-licence.txt"
