// results/scena_svg.cpp - the shapes as SVG.
#include "results/json.h"
#include "results/scena.h"

#include <cmath>
#include <string_view>

static std::string Numero(double v) {
  std::string t;
  json::AggiungiNumero(t, std::isfinite(v) ? v : 0);
  return t;
}

static std::string Sicuro(std::string_view t) {
  std::string r;
  for (const char c : t) {
    switch (c) {
      case '&': r += "&amp;"; break;
      case '<': r += "&lt;"; break;
      case '>': r += "&gt;"; break;
      case '"': r += "&quot;"; break;
      default: r += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;  // XML has no place for the others
    }
  }
  return r;
}

static void Attributo(std::string& t, std::string_view nome, std::string_view valore) {
  t.append(" ").append(nome).append("=\"").append(Sicuro(valore)).append("\"");
}

static void Dati(std::string& t, const std::vector<std::pair<std::string, std::string>>& dati) {
  for (const auto& [nome, valore] : dati) Attributo(t, "data-" + nome, valore);
}

static void Stile(std::string& t, const Elemento& e, double scala) {
  Attributo(t, "fill", e.riempi.empty() ? "none" : e.riempi);
  if (e.tratto.empty()) return;
  Attributo(t, "stroke", e.tratto);
  Attributo(t, "stroke-width", Numero(e.spessore / scala));
  if (e.tratteggiata) Attributo(t, "stroke-dasharray", Numero(6 / scala) + " " + Numero(4 / scala));
}

static void Testa(std::string& t, const char* nome, const Elemento& e) {
  t.append("<").append(nome);
  if (!e.id.empty()) Attributo(t, "id", e.id);
  if (!e.classe.empty()) Attributo(t, "class", e.classe);
  Dati(t, e.dati);
}

static void Poligono(std::string& t, const Elemento& e, double scala) {
  Testa(t, "polygon", e);
  std::string punti;
  for (const PuntoScena& p : e.punti) punti += (punti.empty() ? "" : " ") + Numero(p.x) + "," + Numero(p.y);
  Attributo(t, "points", punti);
  Stile(t, e, scala);
  t += "/>\n";
}

static void Linea(std::string& t, const Elemento& e, double scala) {
  Testa(t, "line", e);
  constexpr const char* NOMI[2][2] = {{"x1", "y1"}, {"x2", "y2"}};
  for (std::size_t k = 0; k < 2; ++k) {
    Attributo(t, NOMI[k][0], Numero(e.punti[k].x));
    Attributo(t, NOMI[k][1], Numero(e.punti[k].y));
  }
  Stile(t, e, scala);
  t += "/>\n";
}

static void Cerchio(std::string& t, const Elemento& e, double scala) {
  Testa(t, "circle", e);
  Attributo(t, "cx", Numero(e.punti[0].x));
  Attributo(t, "cy", Numero(e.punti[0].y));
  Attributo(t, "r", Numero(e.raggio));
  Stile(t, e, scala);
  t += "/>\n";
}

static void Testo(std::string& t, const Elemento& e, double scala) {
  constexpr const char* ANCORE[] = {"start", "middle", "end"};
  Testa(t, "text", e);
  Attributo(t, "x", Numero(e.punti[0].x));
  Attributo(t, "y", Numero(e.punti[0].y));
  Attributo(t, "font-size", Numero(e.altezza / scala));
  Attributo(t, "text-anchor", ANCORE[static_cast<int>(e.ancora)]);
  if (e.grassetto) Attributo(t, "font-weight", "bold");
  Stile(t, e, scala);
  t.append(">").append(Sicuro(e.testo)).append("</text>\n");
}

static void Scrivi(std::string& t, const Gruppo& g, double fuori) {
  const double scala = fuori * g.scala;
  t += "<g";
  if (!g.id.empty()) Attributo(t, "id", g.id);
  Dati(t, g.dati);
  std::string trasforma = g.x != 0 || g.y != 0 || g.scala == 1 ? "translate(" + Numero(g.x) + "," + Numero(g.y) + ")" : "";
  if (g.scala != 1) trasforma += (trasforma.empty() ? "scale(" : " scale(") + Numero(g.scala) + ")";
  Attributo(t, "transform", trasforma);
  t += ">\n";
  using Scrittore = void (*)(std::string&, const Elemento&, double);
  constexpr Scrittore FORME[] = {Poligono, Linea, Cerchio, Testo};
  for (const Elemento& e : g.elementi) FORME[static_cast<int>(e.forma)](t, e, scala);
  for (const Gruppo& i : g.gruppi) Scrivi(t, i, scala);
  t += "</g>\n";
}

std::string InSvg(const Scena& s) {
  std::string t = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\"";
  Attributo(t, "width", Numero(s.larghezza));
  Attributo(t, "height", Numero(s.altezza));
  Attributo(t, "viewBox", "0 0 " + Numero(s.larghezza) + " " + Numero(s.altezza));
  Attributo(t, "font-family", "sans-serif");
  t.append(">\n<title>").append(Sicuro(s.titolo)).append("</title>\n");
  Scrivi(t, s.foglio, 1);
  return t + "</svg>\n";
}
