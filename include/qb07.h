/* qb07.h - steel column bases verified from a program: a suite, joints, verifications, their checks as rows.
 *
 * Handles   qb07_suite, qb07_nodo (a joint), qb07_esito (what a verification found) are opaque. Each is given by a function that takes its
 *           address and is given back by its own _libera. A handle that is NULL, given back already, of another kind or no handle at all
 *           is refused with QB07_MANIGLIA: it is never followed. No handle needs another to stay alive: a joint outlives its suite, a
 *           result its joint.
 * Errors    Every function that can fail returns a code, QB07_OK (0) or another; qb07_testo_errore tells what the code means,
 *           qb07_ultimo_errore what was wrong in the calling thread's last call. On an error nothing is changed and what is
 *           given back through a pointer is left as it was, but where a function says otherwise. No exception leaves the library.
 * Threads   Every function may be called from any thread, also on the same handle. Loads and the opening of suites take turns;
 *           verifications run side by side, on one joint too (they wait for a call that changes it, and it for them). Results do not
 *           change once made.
 *           The rounding mode and the exception flags of the calling thread are as before behind every call.
 * Indices   Sextets, anchors and welds count from 1, as in the program's reports. Rows, checks, geometry rows and notices count from 0.
 * Units     Lengths mm, forces kN, moments kN m, stresses N/mm2, whatever the units of the suite's job. The values by their names
 *           (qb07_nodo_numero) have the model's units instead: mm, and daN/cm2 for strengths.
 * Signs     N and the anchors' forces are positive in tension. The plate lies in Z-Y: Z along the column's width, Y along its height.
 * Text      UTF-8, ended by NUL. What is handed in: no control characters, at most QB07_MAX_TESTO bytes, but for paths and command lines.
 */
#ifndef QB07_H
#define QB07_H

#include <stddef.h>

/* Declarations and their comments stand in columns. */
/* clang-format off */

#ifndef QB07_API
#if defined(_WIN32)
#define QB07_API __declspec(dllimport)
#else
#define QB07_API
#endif
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef struct qb07_suite qb07_suite;
typedef struct qb07_nodo qb07_nodo;
typedef struct qb07_esito qb07_esito;

/* ---- codes ---- */

enum {
  QB07_OK = 0,
  QB07_NULLO = 1,          /* a pointer that must not be NULL is */
  QB07_MANIGLIA = 2,       /* no such handle: NULL, given back, or of another kind */
  QB07_INDICE = 3,         /* an index or a count outside its bounds */
  QB07_NUMERO = 4,         /* a number that is not finite, not whole where it must be, or outside its bounds */
  QB07_TESTO = 5,          /* a text that is not UTF-8, too long, empty where it must not be, or holds control characters */
  QB07_NOME = 6,           /* no value, grade or profile of that name */
  QB07_TIPO = 7,           /* a number asked of a text, or the other way round */
  QB07_SCELTA = 8,         /* a method, an option or an answer that does not exist */
  QB07_AVVIO = 9,          /* the suite could not be opened; the reason is the last error */
  QB07_FILE = 10,          /* the joint could not be loaded; the reason is the last error */
  QB07_ASSENTE = 11,       /* there is no such thing here: no governing row, no facts kept */
  QB07_SPAZIO = 12,        /* the caller's room is too small; the size that it needs was told */
  QB07_FERMATA = 13,       /* the verification was stopped by qb07_nodo_ferma */
  QB07_MEMORIA = 14,       /* no memory */
  QB07_INTERNO = 15        /* a failure inside the library */
};

/* Methods of verification. */
enum {
  QB07_METODO_NODO = -1,   /* the joint's own: of its file, or as set */
  QB07_METODO_TA = 0,      /* allowable stresses, CNR 10011/88 */
  QB07_METODO_SLU = 1      /* limit states, NTC 2008 */
};

enum {
  QB07_MAX_TESTO = 255,    /* bytes of a text handed in, without its NUL */
  QB07_MAX_TIRAFONDI = 8   /* anchors of a joint */
};

/* "1.1.0". Never NULL, never freed. */
QB07_API const char *qb07_versione(void);

/* What a code means, in Italian; a text of its own for a number that is no code. Never NULL, never freed. */
QB07_API const char *qb07_testo_errore(int codice);

/* What was wrong in the calling thread's last call, in Italian; empty if nothing was. Holds until the thread's next call. Never NULL. */
QB07_API const char *qb07_ultimo_errore(void);

/* ---- suite ---- */

