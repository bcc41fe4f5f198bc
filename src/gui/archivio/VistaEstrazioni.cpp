#include "gui/archivio/VistaEstrazioni.h"

#include <QDateEdit>
#include <QHeaderView>
#include <QLineEdit>

#include "gui/comuni/CopiaRighe.h"

namespace lottolab::gui {

void PreparaTabellaEstrazioni(QTableView& tabella) {
  tabella.setObjectName(QStringLiteral("tabellaEstrazioni"));
  tabella.setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella.setSelectionMode(QAbstractItemView::ExtendedSelection);
  tabella.setAlternatingRowColors(true);
  tabella.verticalHeader()->hide();
  tabella.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  tabella.verticalHeader()->setDefaultSectionSize(tabella.fontMetrics().height() + 6);
  AggiungiCopiaRighe(&tabella);
}

void VaiConInvio(QDateEdit& data, const std::function<void()>& vai) {
  // The box keeps its line edit to itself, but the edit's signal comes after the typed date is read.
  if (auto* riga = data.findChild<QLineEdit*>()) QObject::connect(riga, &QLineEdit::returnPressed, &data, vai);
}

GruppoData DataDelCalendario(const QDate& data) {
  GruppoData cercata;
  cercata.giorno = static_cast<int16_t>(data.day());
  cercata.mese = static_cast<int16_t>(data.month());
  cercata.anno = static_cast<int16_t>(data.year());
  return cercata;
}

}  // namespace lottolab::gui
