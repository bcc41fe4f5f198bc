#include "gui/comuni/PreparaAnalitico.h"

#include <QSignalBlocker>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

void PreparaAnalitico(QWidget* finestra, std::shared_ptr<const TabellaEstrazioni> archivio, const QString& descrizione,
                      const char* procedura, QSpinBox* fine,
                      std::function<void(std::shared_ptr<const stats::Analitico>)> pronto) {
  using Preparato = std::shared_ptr<const stats::Analitico>;
  AvviaCalcoloAnnullabile<Preparato>(
      finestra, finestra->windowTitle(), descrizione, procedura,
      [archivio](stats::ControlloCalcolo&) {
        return std::optional(std::make_shared<const stats::Analitico>(*archivio));
      },
      [finestra, archivio, fine, pronto = std::move(pronto)](const Esito<std::optional<Preparato>>& esito) {
        if (!esito) {
          SegnalatoreGui(finestra).Mostra(esito.Errore());
          return;
        }
        if (!*esito) return;
        const int ultima = archivio->EstrazioniArchivio();
        // A window that showed the last draw keeps showing the last one after an update.
        const bool all_ultima = fine->value() == fine->maximum();
        {
          const QSignalBlocker blocco(fine);
          fine->setRange(ultima > 0 ? 1 : 0, ultima);
          if (all_ultima) fine->setValue(ultima);
        }
        fine->setEnabled(ultima > 0);
        pronto(**esito);
      });
}

}  // namespace lottolab::gui
