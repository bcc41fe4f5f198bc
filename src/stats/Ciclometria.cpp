#include "Ciclometria.h"

#include <fmt/format.h>

#include <algorithm>
#include <cassert>
#include <initializer_list>

#include "archive/Ruote.h"

namespace lottolab::stats {

namespace {

// n taken on the circle: 1..90.
constexpr int Su90(int n) { return ((n - 1) % 90 + 90) % 90 + 1; }

// The shorter way round between two numbers of the circle.
constexpr int DistanzaCerchio(int a, int b) {
  const int d = a > b ? a - b : b - a;
  return d > 45 ? 90 - d : d;
}

// The two near-squares through a diameter start 22 or 23 further on, modulo 45.
constexpr bool DiametriDiUnQuadrato(int a, int b) {
  const int scarto = (b - a + 45) % 45;
  return scarto == 22 || scarto == 23;
}

class Raccolta {
 public:
  Raccolta(const InsiemeCiclometrico& insieme, std::vector<FiguraCiclometrica>& figure)
      : m_insieme(insieme), m_figure(figure) {}

  // The figure of the vertices given in drawing order, each already in 1..90.
  void InOrdine(TipoFigura tipo, std::initializer_list<int> vertici) {
    FiguraCiclometrica& figura = m_figure.emplace_back();
    figura.tipo = tipo;
    for (int n : vertici) {
      figura.vertici[figura.quanti] = static_cast<uint8_t>(n);
      figura.ruote[figura.quanti] = m_insieme.Ruote(n);
      ++figura.quanti;
    }
  }

  // The figure of four vertices in 1..90, put in order from the smallest. A sorting network: the
  // trapezia, thousands in a draw, make this the search's innermost step.
  void Ordinati(TipoFigura tipo, int a, int b, int c, int d) {
    auto ordina = [](int& x, int& y) {
      if (y < x) std::swap(x, y);
    };
    ordina(a, b);
    ordina(c, d);
    ordina(a, c);
    ordina(b, d);
    ordina(b, c);
    InOrdine(tipo, {a, b, c, d});
  }

