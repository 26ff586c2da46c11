#!/usr/bin/env python3
# confronta.py QB07-BATCH [--nodi N] [--seme S] - every verdict, ratio and limit of a report is that of its row, and the other way round.
# Runs `verifica`, which writes the reports, and `riepilogo` on the sample nodes and on N random ones (default 500), by both methods and in
# eight systems of units, reads the reports with a parser of its own (relazione.py) and compares. Then: CSV and lines are the same rows as
# JSON; order, processes and language change no byte.
# Exit status 0 all equal, 1 not (a line each with seed, node and place), 2 not done.
# A node that failed is made again by: genera.py CARTELLA N SEME
import argparse
import csv
import functools
import hashlib
import importlib.util
import io
import json
import math
import os
import re
import shutil
import subprocess
import sys
import tempfile
from collections import Counter

sys.dont_write_bytecode = True
import genera         # noqa: E402
import relazione      # noqa: E402
from nodo import CATALOGO, Arrotonda1, FileNodo, Geometria, Limiti      # noqa: E402

QUI = os.path.dirname(os.path.abspath(__file__))
RADICE = os.path.join(QUI, "..", "..")

ORDINE = {"ta": ("tir.coeff", "tir.rif", "tir.tiro", "sald", "piastra", "nerv.z", "nerv.y", "cls"),
          "slu": ("tir.co1", "tir.co2", "tir.co3", "sald.1", "sald.2", "piastra", "nerv.z", "nerv.y", "cls")}
SENZA_UNITA = ("tir.coeff", "sald", "tir.co1", "tir.co2", "tir.co3")
CAMPI_RIGA = {"id", "sestetto", "elemento", "domanda", "limite", "unita", "rapporto", "sfruttamento", "passa", "clausola"}
CAMPI_NODO = {"percorso", "sha256", "nome", "metodo", "stato", "motivo", "opzioni", "suite_sha256", "nodi_struttura", "ingresso", "geometria",
              "sestetti", "controlli", "governanti", "avvisi"}
CAMPI_SESTETTO = {"n", "nome", "classe", "N_kN", "Ty_kN", "Tz_kN", "Mt_kNm", "My_kNm", "Mz_kNm", "passa", "pressione_max", "area_compressa",
                  "asse_neutro", "risultante_cls", "forza_tir_kN", "residuo_percento", "iterazioni"}
COLONNE = "percorso,nome,metodo,stato,sestetto,nome_sestetto,id,elemento,domanda,limite,unita,rapporto,sfruttamento,passa".split(",")
AVVISI = ("senza_sestetti", "cls_ta", "uncino_ta", "grado_diverso", "oltre_40", "tirafondo_fuori", "diametro", "quota_nervatura",
          "nomi_con_virgola", "al_limite")
GEOMETRIA = (("geo.colonna", "Incompatibilità geometrica fra piastra e colonna"),
             ("geo.piastra", "Dimensioni della piastra negative o nulle"),
             ("geo.tirafondo", "Dimensioni del tirafondo negative o nulle"), ("geo.fori", "Sovrapposizione fori nel plinto"),
             ("geo.fuori_terra", "Lunghezza fuori terra del tirafondo insufficiente"),
             ("geo.filettatura", "Lunghezza di filettatura del tirafondo insufficiente"), ("geo.foro", "Diametro fori insufficiente"),
             ("geo.malta", "Altezza di malta sotto la piastra insufficiente"), ("geo.fuori_piastra", "Tirafondi fuori dalla piastra"),
             ("geo.angolo", "Tirafondi previsti nelle zone d'angolo della piastra"), ("geo.bordo", None))
BORDO = {"ta": "La distanza dei tirafondi dal bordo della piastra risulta difforme dalle prescrizioni della CNR-UNI 10011/88",
         "slu": "La distanza dei tirafondi dal bordo della piastra risulta difforme dalle prescrizioni (NTC 2008)"}
NON_VERIFICATO = "ATTENZIONE: nodo non verificato!"


# -------------------------------------------------------------------------------------------------------------------------- numbers
@functools.lru_cache(maxsize=200000)
def Origini(v, scala):
    """The doubles that give v when multiplied by scala (0.1 or 0.01)."""
    x = v / scala
    vicini = {x}
    for verso in (math.inf, -math.inf):
        y = x
        for _ in range(3):
            y = math.nextafter(y, verso)
            vicini.add(y)
    return tuple(y for y in vicini if y * scala == v)


def Stampe(v, scala, fatt, dec, segno, fatto=False):
    """The texts that a report may show for a row's value v: judged number times fatt, ties to even at dec decimals.
    fatto: v is a fact of the sextet, which need not be the judged number times scala to the last bit."""
    x = v / scala * fatt * 10.0 ** dec
    if abs(abs(x - math.floor(x)) - 0.5) > 1e-6 * max(1.0, abs(x)) ** 0.5 and abs(x) < 1e9 and (fatto or Origini(v, scala)):
        return (relazione.FormaN3(relazione.Arrotonda(v / scala * fatt, dec), segno),)
    origini = Origini(v, scala) or ((v / scala, math.nextafter(v / scala, 0), math.nextafter(v / scala, math.inf)) if fatto else ())
    return tuple({relazione.FormaN3(relazione.Arrotonda(y * fatt, dec), segno) for y in origini})


def Arrotonda2(x):
    return math.floor(x * 100 + 0.5) / 100


def Vicini(a, b, ulp=4):
    return a == b or abs(a - b) <= ulp * math.ulp(max(abs(a), abs(b)))


