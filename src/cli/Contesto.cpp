#include "Contesto.h"

#include "archive/ClsEstrazioni.h"

namespace lottolab::cli {

namespace {

// A terminal message stays on one line: a line break becomes a single blank.
std::string SuUnaRiga(const std::string& testo) {
  std::string riga;
  for (char c : testo) {
    if (c != '\n')
      riga += c;
    else if (!riga.empty() && riga.back() != ' ')
      riga += ' ';
  }
  while (!riga.empty() && riga.back() == ' ') riga.pop_back();
  return riga;
}

}  // namespace

void SegnalatoreTerminale::Avverti(const std::string& testo) {
  m_err << "lottolab: attenzione: " << SuUnaRiga(testo) << '\n';
}

void SegnalatoreTerminale::Mostra(const Avviso& avviso) {
  std::string testo = SuUnaRiga(avviso.testo);
  if (avviso.tipo == TipoAvviso::Critico && !avviso.titolo.empty()) testo = avviso.titolo + ": " + testo;
  m_err << "lottolab: " << testo << '\n';
  int codice = avviso.tipo == TipoAvviso::Critico ? kUscitaErrore : kUscitaInputNonValido;
  if (m_codice == kUscitaRiuscita) m_codice = codice;
}

int Contesto::Fallisci(const Avviso& avviso) {
  segnalatore.Mostra(avviso);
  return segnalatore.CodiceUscita();
}

Esito<EstrazioniCaricate> Contesto::CaricaTabellaControllata() const {
  return ClsEstrazioni(archivio).CaricaEControlla();
}

Esito<TabellaEstrazioni> Contesto::CaricaTabella() const {
  auto caricate = CaricaTabellaControllata();
  if (!caricate) return caricate.Errore();
  for (const std::string& avviso : caricate->rapporto.Avvisi()) segnalatore.Avverti(avviso);
  return std::move(caricate).Valore().tabella;
}

Esito<TabellaEstrazioni> Contesto::CaricaTabellaNonVuota() const {
  auto tabella = CaricaTabella();
  if (tabella && tabella->Vuota()) return AvvisoEsclamativo("l'archivio non contiene estrazioni");
  return tabella;
}

}  // namespace lottolab::cli