/* Opens a suite: its tables of profiles, grades, anchors and options are read once.
 * riga_comando  the program's command line, which names the suite's folder: "|diroot=FOLDER|".
 * decimale      '.' or ',': the decimal mark by which the catalogues are read.
 * rispondi_ok   1: questions of loads and verifications are answered OK, 0: Annulla.
 * Several suites may be open; their joints do not know each other. QB07_AVVIO if a file is missing or wrong. */
QB07_API int qb07_apri(const char *riga_comando, char decimale, int rispondi_ok, qb07_suite **suite);

/* Gives a suite back. Its joints and results stay. NULL is allowed and does nothing. */
QB07_API int qb07_suite_libera(qb07_suite *suite);

/* Boxes that the start showed, none if all was well: their number, and one from 0. The text holds until the suite is given back. */
QB07_API int qb07_suite_num_avvisi(const qb07_suite *suite, size_t *quanti);
QB07_API int qb07_suite_avviso(const qb07_suite *suite, size_t indice, const char **testo);

/* ---- joints ---- */

/* Loads a node file, as the program does: from clean tables, whatever was loaded before. QB07_FILE if it fails. */
QB07_API int qb07_carica(const qb07_suite *suite, const char *percorso, qb07_nodo **nodo);

/* The joint with which the program starts ("Nuovo"), without sextets: to be built by the values below. */
QB07_API int qb07_nodo_nuovo(const qb07_suite *suite, qb07_nodo **nodo);

QB07_API int qb07_nodo_copia(const qb07_nodo *nodo, qb07_nodo **copia);

/* Gives a joint back: calls that work on it end as they would have, results stay. NULL is allowed and does nothing. */
QB07_API int qb07_nodo_libera(qb07_nodo *nodo);

/* The joint's own method, QB07_METODO_TA or QB07_METODO_SLU. A joint holds its grades for both: by the other method they are those that the
 * program takes when its user changes the method behind the load. */
QB07_API int qb07_nodo_metodo(const qb07_nodo *nodo, int *metodo);
QB07_API int qb07_nodo_metti_metodo(qb07_nodo *nodo, int metodo);

/* A value by its name in the model, letter for letter: "LatoZ", "TfZ(3)", "Sezione.H", "MatAcc.Fyk". Whole numbers and truth are numbers
 * too. Read by the joint's own method, written for both methods. Units: mm, daN/cm2. Loads have functions of their own.
 * Whole numbers have bounds: TipoNodo 1 plain, 2 with ribs; SaldInt 0, 1; NTir 1..8; TipoTirafondo 0 straight rod with plate, 1 hooked;
 * OptionNTir 0 four, 1 eight, 2 six along the height, 3 six along the width; Esposizione -1 none, 0 exposed, 1 not, 2 resistant;
 * TfDiamIdx 0 or a row of the diameters; NumNodiStr 0..2000. Nothing else is judged: the geometry rows of a verification do that.
 * QB07_NOME unknown, QB07_INDICE index outside, QB07_TIPO a text, QB07_NUMERO not finite or outside its bounds. */
QB07_API int qb07_nodo_numero(const qb07_nodo *nodo, const char *nome, double *valore);
QB07_API int qb07_nodo_metti_numero(qb07_nodo *nodo, const char *nome, double valore);

/* The same for texts: "NomeNodo", "Sezione.Nome" (at most 18 characters), "MatAcc.Nome". Setting a grade's name sets the name only.
 * dove has room for spazio bytes; serve (may be NULL) is told the bytes that the text takes with its NUL. dove may be NULL with
 * spazio 0: then only serve is told. Too little room: QB07_SPAZIO, serve is told, an empty text is written where there is room for one. */
QB07_API int qb07_nodo_testo(const qb07_nodo *nodo, const char *nome, char *dove, size_t spazio, size_t *serve);
QB07_API int qb07_nodo_metti_testo(qb07_nodo *nodo, const char *nome, const char *testo);

/* Takes a whole record from the suite's tables by its name (blanks at both ends do not count): cosa is "Sezione", "MatAcc", "MatPiastra",
 * "MatTir", "MatCls" or "MatVit". With a concrete class its stiffness (EcCls) follows. */
QB07_API int qb07_nodo_da_tabella(qb07_nodo *nodo, const char *cosa, const char *nome);

/* The grade that the node file names ("MatAcc", "MatTir", "MatCls"): another than the one used is a notice of the verification. Empty for a
 * joint that was not loaded and for a grade set since. Room as qb07_nodo_testo. */