def Corto(x):
    """Shortest text that reads back to x: the fixed form unless the one with an exponent is shorter."""
    if 1e-3 <= abs(x) < 1e4:                                     # here the fixed form is never the longer one
        return repr(x).removesuffix(".0")
    if x == 0:
        return "-0" if math.copysign(1, x) < 0 else "0"
    m = re.match(r"(-?)([0-9]+)(?:\.([0-9]+))?(?:e([+-][0-9]+))?\Z", repr(x))
    segno, intero, resto, esp = m.group(1), m.group(2), m.group(3) or "", int(m.group(4) or 0)
    cifre = (intero + resto).lstrip("0")
    posto = len(intero) + esp - (len(intero + resto) - len(cifre))       # place of the point in front of which the digits begin
    cifre = cifre.rstrip("0")
    e = posto - 1
    conEsp = cifre[0] + ("." + cifre[1:] if len(cifre) > 1 else "") + "e%+03d" % e
    fisso = "0." + "0" * -posto + cifre if posto <= 0 else cifre + "0" * (posto - len(cifre)) if posto >= len(cifre) else \
        cifre[:posto] + "." + cifre[posto:]
    return segno + (fisso if len(fisso) <= len(conEsp) else conEsp)


# ------------------------------------------------------------------------------------------------------------------ one node, one method
class Verifica:
    """What `verifica` told of one node: its last word, the boxes before it and the report that it showed."""

    def __init__(self):
        self.stato, self.scatole, self.relazione = None, [], None


def LeggiVerifica(uscita):
    nodi, v = {}, Verifica()
    for riga in uscita.split("\n"):
        m = re.match(r"NODO (.*): (verificato|non verificato|non eseguito)\Z", riga)
        if m:
            v.stato = m.group(2)
            nodi[m.group(1)], v = v, Verifica()
        elif riga.startswith("[testo] "):
            v.relazione = riga[8:]
        elif riga.startswith("[messaggio] "):
            v.scatole.append(("messaggio", riga[12:].split(" | ", 2)[2]))
        elif riga.startswith("[domanda] "):
            v.scatole.append(("domanda", re.sub(r" -> (OK|Annulla)\Z", "", riga[10:].split(" | ", 2)[2])))
    return nodi


def UnaRiga(t):
    return t.replace("\r\n", "\\n").replace("\r", "\\n").replace("\n", "\\n")


def Rango(riga, metodo):
    """Smaller governs: what does not pass, then the larger use, then sextet, table, element."""
    u = riga["sfruttamento"]
    u = (0.0 if riga["passa"] else math.inf) if u is None else u
    return (riga["passa"], -u, riga["sestetto"], ORDINE[metodo].index(riga["id"]), riga["elemento"])


def Governanti(righe, nSestetti, metodo):
    primo = lambda prese: min(prese, key=lambda r: Rango(r, metodo), default=None)       # noqa: E731
    perControllo = [primo([r for r in righe if r["id"] == c]) for c in ORDINE[metodo]]
    perSestetto = {s: [] for s in range(1, nSestetti + 1)}
    for r in righe:
        perSestetto[r["sestetto"]].append(r)
    return {"nodo": primo(righe), "per_controllo": [r for r in perControllo if r],
            "per_sestetto": [primo(rr) for rr in perSestetto.values() if rr]}


