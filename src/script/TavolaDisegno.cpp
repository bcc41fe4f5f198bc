#include "TavolaDisegno.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace lottolab::script {

ImpaginazioneTavola::ImpaginazioneTavola(const Tavola& tavola, double x, double y, const MisureTesto& misure)
    : m_gruppi(tavola.gruppi),
      m_celle_per_gruppo(tavola.celle_per_gruppo),
      m_righe(static_cast<int>(tavola.numeri.size())),
      m_titolo(!tavola.titolo.empty()),
      m_intestazioni(!tavola.intestazioni.empty()),
      m_x(x),
      m_y(y),
      m_margine(std::max(2.0, std::ceil(misure.altezza / 4))),
      m_larghezza_titolo(misure.larghezza_titolo),
      m_altezza_testo(misure.altezza) {
  m_lato = std::ceil(std::max(misure.larghezza_numero, misure.altezza)) + 2 * m_margine;
  m_etichetta = misure.larghezza_etichetta > 0 ? std::ceil(misure.larghezza_etichetta) + 2 * m_margine : 0;
}

double ImpaginazioneTavola::InizioRighe() const {
  return m_y + (m_titolo ? m_altezza_testo + 2 * m_margine : 0) + (m_intestazioni ? m_lato : 0);
}

Rettangolo ImpaginazioneTavola::Titolo() const {
  return {m_x + m_margine, m_y + m_margine, m_larghezza_titolo, m_titolo ? m_altezza_testo : 0};
}

Rettangolo ImpaginazioneTavola::Intestazione(int gruppo) const {
  const Rettangolo prima = Cella({0, gruppo * m_celle_per_gruppo});
  return {prima.x, prima.y - m_lato, m_celle_per_gruppo * m_lato, m_lato};
}

Rettangolo ImpaginazioneTavola::Etichetta(int riga) const {
  return {m_x, InizioRighe() + riga * m_lato, m_etichetta, m_lato};
}

Rettangolo ImpaginazioneTavola::Cella(PostoCella posto) const {
  const int gruppo = posto.cella / m_celle_per_gruppo;
  const int nel_gruppo = posto.cella % m_celle_per_gruppo;
  const double x = m_x + m_etichetta + gruppo * (m_celle_per_gruppo * m_lato + 2 * m_margine) + nel_gruppo * m_lato;
  return {x, InizioRighe() + posto.riga * m_lato, m_lato, m_lato};
}

double ImpaginazioneTavola::Larghezza() const {
  const double celle = m_gruppi * m_celle_per_gruppo * m_lato + (m_gruppi - 1) * 2 * m_margine;
  return std::max(m_etichetta + celle, m_larghezza_titolo + 2 * m_margine);
}

double ImpaginazioneTavola::Altezza() const { return InizioRighe() - m_y + m_righe * m_lato; }

std::string TestoNumero(int numero) { return numero ? fmt::format("{:02}", numero) : std::string(); }

namespace {

void Bordo(AreaDisegno& area, const Rettangolo& r, Rgb colore, std::optional<Rgb> riempimento) {
  area.Poligono({{r.x, r.y}, {r.x + r.larghezza, r.y}, {r.x + r.larghezza, r.y + r.altezza}, {r.x, r.y + r.altezza}},
                Tratto{colore, 1, false}, riempimento);
}

// The text centred in the rectangle, or from its left edge when `a_sinistra`.
void Scrivi(AreaDisegno& area, const Rettangolo& r, const std::string& testo, const StileTavola& stile,
            bool a_sinistra = false) {
  if (testo.empty()) return;
  const double larghezza = area.TextWidth(testo, stile.dimensione);
  const double altezza = area.TextHeight(testo, stile.dimensione);
  const double x = a_sinistra ? r.x + (r.altezza - altezza) / 2 : r.CentroX() - larghezza / 2;
  area.StampaTesto(x, r.CentroY() - altezza / 2, testo, stile.testo, stile.dimensione, 0);
}

// The line from ring to ring, so that it leaves the numbers inside the rings readable.
void Congiungi(AreaDisegno& area, const Rettangolo& da, const Rettangolo& a, double raggio, const Tratto& tratto) {
  const double dx = a.CentroX() - da.CentroX();
  const double dy = a.CentroY() - da.CentroY();
  const double distanza = std::hypot(dx, dy);
  if (distanza <= 2 * raggio) return;
  const double ux = dx / distanza * raggio;
  const double uy = dy / distanza * raggio;
  area.Linea(da.CentroX() + ux, da.CentroY() + uy, a.CentroX() - ux, a.CentroY() - uy, tratto);
}

}  // namespace

double DisegnaTavola(AreaDisegno& area, const Tavola& tavola, double x, double y, const StileTavola& stile) {
  MisureTesto misure;
  misure.larghezza_numero = area.TextWidth("88", stile.dimensione);
  misure.altezza = area.TextHeight("88", stile.dimensione);
  misure.larghezza_titolo = tavola.titolo.empty() ? 0 : area.TextWidth(tavola.titolo, stile.dimensione);
  for (const std::string& etichetta : tavola.etichette)
    misure.larghezza_etichetta =
        std::max<double>(misure.larghezza_etichetta, area.TextWidth(etichetta, stile.dimensione));
  const ImpaginazioneTavola impaginazione(tavola, x, y, misure);

  const int celle = tavola.gruppi * tavola.celle_per_gruppo;
  for (int riga = 0; riga < static_cast<int>(tavola.numeri.size()); ++riga) {
    for (int cella = 0; cella < celle; ++cella) {
      const PostoCella posto{riga, cella};
      const bool evidenziata =
          std::find(tavola.evidenziate.begin(), tavola.evidenziate.end(), posto) != tavola.evidenziate.end();
      const Rettangolo r = impaginazione.Cella(posto);
      Bordo(area, r, stile.griglia, evidenziata ? std::optional<Rgb>(stile.evidenziate) : std::nullopt);
      const auto& numeri = tavola.numeri[static_cast<size_t>(riga)];
      if (static_cast<size_t>(cella) < numeri.size())
        Scrivi(area, r, TestoNumero(numeri[static_cast<size_t>(cella)]), stile);
    }
    if (static_cast<size_t>(riga) < tavola.etichette.size())
      Scrivi(area, impaginazione.Etichetta(riga), tavola.etichette[static_cast<size_t>(riga)], stile, true);
  }
  for (size_t gruppo = 0; gruppo < tavola.intestazioni.size(); ++gruppo)
    Scrivi(area, impaginazione.Intestazione(static_cast<int>(gruppo)), tavola.intestazioni[gruppo], stile);
  if (!tavola.titolo.empty()) {
    const Rettangolo titolo = impaginazione.Titolo();
    area.StampaTesto(titolo.x, titolo.y, tavola.titolo, stile.testo, stile.dimensione, 0);
  }

  const double raggio = impaginazione.Raggio();
  for (size_t k = 1; k < tavola.percorso.size(); ++k)
    Congiungi(area, impaginazione.Cella(tavola.percorso[k - 1]), impaginazione.Cella(tavola.percorso[k]), raggio,
              stile.vertici);
  for (const PostoCella& vertice : tavola.percorso) {
    const Rettangolo r = impaginazione.Cella(vertice);
    area.Cerchio(r.CentroX(), r.CentroY(), raggio, stile.vertici, std::nullopt);
  }
  return impaginazione.Altezza();
}

}  // namespace lottolab::script
