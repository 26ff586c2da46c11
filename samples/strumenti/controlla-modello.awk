# controlla-modello.awk - proves the results of a model from their bytes (see controlla-modello, which calls it).
# Input     struttur.str, sezioni_, combinaz.tot, then the dump of the result files: a line "FILE name kind number bars sections sextets",
#           then per record its bar, section and sextet and the six values.
# Proof     per sextet: every bar is in equilibrium up to each of its sections, every free node is in equilibrium, the reactions balance all
#           loads, and the displacements found by integrating the strains along the bars from the fixed bases close at every node.
# Units     daN, cm. Tolerances are those of values written to six decimals.

function male(t) { if (++errori <= 20) print "controlla-modello: " t > "/dev/stderr" }
function modulo(v) { return v < 0 ? -v : v }
function vicino(v, tolleranza) { return modulo(v) <= tolleranza }

# a cross b, into C[1..3]
function croce(a1, a2, a3, b1, b2, b3) { C[1] = a2 * b3 - a3 * b2; C[2] = a3 * b1 - a1 * b3; C[3] = a1 * b2 - a2 * b1 }

# axes of bar b: L, x y z in A[b, 1..9], sense in V[b]
function assi(b,    i, j, k, n, d) {
  i = estremo[b, 1]; j = estremo[b, 2]
  for (k = 1; k <= 3; k++) d[k] = P[j, k] - P[i, k]
  L[b] = sqrt(d[1] * d[1] + d[2] * d[2] + d[3] * d[3])
  for (k = 1; k <= 3; k++) A[b, k] = d[k] / L[b]
  if (d[1] == 0 && d[2] == 0) { A[b, 4] = orientamento[b] == 0; A[b, 5] = orientamento[b] != 0; A[b, 6] = 0 }
  else {
    n = sqrt(1 - A[b, 3] * A[b, 3])            # length of the upward direction across the bar
    A[b, 4] = -A[b, 3] * A[b, 1] / n; A[b, 5] = -A[b, 3] * A[b, 2] / n; A[b, 6] = n
  }
  croce(A[b, 1], A[b, 2], A[b, 3], A[b, 4], A[b, 5], A[b, 6])
  for (k = 1; k <= 3; k++) A[b, 6 + k] = C[k]
  V[b] = d[3] != 0 ? (d[3] > 0 ? 1 : -1) : d[1] != 0 ? (d[1] > 0 ? 1 : -1) : (d[2] > 0 ? 1 : -1)
}

FNR == 1 { documento++ }
documento <= 3 { sub(/\r$/, ""); testo[documento, FNR] = $0; next }

# The three text files are walked line by line by their own counts.
function apri(n) { file = n; riga = 0 }
function prendi() { if (!((file, riga + 1) in testo)) male("file " file " finito presto"); return testo[file, ++riga] }
function conto(    r, w) { r = prendi(); split(r, w, " "); return w[1] + 0 }

function struttura(    n, k, c, w, b, cond, m) {
  apri(1)
  if (tolower(prendi()) !~ /release/) male("struttur.str: manca la versione")
  for (n = conto(); n > 0; n--) if (split(prendi(), c, ",") != 3) male("struttur.str: primo blocco")
  for (n = conto(); n > 0; n--) {              # number, x, y, number again, text that ends in z
    if (split(prendi(), c, ",") != 5 || c[1] != c[4]) male("nodo " c[1])
    nodo[++nNodi] = c[1]; P[c[1], 1] = c[2] + 0; P[c[1], 2] = c[3] + 0; P[c[1], 3] = w[split(c[5], w, " ")] + 0
  }
  for (n = conto(); n > 0; n--) {
    if (split(prendi(), c, ",") != 4 || !((c[1], 1) in P) || !((c[2], 1) in P)) male("asta fra " c[1] " e " c[2])
    split(prendi(), w, " "); b = w[1]
    asta[nAste++] = b; sezione[b] = w[2]; orientamento[b] = w[3]
    estremo[b, 1] = c[1]; estremo[b, 2] = c[2]; linea[b] = c[3]; colore[b] = c[4]
    assi(b)
  }
  nCond = conto()
  for (cond = 1; cond <= nCond; cond++) {
    split(prendi(), w, " "); if (w[1] != "condizione" || w[2] != cond) male("condizione " cond)
    split(prendi(), w, " "); if (w[1] != "nodi") male("condizione " cond ": nodi")
    for (m = w[2]; m > 0; m--) { if (split(prendi(), c, " ") != 7) male("carico di nodo"); for (k = 1; k <= 6; k++) PN[cond, c[1], k] = c[k + 1] }
    split(prendi(), w, " "); if (w[1] != "aste") male("condizione " cond ": aste")
    for (m = w[2]; m > 0; m--) { if (split(prendi(), c, " ") != 4) male("carico d\047asta"); for (k = 1; k <= 3; k++) QA[cond, c[1], k] = c[k + 1] }
  }
  split(prendi(), w, " "); if (w[1] != "incastri") male("incastri")
  for (m = w[2]; m > 0; m--) incastro[prendi()] = 1
  if ((1, riga + 1) in testo) male("struttur.str: righe di troppo")
}