class Confronto:
    """Compares one node judged by one method; guasti collects what is not equal, conta what was compared."""

    def __init__(self, ogg, rel, ver, dati, unita, segno, conta, clausole):
        self.o, self.rel, self.ver, self.dati, self.u, self.segno = ogg, rel, ver, dati, unita, segno
        self.conta, self.clausole, self.guasti, self.dovuti = conta, clausole, [], {}

    def g(self, buono, *detto):
        if not buono:
            self.guasti.append(" ".join(str(d) for d in detto))
        return buono

    def esegui(self):
        try:
            self._esegui()
        except (KeyError, TypeError, IndexError, ValueError, AttributeError) as e:
            import traceback
            dove = traceback.extract_tb(e.__traceback__)[-1]
            self.guasti.append("forma inattesa: %s %s (confronta.py:%d)" % (type(e).__name__, e, dove.lineno))
        return self.guasti

    def _esegui(self):
        o, ver = self.o, self.ver
        self.metodo = o["metodo"]
        self.g(set(o) == CAMPI_NODO, "campi del nodo", set(o) ^ CAMPI_NODO)
        self.g(o["stato"] == ver.stato, "stato", o["stato"], "ma verifica dice", ver.stato)
        sha = hashlib.sha256(self.dati).hexdigest() if self.dati is not None else None
        self.g(o["sha256"] == sha, "sha256")
        self.g(re.match("[0-9a-f]{64}\\Z", o["suite_sha256"]), "suite_sha256")
        stelo = re.split(r"[/\\]", o["percorso"])[-1].split(".")[0]
        self.g(o["nome"] == stelo, "nome", o["nome"])
        self.avvisi()
        if o["stato"] == "non eseguito":
            for vuoto, c in (([], "nodi_struttura"), ([], "sestetti"), ([], "controlli"), (None, "governanti")):
                self.g(o[c] == vuoto, c, "di un nodo non eseguito:", o[c])
            if o["ingresso"] is not None:
                self.geometria(FileNodo(self.dati))
            self.g((o["ingresso"] is None) == (o["geometria"] is None), "ingresso e geometria")
            return
        self.g(o["motivo"] is None, "motivo", o["motivo"])
        if not self.g(self.rel is not None, "manca la relazione"):
            return
        self.g(self.rel.metodo == self.metodo, "metodo della relazione")
        f = FileNodo(self.dati)
        self.ingresso(f)
        self.geometria(f)
        self.sestetti(f)
        self.limiti(f)
        self.righe()
        self.g(o["stato"] == ("verificato" if all(s["passa"] for s in o["sestetti"]) else "non verificato"), "stato e sestetti")

    # ------------------------------------------------------------------------------------------------------------------------- notices
    def avvisi(self):
        o = self.o
        ids = [a["id"] for a in o["avvisi"]]
        tabella = [i for i in ids if i in AVVISI]
        self.g(ids[:len(tabella)] == tabella and sorted(tabella, key=AVVISI.index) == tabella, "ordine degli avvisi", ids)
        self.g(all(tabella.count(i) <= (3 if i == "grado_diverso" else 1) for i in tabella), "avvisi doppi", ids)
        scatole = [(t, UnaRiga(x)) for t, x in self.ver.scatole if x != NON_VERIFICATO]
        if o["stato"] == "non eseguito":
            m = UnaRiga(o["motivo"] or "")
            fermi = [i for i, (_, x) in enumerate(scatole) if x == m]
            if self.g(fermi or not scatole, "motivo", repr(m), "non è fra", scatole) and fermi:
                del scatole[fermi[-1]]
        prese = [(a["id"], UnaRiga(a["testo"])) for a in o["avvisi"] if a["id"] not in AVVISI]
        uguali = all(a == b and (x == y if a == "messaggio" else x.startswith(y)) for (a, x), (b, y) in zip(prese, scatole))
        self.g(len(prese) == len(scatole) and uguali, "finestre", prese, "ma verifica", scatole)
        self.conta["finestre"] += len(scatole)
        if o["stato"] != "non eseguito":
            f = FileNodo(self.dati)
            n = len(f.sestetti)
            for quale, vale in (("senza_sestetti", n == 0), ("cls_ta", n > 0 and self.metodo == "ta"),
                                ("uncino_ta", n > 0 and self.metodo == "ta" and f.forma == 1),
                                ("nomi_con_virgola", any("," in s[2] for s in f.sestetti)), ("diametro", False)):
                self.g((quale in ids) == vale, "avviso", quale, "non come dovuto:", ids)
            if self.rel:
                oltre = 40 < f.sp <= 41 or f.tipo == 2 and 40 < f.spNerv <= 41
                cala = relazione.Valore(self.rel.spessori[1]) < relazione.Valore(self.rel.spessori[0])
                self.g(("oltre_40" in ids) == (n > 0 and oltre and cala), "avviso oltre_40:", f.sp, f.spNerv, self.rel.spessori, ids)
                sez, lati = o["ingresso"]["sezione"], o["ingresso"]["piastra"]
                smussi = [10 * math.floor(math.floor(x) / 10 + 0.5) for x in ((lati["lz"] - sez["b"] - 2 * (f.spNerv or 0)) / 2 / 3,
                                                                             (lati["ly"] - sez["h"]) / 2 / 3)]
                self.g(("quota_nervatura" in ids) == (f.tipo == 2 and smussi[0] != smussi[1]), "avviso quota_nervatura:", smussi)
            # a line left empty names no grade
            m = self.rel.materiali if self.rel else {}
            gradi = (("acciaio", f.acciaio), ("tirafondi", f.barra), ("calcestruzzo", f.cls))
            diversi = sum(n.strip() != m.get(k, n).strip() for k, n in gradi)
            self.g(tabella.count("grado_diverso") >= diversi, "avviso grado_diverso: la relazione ne mostra", diversi, m, gradi)

    # ------------------------------------------------------------------------------------------------------- the joint and its input checks
    def ingresso(self, f):
        i, rel, ta = self.o["ingresso"], self.rel, self.metodo == "ta"
        n3 = lambda x: relazione.FormaN3(x, self.segno)                                                     # noqa: E731
        r1 = lambda x, d=1: n3(x) if ta else n3(relazione.Arrotonda(x, d))                                    # noqa: E731
        sez, tir, p = i["sezione"], i["tirafondi"], i["piastra"]
        self.g(self.o["nodi_struttura"] == rel.nodi == f.nodi, "nodi_struttura")
        nome = f.sezione.ljust(18)
        if ta:                                                 # the words joined; one that no blank ends is dropped
            parole = re.findall(r"\S+(?= )", nome)
            nome = parole[0] + " " + "".join(parole[1:]) if parole else ""
        self.g(rel.sezione[0].rstrip(" ") == nome.rstrip(" ") and sez["nome"] == f.sezione, "sezione", sez["nome"], rel.sezione[0])
        self.g([n3(sez[k]) for k in "hbaer"] == rel.sezione[1:], "dimensioni della sezione", sez, rel.sezione)
        self.g([r1(p[k]) for k in ("lz", "ly", "sp")] == rel.piastra and p["sp"] == f.sp, "piastra", p, rel.piastra)
        # the sides pass through the margins' fields, of 15 digits
        self.g(math.isclose(p["lz"], f.lz, rel_tol=1e-13) and math.isclose(p["ly"], f.ly, rel_tol=1e-13), "lati della piastra", p, f.lz, f.ly)
        self.g(i["tipo_nodo"] == f.tipo and i["gola_lato"] == f.gola, "tipo o gola")
        if f.tipo == 2:
            self.g(i["nervature"] == {"h": f.hNerv, "sp": f.spNerv, "saldatura_interna": f.saldInt == 1}, "nervature", i["nervature"])
            self.g((r1(f.hNerv), r1(f.spNerv)) == tuple(rel.nervature), "nervature della relazione")
        else:
            self.g(i["nervature"] is None, "nervature", i["nervature"])
        detti = {"tipo": f.forma, "n": f.nTir, "fi": float(genera.DIAMETRI[f.diam - 1]), "area_mm2": genera.AREE[f.diam - 1],
                 "posizioni": f.posti, "l": f.l, "lft": f.lft, "l1": f.l1, "r": f.r, "lf": f.lf,
                 "d_foro": f.foro, "h_malta": f.malta, "dist_bordo": f.bordo}
        self.g(tir == detti, "tirafondi", {k: (tir.get(k), detti.get(k)) for k in set(tir) | set(detti) if tir.get(k) != detti.get(k)})
        attesi = [tuple(r1(x) for x in (p["lz"] - z, y, tir["fi"])) + (r1(tir["area_mm2"], 2),) for z, y in tir["posizioni"]]
        self.g(attesi == rel.tirafondi, "tirafondi della relazione", attesi, rel.tirafondi)
        self.g([r1(tir[k]) for k in ("l", "lft", "l1", "r")] == list(rel.misure), "misure dei tirafondi")
        m = i["materiali"]
        self.g(m == dict({k: n.strip() for k, n in rel.materiali.items()}, viti="8.8"), "materiali", m, rel.materiali)
        self.g(i["sestetti"] == len(f.sestetti) == len(rel.sestetti), "numero dei sestetti")
        self.g(rel.numSaldature == (8 if f.tipo == 1 else 44 if f.saldInt else 40), "numero delle saldature")

    def geometria(self, f):
        righe, sez = self.o["geometria"], self.o["ingresso"]["sezione"]
        f.lz, f.ly = (self.o["ingresso"]["piastra"][k] for k in ("lz", "ly"))
        passa, lati = Geometria(f, sez["b"], sez["h"], float(genera.DIAMETRI[f.diam - 1]), self.metodo)
        self.g([r["id"] for r in righe] == [i for i, _ in GEOMETRIA], "geometria: ordine")
        for r, (quale, testo) in zip(righe, GEOMETRIA):
            self.g(set(r) == {"id", "passa", "testo", "domanda", "limite"}, "campi di", quale)
            self.g(r["passa"] == passa[quale], quale, "passa", r["passa"])
            self.g(r["testo"] == (testo or BORDO[self.metodo]), quale, "testo", r["testo"])
            if quale in lati:
                self.g({r["domanda"], r["limite"]} == lati[quale], quale, "lati", r["domanda"], r["limite"], lati[quale])
        fermo = not (passa["geo.fuori_piastra"] and passa["geo.angolo"])
        self.g(not fermo or self.o["stato"] == "non eseguito", "rifiutato e verificato lo stesso")

    # -------------------------------------------------------------------------------------------------------------------------- sextets
    def sestetti(self, f):
        o, u, rel = self.o, self.u, self.rel
        if not self.g(len(o["sestetti"]) == len(rel.sestetti), "sestetti", len(o["sestetti"]), "ma la relazione", len(rel.sestetti)):
            return
        self.g(rel.unita == u.mostrati(), "unità della relazione", rel.unita)
        for j, s, (carichi, cc, nome) in zip(o["sestetti"], rel.sestetti, f.sestetti):
            dove = "sestetto %d:" % s.n
            self.g(set(j) == CAMPI_SESTETTO, dove, "campi", set(j) ^ CAMPI_SESTETTO)
            self.g(j["n"] == s.n and j["nome"] == nome.strip() and s.nome == nome, dove, "nome", repr(j["nome"]), repr(s.nome), repr(nome))
            self.g(j["classe"] == s.classe == (("I", "II")[cc != 0] if self.metodo == "ta" else None), dove, "classe", j["classe"], s.classe)
            for k, chi in enumerate(("N_kN", "Ty_kN", "Tz_kN", "Mt_kNm", "My_kNm", "Mz_kNm")):
                per = 0.01 if k < 3 else 1e-4
                self.g(j[chi] == carichi[k] * per or Vicini(j[chi], carichi[k] * per, 1), dove, chi, j[chi], "ma il nodo", carichi[k])
                fatt = u.FattForze if k < 3 else u.FattMomenti
                self.g(relazione.FormaN3(fatt * carichi[k], self.segno) == s.carichi[k], dove, chi, "della relazione", s.carichi[k])
            self.g(j["passa"] is s.passa, dove, "passa", j["passa"], "ma l'ultima riga", s.passa)
            p = j["pressione_max"]
            self.g(p >= 0 and s.pressione in Stampe(p, 0.1, u.FattTensioni, u.DecTensioni, self.segno, True), dove, "pressione_max", p,
                   "stampata", s.pressione)
            forze = [Stampe(x, 0.01, u.FattForze, u.DecForze, self.segno, True) for x in j["forza_tir_kN"]]
            self.g(len(forze) == len(s.tiro) and all(x in y for x, y in zip(s.tiro, forze)), dove, "forza_tir_kN", j["forza_tir_kN"], s.tiro)
            self.g(0 <= j["area_compressa"] <= 100 + 1e-9 and j["iterazioni"] >= 3, dove, "area o iterazioni")
            self.conta["sestetti"] += 1

    def limiti(self, f):
        """Each limit from the catalogue; that of the pull never rises from a sextet to the next."""
        materiali, area, tiro = self.rel.materiali, self.o["ingresso"]["tirafondi"]["area_mm2"], math.inf
        f.lz, f.ly = (self.o["ingresso"]["piastra"][k] for k in ("lz", "ly"))
        for j in self.o["sestetti"]:
            dovuti = Limiti(CATALOGO, f, materiali, area, self.metodo, j["classe"])
            if "tir.tiro" in dovuti:
                tiro = dovuti["tir.tiro"] = min(tiro, dovuti["tir.tiro"])
            self.dovuti[j["n"]] = {k: v * (0.01 if k == "tir.tiro" else 0.1) for k, v in dovuti.items()}

    # ----------------------------------------------------------------------------------------------------------------------------- rows
    def righe(self):
        o, metodo, conta = self.o, self.metodo, self.conta
        attese, esiti = {}, []
        for s in self.rel.sestetti:
            for riga in s.righe:
                conta["linee"] += 1
                for v in riga.voci:
                    attese[s.n, v.id, v.elemento] = v, riga
                esiti.append((s.n, riga))
        posto = {c: k for k, c in enumerate(ORDINE[metodo])}
        ordine = sorted(attese, key=lambda k: (k[0], posto[k[1]], k[2]))
        chiavi = [(r["sestetto"], r["id"], r["elemento"]) for r in o["controlli"]]
        if not self.g(chiavi == ordine, "righe", len(chiavi), "ma la relazione ne elenca", len(ordine),
                      next((str(p) + " invece di " + str(q) for p, q in zip(chiavi, ordine) if p != q), "")):
            return
        esito = {}
        for r, k in zip(o["controlli"], ordine):
            self.riga(r, *attese[k])
            esito[k] = r["passa"]
        for n, riga in esiti:
            suoi = [esito[n, v.id, v.elemento] for v in riga.voci]
            self.g(riga.esito is None or riga.esito is all(suoi),
                   "sestetto %d, riga %d: stampato %s, righe %s" % (n, riga.numero, riga.esito, suoi))
        cadono = {n for (n, _, _), e in esito.items() if not e}
        for s in self.rel.sestetti:
            tutte = s.n not in cadono
            self.g(s.passa is tutte, "sestetto %d: ultima riga" % s.n, s.passa, "ma le righe", tutte)
            conta["non passano"] += not tutte
        self.g(o["governanti"] == Governanti(o["controlli"], len(o["sestetti"]), metodo), "governanti", o["governanti"],
               "ma dovuti", Governanti(o["controlli"], len(o["sestetti"]), metodo))
        conta["righe"] += len(chiavi)

    def riga(self, r, v, riga):
        u, segno = self.u, self.segno
        dove = "sestetto %d %s %d (riga %d):" % (r["sestetto"], r["id"], r["elemento"], riga.numero)
        self.g(set(r) == CAMPI_RIGA, dove, "campi")
        self.g(type(r["passa"]) is bool, dove, "passa")
        attesa = "-" if v.id in SENZA_UNITA else "kN" if v.id == "tir.tiro" else "N/mm2"
        self.g(r["unita"] == attesa, dove, "unità", r["unita"])
        c = r["clausola"]
        self.g(c and self.clausole.setdefault((self.metodo, v.id), c) == c, dove, "clausola", c)
        d, l = r["domanda"], r["limite"]
        if self.g(d is not None, dove, "domanda nulla"):
            self.domanda(dove, d, v, r["sestetto"])
            self.numeri(dove, r, d, l)
        if v.formaLimite == "UNO":
            self.g(l == 1, dove, "limite", l)
        elif self.g(l is not None, dove, "limite nullo, stampato", v.limite):
            scala, fatt, dec = (0.1, u.FattTensioni, u.DecTensioni) if v.formaLimite == "RD" else (0.01, u.FattForze, u.DecTensioni)
            s = Stampe(l, scala, fatt, dec, segno)
            self.g(v.limite in s, dove, "limite", l, "stampato", v.limite, "dovuto", s)
            dovuto = self.dovuti[r["sestetto"]][v.id]
            self.g(math.isclose(l, dovuto, rel_tol=1e-13), dove, "limite", l, "ma dal catalogo", dovuto)

    def domanda(self, dove, d, v, n):
        u, segno = self.u, self.segno
        stampata = v.valore
        if v.forma == "P":
            s = (relazione.FormaN3(d, segno),)
        elif v.forma == "A2":
            s = (relazione.FormaN3(Arrotonda2(d), segno),)
        elif v.forma == "RF":                                  # judged without its sign
            s, stampata = Stampe(d, 0.01, u.FattForze, u.DecForze, segno), stampata.lstrip("-")
        elif v.forma == "RD":
            s, stampata = Stampe(d, 0.1, u.FattTensioni, u.DecTensioni, segno), stampata.lstrip("-")
        else:                                                  # A1: what was judged and what was printed come of one number
            D = round(d * 100) / 10
            self.g(D * 0.1 == d, dove, "domanda", d, "non arrotondata al decimo di daN/cm2")
            p, k = relazione.Valore(stampata), 10.0 ** u.DecTensioni
            basso, alto = max((D - 0.05) * u.FattTensioni * k, p * k - 0.5), min((D + 0.05) * u.FattTensioni * k, p * k + 0.5)
            self.g(basso <= alto + 1e-9 * max(1.0, abs(alto)), dove, "giudicata", D, "daN/cm2 ma stampata", stampata)
            if v.id == "cls":
                p = self.o["sestetti"][n - 1]["pressione_max"]
                self.g(D in {Arrotonda1(x) for x in Origini(p, 0.1) or (p * 10,)}, dove, "giudicata", D, "ma pressione_max", p)
            return
        self.g(stampata in s, dove, "domanda", d, "stampata", v.valore, "dovuta", s or "un numero per 0.1")

    def numeri(self, dove, r, d, l):
        """What follows from the two numbers of a row alone."""
        if l is None or not l > 0:
            self.g(r["rapporto"] is None and r["sfruttamento"] is None, dove, "rapporto con limite", l)
        else:
            rapporto = d / l
            if not self.g(r["rapporto"] is not None and Vicini(r["rapporto"], rapporto), dove, "rapporto", r["rapporto"], "ma", rapporto):
                return
            self.conta["rapporti non esatti"] += r["rapporto"] != rapporto
            uso = math.sqrt(r["rapporto"]) if r["id"] == "tir.coeff" and r["rapporto"] >= 0 else r["rapporto"]
            self.g(r["sfruttamento"] is not None and Vicini(r["sfruttamento"], uso), dove, "sfruttamento", r["sfruttamento"], "ma", uso)
        if l is not None and abs(d - l) > 1e-14 * abs(l):
            self.g(r["passa"] is (d <= l), dove, "passa", r["passa"], "con", d, l)
        # before rounding, by one part in a million: told at least where the demand is not rounded
        if l is not None and l > 0 and d > 0 and r["id"] not in ("tir.coeff", "tir.co1", "tir.co2", "tir.co3") and not (
                self.metodo == "ta" and r["id"] in ("piastra", "nerv.z", "nerv.y", "cls")) and 1e-14 < abs(d / l - 1) < 0.99e-6:
            self.conta["al limite"] += 1
            self.g(any(a["id"] == "al_limite" for a in self.o["avvisi"]), dove, "al limite senza avviso", d, l)


