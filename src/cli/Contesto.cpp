#include "Contesto.h"

#include "archive/ClsEstrazioni.h"

namespace lottolab::cli {

void SegnalatoreTerminale::Mostra(const Avviso& avviso) {
  // A terminal message stays on one line: a line break becomes a single blank.
  std::string testo;
  for (char c : avviso.testo) {
    if (c != '\n') testo += c;
    else if (!testo.empty() && testo.back() != ' ') testo += ' ';
  }
  while (!testo.empty() && testo.back() == ' ') testo.pop_back();
  if (avviso.tipo == TipoAvviso::Critico && !avviso.titolo.empty()) testo = avviso.titolo + ": " + testo;
  m_err << "lottolab: " << testo << '\n';
  int codice = avviso.tipo == TipoAvviso::Critico ? kUscitaErrore : kUscitaInputNonValido;
  if (m_codice == kUscitaRiuscita) m_codice = codice;
}

int Contesto::Fallisci(const Avviso& avviso) {
  segnalatore.Mostra(avviso);
  return segnalatore.CodiceUscita();
}

Esito<TabellaEstrazioni> Contesto::CaricaTabella() const { return ClsEstrazioni(archivio).CaricaEstrazioni(); }

Esito<TabellaEstrazioni> Contesto::CaricaTabellaNonVuota() const {
  auto tabella = CaricaTabella();
  if (tabella && tabella->Vuota()) return AvvisoEsclamativo("l'archivio non contiene estrazioni");
  return tabella;
}

}  // namespace lottolab::cli
