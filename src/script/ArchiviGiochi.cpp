#include "ArchiviGiochi.h"

#include <fmt/format.h>

#include "archive/ArchivioGioco.h"
#include "archive/DieciELotto.h"

namespace lottolab::script {

namespace {

size_t Indice(Gioco gioco) { return static_cast<size_t>(gioco); }

std::string_view Sigla(Gioco gioco) { return Formato(gioco).sigla; }

Esito<TabellaGioco> Carica(Gioco gioco, const std::filesystem::path& file, const TabellaEstrazioni* lotto) {
  std::error_code ec;
  if (gioco == Gioco::Generico) {
    if (!std::filesystem::exists(file, ec))
      return AvvisoEsclamativo(fmt::format(
          "Nessun archivio generico: si apre con ApriBaseDatiFT, o si importa con lottolab --gioco FT importa FILE "
          "({})",
          file.string()));
    return CaricaArchivioGenerico(file);
  }
  auto tabella = CaricaArchivioGioco(Formato(gioco), file);
  if (!tabella) return tabella;
  if (tabella->EstrazioniArchivio() > 0) return tabella;
  if (gioco == Gioco::DieciELotto && lotto && !lotto->Vuota())
    return TabellaGioco(Formato(gioco), DieciELottoDalLotto(*lotto));
  return AvvisoEsclamativo(
      fmt::format("L'archivio del {} ({}) è vuoto o manca: si importa con lottolab --gioco {} "
                  "importa FILE",
                  Formato(gioco).nome, file.string(), Sigla(gioco)));
}

}  // namespace

Gioco ArchiviGiochi::GiocoDi(Suffisso suffisso) const {
  switch (suffisso) {
    case Suffisso::SE: return Gioco::SuperEnalotto;
    case Suffisso::DL: return m_dl_ogni_cinque_minuti ? Gioco::DieciELottoOgniCinqueMinuti : Gioco::DieciELotto;
    case Suffisso::WF: return Gioco::WinForLife;
    case Suffisso::FT: break;
  }
  return Gioco::Generico;
}

const Esito<TabellaGioco>& ArchiviGiochi::Tabella(Suffisso suffisso, const FileDeiGiochi& file,
                                                  const TabellaEstrazioni* lotto) {
  const Gioco gioco = GiocoDi(suffisso);
  std::optional<Esito<TabellaGioco>>& tabella = m_tabelle[Indice(gioco)];
  if (!tabella) tabella.emplace(Carica(gioco, file[Indice(gioco)], lotto));
  return *tabella;
}

void ArchiviGiochi::ScegliDieciELottoOgniCinqueMinuti(bool scelto) {
  if (scelto != m_dl_ogni_cinque_minuti) m_attive[static_cast<size_t>(Suffisso::DL)].clear();
  m_dl_ogni_cinque_minuti = scelto;
}

void ArchiviGiochi::ApriGenerico(TabellaGioco tabella) {
  m_tabelle[Indice(Gioco::Generico)].emplace(std::move(tabella));
  m_attive[static_cast<size_t>(Suffisso::FT)].clear();
}

void ArchiviGiochi::Dimentica() {
  for (auto& tabella : m_tabelle) tabella.reset();
  for (auto& attive : m_attive) attive.clear();
}

void ArchiviGiochi::Dimentica(Gioco gioco) { m_tabelle[Indice(gioco)].reset(); }

std::vector<bool>& ArchiviGiochi::Attive(Suffisso suffisso, const TabellaGioco& tabella) {
  std::vector<bool>& attive = m_attive[static_cast<size_t>(suffisso)];
  const size_t dimensione = static_cast<size_t>(tabella.EstrazioniArchivio()) + 1;
  if (attive.size() != dimensione) attive.assign(dimensione, true);
  return attive;
}

}  // namespace lottolab::script
