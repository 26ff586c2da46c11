#!/usr/bin/env python3
# relazione.py - reads a calculation report back into what it judged: of each sextet, check and element the printed demand,
# the printed limit, SI' or NO where the line ends in one, and the sextet's last line.
# Input     Windows-1252, CR LF. Allowable stresses: items joined by tabs. Limit states: cells with a bar in front.
# Units     those of the job (Unita); texts are kept as printed, so that a comparison is one of characters.
# Failure   RelazioneErrata with the line's number: any line that is not the one due at its place, a label, a cell narrower than due.
# Shares no line with the program: it is the second opinion on its reports.
import re
from collections import namedtuple


class RelazioneErrata(Exception):
    pass


# One judged number. forma tells how the print follows from the judged number:
#   RD  stress times the factor of stresses, at their decimals, ties to even       RF  the same for forces
#   A1  as RD, but judged after floor(10 x + 0.5) / 10                             A2  floor(100 x + 0.5) / 100, no unit
#   P   as it is, no unit
# formaLimite: RD; RFT (a force at the decimals of stresses); UNO (not printed, 1)
Voce = namedtuple("Voce", "id elemento valore forma limite formaLimite")
# One line of the report: voci share its verdict; esito True SI', False NO, None where the line has none.
Riga = namedtuple("Riga", "numero voci esito")


class Sestetto:
    def __init__(self, n, nome):
        self.n, self.nome = n, nome
        self.carichi = []              # six texts: N Ty Tz Mt My Mz
        self.classe = None             # "I", "II"; None by limit states
        self.righe = []
        self.tiro = []                 # signed force of each anchor, as printed
        self.pressione = None          # peak pressure, as printed
        self.sigmaAdmTir = None        # allowable stresses: limit of the rods, as printed
        self.passa = None              # the last line


class Relazione:
    def __init__(self):
        self.metodo = None
        self.nodi, self.unita, self.sezione, self.piastra = [], (), [], []
        self.tirafondi = []            # (Z from the far corner, Y, Fi, area), texts
        self.misure = []               # l lft l1 r
        self.nervature = ()            # h, sp
        self.numSaldature = 0
        self.saldature = []            # (number, length, side), of the list in the head
        self.lato = None
        self.materiali = {}
        self.spessori = []             # limit of the steel up to 40 mm and over
        self.sestetti = []


# ---------------------------------------------------------------------------------------------------------------- units and numbers
def FattLunghezza(t):
    for chi, fatt, dec in (("mm", 10.0, 0), ("cm", 1.0, 1), ("m", 0.01, 3)):
        if chi in t:
            return fatt, dec
    return 0.0, 0


def FattForza(t, g):
    for chi, fatt, dec in (("daN", 1.0, 1), ("kN", 1 / 100, 3), ("N", 10.0, 0), ("kgf", 10 / g if g else 0, 1),
                           ("t", 0.01 / g if g else 0, 4)):
        if chi in t:
            return fatt, dec
    return 0.0, 0


class Unita:
    """Factors (internal value to printed) and decimals from the text of a parametrilavoro."""

    def __init__(self, testo):
        self.testi = {}
        g = 9.81
        for riga in testo.splitlines()[1:]:
            if "[" not in riga:
                continue
            valore, chiave = riga.split("[", 1)[0].strip(), riga.lower()
            if "accelerazione_g" in chiave:
                g = float(valore)
            for k in ("lunghezze", "forze", "carichi_superficie", "coppie_momenti", "tensioni", "dati_sezioni"):
                if k in chiave:
                    self.testi[k] = valore.replace("8", "/")
                    break
        self.FattForze, self.DecForze = FattForza(self.testi["forze"], g)
        m = self.testi["coppie_momenti"]
        self.FattMomenti = FattForza(m, g)[0] * FattLunghezza(m)[0]
        t = self.testi["tensioni"]
        if "/" in t:
            (f, df), (l, dl) = FattForza(t, g), FattLunghezza(t)
            self.FattTensioni, self.DecTensioni = f / (l * l), max(0, 1 - (1 - df) + 2 * (1 - dl))
        else:
            self.FattTensioni, self.DecTensioni = (100.0, 0) if "kPa" in t else (0.1, 2)

    def mostrati(self):
        return self.testi["forze"], self.testi["coppie_momenti"], self.testi["tensioni"]


