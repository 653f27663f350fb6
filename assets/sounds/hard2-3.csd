<CsoundSynthesizer>
<CsOptions>
-W -s -d -m0 -K
</CsOptions>
<CsInstruments>
#define MUSIC ##
#include "lib.inc"
</CsInstruments>
<CsScore>
; the throne: original instrumental, drop C, four slow beats a bar, 84 a minute, 20 bars
; form: the tune at once, sung and played over great chords; again with the riff under it; an organ
; alone; where home should be stands another king; home, with both feet
; MIDI 36 is the open low string. A bar is sixteen steps.
#define BAR(N) #[4*($N)]#
t 0 84

#define SUNG(AT'L'O'I'X'Y) #i "Seq" $BAR($AT) 16 $L "$I" $O "0-------7-------8-----7-5---3---2-------b-----7-c-----------7---" $X $Y#
#define UNDER(AT'L'O'I'X'Y) #i "Seq" $BAR($AT) 16 $L "$I" $O "0-------3-------5-----3-0-------2-------7-----5-3-----------2---" $X $Y#

; ---- the tune: choir, organ, and the great chords
$SUNG(0'-3'60'Choir'0'.06)
$UNDER(0'-5'48'Choir'0'.06)
$SUNG(0'-14'60'Organ'.8'0)
$SUNG(0'-5'60'Lead'.35'0)
i "Seq"  $BAR(0) 16 0 "Chord" 36 "0---------0-0---8-------5-------7---------7-6-5-0-------3---2-1-" 0 0
i "Beat" $BAR(0) 16 0 "Kick"   "9.........8.8...9.......9.....8.9.........8.8.8.9.......9.8.9.8."
i "Beat" $BAR(0) 16 0 "Snare"  "........9...............9..............39...............9...6789"
i "Beat" $BAR(0) 16 -2 "Crash" "9...............................9..............................."
i "Beat" $BAR(0) 16 -3 "Crash2" "................8...............................9..............."
i "Beat" $BAR(0) 16 -4 "Ride"  "....7...8...7.......7...8...7.......7...8...7.......7...8......."

; ---- again, the guitar above, the riff below
$SUNG(4'-1'60'Lead'.4'0)
$SUNG(4'-4'72'Choir'0'.06)
$UNDER(4'-4'60'Choir'0'.06)
i "Seq"  $BAR(4) 4 1 "Chug" 36 "0..000..0..000.." 0 0
i "Seq"  $BAR(5) 4 0 "Chord" 36 "8-----8-5-----5-" 0 0
i "Seq"  $BAR(6) 4 1 "Chug" 36 "7..777..7..777.." 0 0
i "Seq"  $BAR(7) 4 0 "Chord" 36 "0-----3-5---6---" 0 0
i "Beat" $BAR(4) 16 0 "Kick"   "9..888..9..888..9.....8.9.....8.9..888..9..888..9.....8.9...9..."
i "Beat" $BAR(4) 16 0 "Snare"  "........9...............9...............9...............9......."
i "Beat" $BAR(4) 16 -4 "Open"  "8...7...8...7...8...7...8...7...8...7...8...7...8...7...8......."
i "Beat" $BAR(4) 4 -1 "Crash2" "9..............."
i "Beat" $BAR(6) 4 -2 "Crash"  "9..............."
i "Beat" $BAR(7) 4 0 "TomH"    "..........8...7."
i "Beat" $BAR(7) 4 0 "TomL"    "............9..."

; ---- the organ alone in the empty hall, plucked strings, a bell
$SUNG(8'-12'63'Organ'.25'0)
i "Seq"  $BAR(8) 16 -14 "Organ" 51 "0---------------5-------8-------7---------------8-------7-------" .1 0
i "Seq"  $BAR(8) 16 -14 "Organ" 55 "0---------------1-------1-------2---------------5-------4-------" .1 0
i "Seq"  $BAR(8) 16 -10 "Organ" 39 "0---------------5---------------b---------------8-------4-------" 0 0
i "Seq"  $BAR(9) 8 -12 "Pluck" 63 "....c-7-5-7-....c-b-7-5-2-......" 2.5 .4
i "Seq"  $BAR(8) 4 -15 "Toll" 63 "0---" 0 0
i "Seq"  $BAR(10) 4 -15 "Toll" 58 "0---" 0 0
i "Beat" $BAR(11) 4 -4 "TomL"  "9.......9...9.9."
i "Beat" $BAR(11) 4 -2 "Snare" "..........345689"

; ---- everybody waits for C; it is E, and the tune goes on there as its rightful lord
i "Seq"  $BAR(12) 8 -1 "Lead" 64 "0-------7-------9-----7-6---4---" .4 1
i "Seq"  $BAR(12) 8 -3 "Choir" 64 "0-------7-------9-----7-6---4---" 0 .06
i "Seq"  $BAR(12) 8 -4 "Choir" 56 "0-------3-------5-----3-2---0---" 0 .06
i "Seq"  $BAR(12) 8 -13 "Organ" 64 "0-------4-------4-----4-2---0---" .9 0
i "Seq"  $BAR(12) 8 0 "Chord" 36 "4---------4-4---9-------b-----b-" 0 0
i "Beat" $BAR(12) 8 0 "Kick"   "9.....8.9.8.8...9.....8.9.....8."
i "Beat" $BAR(12) 8 0 "Snare"  "........9...............9......3"
i "Beat" $BAR(12) 8 -3 "Ride"  "9...7...8...7...9...7...8...7..."
i "Beat" $BAR(12) 4 1 "Crash"  "9..............."
i "Beat" $BAR(12) 4 1 "Crash2" "9..............."
; down by steps that nobody asked for
i "Seq"  $BAR(14) 8 0 "Chord" 36 "a-----a-8-----8-6---5---7-----7-" 0 0
i "Seq"  $BAR(14) 8 -1 "Lead" 60 "e-------c-------a---8---b-7-5-2-" .35 0
i "Seq"  $BAR(14) 8 -4 "Choir" 62 "0-------a-------b---8---9-------" 0 .06
i "Beat" $BAR(14) 8 0 "Kick"   "9.....8.9.....8.9...9...9.8.8.8."
i "Beat" $BAR(14) 8 0 "Snare"  "........9...............8.6.7899"
i "Beat" $BAR(14) 8 -4 "Open"  "8...7...8...7...8...7..........."

; ---- home
$SUNG(16'-1'60'Lead'.4'0)
$SUNG(16'-2'60'Choir'0'.06)
$SUNG(16'-4'72'Choir'0'.06)
$UNDER(16'-13'60'Organ'.9'0)
i "Seq"  $BAR(16) 12 0 "Chord" 36 "0---------0-0---8-------5-------7---------7-6-5-" 0 0
i "Beat" $BAR(16) 12 0 "Kick"  "9.8.8.8.9.8.8.8.9.8.8.8.9.8.8.8.9.8.8.8.98989898"
i "Beat" $BAR(16) 12 0 "Snare" "........9...............9...............9...6789"
i "Beat" $BAR(16) 12 -4 "Open" "8...7...8...7...8...7...8...7...8...7...8...7..."
i "Beat" $BAR(16) 4 0 "Crash"  "9..............."
i "Beat" $BAR(18) 4 -1 "Crash2" "9..............."
i "Seq"  $BAR(19) 6 0 "Chord" 36 "0-----------" 3 0
i "Seq"  $BAR(19) 6 -13 "Organ" 48 "0-----------" 1 0
i "Beat" $BAR(19) 4 1 "Crash"  "9..............."
i "Beat" $BAR(19) 4 1 "Crash2" "9..............."
i "Beat" $BAR(19) 4 0 "Kick"   "9..............."
i "Seq"  $BAR(19) 4 -10 "Toll" 60 "0---" 0 0

;                gain guitars lead bass drums else
i "Master" 0 83   -13   0      -1    0    .3  0
e
</CsScore>
</CsoundSynthesizer>