QB07_API int qb07_nodo_grado_file(const qb07_nodo *nodo, const char *cosa, char *dove, size_t spazio, size_t *serve);

/* Rules of the joint, as the program follows them when a field is typed; sums of the numbers below, carried out in their order. */
enum {
  QB07_REGOLA_DIAMETRO = 1,    /* TfFi of row TfDiamIdx of the suite's diameters */
  QB07_REGOLA_TIRAFONDI = 2,   /* NTir, and anchors 5 to 8 from the corner ones, by OptionNTir and the plate's sides */
  QB07_REGOLA_GOLA = 4,        /* GolaCalc, the throat, of the side Gola */
  QB07_REGOLA_CLS = 8,         /* EcCls of MatCls.Rck */
  QB07_REGOLA_SMUSSI = 16      /* NervTaglio, NervZ, NervY, the ribs' chamfers */
};
QB07_API int qb07_nodo_regole(qb07_nodo *nodo, unsigned regole);

/* The corner anchors by their distances from the plate's edges, mm: left, right, upper, lower; then the others by OptionNTir. */
QB07_API int qb07_nodo_distanze(qb07_nodo *nodo, double sinistra, double destra, double sopra, double sotto);

/* ---- loads ---- */

typedef struct qb07_sestetto {
  const char *nome;            /* NULL or empty: "Soll n" */
  int classe;                  /* load class of the allowable stresses: 1 or 2 */
  double N, Ty, Tz;            /* kN */
  double Mt, My, Mz;           /* kN m */
} qb07_sestetto;

/* The joint's sextets are those of the list, and no others; 0 empties it (sestetti may be NULL then). Any number. */
QB07_API int qb07_nodo_metti_sestetti(qb07_nodo *nodo, const qb07_sestetto *sestetti, size_t quanti);
QB07_API int qb07_nodo_num_sestetti(const qb07_nodo *nodo, size_t *quanti);
/* Sextet n from 1; its nome is NULL: the name has a function of its own, with room as qb07_nodo_testo. */
QB07_API int qb07_nodo_sestetto(const qb07_nodo *nodo, size_t n, qb07_sestetto *sestetto);
QB07_API int qb07_nodo_nome_sestetto(const qb07_nodo *nodo, size_t n, char *dove, size_t spazio, size_t *serve);

/* ---- verification ---- */

/* Options, sums. */
enum {
  QB07_SENZA_FATTI = 1,        /* keeps no facts of the sextets */
  QB07_SOLO_GOVERNANTI = 2     /* keeps of the rows only the governing ones, and the verdicts: a long list in little memory */
};

/* Verifies all sextets of the joint by a method. The joint does not change. QB07_OK: there is a result, which may say that the joint
 * was refused or that its verification was stopped (QB07_NON_ESEGUITO, with the reason). QB07_FERMATA: qb07_nodo_ferma came in between.
 * By allowable stresses the anchors' bond limit is the least of the sextets so far, over the whole list. */
QB07_API int qb07_verifica(const qb07_nodo *nodo, int metodo, unsigned opzioni, qb07_esito **esito);

/* Stops the verifications of this joint that are running now, each within 200 sextets. Not those that begin later. */
QB07_API int qb07_nodo_ferma(const qb07_nodo *nodo);

QB07_API int qb07_esito_libera(qb07_esito *esito);      /* NULL is allowed and does nothing */

enum { QB07_VERIFICATO = 0, QB07_NON_VERIFICATO = 1, QB07_NON_ESEGUITO = 2 };
/* The verdict. A joint without sextets is QB07_VERIFICATO, with the notice senza_sestetti. */
QB07_API int qb07_esito_stato(const qb07_esito *esito, int *stato);
/* Why it was not carried out; empty if it was. Holds until the result is given back, as all texts of a result do. */
QB07_API int qb07_esito_motivo(const qb07_esito *esito, const char **testo);
QB07_API int qb07_esito_metodo(const qb07_esito *esito, int *metodo);
/* Sextets judged: those of the joint, none if it was not carried out. */
QB07_API int qb07_esito_num_sestetti(const qb07_esito *esito, size_t *quanti);
/* Sextet n from 1 passes all its checks: 1, else 0. */
QB07_API int qb07_esito_passa(const qb07_esito *esito, size_t n, int *passa);