def FormaN3(x, segno):
    """Report form of a number: 15 significant digits, no trailing zeros, capital E, the given decimal mark."""
    t = "%.15g" % x
    if t in ("-0", "0"):
        return "0"
    return t.replace("e", "E").replace(".", segno)


def Arrotonda(x, dec):
    """Ties to even at dec decimals."""
    return float(round(x * 10.0 ** dec)) / 10.0 ** dec      # round() of Python: ties to even, exact


NUMERO = re.compile(r"(?!-0\Z)-?(?:0|[1-9][0-9]*)(?:[.,][0-9]+)?(?:E[+-][0-9]{2,})?\Z")


def Valore(testo):
    if not NUMERO.match(testo):
        raise ValueError("non è un numero: %r" % testo)
    return float(testo.replace(",", "."))


# ------------------------------------------------------------------------------------------------------------------------- the lines
CP1252 = {b: bytes([b]).decode("cp1252", "ignore") or chr(b) for b in range(0x80, 0xA0)}


def Testo1252(dati):
    """Windows-1252; the five bytes without a place pass as the control character of their value."""
    return dati.decode("latin-1").translate(CP1252)


class Righe:
    def __init__(self, dati, segno):
        testo = Testo1252(dati)
        if not testo.endswith("\r\n"):
            raise RelazioneErrata("l'ultima riga non è chiusa")
        self.righe, self.i, self.segno = testo[:-2].split("\r\n"), 0, segno

    def errore(self, detto):
        riga = self.righe[self.i - 1] if 0 < self.i <= len(self.righe) else ""
        raise RelazioneErrata("riga %d: %s: %r" % (self.i, detto, riga))

    def finita(self):
        return self.i >= len(self.righe)

    def riga(self):
        if self.finita():
            raise RelazioneErrata("finisce alla riga %d" % self.i)
        self.i += 1
        return self.righe[self.i - 1]

    def attesa(self, *testi):
        for t in testi:
            if self.riga() != t:
                self.errore("attesa %r" % t)

    def dopo(self, capo):
        r = self.riga()
        if not r.startswith(capo):
            self.errore("attesa %r" % capo)
        return r[len(capo):]

    def numero(self, t):
        altro = "," if self.segno == "." else "."
        if not NUMERO.match(t) or altro in t:
            self.errore("non è un numero: %r" % t)
        return t

    # line of items joined by tabs; schema: a text is a label, None any text, 0 a number; gives the numbers and texts
    def tab(self, *schema):
        parti = self.riga().split("\t")
        if len(parti) != len(schema):
            self.errore("attese %d voci" % len(schema))
        presi = []
        for p, s in zip(parti, schema):
            if s == 0:
                presi.append(self.numero(p))
            elif s is None:
                presi.append(p)
            elif p != s:
                self.errore("attesa la voce %r" % s)
        return presi

    # line of cells: schema of (width, content); width > 0 to the right, < 0 to the left; content as in tab
    def celle(self, schema, riga=None):
        r = self.riga() if riga is None else riga
        if not r.startswith("|"):
            self.errore("attesa una barra")
        parti, presi = r[1:].split("|"), []
        if len(parti) != len(schema):
            self.errore("attese %d celle" % len(schema))
        for p, (larghezza, s) in zip(parti, schema):
            t = p.rstrip(" ") if larghezza < 0 else p.lstrip(" ")
            if p != (t.ljust(-larghezza) if larghezza < 0 else t.rjust(larghezza)):
                self.errore("cella %r non larga %d" % (p, larghezza))
            if s == 0:
                presi.append(self.numero(t))
            elif s is None:
                presi.append(t)
            elif t != s:
                self.errore("attesa la cella %r" % s)
        return presi


TRATTINI = "-" * 70
AGENTI = "Combinazione di sollecitazioni agenti "
PASSA = "NODO VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI "
NON_PASSA = "ATTENZIONE: NODO NON VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI "


