#pragma once

// The sortable tables of a script's HTML page, sorted without a script engine. A page in a real
// browser sorts its tables with the JavaScript written beside them; the html tab lays pages out
// with Qt's rich text, which runs none, so the tab re-renders the page with the rows in the order
// asked and the column titles turned into links ("ordina:T-C", table T, column C) that ask for it.
// A table is sortable when its class says so ("ordinabile", "sortable") or its titles call the
// sorting script. The text is scanned, not parsed: a table whose rows cannot be told apart
// (nested tables, rows left open) is left as it is.

#include <QString>
#include <QUrl>

#include <map>
#include <optional>

namespace lottolab::gui {

struct OrdineColonna {
  int colonna = 0;
  bool discendente = false;
};

// The order asked for each sortable table, by the table's position among the page's sortable ones.
using OrdiniTabelle = std::map<int, OrdineColonna>;

// Whether `pagina` holds a sortable table that the tab can sort.
bool HaTabelleOrdinabili(const QString& pagina);

// `pagina` with every sortable table's titles as links, the sorted column's title marked with an
// arrow, and the rows below the titles in the order `ordini` asks: numbers by value, dates
// (dd/mm/yyyy) by day, then texts alphabetically; rows that compare equal keep their order.
QString PaginaOrdinata(const QString& pagina, const OrdiniTabelle& ordini);

// The table and column a title's link asks to sort; nothing for any other link.
std::optional<std::pair<int, int>> RichiestaOrdinamento(const QUrl& collegamento);

// The order after a click on a title: the same column again turns the order round, another column
// sorts ascending.
void CambiaOrdine(OrdiniTabelle& ordini, int tabella, int colonna);

}  // namespace lottolab::gui
