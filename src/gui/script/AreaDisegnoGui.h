#pragma once

// The picture area of a script run from the window. The script paints on its worker thread into
// the QImage of TelaImmagine, the same picture a headless run writes, and into the same files
// beside the run's page, so that the page saved keeps its pictures; the window gets a copy of it
// when the script calls PicEsegui and when the run ends (QImage is shared until written, so the
// copy costs nothing), and a circle of QvCerchio_InitDisegno or a chart of Grafico by a queued call.

#include <QImage>
#include <QObject>

#include "disegno/TelaImmagine.h"

namespace lottolab::gui {

class AreaDisegnoGui final : public QObject, public disegno::TelaPng {
  Q_OBJECT

 public:
  // Lives on the window's thread.
  explicit AreaDisegnoGui(QObject* parent = nullptr) : QObject(parent) {}

  Esito<Fatto> Esegui() override;
  Esito<std::optional<std::filesystem::path>> MostraCerchio(const script::DisegnoCerchio& disegno,
                                                            const std::string& titolo,
                                                            const std::filesystem::path& pagina) override;
  Esito<std::optional<std::filesystem::path>> MostraGrafico(const script::DisegnoGrafico& grafico,
                                                            const std::filesystem::path& pagina) override;

 signals:
  // On the window's thread.
  void ImmagineAggiornata(const QImage& immagine);
  void CerchioDaMostrare(const lottolab::script::DisegnoCerchio& disegno, const QString& titolo);
  void GraficoDaMostrare(const lottolab::script::DisegnoGrafico& grafico);
};

}  // namespace lottolab::gui