def Ultima(r, s):
    riga = r.riga()
    for capo, esito in ((PASSA, True), (NON_PASSA, False)):
        if riga.startswith(capo):
            if riga[len(capo):] != s.nome:
                r.errore("nome del sestetto diverso da %r" % s.nome)
            s.passa = esito
            return
    r.errore("attesa l'ultima riga del sestetto")


def NumeroSaldatura(r, nome):
    if not re.match(r"S[1-9][0-9]?\Z", nome):
        r.errore("nome di saldatura %r" % nome)
    return int(nome[1:])


def Titolo(r, rel, coda):
    t = r.dopo("VERIFICA TENSIONALE NODI")
    if not t.endswith(coda):
        r.errore("attesa la coda %r" % coda)
    t = t[:-len(coda)]
    rel.nodi = [int(n) for n in t[2:].split(",")] if t else []
    if t and not t.startswith(": "):
        r.errore("elenco dei nodi")


# ------------------------------------------------------------------------------------------------------------- allowable stresses
def LeggiTA(dati, segno):
    r, rel = Righe(dati, segno), Relazione()
    rel.metodo = "ta"
    Titolo(r, rel, " - METODO DELLE TENSIONI AMMISSIBILI (CNR 10011/88)")
    r.attesa("", "UNITA' DI MISURA:")
    f, m, t = r.dopo("FORZE:\t\t"), r.dopo("MOMENTI:\t"), r.dopo("TENSIONI:\t")
    rel.unita = (f, m, t)
    r.attesa("DIMENSIONI:\tmm", "", "GEOMETRIA NODO", "", "\tProfili utilizzati", "\tTipo prof.\th\tb\ta\te\tr")
    rel.sezione = r.tab("", None, "", 0, 0, 0, 0, 0)
    r.attesa("", "\tPiastre", "\tNum.\tlz\tly\ts")
    rel.piastra = r.tab("", "1", 0, 0, 0)
    r.attesa("", "TIRAFONDI", "")
    nTir = int(r.dopo("\tTirafondi num.: "))
    r.attesa("\tNum.\tZ\tY\tFi\tArea")
    for i in range(1, nTir + 1):
        rel.tirafondi.append(tuple(r.tab("", str(i), 0, 0, 0, 0)))
    r.attesa("", "\tl\tlft\tl1\tr")
    rel.misure = r.tab("", 0, 0, 0, 0)
    r.attesa("", "NERVATURE", "", "\tNome\tl\th\ts")
    _, h, sp = r.tab("", "Y", 0, 0, 0)
    if r.tab("", "Z", 0, 0, 0)[1:] != [h, sp]:
        r.errore("le due nervature sono diverse")
    rel.nervature = (h, sp)
    r.attesa("", "SALDATURE", "")
    rel.numSaldature = int(r.dopo("\tNum. saldature: "))
    r.attesa("\tNome\tLungh.\tLato")
    while r.righe[r.i]:
        nome, lung, rel.lato = r.tab("", None, 0, 0)
        rel.saldature.append((NumeroSaldatura(r, nome), lung))
    r.attesa("", "MATERIALI", "")
    acc, cls = r.tab("", "", "", None, "", None)
    if not (acc.startswith("Acciaio ") and acc.endswith(", S_adm") and cls.startswith("Cls ")):
        r.errore("riga dei materiali")
    rel.materiali["acciaio"], rel.materiali["calcestruzzo"] = acc[8:-7], cls[4:]
    r.attesa("\t\t\tsp <= 40mm\tsp > 40mm\tS_adm")
    rel.spessori = r.tab("", "Comb. car. I", 0, "", 0, "", 0)[:2]
    r.tab("", "Comb. car. II", 0, "", 0, "")
    tir, = r.tab("", "", "", None, "", "")
    if not (tir.startswith("Acciaio tirafondi ") and tir.endswith(", S_adm")):
        r.errore("riga dei tirafondi")
    rel.materiali["tirafondi"] = tir[18:-7]
    r.tab("", "Comb. car. I", 0)
    r.tab("", "Comb. car. II", 0)
    r.attesa("", "", "SOLLECITAZIONI AGENTI E STATO TENSIONALE", "", "\tCoefficiente di rifollamento")
    r.tab("", 0)
    while not r.finita():
        rel.sestetti.append(BloccoTA(r, len(rel.sestetti) + 1, nTir))
    return rel