# ------------------------------------------------------------------------------------------------------------------------ other forms
def CellaTesto(t):
    return "'" + t if t[:1] in ("=", "+", "-", "@", "\t", "\r") and t else t


def RigheAttese(oggetti, tutte):
    for o in oggetti:
        nomi = {s["n"]: s["nome"] for s in o["sestetti"]}
        for r in (o["controlli"] if tutte else o["governanti"]["per_controllo"]) if o["governanti"] else ():
            n = lambda x: "" if x is None else Corto(float(x))                                    # noqa: E731
            yield [CellaTesto(o["percorso"]), CellaTesto(o["nome"]), o["metodo"], o["stato"], str(r["sestetto"]),
                   CellaTesto(nomi[r["sestetto"]]), r["id"], str(r["elemento"]), n(r["domanda"]), n(r["limite"]), CellaTesto(r["unita"]),
                   n(r["rapporto"]), n(r["sfruttamento"]), "true" if r["passa"] else "false"]


def ConfrontaCsv(dati, attese, it):
    """Empty if the table is those rows; else what is not."""
    fine, sep = (b"\r\n", ";") if it else (b"\n", ",")
    if it != dati.startswith(b"\xef\xbb\xbf"):
        return "marca di ordine dei byte"
    testo = dati.decode("utf-8-sig" if it else "utf-8")
    if not dati.endswith(fine) or (not it and b"\r" in dati) or (it and dati.replace(b"\r\n", b"").find(b"\n") >= 0):
        return "fini di riga"
    lette = csv.reader(io.StringIO(testo, newline=""), delimiter=sep, strict=True)
    if next(lette) != COLONNE:
        return "intestazione"
    for n, attesa in enumerate(attese, 1):
        letta = next(lette, None)
        if it:
            attesa = [c.replace(".", ",") if k in (8, 9, 11, 12) else c for k, c in enumerate(attesa)]
        if letta != attesa:
            return "riga %d: %s invece di %s" % (n, letta, attesa)
    return "righe di troppo" if next(lette, None) is not None else ""


