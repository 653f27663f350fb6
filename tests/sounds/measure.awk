# measure.awk - one 16-bit stereo sound, its samples as words on stdin, any number to a line.
# -v name   what the line calls it
# -v want   "MIN_SECONDS MAX_SECONDS MEASURE LUFS WIDTH", MEASURE is M or I
# -v wrong  faults found in the header, blank if none
# M is the loudest 400 ms window (BS.1770 weighting; silence stands before and after the sound,
# so that a short one counts as it is heard), I the gated integrated loudness, true the 4x
# oversampled peak, lead the ms until the sound is above -40 dBFS, tail the peak of the last 10 ms.
# Prints one line; exit status 1 if anything is outside its limits.
function db(x) { return x > 0 ? 20*log(x)/log(10) : -99 }
function lu(x) { return x > 0 ? -.691+10*log(x)/log(10) : -99 }
BEGIN {
  ch = 2; rate = 44100; pi = 3.141592653589793; step = rate/100
  # K weighting: shelf and high-pass, direct form 2 transposed
  K = sin(pi*1681.974450955533/rate)/cos(pi*1681.974450955533/rate)
  Q = .7071752369554196; V = 10^(3.999843853973347/20); W = V^.4996667741545416
  a0 = 1+K/Q+K*K; b0 = (V+W*K/Q+K*K)/a0; b1 = 2*(K*K-V)/a0; b2 = (V-W*K/Q+K*K)/a0
  a1 = 2*(K*K-1)/a0; a2 = (1-K/Q+K*K)/a0
  K = sin(pi*38.13547087602444/rate)/cos(pi*38.13547087602444/rate); Q = .5003270373238773
  a0 = 1+K/Q+K*K; c1 = 2*(K*K-1)/a0; c2 = (1-K/Q+K*K)/a0
  for (p = 1; p < 4; p++) for (k = 0; k < 12; k++) {       # half-band interpolator, three phases
    x = k-5.5-(p/4-.5); F[p, k] = sin(pi*x)/(pi*x)*(.5+.5*cos(pi*x/6.5)) }
  c = n = 0
}
{
  for (j = 1; j <= NF; j++) {
    if (c == 0) { n++; E[n % step] = 0 }
    c++
    v = $j; s += v; a = v < 0 ? -v : v
    if (a > pk) pk = a
    if (a >= 32767) cl++
    if (!lead && a > 328) lead = n
    x = v/32768; y = b0*x+z1[c]; z1[c] = b1*x-a1*y+z2[c]; z2[c] = b2*x-a2*y
    w = y+y1[c]; y1[c] = -2*y-c1*w+y2[c]; y2[c] = y-c2*w
    e += w*w
    R[c, n % 12] = v
    if (a > 18000) hot = 12
    if (a > E[n % step]) E[n % step] = a
    if (hot > 0) for (p = 1; p < 4; p++) {
      q = 0; for (k = 0; k < 12; k++) q += F[p, k]*R[c, (n-k+12) % 12]
      q = q < 0 ? -q : q; if (q > tp) tp = q }
    if (c == ch) {
      c = 0; hot--
      if (n % step == 0) { B[++nb] = e/step; e = 0 } }
  }
}
END {
  B[++nb] = e/step
  for (i = -38; i <= nb; i++) {                            # windows of 40 blocks of 10 ms
    m = 0; for (k = i; k < i+40; k++) if (k >= 1 && k <= nb) m += B[k]
    m /= 40; if (m > M) M = m
    if (((i-1) % 10 == 0 && (nb < 40 || (i >= 1 && i+39 <= nb))) && lu(m) > -70) G[++ng] = m }
  for (i = 1; i <= ng; i++) g += G[i]
  r = ng ? lu(g/ng)-10 : -99; g = 0
  for (i = 1; i <= ng; i++) if (lu(G[i]) > r) { g += G[i]; k2++ }
  I = k2 ? lu(g/k2) : -99; M = lu(M)
  for (k in E) if (E[k] > tl) tl = E[k]
  if (pk > tp) tp = pk
  split(want, T, " "); len = n/rate; dc = n ? s/n/ch/32768 : 0; ms = lead*1000/rate; tl = db(tl/32768)
  if (len < T[1]) wrong = wrong " short"
  if (len > T[2]) wrong = wrong " long"
  if (db(tp/32768) >= -1) wrong = wrong " peak"
  if (cl) wrong = wrong " clipped"
  if (dc >= .001 || dc <= -.001) wrong = wrong " dc"
  if (!lead) wrong = wrong " silent"; else if (ms > 60) wrong = wrong " late"
  if (tl >= -55) wrong = wrong " tail"
  x = T[3] == "I" ? I : M
  if (x > T[4]+T[5]) wrong = wrong " loud"
  if (x < T[4]-T[5]) wrong = wrong " quiet"
  printf "%-16s %7.3f %6.2f %6.2f %6.1f %6.1f %8.5f %4d %4.0f %5.0f  %s\n", name, len,
    db(pk/32768), db(tp/32768), M, I, dc, cl, ms, tl, wrong == "" ? "ok" : "BAD:" wrong
  exit wrong != ""
}