def BloccoTA(r, n, nTir):
    r.attesa("")
    s = Sestetto(n, r.dopo(AGENTI))
    r.attesa(TRATTINI)
    for nomi, coda in ((("N: ", "Ty: ", "Tz: "), 1), (("Mt: ", "My: ", "Mz: "), 2)):
        parti = r.riga().split("\t")
        if len(parti) != 3 + coda or any(parti[3:]) or not all(p.startswith(q) for p, q in zip(parti, nomi)):
            r.errore("riga dei carichi")
        s.carichi += [r.numero(p[len(q):]) for p, q in zip(parti, nomi)]
    s.classe = r.dopo("Combinazione di carico tipo ")
    if s.classe not in ("I", "II"):
        r.errore("classe")
    r.attesa("", "\tTirafondi", "\t\tS_adm tf\tT_adm tf\tTiro max tf\tS_rf_adm p")
    s.sigmaAdmTir, _, tiro, rif = r.tab("", "", 0, "", 0, "", 0, "", 0)
    r.attesa("\tNum.\tSigma\t\tTau\tCoeff\tTiro tf\t\tS_rf p")
    for i in range(1, nTir + 1):
        _, _, coeff, t, srf = r.tab("", str(i), 0, "", 0, 0, 0, "", 0)
        s.tiro.append(t)
        s.righe.append(Riga(r.i, (Voce("tir.coeff", i, coeff, "P", None, "UNO"), Voce("tir.rif", i, srf, "RD", rif, "RD"),
                                  Voce("tir.tiro", i, t, "RF", tiro, "RFT")), None))
    r.attesa("", "\tSaldature", "\tNome\tS_prp\tTau_pa\tTau_pe\t% su adm")
    while r.righe[r.i]:
        nome, _, _, _, rapp = r.tab("", None, 0, 0, 0, 0)
        s.righe.append(Riga(r.i, (Voce("sald", NumeroSaldatura(r, nome), rapp, "A2", None, "UNO"),), None))
    r.attesa("", "\tPiastra\tS_max\t\tS_adm")
    v, l = r.tab("", "", 0, "", 0)
    s.righe.append(Riga(r.i, (Voce("piastra", 0, v, "A1", l, "RD"),), None))
    r.attesa("")
    if r.righe[r.i] == "\tFazz.\tS_id max\tS_adm":
        r.riga()
        for chi, quale in (("Z", "nerv.z"), ("Y", "nerv.y")):
            v, l = r.tab("", chi, 0, "", 0)
            s.righe.append(Riga(r.i, (Voce(quale, 0, v, "A1", l, "RD"),), None))
        r.attesa("")
    r.attesa("\tPlinto\tS_max\t\tS_adm")
    v, l = r.tab("", "", 0, "", 0)
    s.pressione = v
    s.righe.append(Riga(r.i, (Voce("cls", 0, v, "A1", l, "RD"),), None))
    r.attesa("")
    Ultima(r, s)
    return s


