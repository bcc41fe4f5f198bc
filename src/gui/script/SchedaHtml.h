#pragma once

// What the script window's html tab adds to the browser that shows the run's page: a click on the
// title of a sortable table's column sorts the table in the tab (see PaginaOrdinabile.h), other
// links go where they point (pages of the run in the tab, the rest to the system's programs), and
// "Apri nel browser" opens the page in the system's browser, where its own scripts run.

#include <QObject>
#include <QString>
#include <QUrl>

#include "gui/script/PaginaOrdinabile.h"

class QTextBrowser;
class QToolButton;

namespace lottolab::gui {

class SchedaHtml : public QObject {
  Q_OBJECT

 public:
  // Lives as long as `pagina`, its parent.
  explicit SchedaHtml(QTextBrowser* pagina);

  // Opens the page shown in the system's browser; false when no page file is shown.
  bool ApriNelBrowser() const;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Carica(const QUrl& sorgente);
  void Segui(const QUrl& collegamento);
  void Mostra();
  void PosizionaPulsante();
  void MenuContestuale(const QPoint& posizione);

  QTextBrowser* m_pagina;
  QToolButton* m_apri;
  QUrl m_sorgente;      // the file whose sortable tables are shown; empty when there are none
  QString m_originale;  // its text as written by the script
  OrdiniTabelle m_ordini;
};

}  // namespace lottolab::gui