/* One check of one sextet at one element. The texts are never freed. */
typedef struct qb07_riga {
  const char *id;              /* "tir.coeff", "sald", "piastra", ... */
  int controllo;               /* position of the check in its method's table, from 0 */
  int sestetto;                /* from 1 */
  int elemento;                /* number of the anchor or weld, 0 where there is none */
  double domanda, limite;      /* the two numbers compared, in unita */
  const char *unita;           /* "N/mm2", "kN" or "-" */
  int con_rapporto;            /* 0: the limit gives no ratio; the next two are 0 */
  double rapporto;             /* domanda / limite */
  double sfruttamento;         /* what ranks rows of different checks: the ratio, or its root for a sum of squares */
  int passa;                   /* the check's own comparison, 1 or 0: not the same as rapporto <= 1 */
  const char *clausola;        /* source of the limit */
} qb07_riga;

/* Rows come by sextet, then by check, then by element; all sextets have the same ones. With QB07_SOLO_GOVERNANTI there are none. */
QB07_API int qb07_esito_num_righe(const qb07_esito *esito, size_t *quante);
QB07_API int qb07_esito_righe_per_sestetto(const qb07_esito *esito, size_t *quante);
QB07_API int qb07_esito_riga(const qb07_esito *esito, size_t indice, qb07_riga *riga);
/* Rows indice .. indice + quante - 1 into an array of that length; quante 0 is allowed. */
QB07_API int qb07_esito_righe(const qb07_esito *esito, size_t indice, size_t quante, qb07_riga *righe);

/* The row that governs the joint, a sextet (from 1), a check (position from 0). One that fails goes before all that pass, then the largest
 * sfruttamento; ties: lower sextet, then order of the checks, then lower element. QB07_ASSENTE if there is none. */
QB07_API int qb07_esito_governante(const qb07_esito *esito, qb07_riga *riga);
QB07_API int qb07_esito_governante_sestetto(const qb07_esito *esito, size_t n, qb07_riga *riga);
QB07_API int qb07_esito_governante_controllo(const qb07_esito *esito, int controllo, qb07_riga *riga);

/* The checks of a method, in the order of its table. The texts are never freed. */
typedef struct qb07_controllo {
  const char *id, *nome;       /* nome: Italian, for a person */
  const char *unita, *clausola;
} qb07_controllo;
QB07_API int qb07_num_controlli(int metodo, int *quanti);
QB07_API int qb07_leggi_controllo(int metodo, int controllo, qb07_controllo *dove);

/* What the solution of a sextet tells besides its checks. Points in mm from the plate's centre, z to the right, y downward in the plan. */
typedef struct qb07_fatti {
  double pressione_max;        /* N/mm2, positive */
  double area_compressa;       /* per cent of the plate */
  int con_asse;                /* 0: the neutral axis does not cut the plate; asse is 0 */
  double asse[2][2];           /* its two ends on the plate's edges: [0] first, [1] second; [][0] z, [][1] y */
  int con_risultante;          /* 0: no concrete is compressed; the next three are 0 */
  double risultante_N;         /* kN, negative: pressure less the concrete displaced by compressed anchors */
  double risultante_z, risultante_y;
  double residuo_percento;     /* largest of the three equilibrium errors, re-integrated, per cent */
  int iterazioni;              /* of the solver */
  int num_tirafondi;
  double forza_tir[QB07_MAX_TIRAFONDI];    /* kN, + tension; anchor i at [i - 1], 0 behind the last */
} qb07_fatti;
QB07_API int qb07_esito_fatti(const qb07_esito *esito, size_t n, qb07_fatti *fatti);     /* QB07_ASSENTE with QB07_SENZA_FATTI */

/* The checks of the joint's geometry, all of them, also where the verification was refused. */
typedef struct qb07_geometria {
  const char *id, *testo;      /* testo: of the box that the program shows where it fails */
  int passa;
  int con_confronto;           /* 0: it compares nothing here; the next two are 0 */
  double domanda, limite;      /* mm, the two sides of the comparison with the least margin */
} qb07_geometria;
QB07_API int qb07_esito_num_geometria(const qb07_esito *esito, size_t *quante);
QB07_API int qb07_esito_geometria(const qb07_esito *esito, size_t indice, qb07_geometria *riga);

/* Notices: where what the method prescribes needs the engineer's eye, then the boxes of load and verification (id "messaggio",
 * "domanda" with the answer given), in the order of happening. */
QB07_API int qb07_esito_num_avvisi(const qb07_esito *esito, size_t *quanti);
QB07_API int qb07_esito_avviso(const qb07_esito *esito, size_t indice, const char **id, const char **testo);

#ifdef __cplusplus
}
#endif

#endif
