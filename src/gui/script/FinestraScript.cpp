#include "gui/principale/Finestre.h"
#include "gui/script/F_Script.h"
#include "gui/script/SchedaHtml.h"

namespace lottolab::gui {

QWidget* NuovaFinestraScript(ContestoGui& contesto, const QString& file, QWidget* parent) {
  auto* finestra = new F_Script(contesto, nullptr, parent);
  new SchedaHtml(finestra->PaginaHtml());
  if (!file.isEmpty()) finestra->ApriFile(file);
  return finestra;
}

}  // namespace lottolab::gui
