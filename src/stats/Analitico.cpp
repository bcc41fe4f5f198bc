#include "Analitico.h"

#include <algorithm>
#include <cassert>

namespace lottolab::stats {

std::optional<StatisticaNumero> TabellaAnalitica::Dati(int ruota, int numero) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && numero >= 1 && numero <= kMassimoNumero);
  if (!m_presente[ruota]) return std::nullopt;
  return m_dati[ruota][numero];
}

bool TabellaAnalitica::RuotaPresente(int ruota) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote);
  return m_presente[ruota];
}

size_t Analitico::Lista(int ruota, int numero) {
  return static_cast<size_t>((ruota - 1) * kMassimoNumero + (numero - 1));
}

std::span<const Analitico::Vincita> Analitico::Vincite(int ruota, int numero) const {
  const size_t lista = Lista(ruota, numero);
  return std::span<const Vincita>(m_vincite).subspan(m_inizi[lista], m_inizi[lista + 1] - m_inizi[lista]);
}

std::span<const Analitico::Vincita> Analitico::VinciteFino(int ruota, int numero, int fine) const {
  const std::span<const Vincita> vincite = Vincite(ruota, numero);
  const auto oltre = std::upper_bound(vincite.begin(), vincite.end(), fine,
                                      [](int id, const Vincita& vincita) { return id < vincita.estrazione; });
  return vincite.first(static_cast<size_t>(oltre - vincite.begin()));
}

Analitico::Analitico(const TabellaEstrazioni& tab) {
  const int ultima = tab.EstrazioniArchivio();
  for (auto& contate : m_contate) contate.assign(static_cast<size_t>(ultima) + 1, 0);

  // Two walks: the first sizes every list and counts the draws, the second fills the lists in place.
  std::vector<size_t> quante(static_cast<size_t>(kTutteLeRuote) * kMassimoNumero, 0);
  for (int id = 1; id <= ultima; ++id) {
    const Estrazione& estrazione = tab[id];
    for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota)
      m_contate[ruota][static_cast<size_t>(id)] = m_contate[ruota][static_cast<size_t>(id - 1)];
    if (!estrazione.Presente()) continue;
    std::array<bool, kMassimoNumero + 1> uscito{};
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const int numero = estrazione.Numero(ruota, p);
        if (numero == 0 || numero > kMassimoNumero) continue;
        ++quante[Lista(ruota, numero)];
        if (!uscito[numero]) ++quante[Lista(kTutteLeRuote, numero)];
        uscito[numero] = true;
      }
      if (estrazione.RuotaEstratta(ruota)) ++m_contate[ruota][static_cast<size_t>(id)];
    }
    ++m_contate[kTutteLeRuote][static_cast<size_t>(id)];
  }
  m_inizi.assign(quante.size() + 1, 0);
  for (size_t lista = 0; lista < quante.size(); ++lista) m_inizi[lista + 1] = m_inizi[lista] + quante[lista];
  m_vincite.resize(m_inizi.back());

  std::vector<size_t> libero(m_inizi.begin(), m_inizi.end() - 1);
  // A win in draw `id` closes the run that began after the list's previous win.
  const auto aggiungi = [&](int ruota, int numero, int id, int quante_volte) {
    const size_t lista = Lista(ruota, numero);
    const std::vector<int>& contate = m_contate[ruota];
    const bool prima = libero[lista] == m_inizi[lista];
    const Vincita precedente = prima ? Vincita{0, 0, 0} : m_vincite[libero[lista] - 1];
    const int corsa = contate[static_cast<size_t>(id - 1)] - contate[static_cast<size_t>(precedente.estrazione)];
    m_vincite[libero[lista]++] = {id, precedente.frequenza + quante_volte, std::max(precedente.massimo_chiuso, corsa)};
  };
  for (int id = 1; id <= ultima; ++id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    std::array<int, kMassimoNumero + 1> uscite{};
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      for (int p = 1; p <= kNumeriPerRuota; ++p) {
        const int numero = estrazione.Numero(ruota, p);
        if (numero == 0 || numero > kMassimoNumero) continue;
        aggiungi(ruota, numero, id, 1);
        ++uscite[numero];
      }
    }
    // On all wheels together every wheel that shows the number adds to the frequency.
    for (int numero = 1; numero <= kMassimoNumero; ++numero)
      if (uscite[numero] > 0) aggiungi(kTutteLeRuote, numero, id, uscite[numero]);
  }
}

std::optional<StatisticaNumero> Analitico::Dati(int ruota, int numero, int fine) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && numero >= 1 && numero <= kMassimoNumero);
  assert(fine >= 0 && fine <= Estrazioni());
  if (!RuotaPresente(ruota, fine)) return std::nullopt;
  const std::span<const Vincita> vincite = VinciteFino(ruota, numero, fine);
  const Vincita ultima = vincite.empty() ? Vincita{0, 0, 0} : vincite.back();
  const std::vector<int>& contate = m_contate[ruota];
  const int ritardo = contate[static_cast<size_t>(fine)] - contate[static_cast<size_t>(ultima.estrazione)];
  return StatisticaNumero{ritardo, ultima.frequenza, std::max(ultima.massimo_chiuso, ritardo),
                          std::max(ritardo - ultima.massimo_chiuso, 0)};
}

TabellaAnalitica Analitico::Tabella(int fine) const {
  TabellaAnalitica tabella;
  tabella.m_fine = fine;
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    tabella.m_presente[ruota] = RuotaPresente(ruota, fine);
    if (!tabella.m_presente[ruota]) continue;
    for (int numero = 1; numero <= kMassimoNumero; ++numero) tabella.m_dati[ruota][numero] = *Dati(ruota, numero, fine);
  }
  return tabella;
}

std::vector<int> Analitico::RitardiPrecedenti(int ruota, int numero, int fine, int quanti) const {
  assert(quanti >= 0);
  std::vector<int> ritardi;
  if (!RuotaPresente(ruota, fine)) return ritardi;
  const std::span<const Vincita> vincite = VinciteFino(ruota, numero, fine);
  const std::vector<int>& contate = m_contate[ruota];
  for (size_t i = vincite.size(); i-- > 0 && (quanti == 0 || static_cast<int>(ritardi.size()) < quanti);) {
    const int precedente = i == 0 ? 0 : vincite[i - 1].estrazione;
    ritardi.push_back(contate[static_cast<size_t>(vincite[i].estrazione - 1)] -
                      contate[static_cast<size_t>(precedente)]);
  }
  return ritardi;
}

}  // namespace lottolab::stats