# ------------------------------------------------------------------------------------------------------------------- limit states
def LeggiSLU(dati, segno):
    r, rel = Righe(dati, segno), Relazione()
    rel.metodo = "slu"
    Titolo(r, rel, " - METODO DEGLI STATI LIMITE (NTC 2008)")
    r.attesa("")
    m = re.match(r"UNITA' DI MISURA: \[(.*)\] ; \[(.*)\] ; \[(.*)\] ; \[mm\]\Z", r.riga())
    if not m:
        r.errore("unità")
    rel.unita = m.groups()
    r.attesa("", "GEOMETRIA NODO", "", "Profili utilizzati")
    r.celle([(-20, "Tipo prof."), (20, "h"), (5, "b"), (5, "a"), (5, "e"), (5, "r")])
    rel.sezione = r.celle([(-20, None), (20, 0), (5, 0), (5, 0), (5, 0), (5, 0)])
    r.attesa("", "Piastra e fazzoletti")
    r.celle([(-5, "Num"), (5, "Lz"), (5, "Ly"), (5, "Sp")])
    rel.piastra = r.celle([(-5, "1"), (5, 0), (5, 0), (5, 0)])
    _, h, sp = r.celle([(-5, "2(Y)"), (5, 0), (5, 0), (5, 0)])
    if r.celle([(-5, "3(Z)"), (5, 0), (5, 0), (5, 0)])[1:] != [h, sp]:
        r.errore("le due nervature sono diverse")
    rel.nervature = (h, sp)
    r.attesa("", "TIRAFONDI", "")
    m = re.match(r"Tirafondi \(n° ([0-9]+)\)\Z", r.riga())
    if not m:
        r.errore("numero dei tirafondi")
    nTir = int(m.group(1))
    testa = "|Num|  X|    Y|  Fi|   Area"
    r.attesa(testa + " |Num    |  X|    Y|  Fi|   Area")
    meta, letti = nTir // 2 + nTir % 2, {}
    for i in range(1, meta + 1):
        riga = r.riga()
        primo, secondo = riga, None
        if i + meta <= nTir:
            taglio = [k for k, c in enumerate(riga) if c == "|"]
            if len(taglio) != 10 or riga[taglio[5] - 1] != " ":
                r.errore("due tirafondi")
            primo, secondo = riga[:taglio[5] - 1], riga[taglio[5]:]
        letti[i] = r.celle([(-3, str(i)), (3, 0), (5, 0), (4, 0), (7, 0)], primo)
        if secondo is not None:
            letti[i + meta] = r.celle([(-7, str(i + meta)), (3, 0), (5, 0), (4, 0), (7, 0)], secondo)
    rel.tirafondi = [tuple(letti[i]) for i in range(1, nTir + 1)]
    r.attesa("", "Dimensioni")
    r.celle([(5, "l"), (5, "lft"), (5, "l1"), (5, "r")])
    rel.misure = r.celle([(5, 0)] * 4)
    r.attesa("", "")
    m = re.match(r"SALDATURE \(n° ([0-9]+)\)\Z", r.riga())
    if not m:
        r.errore("numero delle saldature")
    rel.numSaldature = int(m.group(1))
    r.attesa("|Nome |   Lung|Lato |Nome|   Lung|Lato")
    meta, letti = rel.numSaldature // 2 + rel.numSaldature % 2, {}
    for i in range(1, meta + 1):
        taglio = [k for k, c in enumerate(r.riga()) if c == "|"]
        riga = r.righe[r.i - 1]
        parti = [riga] if i + meta > rel.numSaldature else [riga[:taglio[3] - 1], riga[taglio[3]:]] if len(taglio) == 6 else []
        if not parti:
            r.errore("due saldature")
        for w, p in zip((i, i + meta), parti):
            nome, lung, lato = r.celle([(-5, None), (7, None), (4, None)], p)
            if NumeroSaldatura(r, nome) != w:
                r.errore("attesa la saldatura %d" % w)
            if lung == "-" and lato == "-" and w in (9, 19):
                continue
            letti[w], rel.lato = r.numero(lung), r.numero(lato)
    rel.saldature = sorted(letti.items())
    r.attesa("", "MATERIALI")
    riga = r.dopo("|Acciaio ")
    k = riga.find("Calcestruzzo ", 33)
    if k < 0 or len(riga[:k]) < 33:
        r.errore("materiali")
    rel.materiali["acciaio"], rel.materiali["calcestruzzo"] = riga[:k].rstrip(" "), riga[k + 13:].rstrip(" ")
    r.attesa("|fd s<40mm           |fd 40mm<s<80mm      fcd" + " " * 37)
    rel.spessori = r.riga()[1:].replace("|", " ").split()[:2]
    rel.materiali["tirafondi"] = r.dopo("|Acciaio tirafondi ").rstrip(" ")
    r.attesa("|fd" + " " * 39)
    r.celle([(-20, 0)])
    r.attesa("", "", "SOLLECITAZIONI AGENTI E STATO TENSIONALE", "")
    while not r.finita():
        rel.sestetti.append(BloccoSLU(r, len(rel.sestetti) + 1, nTir))
    return rel


