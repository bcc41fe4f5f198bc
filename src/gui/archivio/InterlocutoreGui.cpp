#include "gui/archivio/InterlocutoreGui.h"

#include <fmt/format.h>

#include <QMessageBox>

#include "archive/DateEstrazione.h"
#include "archive/RiparaArchivio.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

namespace {

const std::string kTitolo = "Archivio delle estrazioni";

std::string Elenco(const std::vector<std::string>& righe) {
  std::string testo;
  for (const std::string& riga : righe) testo += (testo.empty() ? "" : "\n\n") + riga;
  return testo;
}

}  // namespace

void InterlocutoreGui::Mostra(const Avviso& avviso) { SegnalatoreGui(m_finestra).Mostra(avviso); }

bool InterlocutoreGui::Chiedi(const std::string& titolo, const std::string& domanda) {
  return QMessageBox::question(m_finestra, QString::fromStdString(titolo), QString::fromStdString(domanda),
                               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

std::string TestoStatoArchivio(const ContestoGui& contesto) {
  if (!contesto.ErroreCaricamento().empty()) return "Archivio non caricato: vedi Archivio > Impostazioni";
  const TabellaEstrazioni& archivio = *contesto.Archivio();
  const int estrazioni = archivio.EstrazioniArchivio();
  if (estrazioni == 0) return "Archivio vuoto: per riempirlo usa Archivio > Aggiorna archivio";
  std::string testo = estrazioni == 1 ? fmt::format("Archivio: 1 estrazione, del {}", FormattaData(archivio[1].data))
                                      : fmt::format("Archivio: {} estrazioni, l'ultima del {}", estrazioni,
                                                    FormattaData(archivio[estrazioni].data));
  const RapportoArchivio& rapporto = contesto.Rapporto();
  if (!rapporto.LunghezzaIntera())
    testo += fmt::format(" - ATTENZIONE: {} byte oltre l'ultima estrazione intera", rapporto.byte_sparsi);
  if (rapporto.record_non_validi != 0) {
    testo += rapporto.record_non_validi == 1
                 ? fmt::format(" - ATTENZIONE: 1 estrazione non valida, la n. {}", rapporto.primo_non_valido)
                 : fmt::format(" - ATTENZIONE: {} estrazioni non valide, la prima è la n. {}",
                               rapporto.record_non_validi, rapporto.primo_non_valido);
  }
  return testo;
}

void AvvisaArchivioCaricato(ContestoGui& contesto, Interlocutore& interlocutore) {
  const RapportoArchivio rapporto = contesto.Rapporto();
  if (rapporto.Integro()) return;
  const std::string avvisi = Elenco(rapporto.Avvisi());
  if (rapporto.LunghezzaIntera()) {
    interlocutore.Mostra(Avviso{TipoAvviso::Esclamativo, kTitolo, avvisi});
    return;
  }
  const bool ripara = interlocutore.Chiedi(
      kTitolo, fmt::format("{}\n\nRiparare l'archivio ora? Prima ne viene fatta una copia accanto, poi si toglie "
                           "l'estrazione incompleta in fondo. Finché non è riparato non vi si possono aggiungere "
                           "estrazioni.",
                           avvisi));
  if (!ripara) return;
  auto riparazione = RiparaArchivio(rapporto.file);
  if (!riparazione) {
    interlocutore.Mostra(riparazione.Errore());
    return;
  }
  auto ricaricato = contesto.RicaricaArchivio();
  std::string esito = DescriviRiparazione(rapporto.file, *riparazione);
  if (!ricaricato) esito += "\n\nMa l'archivio non si può ricaricare: " + ricaricato.Errore().testo;
  interlocutore.Mostra(Avviso{TipoAvviso::Esclamativo, kTitolo, esito});
}

}  // namespace lottolab::gui
