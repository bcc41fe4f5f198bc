#include "AreaDisegnoGui.h"

namespace lottolab::gui {

Esito<Fatto> AreaDisegnoGui::Esegui() {
  QImage copia = Immagine();
  QMetaObject::invokeMethod(
      this, [this, copia] { emit ImmagineAggiornata(copia); }, Qt::QueuedConnection);
  return TelaPng::Esegui();
}

Esito<std::optional<std::filesystem::path>> AreaDisegnoGui::MostraCerchio(const script::DisegnoCerchio& disegno,
                                                                          const std::string& titolo,
                                                                          const std::filesystem::path& pagina) {
  QMetaObject::invokeMethod(
      this, [this, disegno, testo = QString::fromStdString(titolo)] { emit CerchioDaMostrare(disegno, testo); },
      Qt::QueuedConnection);
  return TelaPng::MostraCerchio(disegno, titolo, pagina);
}

Esito<std::optional<std::filesystem::path>> AreaDisegnoGui::MostraGrafico(const script::DisegnoGrafico& grafico,
                                                                          const std::filesystem::path& pagina) {
  QMetaObject::invokeMethod(
      this, [this, grafico] { emit GraficoDaMostrare(grafico); }, Qt::QueuedConnection);
  return TelaPng::MostraGrafico(grafico, pagina);
}

}  // namespace lottolab::gui