def ConfrontaJsonl(dati, documento):
    righe = dati.decode("utf-8").split("\n")
    if righe.pop() != "" or len(righe) != len(documento["nodi"]):
        return "%d righe per %d nodi" % (len(righe), len(documento["nodi"]))
    for riga, o in zip(righe, documento["nodi"]):
        if json.loads(riga) != dict(o, schema=documento["schema"], programma=documento["programma"]):
            return "riga di %s %s" % (o["percorso"], o["metodo"])
    return NumeriCorti("\n".join(righe))


def NumeriCorti(testo):
    """Empty if each number of a JSON text is in its shortest form."""
    senza = re.sub(r'"(?:[^"\\]|\\.)*"', '""', testo)
    for t in set(re.findall(r"-?[0-9][-+.0-9eE]*", senza)):
        if t != Corto(float(t)) and not re.match(r"[0-9]{1,9}\Z", t):
            return "%s si scrive %s" % (t, Corto(float(t)))
    return ""


# ---------------------------------------------------------------------------------------------------------------------------- the runs
class Prova:
    def __init__(self, programma, nodi, seme, cartella):
        self.programma, self.quanti, self.seme, self.dir = os.path.abspath(programma), nodi, seme, cartella
        self.conta, self.guasti, self.clausole = Counter(), [], {}

    def guasto(self, *detto):
        self.guasti.append("seme %s, " % self.seme + " ".join(str(d) for d in detto))

    def chiama(self, suite, verbo, nodi, *opzioni, ambiente=None, decimale=True):
        comando = [self.programma, "--senza-programmi"] + (["--decimale=" + suite.segno] if decimale else []) + list(opzioni)
        if not any(o.startswith("--processi") for o in opzioni):
            comando.append("--processi=1")
        p = subprocess.run(comando + ["|diroot=%s|" % suite.dir, verbo] + nodi, cwd=self.dir, env=ambiente, stdin=subprocess.DEVNULL,
                           capture_output=True, timeout=600)
        self.conta["esecuzioni"] += 1
        return p

    def prepara(self):
        """A suite a system of units, and the nodes dealt out to them; the samples are judged in the first two."""
        self.suite = []
        for k, lavoro in enumerate(genera.LAVORI):
            s = Suite()
            s.dir, s.segno, s.nome = os.path.join(self.dir, "s%d" % k), lavoro.decimale, lavoro.nome
            subprocess.run([os.path.join(RADICE, "scripts", "prepara-suite"), s.dir], check=True, stdout=subprocess.DEVNULL)
            s.lavoro = os.path.join(s.dir, "lavori", "NODI01")
            with open(os.path.join(s.lavoro, "parametrilavoro"), "w", newline="") as f:
                f.write(genera.Parametri(lavoro))
            s.unita = relazione.Unita(genera.Parametri(lavoro))
            campioni = sorted(n for n in os.listdir(s.lavoro) if n.endswith(".qb7"))
            s.nodi = ["s%d/lavori/NODI01/%s" % (k, n) for n in campioni if k == 0 or n != "pilastro_B1.qb7"] if k < 2 else []
            self.suite.append(s)
        os.makedirs(os.path.join(self.dir, "g"))
        for n in range(1, self.quanti + 1):
            nome = "g/n%04d.qb7" % n
            with open(os.path.join(self.dir, nome), "wb") as f:
                f.write(genera.Nodo(self.seme, n)[0])
            self.suite[n % len(self.suite)].nodi.append(nome)
        with open(os.path.join(self.dir, "g", "vuoto.qb7"), "wb"):
            pass
        self.suite[0].nodi[3:3] = ["g/manca.qb7", "g/vuoto.qb7"]

    def documento(self, suite, nodi, *opzioni):
        p = self.chiama(suite, "riepilogo", nodi, "--formato=json", *opzioni)
        try:
            testo = p.stdout.decode("utf-8")
            detto = "" if "--righe=tutte" in opzioni else NumeriCorti(testo)
            if detto:
                self.guasto(suite.nome, opzioni, detto)
            return json.loads(testo, parse_constant=lambda c: 1 / 0), p
        except (ValueError, ZeroDivisionError) as e:
            self.guasto(suite.nome, opzioni, "il risultato non si legge:", e, p.stdout[:200], p.stderr[:500])
            return None, p

    # reports of both methods against all the rows
    def confronta(self, suite):
        detti = {}
        for metodo in ("ta", "slu"):
            p = self.chiama(suite, "verifica", suite.nodi, "--metodo=" + metodo)
            detti[metodo] = LeggiVerifica(p.stdout.decode("utf-8")), p.returncode
        cartella = Impronta(suite.lavoro)
        doc, p = self.documento(suite, suite.nodi, "--metodo=entrambi", "--righe=tutte")
        if doc is None:
            return None
        if Impronta(suite.lavoro) != cartella:
            self.guasto(suite.nome, "riepilogo ha scritto nella cartella del lavoro")
        if p.returncode != max(s for _, s in detti.values()):
            self.guasto(suite.nome, "stato d'uscita", p.returncode, "ma verifica", [s for _, s in detti.values()])
        if set(doc) != {"schema", "programma", "unita", "nodi"} or doc["schema"] != "qb07/riepilogo/1" or doc["unita"] != {
                "forza": "kN", "momento": "kN m", "tensione": "N/mm2", "lunghezza": "mm"} or doc["programma"].get("nome") != "qb07-batch":
            self.guasto(suite.nome, "testa del documento", {k: doc[k] for k in doc if k != "nodi"})
        attesi = [(n, m) for n in suite.nodi for m in ("ta", "slu")]
        if [(o["percorso"], o["metodo"]) for o in doc["nodi"]] != attesi:
            self.guasto(suite.nome, "nodi del documento non nell'ordine della lista")
            return None
        nonFatti = {(o["percorso"], o["motivo"]) for o in doc["nodi"] if o["stato"] == "non eseguito"}     # by both methods told once
        errori = [e for e in p.stderr.decode("utf-8").splitlines() if e.startswith("errore: ")]
        if len(errori) != len(nonFatti):
            self.guasto(suite.nome, "righe errore:", len(errori), "per", len(nonFatti), "nodi non eseguiti", errori[:3])
        for o in doc["nodi"]:
            self.nodo(suite, o, detti[o["metodo"]][0].get(o["percorso"]))
        if len({o["suite_sha256"] for o in doc["nodi"]}) != 1:
            self.guasto(suite.nome, "suite_sha256 diversi")
        return doc

    def nodo(self, suite, o, ver):
        chi = "%s, nodo %s, %s:" % (suite.nome, o["percorso"], o["metodo"])
        if ver is None:
            self.guasto(chi, "verifica non ne parla")
            return
        self.conta["nodi " + ver.stato] += 1
        if o["opzioni"] != {"metodo": o["metodo"], "decimale": suite.segno, "rispondi": "ok"}:
            self.guasto(chi, "opzioni", o["opzioni"])
        rel, dati = None, None
        percorso = os.path.join(self.dir, o["percorso"])
        if os.path.exists(percorso):
            with open(percorso, "rb") as f:
                dati = f.read()
        if ver.relazione and ver.stato != "non eseguito":
            try:
                with open(ver.relazione, "rb") as f:
                    rel = relazione.Leggi(f.read(), suite.segno)
            except relazione.RelazioneErrata as e:
                self.guasto(chi, "relazione:", e)
                return
        self.ultimo = (o, rel, ver, dati, suite.unita, suite.segno)
        for g in Confronto(o, rel, ver, dati, suite.unita, suite.segno, self.conta, self.clausole).esegui():
            self.guasto(chi, g)

    # the same rows in every form
    def forme(self, suite, doc):
        nodi = doc["nodi"]
        senza = [{k: v for k, v in o.items() if k != "controlli"} for o in nodi]
        gov, _ = self.documento(suite, suite.nodi, "--metodo=entrambi")
        if gov and gov != dict(doc, nodi=senza):
            self.guasto(suite.nome, "governanti non sono le righe di tutte")
        for righe, tutte in (("tutte", True), ("governanti", False)):
            attese = list(RigheAttese(nodi, tutte))
            for formato in ("csv", "csv-it"):
                p = self.chiama(suite, "riepilogo", suite.nodi, "--metodo=entrambi", "--righe=" + righe, "--formato=" + formato)
                detto = ConfrontaCsv(p.stdout, attese, formato == "csv-it")
                if detto:
                    self.guasto(suite.nome, formato, righe, detto)
            p = self.chiama(suite, "riepilogo", suite.nodi, "--metodo=entrambi", "--righe=" + righe, "--formato=jsonl")
            detto = ConfrontaJsonl(p.stdout, doc if tutte else dict(doc, nodi=senza))
            if detto:
                self.guasto(suite.nome, "jsonl", righe, detto)
        # the file's own method
        proprio, p = self.documento(suite, suite.nodi)
        per = {(o["percorso"], o["metodo"]): o for o in senza}
        for o in proprio["nodi"] if proprio else ():
            if o["metodo"] is None:
                if o["stato"] != "non eseguito" or o["opzioni"]["metodo"] is not None:
                    self.guasto(suite.nome, o["percorso"], "metodo nullo")
            elif o != per.get((o["percorso"], o["metodo"])):
                self.guasto(suite.nome, o["percorso"], "col suo metodo è un altro risultato")
        # questions answered with Annulla
        for metodo in ("ta", "slu"):
            v = self.chiama(suite, "verifica", suite.nodi, "--metodo=" + metodo, "--rispondi=annulla")
            r = self.chiama(suite, "riepilogo", suite.nodi, "--metodo=" + metodo, "--rispondi=annulla", "--formato=jsonl")
            detti = {n: x.stato for n, x in LeggiVerifica(v.stdout.decode("utf-8")).items()}
            letti = [json.loads(x) for x in r.stdout.decode("utf-8").splitlines()]
            if v.returncode != r.returncode or detti != {o["percorso"]: o["stato"] for o in letti}:
                self.guasto(suite.nome, metodo, "con Annulla gli stati sono altri",
                            [(o["percorso"], o["stato"], detti.get(o["percorso"])) for o in letti if o["stato"] != detti.get(o["percorso"])])
            for o in letti:
                if o["geometria"] and not all(g["passa"] for g in o["geometria"]) and o["stato"] != "non eseguito":
                    self.guasto(suite.nome, o["percorso"], metodo, "rifiutato con Annulla e verificato lo stesso")

    # no byte depends on what came before, on the processes or on the language
    def byte(self, suite):
        lista = [n for n in suite.nodi if "manca" not in n][:12]
        ultimo = lista[-1:]
        for formato in ("jsonl", "csv", "csv-it"):
            opz = ("--metodo=entrambi", "--righe=tutte", "--formato=" + formato)
            tutti = self.chiama(suite, "riepilogo", lista, *opz).stdout
            solo = self.chiama(suite, "riepilogo", ultimo, *opz).stdout
            corpo = solo if formato == "jsonl" else solo.split(b"\n", 1)[1]
            self.conta["confronti di byte"] += 3
            if not tutti.endswith(corpo) or not solo:
                self.guasto(suite.nome, formato, ultimo, "da solo e dopo undici non sono gli stessi byte")
            if self.chiama(suite, "riepilogo", lista, *opz, "--processi=4").stdout != tutti:
                self.guasto(suite.nome, formato, "con 4 processi altri byte")
        rovescio = self.chiama(suite, "riepilogo", lista[::-1], "--metodo=entrambi", "--righe=tutte", "--formato=jsonl").stdout
        dritto = self.chiama(suite, "riepilogo", lista, "--metodo=entrambi", "--righe=tutte", "--formato=jsonl").stdout
        if sorted(rovescio.split(b"\n")) != sorted(dritto.split(b"\n")):
            self.guasto(suite.nome, "a rovescio altri byte")
        installate = subprocess.run(["locale", "-a"], capture_output=True, text=True).stdout.lower().split() if shutil.which("locale") else []
        lingue = ["C", "C.UTF-8", None] + [v for v in ("it_IT.UTF-8", "de_DE.UTF-8") if v.lower().replace("-", "") in installate]
        for formato in ("json", "csv", "csv-it", "testo"):
            viste = set()
            for lingua in lingue:
                ambiente = {k: v for k, v in os.environ.items() if not k.startswith("LC_") and k not in ("LANG", "LANGUAGE", "TZ")}
                if lingua:
                    ambiente["LC_ALL"] = lingua
                viste.add(self.chiama(suite, "riepilogo", lista, "--metodo=entrambi", "--formato=" + formato, ambiente=ambiente).stdout)
                self.conta["confronti di byte"] += 1
            if len(viste) != 1:
                self.guasto(suite.nome, formato, "la lingua cambia i byte")
        testo = self.chiama(suite, "riepilogo", lista, "--metodo=entrambi", "--formato=testo").stdout.decode("utf-8")
        if not testo or max(len(r) for r in testo.split("\n")) > 100:
            self.guasto(suite.nome, "testo vuoto o oltre 100 colonne")
        # status and state of single nodes
        for n in lista:
            v, r = (self.chiama(suite, verbo, [n], *o) for verbo, o in (("verifica", ()), ("riepilogo", ("--formato=jsonl",))))
            if v.returncode != r.returncode:
                self.guasto(suite.nome, n, "stato d'uscita", r.returncode, "ma verifica", v.returncode)

    def schema(self, doc):
        percorso = os.path.join(RADICE, "docs", "schema", "riepilogo-1.json")
        if importlib.util.find_spec("jsonschema") is None or not os.path.exists(percorso):
            self.conta["schema saltato"] += 1
            return
        import jsonschema
        with open(percorso, encoding="utf-8") as f:
            schema = json.load(f)
        jsonschema.Draft202012Validator.check_schema(schema)
        v = jsonschema.Draft202012Validator(schema)
        for o in doc["nodi"]:
            corto = dict(o, controlli=o["controlli"][:40])
            for e in list(v.iter_errors(dict(doc, nodi=[corto])))[:2]:
                self.guasto("schema", o["percorso"], o["metodo"], e.json_path, e.message[:200])
            self.conta["nodi per lo schema"] += 1

    def esegui(self):
        self.prepara()
        for k, suite in enumerate(self.suite):
            doc = self.confronta(suite)
            if doc is None:
                continue
            self.forme(suite, doc)
            if k in (0, 1):
                self.byte(suite)
            if k in (1, 2):
                self.schema(doc)
        return self.guasti


