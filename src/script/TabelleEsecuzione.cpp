#include "TabelleEsecuzione.h"

#include <optional>

namespace lottolab::script {

namespace {

struct TabelleEsecuzione {
  const TabellaEstrazioni* tab = nullptr;
  int estrazioni = 0;
  std::optional<stats::ColonneRuote> colonne;
  std::optional<stats::IndiceVincite> indice;
};

TabelleEsecuzione& Tabelle(ClsFunctionsGeodoScript& lib, const TabellaEstrazioni& tab) {
  TabelleEsecuzione& tabelle = lib.Stato<TabelleEsecuzione>();
  if (tabelle.tab != &tab || tabelle.estrazioni != tab.EstrazioniArchivio())
    tabelle = TabelleEsecuzione{.tab = &tab, .estrazioni = tab.EstrazioniArchivio(), .colonne = {}, .indice = {}};
  return tabelle;
}

template <typename Tabella>
const Tabella& Costruita(std::optional<Tabella>& tabella, const TabellaEstrazioni& tab) {
  if (!tabella) tabella.emplace(tab);
  return *tabella;
}

}  // namespace

const stats::ColonneRuote& ColonneDellEsecuzione(ClsFunctionsGeodoScript& lib, const TabellaEstrazioni& tab) {
  return Costruita(Tabelle(lib, tab).colonne, tab);
}

const stats::IndiceVincite& IndiceDellEsecuzione(ClsFunctionsGeodoScript& lib, const TabellaEstrazioni& tab) {
  return Costruita(Tabelle(lib, tab).indice, tab);
}

}  // namespace lottolab::script