function sezioni(    n, c, s, e) {             # stiffnesses E A, E J1, E J2, G Jt by section
  apri(2)
  for (n = conto(); n > 0; n--) {
    if (split(prendi(), c, ",") != 3) male("sezioni_: riga " riga)
    s = c[1]
    split(prendi(), c, " "); EA[s] = c[2]
    split(prendi(), c, " "); J1[s] = c[2]; J2[s] = c[3]; JT[s] = c[4]
    prendi(); split(prendi(), e, " ")
    EA[s] *= e[2]; J1[s] *= e[2]; J2[s] *= e[2]; JT[s] *= e[3]
  }
}

function combinazioni(    n, m, c, caso, r) {
  apri(3)
  nCasi = conto()
  for (n = nCasi; n > 0; n--) {
    caso = conto(); if (caso in sestettiDi) male("caso " caso " doppio")
    prendi(); prendi(); r = prendi()
    tipo[r ~ /TIPOVER=TENSAMM/ ? "T" : r ~ /TIPOVER=RARA/ ? "R" : r ~ /TIPOVER=SLU/ ? "S" : r ~ /TIPOVER=/ ? "altro" : "nessuno"]++
    for (m = conto(); m > 0; m--) {            # sextet, condition, factor
      if (split(prendi(), c, ",") != 3) male("combinaz.tot: riga " riga)
      F[caso, c[1] + 0, c[2] + 0] = c[3] + 0; if (c[1] > sestettiDi[caso]) sestettiDi[caso] = c[1] + 0
    }
    for (m = conto(); m > 0; m--) if (split(prendi(), c, ",") != 2) male("combinaz.tot: riga " riga)
  }
}

function cammino(    b, giro, p, i, j, k) {    # spanning tree of the bars from the fixed bases
  for (i in incastro) noto[i] = 1
  for (giro = 1; giro <= nNodi; giro++)
    for (p = 0; p < nAste; p++) {
      b = asta[p]; i = estremo[b, 1]; j = estremo[b, 2]
      if ((i in noto) != (j in noto)) { ordine[++nRami] = b; ramo[b] = (i in noto) ? 1 : 2; noto[i] = noto[j] = 1 }
    }
  for (k = 1; k <= nNodi; k++) if (!(nodo[k] in noto)) male("nodo " nodo[k] " staccato")
}

$1 == "FILE" {
  if (!nRami) { struttura(); sezioni(); combinazioni(); cammino() }
  if (nome != "") giudica()
  nome = $2; genere = $3; numero = $4 + 0; nSez = $6; nSes = $7; record = 0
  if ($5 != nAste) male(nome ": aste " $5)
  if (genere == "c" && nSes != sestettiDi[numero]) male(nome ": sestetti " nSes)
  if (genere == "_" && nSes != 1) male(nome ": sestetti " nSes)
  visti[genere]++
  next
}
{
  p = int(record / (nSez * nSes)); q = int(record / nSes) % nSez + 1; t = record % nSes + 1; record++
  if ($1 != asta[p] || $2 != q || $3 != t) male(nome ": record " record " di asta " $1)
  for (k = 1; k <= 6; k++) D[p, q, t, k] = $(k + 3)
}
END { if (nome != "") giudica(); fine() }

function carico(c, f,    k, n, i, b) {         # condition c times f, into the nodal loads PC and the bar loads QC
  for (i = 1; i <= nNodi; i++) { n = nodo[i]; for (k = 1; k <= 6; k++) PC[n, k] += f * PN[c, n, k] }
  for (i = 0; i < nAste; i++) { b = asta[i]; for (k = 1; k <= 3; k++) QC[b, k] += f * QA[c, b, k] }
}

