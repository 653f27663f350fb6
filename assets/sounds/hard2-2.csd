<CsoundSynthesizer>
<CsOptions>
-W -s -d -m0 -K
</CsOptions>
<CsInstruments>
#define MUSIC ##
#include "lib.inc"
</CsInstruments>
<CsScore>
; the foundry: original instrumental, drop C, four beats a bar, 116 a minute, 26 bars
; form: the tune at once, low, over anvils in threes; the shift at full speed; the furnace breathes; a
; bright chord from nowhere; the tune in two voices
; MIDI 36 is the open low string. A bar is sixteen steps.
#define BAR(N) #[4*($N)]#
t 0 116

#define TUNE1(AT'L'O) #i "Seq" $BAR($AT) 8 $L "Lead" $O "0-----1-0-----6-5-------3---1---" .25 0#
#define TUNE2(AT'L'O) #i "Seq" $BAR($AT) 8 $L "Lead" $O "0-----1-0-----8-7-----6-5-3-1---" .25 0#
; two bars of hammers: threes against the four of the snare
#define HAMMER(AT'C1'C2) #
i "Seq"  $BAR($AT)   4 1 "Chug" 36 "0..0..0..0..0.0." 0 0
i "Seq"  $BAR($AT+1) 4 1 "Chug" 36 "0..0..0..0......" 0 0
i "Seq"  $BAR($AT+1) 4 0 "Chord" 36 "............$C1.-$C2.-" 0 0
i "Beat" $BAR($AT)   4 0 "Kick"  "9..8..9..8..9.8."
i "Beat" $BAR($AT+1) 4 0 "Kick"  "9..8..9..8..9.9."
i "Beat" $BAR($AT)   4 0 "Snare" "....9..2....9..."
i "Beat" $BAR($AT+1) 4 0 "Snare" "....9.......9.67"
i "Beat" $BAR($AT)   4 -7 "Anvil"  "9.....8.....8..."
i "Beat" $BAR($AT+1) 4 -7 "Anvil"  "9.....8........."
i "Beat" $BAR($AT)   4 -8 "Anvil2" "...8.....7....7."
i "Beat" $BAR($AT+1) 4 -8 "Anvil2" "...8.....7......"
i "Beat" $BAR($AT)   4 -5 "Hat"  "8...6...8...6..."
i "Beat" $BAR($AT+1) 4 -5 "Hat"  "8...6...8......."
i "Beat" $BAR($AT)   4 -2 "Crash" "9..............."#

; ---- the tune
$TUNE1(0'0'48)
$TUNE2(2'0'48)
$HAMMER(0'3'1)
$HAMMER(2'6'5)
; ---- and an octave above, with a low voice left behind
$TUNE1(4'-1'60)
$TUNE2(6'-1'60)
$TUNE1(4'-5'48)
$TUNE2(6'-5'48)
$HAMMER(4'3'1)
$HAMMER(6'8'7)
i "Beat" $BAR(7) 4 0 "TomH" "........98......"
i "Beat" $BAR(7) 4 0 "TomL" "..........98...."

; ---- the shift at full speed
{ 2 N
#define S(X) #[4*(8+$N*2+$X)]#
i "Seq"  $S(0) 4 1 "Chug"  36 "00.00.00.00....." 0 0
i "Seq"  $S(0) 4 0 "Chord" 36 "............1-3-" 0 0
i "Seq"  $S(1) 4 1 "Chug"  36 "00.00.00........" 0 0
i "Seq"  $S(1) 4 0 "Chord" 36 "........6-5-3-1-" 0 0
i "Beat" $S(0) 4 0 "Kick"  "9898989898989898"
i "Beat" $S(1) 4 0 "Kick"  "98989898989.9.9."
i "Beat" $S(0) 4 0 "Snare" "..9...9...9...9."
i "Beat" $S(1) 4 0 "Snare" "..9...9.9.9.9.99"
i "Beat" $S(0) 4 -3 "Open" "8...8...8...8..."
i "Beat" $S(1) 4 -3 "Open" "8...8...8......."
i "Beat" $S(0) 4 -2 "Crash2" "9..............."
i "Beat" $S(0) 4 -8 "Anvil"  "9...9...9...9..."
}
i "Seq"  $BAR(8)  8 -2 "Lead" 60 "0-1-3-1-0---6---5-3-1-3-0-------" .2 0
i "Seq"  $BAR(10) 8 -2 "Lead" 60 "0-1-3-1-6---8---7-6-5-3-1---d---" .2 0
i "Scrape" [4*11+3] 1 -14 900 140

