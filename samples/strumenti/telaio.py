# telaio.py - linear analysis of a three-dimensional frame by the direct stiffness method.
# Elements  prismatic bars, 6 degrees of freedom a node, no shear deformation, uniform loads along the bar.
# Units     daN, cm.
# Axes      global X, Y horizontal, Z up. Of a bar: x from its first to its second end; y the direction of the web: for a vertical bar
#           horizontal, X or Y as its orientation (0 or 90 degrees) tells, else the upward direction across x; z = x cross y.
# Numbers   only + - * / and square roots in a fixed order, so that every machine gives the same bytes.


class Sezione:
    def __init__(self, area, j1, j2, jt):      # cm2, cm4; j1 bends in the plane of the web
        self.area, self.j1, self.j2, self.jt = area, j1, j2, jt


class Asta:
    def __init__(self, numero, i, j, sezione, orientamento=0):
        self.numero, self.i, self.j, self.sezione, self.orientamento = numero, i, j, sezione, orientamento


def vettoriale(a, b):
    return [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]]


def scalare(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def assi(pi, pj, orientamento):
    """Length and the axes x, y, z of a bar."""
    d = [pj[k] - pi[k] for k in range(3)]
    lung = scalare(d, d) ** 0.5
    x = [c / lung for c in d]
    if d[0] == 0 and d[1] == 0:
        y = [1.0, 0.0, 0.0] if orientamento == 0 else [0.0, 1.0, 0.0]
    else:
        y = [-x[2] * x[0], -x[2] * x[1], 1 - x[2] * x[2]]
        n = scalare(y, y) ** 0.5
        y = [c / n for c in y]
    return lung, [x, y, vettoriale(x, y)]


def verso(pi, pj):
    """+1 for a bar that runs upward, or level along X, or else along Y; -1 for the other sense."""
    for k in (2, 0, 1):
        if pj[k] != pi[k]:
            return 1 if pj[k] > pi[k] else -1
    return 1


def rigidezza(lung, s, e, g):
    """Stiffness matrix in the bar's axes: u v w rx ry rz of the first end, then of the second."""
    k = [[0.0] * 12 for _ in range(12)]

    def metti(i, j, v):
        k[i][j] = v
        k[j][i] = v
    for a, v in ((0, e * s.area / lung), (3, g * s.jt / lung)):
        metti(a, a, v)
        metti(a + 6, a + 6, v)
        metti(a, a + 6, -v)
    # plane xy turns about z, plane xz about y with the opposite sense
    for v, r, j, segno in ((1, 5, s.j1, 1.0), (2, 4, s.j2, -1.0)):
        a = e * j / (lung * lung * lung)
        metti(v, v, 12 * a)
        metti(v + 6, v + 6, 12 * a)
        metti(v, v + 6, -12 * a)
        for n in (r, r + 6):
            metti(v, n, segno * 6 * a * lung)
            metti(v + 6, n, -segno * 6 * a * lung)
        metti(r, r, 4 * a * lung * lung)
        metti(r + 6, r + 6, 4 * a * lung * lung)
        metti(r, r + 6, 2 * a * lung * lung)
    return k


def ruota(matrice, assi_asta):
    """Transposed rotation times matrix times rotation, block by block."""
    n = len(matrice)
    r = [[0.0] * n for _ in range(n)]
    for b in range(0, n, 3):
        for i in range(3):
            for j in range(3):
                r[b + i][b + j] = assi_asta[i][j]
    mr = [[somma(matrice[i][k] * r[k][j] for k in range(j // 3 * 3, j // 3 * 3 + 3)) for j in range(n)] for i in range(n)]
    return [[somma(r[k][i] * mr[k][j] for k in range(i // 3 * 3, i // 3 * 3 + 3)) for j in range(n)] for i in range(n)]


def somma(valori):
    t = 0.0                                    # term by term: the built-in sum compensates in some releases
    for v in valori:
        t += v
    return t


def incastro(lung, q):
    """Forces on the fixed ends of a bar under a uniform load q, both in the bar's axes."""
    f = [0.0] * 12
    for k in range(3):
        f[k] = f[k + 6] = -q[k] * lung / 2
    f[5], f[11] = -q[1] * lung * lung / 12, q[1] * lung * lung / 12
    f[4], f[10] = q[2] * lung * lung / 12, -q[2] * lung * lung / 12
    return f


def fattorizza(a):
    """Lower factor of Cholesky, in place; the matrix is symmetric and positive definite."""
    n = len(a)
    for j in range(n):
        for k in range(j):
            if a[j][k] != 0.0:
                v = a[j][k]
                for i in range(j, n):
                    a[i][j] -= a[i][k] * v
        p = a[j][j] ** 0.5
        for i in range(j, n):
            a[i][j] /= p


def risolvi(a, b):
    n = len(b)
    x = list(b)
    for i in range(n):
        for k in range(i):
            x[i] -= a[i][k] * x[k]
        x[i] /= a[i][i]
    for i in range(n - 1, -1, -1):
        for k in range(i + 1, n):
            x[i] -= a[k][i] * x[k]
        x[i] /= a[i][i]
    return x


class Telaio:
    """nodi: {number: (x, y, z)}; aste: list of Asta; incastrati: numbers of the nodes fixed in all six directions."""

    def __init__(self, nodi, aste, sezioni, incastrati, e, g):
        self.nodi, self.aste = nodi, aste
        self.posto = {}
        for n in sorted(nodi):
            if n not in incastrati:
                self.posto[n] = 6 * len(self.posto)
        gradi = 6 * len(self.posto)
        self.k = [[0.0] * gradi for _ in range(gradi)]
        self.dati = {}
        for a in aste:
            lung, assi_asta = assi(nodi[a.i], nodi[a.j], a.orientamento)
            locale = rigidezza(lung, sezioni[a.sezione], e, g)
            dove = [self.posto[n] + c if n in self.posto else -1 for n in (a.i, a.j) for c in range(6)]
            self.dati[a.numero] = (lung, assi_asta, locale, dove)
            globale = ruota(locale, assi_asta)
            for i in range(12):
                for j in range(12):
                    if dove[i] >= 0 and dove[j] >= 0:
                        self.k[dove[i]][dove[j]] += globale[i][j]
        fattorizza(self.k)

    def analizza(self, carichi_nodi, carichi_aste, divisioni):
        """carichi_nodi {node: six}, carichi_aste {bar: three, per cm of bar}, all global. Returns {bar: [six for each section]}: the force and
        the moment that the part beyond the section exerts on the part before it, in the bar's axes."""
        b = [0.0] * len(self.k)
        for n, c in carichi_nodi.items():
            for k in range(6):
                b[self.posto[n] + k] += c[k]
        fissi = {}
        for a in self.aste:
            lung, assi_asta, _, dove = self.dati[a.numero]
            q = carichi_aste.get(a.numero, (0.0, 0.0, 0.0))
            ql = [scalare(assi_asta[k], q) for k in range(3)]
            f = incastro(lung, ql)
            fissi[a.numero] = (ql, f)
            for blocco in range(0, 12, 3):
                for c in range(3):
                    if dove[blocco + c] >= 0:
                        b[dove[blocco + c]] -= somma(assi_asta[k][c] * f[blocco + k] for k in range(3))
        u = risolvi(self.k, b)
        risultati = {}
        for a in self.aste:
            lung, assi_asta, locale, dove = self.dati[a.numero]
            ql, f = fissi[a.numero]
            ug = [u[d] if d >= 0 else 0.0 for d in dove]
            ul = [somma(assi_asta[r % 3][c] * ug[r // 3 * 3 + c] for c in range(3)) for r in range(12)]
            p = [f[i] + somma(locale[i][j] * ul[j] for j in range(12)) for i in range(6)]
            sezioni = []
            for d in range(divisioni + 1):
                s = lung * d / divisioni
                forza = [-p[k] - ql[k] * s for k in range(3)]
                # moment of what acts on the part before the section; the load's resultant lies s/2 behind it
                momento = [-p[3], -p[4] - s * p[2] - s * s / 2 * ql[2], -p[5] + s * p[1] + s * s / 2 * ql[1]]
                sezioni.append(forza + momento)
            risultati[a.numero] = sezioni
        return risultati