 private:
  const InsiemeCiclometrico& m_insieme;
  std::vector<FiguraCiclometrica>& m_figure;
};

void Diametri(const InsiemeCiclometrico& s, Raccolta& r) {
  for (int a : s.Numeri()) {
    if (a > 45) break;
    if (s.Contiene(a + 45)) r.InOrdine(TipoFigura::Diametro, {a, a + 45});
  }
}

void TriangoliEquilateri(const InsiemeCiclometrico& s, Raccolta& r) {
  for (int a : s.Numeri()) {
    if (a > 30) break;
    if (s.Contiene(a + 30) && s.Contiene(a + 60)) r.InOrdine(TipoFigura::TriangoloEquilatero, {a, a + 30, a + 60});
  }
}

void TriangoliIsosceli(const InsiemeCiclometrico& s, Raccolta& r) {
  for (int apice : s.Numeri())
    for (int d = 1; d <= 44; ++d)
      if (d != 30 && s.Contiene(apice + d) && s.Contiene(apice - d))
        r.InOrdine(TipoFigura::TriangoloIsoscele, {apice, Su90(apice + d), Su90(apice - d)});
}

void QuadratiCiclometrici(const InsiemeCiclometrico& s, Raccolta& r) {
  for (int a : s.Numeri()) {
    if (a > 45) break;
    if (s.Contiene(a + 22) && s.Contiene(a + 45) && s.Contiene(a + 67))
      r.Ordinati(TipoFigura::QuadratoCiclometrico, a, a + 22, a + 45, Su90(a + 67));
  }
}

void Rettangoli(const InsiemeCiclometrico& s, Raccolta& r) {
  std::array<int, 45> diametri;
  size_t quanti = 0;
  for (int a : s.Numeri()) {
    if (a > 45) break;
    if (s.Contiene(a + 45)) diametri[quanti++] = a;
  }
  for (size_t i = 0; i < quanti; ++i)
    for (size_t j = i + 1; j < quanti; ++j)
      if (!DiametriDiUnQuadrato(diametri[i], diametri[j]))
        r.Ordinati(TipoFigura::Rettangolo, diametri[i], diametri[j], diametri[i] + 45, diametri[j] + 45);
}

// Chords are parallel when their sums agree modulo 90; every class holds at most 45 chords, which
// share no number, so any two of a class are the parallel sides of a trapezium or of a rectangle.
void TrapeziIsosceli(const InsiemeCiclometrico& s, Raccolta& r) {
  struct Corda {
    uint8_t a, b, distanza;
  };
  std::array<std::array<Corda, 45>, 90> classi;
  std::array<uint8_t, 90> quante{};
  const auto numeri = s.Numeri();
  for (size_t i = 0; i < numeri.size(); ++i)
    for (size_t j = i + 1; j < numeri.size(); ++j) {
      const int classe = (numeri[i] + numeri[j]) % 90;
      classi[classe][quante[classe]++] = {numeri[i], numeri[j],
                                          static_cast<uint8_t>(DistanzaCerchio(numeri[i], numeri[j]))};
    }
  for (size_t classe = 0; classe < 90; ++classe)
    for (size_t i = 0; i < quante[classe]; ++i)
      for (size_t j = i + 1; j < quante[classe]; ++j) {
        const Corda& p = classi[classe][i];
        const Corda& q = classi[classe][j];
        if (p.distanza != q.distanza) r.Ordinati(TipoFigura::TrapezioIsoscele, p.a, p.b, q.a, q.b);
      }
}

void Aquiloni(const InsiemeCiclometrico& s, Raccolta& r) {
  for (int a : s.Numeri()) {
    if (a > 45) break;
    if (!s.Contiene(a + 45)) continue;
    for (int d = 1; d <= 44; ++d) {
      if (!s.Contiene(a + d) || !s.Contiene(a - d)) continue;
      if (d <= 22)
        r.InOrdine(TipoFigura::Aquilone, {a, a + d, a + 45, Su90(a - d)});
      else
        r.InOrdine(TipoFigura::Aquilone, {a + 45, Su90(a - d), a, Su90(a + d)});
    }
  }
}

}  // namespace

std::string_view NomeTipoFigura(TipoFigura tipo) {
  switch (tipo) {
    case TipoFigura::Diametro: return "Diametro";
    case TipoFigura::TriangoloEquilatero: return "Triangolo equilatero";
    case TipoFigura::TriangoloIsoscele: return "Triangolo isoscele";
    case TipoFigura::QuadratoCiclometrico: return "Quadrato ciclometrico";
    case TipoFigura::Rettangolo: return "Rettangolo";
    case TipoFigura::TrapezioIsoscele: return "Trapezio isoscele";
    case TipoFigura::Aquilone: return "Aquilone";
    case TipoFigura::Parallelepipedo: return "Parallelepipedo";
  }
  return {};
}

std::string DescrizioneFigura(const FiguraCiclometrica& figura) {
  std::string testo(NomeTipoFigura(figura.tipo));
  std::string sigle;
  bool con_ruote = false;
  for (size_t v = 0; v < figura.quanti; ++v) {
    testo += fmt::format("{}{}", v == 0 ? " " : "-", int{figura.vertici[v]});
    std::string del_vertice;
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
      if (figura.ruote[v] & (1u << (ruota - 1)))
        del_vertice += fmt::format("{}{}", del_vertice.empty() ? "" : "/", SiglaRuota(ruota));
    sigle += fmt::format("{}{}", v == 0 ? "" : ", ", del_vertice);
    con_ruote = con_ruote || figura.ruote[v] != 0;
  }
  if (con_ruote) testo += fmt::format(" ({})", sigle);
  return testo;
}

int VerticiDelTipo(TipoFigura tipo) {
  switch (tipo) {
    case TipoFigura::Diametro: return 2;
    case TipoFigura::TriangoloEquilatero:
    case TipoFigura::TriangoloIsoscele: return 3;
    default: return 4;
  }
}

void InsiemeCiclometrico::Aggiungi(int numero, uint16_t ruote) {
  assert(numero >= 1 && numero <= 90);
  if (!m_presente[numero]) {
    m_presente[numero] = true;
    auto posto = std::upper_bound(m_numeri.begin(), m_numeri.begin() + static_cast<std::ptrdiff_t>(m_quanti), numero);
    std::copy_backward(posto, m_numeri.begin() + static_cast<std::ptrdiff_t>(m_quanti),
                       m_numeri.begin() + static_cast<std::ptrdiff_t>(m_quanti) + 1);
    *posto = static_cast<uint8_t>(numero);
    ++m_quanti;
  }
  m_ruote[numero] |= ruote;
}

InsiemeCiclometrico InsiemeDaEstrazione(const Estrazione& estrazione, std::span<const int> ruote) {
  InsiemeCiclometrico insieme;
  for (int ruota : ruote) {
    assert(ruota >= 1 && ruota <= kNumeroRuote);
    if (!estrazione.RuotaEstratta(ruota)) continue;
    for (int p = 1; p <= kNumeriPerRuota; ++p) {
      const int n = estrazione.Numero(ruota, p);
      if (n >= 1 && n <= 90) insieme.Aggiungi(n, static_cast<uint16_t>(1u << (ruota - 1)));
    }
  }
  return insieme;
}

void TrovaFigure(const InsiemeCiclometrico& insieme, TipiFigura tipi, std::vector<FiguraCiclometrica>& figure) {
  Raccolta r(insieme, figure);
  if (tipi & Tipo(TipoFigura::Diametro)) Diametri(insieme, r);
  if (tipi & Tipo(TipoFigura::TriangoloEquilatero)) TriangoliEquilateri(insieme, r);
  if (tipi & Tipo(TipoFigura::TriangoloIsoscele)) TriangoliIsosceli(insieme, r);
  if (tipi & Tipo(TipoFigura::QuadratoCiclometrico)) QuadratiCiclometrici(insieme, r);
  if (tipi & Tipo(TipoFigura::Rettangolo)) Rettangoli(insieme, r);
  if (tipi & Tipo(TipoFigura::TrapezioIsoscele)) TrapeziIsosceli(insieme, r);
  if (tipi & Tipo(TipoFigura::Aquilone)) Aquiloni(insieme, r);
}

std::vector<FiguraCiclometrica> TrovaFigure(const InsiemeCiclometrico& insieme, TipiFigura tipi) {
  std::vector<FiguraCiclometrica> figure;
  TrovaFigure(insieme, tipi, figure);
  return figure;
}

void TrovaParallelepipedi(const InsiemeCiclometrico& faccia1, const InsiemeCiclometrico& faccia2,
                          std::vector<FiguraCiclometrica>& figure) {
  const auto numeri = faccia1.Numeri();
  for (size_t i = 0; i < numeri.size(); ++i)
    for (size_t j = i + 1; j < numeri.size(); ++j) {
      const int a = numeri[i];
      const int b = numeri[j];
      if (b == a + 45 || !faccia2.Contiene(a + 45) || !faccia2.Contiene(b + 45)) continue;
      std::array<int, 4> vertici{a, b, Su90(a + 45), Su90(b + 45)};
      std::sort(vertici.begin(), vertici.end());
      FiguraCiclometrica& figura = figure.emplace_back();
      figura.tipo = TipoFigura::Parallelepipedo;
      figura.quanti = 4;
      for (size_t k = 0; k < 4; ++k) {
        const int v = vertici[k];
        figura.vertici[k] = static_cast<uint8_t>(v);
        figura.ruote[k] = (v == a || v == b) ? faccia1.Ruote(v) : faccia2.Ruote(v);
      }
    }
}

}  // namespace lottolab::stats