function giudica(    t, p, q, k, c) {
  if (record != nAste * nSez * nSes) male(nome ": " record " record")
  if (genere == "_") { for (p = 0; p < nAste; p++) for (q = 1; q <= nSez; q++) for (k = 1; k <= 6; k++) CO[numero, p, q, k] = D[p, q, 1, k] }
  for (t = 1; t <= nSes; t++) {
    split("", PC); split("", QC); split("", R)
    if (genere == "_") carico(numero, 1)
    else for (c = 1; c <= nCond; c++) if ((numero, t, c) in F) carico(c, F[numero, t, c])
    for (p = 0; p < nAste; p++) {
      if (genere == "c") sovrapponi(p, t)
      barra(p, t)
    }
    equilibrio(t)
    congruenza(t)
    sestetti++
  }
}

function sovrapponi(p, t,    q, k, c, v) {     # a case is the sum of its conditions
  for (q = 1; q <= nSez; q++) for (k = 1; k <= 6; k++) {
    v = D[p, q, t, k]
    for (c = 1; c <= nCond; c++) if ((numero, t, c) in F) v -= F[numero, t, c] * CO[c, p, q, k]
    if (!vicino(v, 0.0001)) male(nome ": asta " asta[p] " sezione " q " sestetto " t ": non è la somma delle condizioni")
  }
}

# Force and moment vectors of every section of a bar, its own equilibrium, its actions on the nodes, its strains.
function barra(p, t,    b, q, k, s, N, Ty, Tz, M1, M2, M3, w, h, kl, ds, G) {
  b = asta[p]; s = sezione[b]
  for (k = 1; k <= 6; k++) DEF[b, k] = 0
  for (q = 1; q <= nSez; q++) {
    N = D[p, q, t, 1]; Ty = D[p, q, t, 2]; Tz = D[p, q, t, 3]
    M1 = D[p, q, t, 4]; M2 = -V[b] * D[p, q, t, 5]; M3 = D[p, q, t, 6]
    for (k = 1; k <= 3; k++) {
      G[q, k] = N * A[b, k] + Ty * A[b, 3 + k] + Tz * A[b, 6 + k]
      G[q, 3 + k] = M1 * A[b, k] + M2 * A[b, 3 + k] + M3 * A[b, 6 + k]
    }
    h = L[b] * (q - 1) / (nSez - 1)
    for (k = 1; k <= 3; k++) w[k] = G[1, k] - QC[b, k] * h / 2
    croce(A[b, 1], A[b, 2], A[b, 3], w[1], w[2], w[3])
    for (k = 1; k <= 3; k++) {
      if (!vicino(G[q, k] - G[1, k] + QC[b, k] * h, 0.0001)) male(nome ": asta " b " sezione " q " sestetto " t ": forze non in equilibrio")
      if (!vicino(G[q, 3 + k] - G[1, 3 + k] + h * C[k], 0.01)) male(nome ": asta " b " sezione " q " sestetto " t ": momenti non in equilibrio")
    }
    # strains: stretch and turn per cm, integrated by Simpson's rule, exact for the cubic at most that stands here
    ds = L[b] / (nSez - 1) / 3 * (q == 1 || q == nSez ? 1 : q % 2 == 0 ? 4 : 2)
    for (k = 1; k <= 3; k++) kl[k] = M1 / JT[s] * A[b, k] + M2 / J2[s] * A[b, 3 + k] + M3 / J1[s] * A[b, 6 + k]
    croce(kl[1], kl[2], kl[3], A[b, 1], A[b, 2], A[b, 3])
    for (k = 1; k <= 3; k++) {
      DEF[b, k] += ds * (N / EA[s] * A[b, k] + (L[b] - h) * C[k])
      DEF[b, 3 + k] += ds * kl[k]
    }
  }
  for (k = 1; k <= 6; k++) { R[estremo[b, 1], k] += G[1, k]; R[estremo[b, 2], k] -= G[nSez, k] }
}

