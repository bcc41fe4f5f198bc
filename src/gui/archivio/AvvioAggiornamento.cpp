#include "gui/archivio/AvvioAggiornamento.h"

#include <functional>
#include <optional>

#include "agenda/VerificaGioco.h"
#include "archive/ArchivioGioco.h"
#include "archive/Estrazione.h"
#include "gui/archivio/AggiornamentoArchivio.h"
#include "gui/archivio/DialoghiArchivioGui.h"
#include "gui/comuni/LavoroConProgresso.h"

namespace lottolab::gui {

namespace {

const std::string kTitolo = "Aggiorna archivio";
const std::string kFiltroRisultati = "Risultati (*.txt *.zip);;Tutti i file (*)";

std::shared_ptr<DialoghiArchivio> DialoghiPer(std::shared_ptr<DialoghiArchivio> dialoghi, QWidget* finestra) {
  return dialoghi ? std::move(dialoghi) : std::make_shared<DialoghiArchivioGui>(finestra);
}

struct Lavoro {
  QString descrizione;
  std::function<EsitoAggiornamento(Avanzamento&)> esegui;
  Annullabile annullabile = Annullabile::No;  // a download can stop, an import cannot
};

// The source the user chooses; nothing when the user cancels.
std::optional<Lavoro> ScegliLavoro(const ContestoGui& contesto, DialoghiArchivio& dialoghi) {
  const AggiornamentoArchivio aggiornamento(contesto.Configurazione());
  const std::optional<size_t> scelta =
      dialoghi.Scegli(kTitolo,
                      "Da dove prendere le nuove estrazioni?\n\n"
                      "Scarica: i risultati pubblicati dall'operatore, per il Lotto e per ogni gioco di cui "
                      "lottolab.ini dà l'indirizzo (serve Internet).\n"
                      "Da file: un file dei risultati del Lotto già scaricato, di testo o zip.",
                      {"Scarica", "Da file..."});
  if (scelta == 0u)
    return Lavoro{QStringLiteral("Scaricamento e importazione dei risultati..."),
                  [aggiornamento](Avanzamento& avanzamento) {
                    return aggiornamento.Scarica([&](std::string passo) { avanzamento.Passo(std::move(passo)); },
                                                 [&] { return avanzamento.Annullato(); });
                  },
                  Annullabile::Si};
  if (scelta != 1u) return std::nullopt;
  auto file = dialoghi.ScegliFile("File dei risultati del Lotto", contesto.Configurazione().base, kFiltroRisultati);
  if (!file) return std::nullopt;
  return Lavoro{QStringLiteral("Importazione dei risultati..."),
                [aggiornamento, percorso = *file](Avanzamento&) { return aggiornamento.ImportaDaFile(percorso); }};
}

// A report with a critical failure in it says so by its icon.
TipoAvviso TipoDelResoconto(const EsitoAggiornamento& esito) {
  auto critico = [](const Esito<int>& aggiunte) { return !aggiunte && aggiunte.Errore().tipo == TipoAvviso::Critico; };
  bool grave = critico(esito.lotto.aggiunte);
  for (const EsitoAggiornamento::DelGioco& del : esito.giochi) grave = grave || critico(del.esito.aggiunte);
  return grave ? TipoAvviso::Critico : TipoAvviso::Esclamativo;
}

void MostraEsito(ContestoGui& contesto, DialoghiArchivio& dialoghi, const EsitoAggiornamento& esito) {
  // The files grew even if a reload fails, so both are told.
  if (esito.lotto.aggiunte.ValoreOppure(0) > 0)
    if (auto ricaricato = contesto.RicaricaArchivio(); !ricaricato) dialoghi.Mostra(ricaricato.Errore());
  if (esito.GiochiCambiati()) contesto.RicaricaArchiviGiochi();

  const std::string testo = TestoAggiornamento(esito);
  if (esito.Riuscito())
    dialoghi.Informa(kTitolo, testo);
  else
    dialoghi.Mostra(Avviso{TipoDelResoconto(esito), kTitolo, testo});

  if (esito.lotto.aggiunte) return;
  // A Lotto archive refused for a partial record at its end is reloaded: the main window then offers
  // its repair, as it does when it opens one.
  std::error_code ec;
  const uintmax_t lunghezza = std::filesystem::file_size(contesto.Configurazione().ArchivioLotto(), ec);
  if (!ec && lunghezza % kByteRecordArchivio != 0) (void)contesto.RicaricaArchivio();
}

}  // namespace

void AvviaAggiornamentoArchivio(ContestoGui& contesto, QWidget* finestra, std::shared_ptr<DialoghiArchivio> dialoghi) {
  dialoghi = DialoghiPer(std::move(dialoghi), finestra);
  std::optional<Lavoro> lavoro = ScegliLavoro(contesto, *dialoghi);
  if (!lavoro) return;
  AvviaLavoroConProgresso<EsitoAggiornamento>(
      finestra, QString::fromStdString(kTitolo), lavoro->descrizione, "AggiornamentoArchivio.Avvia",
      std::move(lavoro->esegui),
      [&contesto, dialoghi](const Esito<EsitoAggiornamento>& esito) {
        if (esito)
          MostraEsito(contesto, *dialoghi, *esito);
        else
          dialoghi->Mostra(esito.Errore());
      },
      lavoro->annullabile);
}

void AvviaImportazioneGioco(ContestoGui& contesto, Gioco gioco, QWidget* finestra,
                            std::shared_ptr<DialoghiArchivio> dialoghi) {
  dialoghi = DialoghiPer(std::move(dialoghi), finestra);
  const std::string nome(Formato(gioco).nome);
  auto file = dialoghi->ScegliFile("File dei risultati del " + nome, contesto.Configurazione().base, kFiltroRisultati);
  if (!file) return;
  const std::string titolo = "Importa nell'" + NomeArchivioGioco(Formato(gioco));
  // The game's open bets of the agenda are checked on the draws the import added, as an update does.
  struct Importazione {
    EsitoImportazione esito;
    std::optional<Esito<agenda::EsitoVerificaAgenda>> agenda;
  };
  AvviaLavoroConProgresso<Importazione>(
      finestra, QString::fromStdString(titolo), QStringLiteral("Importazione dei risultati..."),
      "ImportazioneGioco.Avvia",
      [configurazione = contesto.Configurazione(), gioco, percorso = *file](Avanzamento&) {
        Importazione fatta{ImportaRisultatiGioco(configurazione, gioco, percorso), std::nullopt};
        const auto dell_agenda = agenda::GiocoDaSigla(Formato(gioco).sigla);
        if (fatta.esito.aggiunte.ValoreOppure(0) > 0 && dell_agenda && agenda::GiocoDellArchivio(*dell_agenda) == gioco)
          fatta.agenda = VerificaAgendaDopoAggiornamento(configurazione, {*dell_agenda});
        return fatta;
      },
      [&contesto, dialoghi, nome, titolo](const Esito<Importazione>& fatta) {
        if (!fatta) {
          dialoghi->Mostra(fatta.Errore());
          return;
        }
        const EsitoImportazione& esito = fatta->esito;
        if (esito.aggiunte.ValoreOppure(0) > 0) contesto.RicaricaArchiviGiochi();
        std::vector<std::string> avvisi = esito.avvisi;
        std::string riga = RigaImportazione(nome, esito.aggiunte);
        if (fatta->agenda) riga += "\n" + RigaAgenda(*fatta->agenda, avvisi);
        const std::string testo = ConAvvisi(riga, avvisi);
        if (esito.aggiunte)
          dialoghi->Informa(titolo, testo);
        else
          dialoghi->Mostra(Avviso{esito.aggiunte.Errore().tipo, titolo, testo});
      });
}

}  // namespace lottolab::gui
