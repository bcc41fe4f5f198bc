#include "gui/script/SchedaHtml.h"

#include <QDesktopServices>
#include <QEvent>
#include <QFile>
#include <QMenu>
#include <QScrollBar>
#include <QTextBrowser>
#include <QToolButton>

namespace lottolab::gui {

SchedaHtml::SchedaHtml(QTextBrowser* pagina) : QObject(pagina), m_pagina(pagina), m_apri(new QToolButton(pagina)) {
  // The browser would hand the sorting links to the system as unknown addresses: every link is
  // followed here instead.
  m_pagina->setOpenLinks(false);
  m_pagina->setContextMenuPolicy(Qt::CustomContextMenu);
  m_apri->setObjectName(QStringLiteral("apriNelBrowser"));
  m_apri->setText(QStringLiteral("Apri nel browser"));
  m_apri->setToolTip(QStringLiteral("Apre la pagina nel browser del sistema"));
  m_apri->setAutoRaise(false);
  m_apri->hide();
  // The viewport is laid out after the browser: its size is final when it hears of it.
  m_pagina->viewport()->installEventFilter(this);
  connect(m_apri, &QToolButton::clicked, this, &SchedaHtml::ApriNelBrowser);
  connect(m_pagina, &QTextBrowser::sourceChanged, this, &SchedaHtml::Carica);
  connect(m_pagina, &QTextBrowser::anchorClicked, this, &SchedaHtml::Segui);
  connect(m_pagina, &QWidget::customContextMenuRequested, this, &SchedaHtml::MenuContestuale);
}

bool SchedaHtml::ApriNelBrowser() const {
  const QUrl sorgente = m_pagina->source();
  if (!sorgente.isLocalFile()) return false;
  return QDesktopServices::openUrl(sorgente);
}

bool SchedaHtml::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == m_pagina->viewport() && evento->type() == QEvent::Resize) PosizionaPulsante();
  return QObject::eventFilter(oggetto, evento);
}

void SchedaHtml::Carica(const QUrl& sorgente) {
  m_apri->setVisible(sorgente.isLocalFile());
  PosizionaPulsante();
  m_sorgente.clear();
  m_originale.clear();
  m_ordini.clear();
  if (!sorgente.isLocalFile()) return;
  // The window shows in the tab only pages small enough to lay out, so the file is read whole.
  QFile file(sorgente.toLocalFile());
  if (!file.open(QIODevice::ReadOnly)) return;
  QString testo = QString::fromUtf8(file.readAll());
  if (!HaTabelleOrdinabili(testo)) return;
  m_sorgente = sorgente;
  m_originale = std::move(testo);
  Mostra();
}

void SchedaHtml::Segui(const QUrl& collegamento) {
  if (const auto richiesta = RichiestaOrdinamento(collegamento)) {
    if (m_sorgente.isEmpty()) return;
    CambiaOrdine(m_ordini, richiesta->first, richiesta->second);
    Mostra();
    return;
  }
  const QUrl indirizzo = m_pagina->source().resolved(collegamento);
  if (indirizzo.isLocalFile() || indirizzo.scheme().isEmpty()) {
    if (indirizzo.adjusted(QUrl::RemoveFragment) == m_pagina->source().adjusted(QUrl::RemoveFragment))
      m_pagina->scrollToAnchor(indirizzo.fragment());
    else
      m_pagina->setSource(indirizzo);
    return;
  }
  QDesktopServices::openUrl(indirizzo);
}

// The page keeps where the user was reading: a sort is a click on a title in view.
void SchedaHtml::Mostra() {
  const int verticale = m_pagina->verticalScrollBar()->value();
  const int orizzontale = m_pagina->horizontalScrollBar()->value();
  m_pagina->setHtml(PaginaOrdinata(m_originale, m_ordini));
  m_pagina->verticalScrollBar()->setValue(verticale);
  m_pagina->horizontalScrollBar()->setValue(orizzontale);
}

void SchedaHtml::PosizionaPulsante() {
  const QSize dimensione = m_apri->sizeHint();
  const QWidget* area = m_pagina->viewport();
  m_apri->setGeometry(area->geometry().right() - dimensione.width() - 4, area->geometry().top() + 4, dimensione.width(),
                      dimensione.height());
  m_apri->raise();
}

void SchedaHtml::MenuContestuale(const QPoint& posizione) {
  QMenu* menu = m_pagina->createStandardContextMenu(posizione);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addSeparator();
  QAction* apri = menu->addAction(QStringLiteral("Apri nel browser"), this, &SchedaHtml::ApriNelBrowser);
  apri->setEnabled(m_pagina->source().isLocalFile());
  menu->popup(m_pagina->viewport()->mapToGlobal(posizione));
}

}  // namespace lottolab::gui
