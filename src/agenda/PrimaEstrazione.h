#pragma once

// Where a bet of the agenda starts in a table of draws, the same for the Lotto's table and the
// other games'.

#include "Giocata.h"
#include "archive/DateEstrazione.h"

namespace lottolab::agenda {

// The bet's first draw in the table: its IdEstr, or the first draw on or after its date; 0 when
// the archive ends before it.
template <typename Tabella>
int PrimaEstrazione(const Giocata& giocata, const Tabella& tabella) {
  if (giocata.id_estr_dal) return tabella.Contiene(*giocata.id_estr_dal) ? *giocata.id_estr_dal : 0;
  if (!giocata.dal) return 0;
  int id = tabella.UltimaEstrazioneEntro(*giocata.dal);
  // The last draw of a day on or before the date is the bet's first only when it falls on the date
  // and is the first of that day; games with several draws a day start at the day's first.
  while (id > 1 && ConfrontaDate(tabella[id - 1].data, *giocata.dal) == 0) --id;
  if (id == 0 || ConfrontaDate(tabella[id].data, *giocata.dal) != 0) ++id;
  return tabella.Contiene(id) ? id : 0;
}

}  // namespace lottolab::agenda
