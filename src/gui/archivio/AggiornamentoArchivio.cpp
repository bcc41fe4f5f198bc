#include "gui/archivio/AggiornamentoArchivio.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "agenda/VerificaGioco.h"
#include "archive/AllineaDieciELotto.h"
#include "archive/ArchivioGioco.h"
#include "archive/ClsEstrazioni.h"
#include "archive/ImportaRisultati.h"
#include "gui/comuni/LavoroSenzaEccezioni.h"
#include "rete/ScaricaRisultati.h"

namespace lottolab::gui {

namespace fs = std::filesystem;

namespace {

// The games after the Lotto, in the order `lottolab aggiorna` updates them.
constexpr Gioco kAltriGiochi[] = {Gioco::SuperEnalotto, Gioco::DieciELotto, Gioco::DieciELottoOgniCinqueMinuti,
                                  Gioco::WinForLife, Gioco::Generico};

const std::string kNonRicavato = "10eLotto serale: non ricavato di nuovo dall'archivio del Lotto. ";

// "1,2 MB scaricati di 3,4 MB" ("12 KB" under a megabyte), the total left out while the server has
// not said it.
std::string TestoByte(uint64_t fatti, uint64_t totali) {
  constexpr uint64_t kMega = 1024 * 1024;
  auto mega = [](uint64_t byte) {
    if (byte < kMega) return fmt::format("{} KB", (byte + 1023) / 1024);
    std::string testo = fmt::format("{:.1f}", static_cast<double>(byte) / static_cast<double>(kMega));
    std::replace(testo.begin(), testo.end(), '.', ',');
    return testo + " MB";
  };
  if (totali == 0) return mega(fatti) + " scaricati";
  return fmt::format("{} scaricati di {}", mega(fatti), mega(totali));
}

// An import that throws is one more failed step: the steps after it still run.
template <typename Lavoro>
EsitoImportazione SenzaEccezioniImportazione(const char* procedura, Lavoro&& lavoro) {
  auto esito = SenzaEccezioni<EsitoImportazione>(procedura, std::forward<Lavoro>(lavoro));
  if (esito) return std::move(esito).Valore();
  return EsitoImportazione{esito.Errore(), {}};
}

// The desktop imports into the configured Lotto archive only, which is the one the 10eLotto is
// derived from, so the only condition left is that there is a 10eLotto archive to keep up.
std::optional<DieciELottoRicavato> RicavaDieciELotto(const app::Configurazione& configurazione,
                                                     std::vector<std::string>& avvisi) {
  const fs::path file = configurazione.ArchivioGioco(Gioco::DieciELotto);
  std::error_code ec;
  if (!fs::exists(file, ec)) return std::nullopt;
  auto lotto = ClsEstrazioni(configurazione.ArchivioLotto()).CaricaEstrazioni();
  auto allineato =
      lotto ? AllineaDieciELotto(*lotto, file) : Esito<std::optional<DieciELottoAllineato>>(lotto.Errore());
  if (!allineato) return DieciELottoRicavato{false, false, kNonRicavato + allineato.Errore().testo};
  if (!allineato->has_value()) return std::nullopt;
  const DieciELottoAllineato& fatto = **allineato;
  avvisi.insert(avvisi.end(), fatto.differenze.begin(), fatto.differenze.end());
  if (fatto.aggiunte == 0 && fatto.completate == 0)
    return DieciELottoRicavato{true, false, "10eLotto serale: nessuna serata da aggiungere dall'archivio del Lotto."};
  std::string riga = "10eLotto serale: ";
  if (fatto.aggiunte > 0)
    riga += fatto.aggiunte == 1 ? "aggiunta 1 serata" : fmt::format("aggiunte {} serate", fatto.aggiunte);
  if (fatto.completate > 0)
    riga += fmt::format(
        "{}{}", fatto.aggiunte > 0 ? ", " : "",
        fatto.completate == 1 ? "completata 1 serata" : fmt::format("completate {} serate", fatto.completate));
  return DieciELottoRicavato{true, true, riga + " dall'archivio del Lotto."};
}

}  // namespace

bool EsitoAggiornamento::Riuscito() const {
  return lotto.aggiunte.Riuscito() && (!dieci_e_lotto || dieci_e_lotto->riuscito) &&
         std::all_of(giochi.begin(), giochi.end(), [](const DelGioco& del) { return del.esito.aggiunte.Riuscito(); });
}

std::vector<agenda::GiocoGiocata> EsitoAggiornamento::GiochiCresciuti() const {
  std::vector<agenda::GiocoGiocata> cresciuti;
  auto aggiungi = [&](agenda::GiocoGiocata gioco) {
    if (std::find(cresciuti.begin(), cresciuti.end(), gioco) == cresciuti.end()) cresciuti.push_back(gioco);
  };
  if (lotto.aggiunte.ValoreOppure(0) > 0) aggiungi(agenda::GiocoGiocata::Lotto);
  if (dieci_e_lotto && dieci_e_lotto->cambiato) aggiungi(agenda::GiocoGiocata::DieciELotto);
  // The five-minute 10eLotto and the generic archive hold no bet of the agenda.
  for (const DelGioco& del : giochi)
    if (auto gioco = agenda::GiocoDaSigla(Formato(del.gioco).sigla);
        gioco && agenda::GiocoDellArchivio(*gioco) == del.gioco && del.esito.aggiunte.ValoreOppure(0) > 0)
      aggiungi(*gioco);
  return cresciuti;
}

bool EsitoAggiornamento::GiochiCambiati() const {
  return (dieci_e_lotto && dieci_e_lotto->cambiato) ||
         std::any_of(giochi.begin(), giochi.end(),
                     [](const DelGioco& del) { return del.esito.aggiunte.ValoreOppure(0) > 0; });
}

AggiornamentoArchivio::AggiornamentoArchivio(app::Configurazione configurazione)
    : m_configurazione(std::move(configurazione)) {}

EsitoAggiornamento AggiornamentoArchivio::ImportaDaFile(const fs::path& file) const {
  EsitoAggiornamento esito = ImportaLotto(file);
  esito.agenda = VerificaAgendaDopoAggiornamento(m_configurazione, esito.GiochiCresciuti());
  return esito;
}

EsitoAggiornamento AggiornamentoArchivio::ImportaLotto(const fs::path& file) const {
  EsitoAggiornamento esito;
  esito.lotto = SenzaEccezioniImportazione("AggiornamentoArchivio.ImportaDaFile", [&] {
    const fs::path archivio = m_configurazione.ArchivioLotto();
    std::error_code ec;
    // The first update of a new installation creates the archive's folder along with the archive.
    if (archivio.has_parent_path()) fs::create_directories(archivio.parent_path(), ec);
    ClsEstrazioni archivio_file(archivio);
    return EsitoImportazione{ImportaRisultati(archivio_file, file), {}};
  });
  if (esito.lotto.aggiunte.ValoreOppure(0) == 0) return esito;
  auto ricavato = SenzaEccezioni<std::optional<DieciELottoRicavato>>("AggiornamentoArchivio.RicavaDieciELotto", [&] {
    return RicavaDieciELotto(m_configurazione, esito.lotto.avvisi);
  });
  esito.dieci_e_lotto =
      ricavato ? *ricavato : DieciELottoRicavato{false, false, kNonRicavato + ricavato.Errore().testo};
  return esito;
}

EsitoImportazione AggiornamentoArchivio::ScaricaGioco(Gioco gioco,
                                                      const rete::AvanzamentoTrasferimento& avanzamento) const {
  const fs::path destinazione = m_configurazione.base / fmt::format("risultati-scaricati-{}", Formato(gioco).sigla);
  auto scaricato = rete::ScaricaRisultati(m_configurazione.IndirizzoRisultatiGioco(gioco), destinazione, avanzamento);
  if (!scaricato) return EsitoImportazione{scaricato.Errore(), {}};
  EsitoImportazione esito = ImportaRisultatiGioco(m_configurazione, gioco, *scaricato);
  std::error_code ec;
  fs::remove(*scaricato, ec);
  return esito;
}

EsitoAggiornamento AggiornamentoArchivio::Scarica(const std::function<void(std::string)>& passo,
                                                  const std::function<bool()>& annullato) const {
  std::string archivio_corrente;
  auto annuncia = [&](const std::string& archivio) {
    archivio_corrente = archivio;
    if (passo) passo(fmt::format("Aggiornamento dell'{}...", archivio));
  };
  const rete::AvanzamentoTrasferimento avanzamento = [&](uint64_t fatti, uint64_t totali) {
    if (passo) passo(fmt::format("Aggiornamento dell'{}: {}", archivio_corrente, TestoByte(fatti, totali)));
    return annullato && annullato() ? rete::Prosegui::No : rete::Prosegui::Si;
  };
  annuncia("archivio del Lotto");
  std::error_code ec;
  EsitoAggiornamento esito;
  auto scaricato = rete::ScaricaRisultati(m_configurazione.IndirizzoRisultati(),
                                          m_configurazione.base / "risultati-scaricati.zip", avanzamento);
  if (scaricato) {
    esito = ImportaLotto(*scaricato);
    fs::remove(*scaricato, ec);
  } else {
    esito.lotto.aggiunte = scaricato.Errore();
  }
  for (Gioco gioco : kAltriGiochi) {
    if (m_configurazione.IndirizzoRisultatiGioco(gioco).empty()) continue;
    annuncia(NomeArchivioGioco(Formato(gioco)));
    esito.giochi.push_back({gioco, SenzaEccezioniImportazione("AggiornamentoArchivio.ScaricaGioco",
                                                              [&] { return ScaricaGioco(gioco, avanzamento); })});
  }
  esito.agenda = VerificaAgendaDopoAggiornamento(m_configurazione, esito.GiochiCresciuti());
  return esito;
}

std::optional<Esito<agenda::EsitoVerificaAgenda>> VerificaAgendaDopoAggiornamento(
    const app::Configurazione& configurazione, const std::vector<agenda::GiocoGiocata>& giochi) {
  std::error_code ec;
  if (giochi.empty() || !fs::exists(configurazione.FileAgenda(), ec)) return std::nullopt;
  return SenzaEccezioni<agenda::EsitoVerificaAgenda>("AggiornamentoArchivio.VerificaAgenda", [&] {
    return agenda::VerificaAgendaSuiFile(configurazione.FileAgenda(),
                                         [&](agenda::GiocoGiocata gioco) {
                                           return gioco == agenda::GiocoGiocata::Lotto
                                                      ? configurazione.ArchivioLotto()
                                                      : configurazione.ArchivioGioco(agenda::GiocoDellArchivio(gioco));
                                         },
                                         {.giochi = giochi});
  });
}

std::string RigaAgenda(const Esito<agenda::EsitoVerificaAgenda>& verifica, std::vector<std::string>& avvisi) {
  if (!verifica) return "Agenda delle giocate: non verificata. " + verifica.Errore().testo;
  for (const std::string& riga : verifica->non_verificate) avvisi.push_back("Agenda: " + riga);
  const int nuove = verifica->vincite_da_vedere;
  return fmt::format("Agenda delle giocate: verificate {}, {}.", agenda::ContaGiocate(verifica->verificate),
                     nuove == 0   ? std::string("nessuna vincita da vedere")
                     : nuove == 1 ? std::string("1 vincita da vedere")
                                  : fmt::format("{} vincite da vedere", nuove));
}

std::string TestoAggiornamento(const EsitoAggiornamento& esito) {
  std::string testo = RigaImportazione("Lotto", esito.lotto.aggiunte);
  std::vector<std::string> avvisi = esito.lotto.avvisi;
  if (esito.dieci_e_lotto) testo += "\n" + esito.dieci_e_lotto->riga;
  for (const EsitoAggiornamento::DelGioco& del : esito.giochi) {
    const std::string nome(Formato(del.gioco).nome);
    testo += "\n" + RigaImportazione(nome, del.esito.aggiunte);
    for (const std::string& avviso : del.esito.avvisi) avvisi.push_back(nome + ": " + avviso);
  }
  if (esito.agenda) testo += "\n" + RigaAgenda(*esito.agenda, avvisi);
  return ConAvvisi(std::move(testo), avvisi);
}

}  // namespace lottolab::gui