; ---- the furnace breathes; a hammer far off, a string that is not afraid
{ 4 N
i "Hiss" [4*(12+$N)] 1.9 -22 700 700 .6 .3 1900
i "Hiss" [4*(12+$N)+2] 1.9 -25 1500 900 .3 .6 500
i "Beat" [4*(12+$N)] 4 -17 "Anvil" "7.....6.....5..."
}
i "Seq"  $BAR(12) 8 -12 "Pluck" 48 "0-7-c-d-c-7-0-7-0-6-c-d-c-6-0-6-" 2 .4
i "Seq"  $BAR(14) 8 -12 "Pluck" 48 "0-5-c-d-f-d-c-5-0-7-b-c-b-7-4-7-" 2 .4
i "Seq"  $BAR(12) 16 -19 "Bass" 24 "c---------------c---------------8---------------7---------------" 0 0
i "Seq"  $BAR(13) 12 -14 "Fiddle" 60 "........7-------8-------5---4---2---0-----------" .2 0
i "Beat" $BAR(15) 4 0 "Snare" "........23456789"

; ---- from nowhere: E major, then A flat, and the way home
i "Seq"  $BAR(16) 4 0 "Chord" 36 "4-----4-4---4-4-" 0 0
i "Seq"  $BAR(17) 4 0 "Chord" 36 "8-----8-8---7-6-" 0 0
i "Seq"  $BAR(16) 4 -4 "Choir" 64 "0-------------4-" 0 .1
i "Seq"  $BAR(16) 4 -4 "Choir" 68 "0---------------" 0 .1
i "Seq"  $BAR(16) 4 -4 "Choir" 71 "0---------------" 0 .1
i "Seq"  $BAR(17) 4 -4 "Choir" 63 "0---------------" 0 .1
i "Seq"  $BAR(17) 4 -4 "Choir" 68 "0---------------" 0 .1
i "Seq"  $BAR(17) 4 -4 "Choir" 72 "0---------------" 0 .1
i "Seq"  $BAR(16) 8 -1 "Lead" 64 "7-----4-c-------b---8---4---2---" .4 1
i "Beat" $BAR(16) 4 0 "Crash"  "9..............."
i "Beat" $BAR(16) 4 0 "Crash2" "9..............."
i "Beat" $BAR(16) 8 0 "Kick"   "9.....8.9.....8.9.....8.9.9.9.9."
i "Beat" $BAR(16) 8 0 "Snare"  "........9...............9...6789"
i "Beat" $BAR(16) 8 -4 "Ride"  "9...7...8...7...9...7...8......."

; ---- the tune in two voices, a third apart where the scale allows
$TUNE1(18'-1'60)
$TUNE2(20'-1'60)
i "Seq" $BAR(18) 8 -3 "Lead" 60 "7-----8-7-----a-8-------6---5---" .25 0
i "Seq" $BAR(20) 8 -3 "Lead" 60 "7-----8-7-----c-b-----a-8-6-5---" .25 0
$HAMMER(18'3'1)
$HAMMER(20'6'5)
i "Beat" $BAR(18) 16 -6 "Kick" ".8.8...8.8...8.8.8.8...8.8...8.8.8.8...8.8...8.8.8.8...8.8...8.8"
; rising, and the door falls shut
i "Seq"  $BAR(22) 8 0 "Chord" 36 "0---1---3---5---6---8---9---b---" 0 0
i "Seq"  $BAR(22) 8 -2 "Lead" 60 "0-1-0-1-3-5-3-5-6-8-6-8-9-b-9-b-" .1 0
i "Beat" $BAR(22) 8 0 "Kick"   "9.8.9.8.9.8.9.8.9.8.9.8.98989898"
i "Beat" $BAR(22) 8 0 "Snare"  "....8.......8.......8...6.7.8989"
i "Beat" $BAR(22) 8 -7 "Anvil" "9...9...9...9...9...9...9...9..."
i "Beat" $BAR(22) 4 -2 "Crash" "9..............."
i "Beat" $BAR(23) 4 -2 "Crash2" "9..............."
i "Seq"  $BAR(24) 8 0 "Chord" 36 "0---------------" 3 0
i "Seq"  $BAR(24) 8 -4 "Lead" 48 "0---------------" .3 2
i "Beat" $BAR(24) 4 1 "Crash"  "9..............."
i "Beat" $BAR(24) 4 1 "Crash2" "9..............."
i "Beat" $BAR(24) 4 0 "Kick"   "9..............."
i "Beat" $BAR(24) 8 -5 "Anvil"  "9.....8.....5...3..............."

;                gain guitars lead bass drums else
i "Master" 0 104  -12.9   0      -1    0    .3  0
e
</CsScore>
</CsoundSynthesizer>
