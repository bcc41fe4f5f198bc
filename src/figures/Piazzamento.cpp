#include "Piazzamento.h"

#include <algorithm>

namespace lottolab::figures {

namespace {

constexpr int16_t kRovesciato = -1;
constexpr int16_t kEntrambiIVersi = 2;

// The readings a direction setting asks for: +1 as drawn, -1 turned over.
std::vector<int> Versi(int16_t verso) {
  if (verso == kEntrambiIVersi) return {1, -1};
  if (verso == kRovesciato) return {-1};
  return {1};
}

Forma Orientata(const std::vector<Forma::Punto>& punti, int verso_righe, int verso_colonne) {
  Forma forma;
  for (const Forma::Punto& punto : punti)
    forma.punti.push_back({punto.righe * verso_righe, punto.colonne * verso_colonne, punto.chiusura});
  const auto [riga_min, riga_max] = std::minmax_element(forma.punti.begin(), forma.punti.end(),
                                                        [](const auto& a, const auto& b) { return a.righe < b.righe; });
  const auto [colonna_min, colonna_max] = std::minmax_element(
      forma.punti.begin(), forma.punti.end(), [](const auto& a, const auto& b) { return a.colonne < b.colonne; });
  forma.riga_minima = riga_min->righe;
  forma.riga_massima = riga_max->righe;
  forma.colonna_minima = colonna_min->colonne;
  forma.colonna_massima = colonna_max->colonne;
  return forma;
}

}  // namespace

std::vector<Forma> FormeDaCercare(const Struttura& struttura) {
  std::vector<const ClsVertice*> vertici;
  for (const ClsVertice& vertice : struttura.vertici)
    if (vertice.Index != 0) vertici.push_back(&vertice);
  if (vertici.empty()) return {};

  auto pivot = [&](bool ClsVertice::*segno) {
    auto it = std::find_if(vertici.begin(), vertici.end(), [&](const ClsVertice* v) { return v->*segno; });
    return it == vertici.end() ? vertici.front() : *it;
  };
  const ClsVertice& verticale = *pivot(&ClsVertice::FulcroVert);
  const ClsVertice& orizzontale = *pivot(&ClsVertice::FulcroOrizz);

  std::vector<Forma::Punto> punti;
  for (const ClsVertice* vertice : vertici)
    punti.push_back({vertice->Riga - verticale.Riga, vertice->Colonna - orizzontale.Colonna, vertice->UsaPerChiusura});

  std::vector<Forma> forme;
  for (int verso_righe : Versi(verticale.VersoVert))
    for (int verso_colonne : Versi(orizzontale.VersoOrizz)) {
      Forma forma = Orientata(punti, verso_righe, verso_colonne);
      if (std::find(forme.begin(), forme.end(), forma) == forme.end()) forme.push_back(std::move(forma));
    }
  return forme;
}

}  // namespace lottolab::figures
