#include "gui/strutture/F_EditorStrutture.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {

QWidget* NuovoEditorStrutture(ContestoGui& contesto, const QString& file, QWidget* parent) {
  auto* editor = new F_EditorStrutture(contesto, parent);
  if (!file.isEmpty()) editor->Apri(file);
  return editor;
}

}  // namespace lottolab::gui