def Esito(r, t):
    if t not in ("SI'", "NO"):
        r.errore("attesi SI' o NO: %r" % t)
    return t == "SI'"


def BloccoSLU(r, n, nTir):
    r.attesa("")
    s = Sestetto(n, r.dopo(AGENTI))
    r.attesa(TRATTINI)
    for nomi in (("N: ", "Ty: ", "Tz: "), ("Mt: ", "My: ", "Mz: ")):
        riga = r.riga()
        m = re.match("%s(\\S+) *%s(\\S+) *%s(\\S+) *\\Z" % nomi, riga)
        if not m or riga != "".join((q + v).ljust(20) for q, v in zip(nomi, m.groups())):
            r.errore("riga dei carichi")
        s.carichi += [r.numero(v) for v in m.groups()]
    r.attesa("", "Verifica tirafondi", "Co-1, Co-2: NTC 2008, 4.2.8.1.1 formula (4.2.65)", "Co-3: Ft,Ed / Tad,Rd",
             "|Num|  Fv,Ed|  Fv,Rd|  Fb,Rd|  Ft,Ed|  Ft,Rd|  Bp,Rd| Tad,Rd|Co-1|Co-2|Co-3| Ver")
    for i in range(1, nTir + 1):
        c = r.celle([(-3, str(i))] + [(7, 0)] * 7 + [(4, 0)] * 3 + [(3, None)])
        s.tiro.append(c[3])
        s.righe.append(Riga(r.i, tuple(Voce("tir.co%d" % k, i, c[6 + k], "P", None, "UNO") for k in (1, 2, 3)), Esito(r, c[10])))
    r.attesa("", "Verifica saldature", "SEq-1, SLim-1: NTC 2008, 4.2.8.2.4 formula (4.2.78)",
             "SEq-2, SLim-2: NTC 2008, 4.2.8.2.4 formula (4.2.79)",
             "| Nome|S_prp|  Tau_pa|  Tau_pe|   SEq-1|   SEq-2|  SLim-1|  SLim-2|     Ver")
    while r.righe[r.i]:
        c = r.celle([(5, None), (5, 0)] + [(8, 0)] * 6 + [(3, None)])
        w = NumeroSaldatura(r, c[0])
        s.righe.append(Riga(r.i, (Voce("sald.1", w, c[4], "RD", c[6], "RD"), Voce("sald.2", w, c[5], "RD", c[7], "RD")), Esito(r, c[8])))
    r.attesa("", "Verifica piastra", "|   Smax|     fd|    Ver")
    v, l, e = r.celle([(7, 0), (7, 0), (3, None)])
    s.righe.append(Riga(r.i, (Voce("piastra", 0, v, "RD", l, "RD"),), Esito(r, e)))
    r.attesa("")
    if r.righe[r.i] == "Verifica nervature":
        r.riga()
        r.attesa("|Posizione|   Smax|     fd|    Ver")
        for chi, quale in (("Z", "nerv.z"), ("Y", "nerv.y")):
            v, l, e = r.celle([(-9, chi), (7, 0), (7, 0), (3, None)])
            s.righe.append(Riga(r.i, (Voce(quale, 0, v, "RD", l, "RD"),), Esito(r, e)))
        r.attesa("")
    r.attesa("Verifica pressione sul calcestruzzo", "|   Smax|    fcd|    Ver")
    v, l, e = r.celle([(7, 0), (7, 0), (3, None)])
    s.pressione = v
    s.righe.append(Riga(r.i, (Voce("cls", 0, v, "RD", l, "RD"),), Esito(r, e)))
    r.attesa("")
    Ultima(r, s)
    return s


def Leggi(dati, segno):
    """Either report, told by its title."""
    return LeggiTA(dati, segno) if b"TENSIONI AMMISSIBILI" in dati[:dati.find(b"\r")] else LeggiSLU(dati, segno)


if __name__ == "__main__":
    import sys
    for nome in sys.argv[2:]:
        with open(nome, "rb") as f:
            rel = Leggi(f.read(), sys.argv[1])
        print("%s: %s, %d sestetti, %d righe" % (nome, rel.metodo, len(rel.sestetti), sum(len(s.righe) for s in rel.sestetti)))
