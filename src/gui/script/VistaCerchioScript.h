#pragma once

// The view of a circle a script shows with QvCerchio_InitDisegno: the circle, and beside it the
// list of the figures found (those that carry a description), where choosing one highlights it.

#include <QWidget>

#include "script/AreaDisegno.h"

class QListWidget;

namespace lottolab::gui {

class QvCerchio;

class VistaCerchioScript : public QWidget {
  Q_OBJECT

 public:
  VistaCerchioScript(script::DisegnoCerchio disegno, const QString& titolo, QWidget* parent = nullptr);

  QvCerchio* Cerchio() const { return m_cerchio; }
  // Null when no figure has a description.
  QListWidget* Elenco() const { return m_elenco; }

 private:
  QvCerchio* m_cerchio = nullptr;
  QListWidget* m_elenco = nullptr;
};

}  // namespace lottolab::gui
