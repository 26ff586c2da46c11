/* esempio.c - a joint of a suite verified by both methods: the verdict, the row that governs each check, the facts of the worst sextet.
 * Use       esempio "|diroot=SUITE|" NODO.qb7
 * Status    0 verified by both methods, 1 by one of them not, 2 something was not done. */
#include <qb07.h>
#include <stdio.h>

static int errore(const char *cosa) {
  fprintf(stderr, "errore: %s: %s\n", cosa, qb07_ultimo_errore());
  return 2;
}

static void stampa_riga(const qb07_riga *r) {
  printf("%s,%d,%d,%.17g,%.17g,%s,%s\n", r->id, r->sestetto, r->elemento, r->domanda, r->limite, r->unita, r->passa ? "true" : "false");
}

static int stampa_fatti(const qb07_esito *esito, int sestetto) {
  qb07_fatti f;
  int i;
  if (qb07_esito_fatti(esito, (size_t)sestetto, &f) != QB07_OK) return errore("fatti");
  printf("pressione_max,%.17g\narea_compressa,%.17g\n", f.pressione_max, f.area_compressa);
  for (i = 0; i < f.num_tirafondi; i++) printf("forza_tir,%d,%.17g\n", i + 1, f.forza_tir[i]);
  return 0;
}

static int stampa_esito(const qb07_esito *esito, int metodo) {
  static const char *const STATO[] = {"verificato", "non verificato", "non eseguito"};
  const char *motivo = "";
  int stato = QB07_NON_ESEGUITO, quanti = 0, c;
  qb07_riga r;
  if (qb07_esito_stato(esito, &stato) != QB07_OK || qb07_num_controlli(metodo, &quanti) != QB07_OK) return errore("esito");
  printf("%s: %s\n", metodo == QB07_METODO_TA ? "ta" : "slu", STATO[stato]);
  if (stato == QB07_NON_ESEGUITO) {
    if (qb07_esito_motivo(esito, &motivo) == QB07_OK) fprintf(stderr, "%s\n", motivo);
    return 2;
  }
  for (c = 0; c < quanti; c++)
    if (qb07_esito_governante_controllo(esito, c, &r) == QB07_OK) stampa_riga(&r);
  if (qb07_esito_governante(esito, &r) == QB07_OK && stampa_fatti(esito, r.sestetto) != 0) return 2;
  return stato == QB07_VERIFICATO ? 0 : 1;
}

static int verifica(const qb07_nodo *nodo, int metodo) {
  qb07_esito *esito = NULL;
  int stato;
  if (qb07_verifica(nodo, metodo, 0, &esito) != QB07_OK) return errore("verifica");
  stato = stampa_esito(esito, metodo);
  qb07_esito_libera(esito);
  return stato;
}

int main(int argc, char **argv) {
  qb07_suite *suite = NULL;
  qb07_nodo *nodo = NULL;
  int ta, slu;
  if (argc != 3) {
    fprintf(stderr, "uso: esempio \"|diroot=SUITE|\" NODO.qb7\n");
    return 2;
  }
  if (qb07_apri(argv[1], '.', 1, &suite) != QB07_OK) return errore(argv[1]);
  if (qb07_carica(suite, argv[2], &nodo) != QB07_OK) {
    qb07_suite_libera(suite);
    return errore(argv[2]);
  }
  qb07_suite_libera(suite); /* the joint has what it needs */
  ta = verifica(nodo, QB07_METODO_TA);
  slu = verifica(nodo, QB07_METODO_SLU);
  qb07_nodo_libera(nodo);
  return ta > slu ? ta : slu;
}
