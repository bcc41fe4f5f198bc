#include "gui/archivio/VistaEstrazioni.h"

#include <QHeaderView>

namespace lottolab::gui {

void PreparaTabellaEstrazioni(QTableView& tabella) {
  tabella.setObjectName(QStringLiteral("tabellaEstrazioni"));
  tabella.setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella.setSelectionMode(QAbstractItemView::SingleSelection);
  tabella.setAlternatingRowColors(true);
  tabella.verticalHeader()->hide();
  tabella.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  tabella.verticalHeader()->setDefaultSectionSize(tabella.fontMetrics().height() + 6);
}

GruppoData DataDelCalendario(const QDate& data) {
  GruppoData cercata;
  cercata.giorno = static_cast<int16_t>(data.day());
  cercata.mese = static_cast<int16_t>(data.month());
  cercata.anno = static_cast<int16_t>(data.year());
  return cercata;
}

}  // namespace lottolab::gui
