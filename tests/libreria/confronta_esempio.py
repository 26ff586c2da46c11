"""confronta_esempio.py RIEPILOGO.json ESEMPIO.txt - what the example of the library prints is what riepilogo tells of the same joint: verdicts,
governing rows, pressure, area and forces of the governing sextet, number for number. Exit status: 0 as it is, 1 not."""
import json
import sys

with open(sys.argv[1], encoding="utf-8") as f:
    nodi = json.load(f)["nodi"]
with open(sys.argv[2], encoding="utf-8") as f:
    stampato = f.read().splitlines()


def voci(riga):
    """Numbers as numbers, so that 0.1 and 0.10000000000000001 are one."""
    def voce(t):
        try:
            return float(t)
        except ValueError:
            return t
    return [voce(t) for t in riga.split(",")]


attese = []
for n in nodi:
    attese.append([f"{n['metodo']}: {n['stato']}"])
    if n["governanti"] is None:
        attese.append(voci(n["motivo"]))
        continue
    for r in n["governanti"]["per_controllo"]:
        attese.append([r["id"], r["sestetto"], r["elemento"], r["domanda"], r["limite"], r["unita"], "true" if r["passa"] else "false"])
    g = n["governanti"]["nodo"]
    if g is not None:
        s = n["sestetti"][g["sestetto"] - 1]
        attese.append(["pressione_max", s["pressione_max"]])
        attese.append(["area_compressa", s["area_compressa"]])
        attese += [["forza_tir", i + 1, v] for i, v in enumerate(s["forza_tir_kN"])]
avute = [voci(r) for r in stampato]
if len(nodi) != 2 or sorted(map(str, avute)) != sorted(str([float(x) if isinstance(x, (int, float)) else x for x in r]) for r in attese):
    print("attese:", *attese, "avute:", *avute, sep="\n", file=sys.stderr)
    sys.exit(1)
