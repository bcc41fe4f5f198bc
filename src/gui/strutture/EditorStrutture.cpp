#include "gui/principale/Finestre.h"
#include "gui/strutture/F_EditorStrutture.h"

namespace lottolab::gui {

QWidget* NuovoEditorStrutture(ContestoGui& contesto, const QString& file, QWidget* parent) {
  auto* editor = new F_EditorStrutture(contesto, parent);
  if (!file.isEmpty()) editor->Apri(file);
  return editor;
}

}  // namespace lottolab::gui
