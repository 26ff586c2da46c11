# nodo.py - what follows from a node file alone, without the program: its values, which input checks it passes, the limits of its checks.
# Lengths mm, loads daN and daN cm, stresses and limits daN/cm2.
# Failure: ValueError, StopIteration or KeyError, of a file that no load takes either.
import math
import os
import re

import genera
import relazione


def Arrotonda1(x):
    return math.floor(x * 10 + 0.5) / 10


# ------------------------------------------------------------------------------------------------------------------------ node file
class FileNodo:
    """What a node file says, read by the order of its lines. Numbers of a line and texts, commas and quotes as in every file of the suite."""

    def __init__(self, dati):
        v = re.split("\r\n|\n|\r", relazione.Testo1252(dati))
        p = iter(v)

        def testo():
            t = next(p).lstrip(" ")
            return t[1:].split('"')[0] if t.startswith('"') else t.split(",")[0]

        def num():
            return float(next(p).split(",")[0])
        primo = next(p)
        nuovo = "VERNTC" in primo
        self.sezione = testo().strip() if nuovo else primo.strip()
        self.dimensioni = [num() for _ in range(4)]
        self.lz, self.ly, self.sp = num(), num(), num()
        self.tipo, self.schema = int(num()), int(next(p))
        self.spNerv, self.hNerv, self.saldInt = (num(), num(), int(num())) if self.tipo == 2 else (None, None, 0)
        self.gola, self.nTir = num(), int(num())
        self.posti = [[num(), num()] for _ in range(self.nTir)]
        self.r, self.l, self.l1, self.lft = (num() for _ in range(4))
        self.diam = int(num())
        self.lf, self.foro, self.malta, self.filetto, self.bordo = (num() for _ in range(5))
        self.forma = int(num())
        self.esposizione = 1
        if nuovo:
            self.acciaio, self.barra, self.cls, self.esposizione = testo(), testo(), testo(), int(num())
        else:
            self.cls = testo(), num(), num()
            self.acciaio = testo(), num(), num()
            self.barra = testo(), num()
            self.cls, self.acciaio, self.barra = self.cls[0], self.acciaio[0], self.barra[0]
        self.sestetti = [([num() for _ in range(6)], int(num()), testo()) for _ in range(int(num()))]
        self.nodi = [int(num()) for _ in range(int(num()))]
        self.metodo = ("ta", "slu")[int(next(p))]


def Geometria(f, b, h, fi, metodo):
    """Which of the input checks pass, in their order; and the two sides of those that compare once."""
    t, passa, lati = f.sp, {}, {}
    passa["geo.colonna"] = not (b > f.lz or h > f.ly)
    passa["geo.piastra"] = min(t, f.lz, f.ly) > 0
    passa["geo.tirafondo"] = f.l > 0 and f.lft > 0 and f.l1 >= 0 and f.r >= 0 and f.malta >= 0 and fi > 0 and f.foro > 0 and f.lf >= 0
    coppie = {1: ((1, 8), (8, 2), (1, 5), (5, 3), 2), 2: ((1, 2), (1, 5), (5, 3), 1), 3: ((1, 6), (6, 2), (1, 3), 2)}
    coppie = coppie.get(f.schema, ((1, 2), (1, 3), 1))
    lungoZ, d = coppie[-1], f.foro
    passa["geo.fori"] = f.lf <= 0 or all(f.posti[q - 1][k] - d / 2 >= f.posti[p - 1][k] + d / 2
                                         for n, (p, q) in enumerate(coppie[:-1]) for k in (0 if n < lungoZ else 1,))
    for quale, sinistra, destra, regge in (("geo.fuori_terra", f.malta + t + 2 * fi, f.lft, lambda x, y: not x > y),
                                           ("geo.filettatura", f.malta - fi, f.lft - f.foro, lambda x, y: not x < y),
                                           ("geo.foro", f.foro, fi, lambda x, y: not x <= y),
                                           ("geo.malta", f.malta, fi, lambda x, y: not x <= y)):
        passa[quale], lati[quale] = regge(sinistra, destra), {sinistra, destra}
    D = [f.posti[0][0], f.lz - f.posti[1][0], f.posti[0][1], f.ly - f.posti[3][1]]
    aggetto = (f.lz - b) / 2 - (f.spNerv if f.tipo == 2 else 0)
    F = [aggetto - D[0], aggetto - D[1], (f.ly - h) / 2 - D[2], (f.ly - h) / 2 - D[3]]
    passa["geo.fuori_piastra"] = min(D) >= 0 and max(D[:2]) <= f.lz and max(D[2:]) <= f.ly
    passa["geo.angolo"] = all(fi / 2 <= x for x in F)
    basso, alto = (2 * fi, 6 * t) if metodo == "ta" else (1.2 * fi, (4 * t + 40, 1e20, max(8 * t, 125))[f.esposizione - 1])
    passa["geo.bordo"] = all(basso <= x <= alto for x in D)
    return passa, lati