function equilibrio(t,    i, n, k, b, p, T, M, m, x) {
  for (i = 1; i <= nNodi; i++) {
    n = nodo[i]
    for (k = 1; k <= 6; k++) {
      x = R[n, k] + PC[n, k]
      if (!(n in incastro) && !vicino(x, k <= 3 ? 0.0001 : 0.001)) male(nome ": nodo " n " sestetto " t ": residuo " x " in direzione " k)
    }
    # loads and, at the bases, the reactions: equal and opposite to what the bars bring
    for (k = 1; k <= 6; k++) m[k] = n in incastro ? -R[n, k] : PC[n, k]
    croce(P[n, 1], P[n, 2], P[n, 3], m[1], m[2], m[3])
    for (k = 1; k <= 3; k++) { T[k] += m[k]; T[3 + k] += m[3 + k] + C[k] }
  }
  for (p = 0; p < nAste; p++) {
    b = asta[p]
    for (k = 1; k <= 3; k++) { m[k] = QC[b, k] * L[b]; M[k] = (P[estremo[b, 1], k] + P[estremo[b, 2], k]) / 2 }
    croce(M[1], M[2], M[3], m[1], m[2], m[3])
    for (k = 1; k <= 3; k++) { T[k] += m[k]; T[3 + k] += C[k] }
  }
  for (k = 1; k <= 6; k++) if (!vicino(T[k], k <= 3 ? 0.001 : 1)) male(nome ": sestetto " t ": reazioni e carichi non si fanno equilibrio, " T[k])
}

function sposta(b, daPrimo,    i, j, k, d) {   # displacement of the far end of a bar into S[1..6]
  i = estremo[b, 1]; j = estremo[b, 2]
  for (k = 1; k <= 3; k++) d[k] = P[j, k] - P[i, k]
  if (daPrimo) {
    croce(U[i, 4], U[i, 5], U[i, 6], d[1], d[2], d[3])
    for (k = 1; k <= 3; k++) { S[k] = U[i, k] + C[k] + DEF[b, k]; S[3 + k] = U[i, 3 + k] + DEF[b, 3 + k] }
  } else {
    for (k = 4; k <= 6; k++) S[k] = U[j, k] - DEF[b, k]
    croce(S[4], S[5], S[6], d[1], d[2], d[3])
    for (k = 1; k <= 3; k++) S[k] = U[j, k] - C[k] - DEF[b, k]
  }
}

function congruenza(t,    i, k, b, n, p) {
  split("", U)
  for (i in incastro) for (k = 1; k <= 6; k++) U[i, k] = 0
  for (i = 1; i <= nRami; i++) {
    b = ordine[i]; sposta(b, ramo[b] == 1); n = estremo[b, ramo[b] == 1 ? 2 : 1]
    for (k = 1; k <= 6; k++) { U[n, k] = S[k]; if (k <= 3 && modulo(S[k]) > massimo) massimo = modulo(S[k]) }
  }
  for (p = 0; p < nAste; p++) {
    b = asta[p]
    if (b in ramo) continue
    sposta(b, 1)
    for (k = 1; k <= 6; k++) if (!vicino(S[k] - U[estremo[b, 2], k], 0.00001)) male(nome ": asta " b " sestetto " t ": deformazioni non congruenti")
  }
}

function fine(    b, p, primi, secondi, fuori) {
  if (nNodi != 30 || nAste != 60 || nCond != visti["_"]) male("nodi " nNodi ", aste " nAste ", condizioni " nCond)
  if (nCasi != visti["c"]) male("casi " nCasi ", risultati " visti["c"])
  if (!tipo["T"] || !tipo["R"] || !tipo["S"] || !tipo["altro"] || !tipo["nessuno"]) male("combinaz.tot: tipi")
  for (p = 0; p < nAste; p++) {
    b = asta[p]
    if (b >= 101 && b <= 110 && (estremo[b, 1] in incastro)) primi++
    if (b >= 101 && b <= 110 && (estremo[b, 2] in incastro)) secondi++
    if (colore[b] > 9 && linea[b] > 4) fuori++
    if (!(sezione[b] in EA)) male("asta " b ": sezione " sezione[b])
  }
  if (primi != 5 || secondi != 5 || fuori != 6) male("colonne " primi " + " secondi ", aste fuori filtro " fuori)
  if (!errori) printf "modello: %d nodi, %d aste, %d condizioni, %d casi, %d sestetti in equilibrio e congruenti, spostamento massimo %.2f cm\n", nNodi, nAste, nCond, nCasi, sestetti, massimo
  exit (errori > 0)
}
