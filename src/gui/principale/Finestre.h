#pragma once

// The windows the main window opens in its multi-document area. Each is an ordinary widget that
// knows only the shared context, so it can be opened, and tested, on its own.

#include <QString>
#include <QWidget>

#include <vector>

#include "gui/principale/ContestoGui.h"

namespace lottolab::gui {

// The list of the archive's draws, with a draw's detail, a jump to a date and the update.
QWidget* NuovaFinestraArchivio(ContestoGui& contesto, QWidget* parent = nullptr);
// The list of the draws of another game (one of kGiochiDesktop), with a draw's detail, a jump to
// a date and the import of a results file; an empty archive says how to import it.
QWidget* NuovaFinestraArchivioGioco(ContestoGui& contesto, Gioco gioco, QWidget* parent = nullptr);
// The script window; with a file, the script read from it.
QWidget* NuovaFinestraScript(ContestoGui& contesto, const QString& file = {}, QWidget* parent = nullptr);
// The delay table of the 90 numbers on the chosen wheels, or of every number of another game.
QWidget* NuovoTabellone(ContestoGui& contesto, QWidget* parent = nullptr);
// The Tabellone analitico: the 90 numbers on every wheel and on all together at any end draw.
QWidget* NuovoTabelloneAnalitico(ContestoGui& contesto, QWidget* parent = nullptr);
// All 4005 ambi of a wheel or of all wheels with their figures, and the most delayed terni on demand.
QWidget* NuovaFinestraAmbi(ContestoGui& contesto, QWidget* parent = nullptr);
// A draw on the circle of the 90 numbers, its wheels chosen, with its figures.
QWidget* NuovaFinestraCiclometria(ContestoGui& contesto, QWidget* parent = nullptr);
// The draws of any game that pass filters of dates, wheels and numbers, each shown whole on demand.
QWidget* NuovaFinestraRicercaEstrazioni(ContestoGui& contesto, QWidget* parent = nullptr);
// The frequency of every number in each year, each month of a year or each group of draws.
QWidget* NuovaFinestraFrequenzePeriodo(ContestoGui& contesto, QWidget* parent = nullptr);
// The sums of the draws' numbers: draw by draw, by value with count and delay, and by classes.
QWidget* NuovaFinestraSomme(ContestoGui& contesto, QWidget* parent = nullptr);
// Frequency and delays of the cadences, figures and decades on the chosen wheels.
QWidget* NuovaFinestraClassiNumeri(ContestoGui& contesto, QWidget* parent = nullptr);
// The agenda of the bets played: the list with the wins not seen yet, a new bet, the check, the
// removal, a bet's check draw by draw, the totals, the export to CSV.
QWidget* NuovaFinestraAgenda(ContestoGui& contesto, QWidget* parent = nullptr);
// How many wins of the agenda the user has not seen yet; 0 when there is no agenda. Reads the file on
// the caller's thread: a quick query.
Esito<int> VinciteDaVedere(const app::Configurazione& configurazione);
// The delay of one to five numbers (sorte: as many as they are) on a wheel or on all (12), draw by
// draw over inizio..fine (0 for the first and the last draw), on a time axis to zoom and scroll; with
// no numbers the window waits for them. ApriStoriaRitardo opens it beside `vicino`, in its area.
QWidget* NuovaStoriaRitardo(ContestoGui& contesto, const std::vector<int>& numeri = {}, int ruota = kTutteLeRuote,
                            int inizio = 0, int fine = 0, QWidget* parent = nullptr);
void ApriStoriaRitardo(QWidget* vicino, ContestoGui& contesto, const std::vector<int>& numeri, int ruota, int inizio,
                       int fine);
// The frequency of the 90 numbers on a wheel or on all over a period, against the expected one.
QWidget* NuovoGraficoFrequenze(ContestoGui& contesto, QWidget* parent = nullptr);
// The heat map of the delays of the 90 numbers on every wheel at any end draw.
QWidget* NuovaMappaRitardi(ContestoGui& contesto, QWidget* parent = nullptr);
// The numbers that followed a number or an ambo on a wheel within the next draws, with the current
// situation.
QWidget* NuovaFinestraSpia(ContestoGui& contesto, QWidget* parent = nullptr);
// The numbers drawn with a number in the same draw, on its wheel or on any wheel.
QWidget* NuovaFinestraSincroni(ContestoGui& contesto, QWidget* parent = nullptr);
// The numbers drawn in the same position on two or more wheels, by draw and by number and position.
QWidget* NuovaFinestraIsotopi(ContestoGui& contesto, QWidget* parent = nullptr);
// The forecasts scripts saved with SalvaPrevisione, checked against the later draws; removal.
QWidget* NuovaFinestraPrevisioni(ContestoGui& contesto, QWidget* parent = nullptr);
// The editor of user figures; with a file, the structure read from it.
QWidget* NuovoEditorStrutture(ContestoGui& contesto, const QString& file = {}, QWidget* parent = nullptr);
// The help: a short guide for new users and the reference of the script library's names, searchable
// by name.
QWidget* NuovaFinestraAiuto(QWidget* parent = nullptr);
// The help window `aiuto` turned to the reference and filtered on `nome`, its card shown when the name
// is one of the library's.
void MostraNomeNellAiuto(QWidget* aiuto, const QString& nome);

}  // namespace lottolab::gui