# --------------------------------------------------------------------------------------------------------------------------- limits
class Catalogo:
    """Steels and concretes of the suite's catalogue, daN/cm2."""

    def __init__(self, testo):
        righe = iter(testo.splitlines())
        self.acciai, self.rck, self.gammaC = {}, {}, {}
        for riga in righe:
            if "ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE" in riga.upper():
                for _ in range(int(next(righe))):
                    nome, _, n = next(righe), next(righe), [float(x) for x in next(righe).split()]
                    self.acciai[nome] = dict(zip(("SAmm", "SAmm40", "Fyk", "Ftk", "Fyk40", "Ftk40", "GammaM", "GammaMT"), n))
            elif "CALCESTRUZZI" in riga.upper():
                for _ in range(int(next(righe))):
                    nome, n = next(righe).strip(), next(righe).split()
                    self.rck[nome], self.gammaC[nome] = float(n[0]), float(n[1])


def Limiti(catalogo, f, materiali, area, metodo, classe):
    """The limits of a sextet in daN/cm2 (tir.tiro in daN, without the running minimum), worked out from the catalogue and the node."""
    acc, tir = catalogo.acciai[materiali["acciaio"]], catalogo.acciai[materiali["tirafondi"]]
    rck, fi = catalogo.rck[materiali["calcestruzzo"]], float(genera.DIAMETRI[f.diam - 1])
    if metodo == "slu":
        fd = lambda s: acc["Fyk" if s <= 40 else "Fyk40"] / acc["GammaM"]                                          # noqa: E731
        nome = materiali["acciaio"].upper()
        beta = next((b for chi, b in ((("235",), (0.85, 1.0)), (("275", "355"), (0.7, 0.85)), (("420", "450", "460"), (0.62, 0.75)))
                     if any(x in nome for x in chi)), (0.0, 0.0))
        return {"sald.1": beta[0] * acc["Fyk"], "sald.2": beta[1] * acc["Fyk"], "piastra": fd(f.sp), "nerv.z": fd(f.spNerv or 0),
                "nerv.y": fd(f.spNerv or 0), "cls": 0.85 * 0.83 * rck / catalogo.gammaC[materiali["calcestruzzo"]]}
    c = 1.0 if classe == "I" else 1.125
    adm = lambda s: Arrotonda1(acc["SAmm" if s <= 40 else "SAmm40"] * c)                                            # noqa: E731
    a = Arrotonda1(min(f.posti[0][0] / fi, 2.5))
    a = Arrotonda1(min(f.posti[0][0] / fi, f.posti[0][1] / fi, a))
    rif = Arrotonda1(min((f.lz - f.posti[1][0]) / fi, (f.ly - f.posti[2][1]) / fi, a))
    sAmmCls, tau = (rck / 10 - 15) / 4 + 6, Arrotonda1(((rck / 10 - 15) / 75 + 0.4) * 0.15)
    B = tau / (1 + fi / f.bordo) ** 2 * 3.141592 * fi
    if f.forma == 1:
        tiro = B * (f.l + f.r + 6.4 * f.r + 3.5 * f.l1) / 100
    else:
        tiro = (B * (f.l1 - f.lf) + (1 - f.r / 2 / min(f.l1, f.bordo)) * 3.1416 * (f.r / 2) ** 2 * sAmmCls) / 10
    sAdmTir = Arrotonda1(tir["Fyk"] / 1.33 / 1.5 * c)
    return {"tir.rif": Arrotonda1(adm(f.sp) * rif), "tir.tiro": min(tiro, area * sAdmTir / 100), "piastra": adm(f.sp),
            "nerv.z": adm(f.spNerv or 0), "nerv.y": adm(f.spNerv or 0), "cls": sAmmCls}


with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "samples", "suite", "custom", "MaterialiNTC08.tx1"),
          encoding="cp1252") as catalogo:
    CATALOGO = Catalogo(catalogo.read())