class Suite:
    pass


def Impronta(cartella):
    return sorted((v.name, v.stat().st_mtime_ns, v.stat().st_size) for v in os.scandir(cartella))


def main():
    a = argparse.ArgumentParser(description="Confronta le relazioni con le righe di riepilogo.")
    a.add_argument("programma")
    a.add_argument("--nodi", type=int, default=500)
    a.add_argument("--seme", default="1")
    a.add_argument("--tieni", metavar="CARTELLA", help="lavora in questa cartella nuova e la lascia")
    a = a.parse_args()
    if not os.access(a.programma, os.X_OK):
        print("confronta.py: manca il programma " + a.programma, file=sys.stderr)
        return 2
    cartella = a.tieni or tempfile.mkdtemp(prefix="righe")
    os.makedirs(cartella, exist_ok=True)
    try:
        p = Prova(a.programma, a.nodi, a.seme, cartella)
        guasti = p.esegui()
    finally:
        if not a.tieni:
            shutil.rmtree(cartella)
    for g in guasti[:40]:
        print(g[:1200])
    if len(guasti) > 40:
        print("... e altri %d" % (len(guasti) - 40))
    print("; ".join("%s %d" % (k, v) for k, v in sorted(p.conta.items())) + "; guasti %d" % len(guasti))
    if not p.conta["righe"]:
        print("nessuna riga confrontata")
    return 1 if guasti or not p.conta["righe"] else 0


if __name__ == "__main__":
    sys.exit(main())
