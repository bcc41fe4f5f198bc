#pragma once

// Reading the published results files, one draw or one wheel a line: fields separated by runs of
// tabs or blanks, whole numbers without sign, dates as "AAAA/MM/GG".

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "Avviso.h"
#include "Esito.h"
#include "Estrazione.h"
#include "TabellaGioco.h"

namespace lottolab {

// The next field of a line; empty at the end.
std::string_view ProssimoCampo(std::string_view& resto);

// A whole number of decimal digits and nothing else.
bool LeggiIntero(std::string_view testo, int& valore);

// "AAAA/MM/GG" as the operator writes it; no other order is accepted, so that a file in the user's
// own day/month/year form is refused instead of being read with day and year swapped.
bool LeggiDataRisultati(std::string_view testo, GruppoData& data);

// "Riga N: motivo", the message that refuses a file at its line N.
Avviso ErroreRiga(int riga, std::string motivo);

// The lines of a results file that hold a draw, one at a time: empty lines and lines starting with
// '#' are passed over, and the count of lines read names the line in the messages.
class RigheRisultati {
 public:
  explicit RigheRisultati(std::string_view testo) : m_testo(testo) {}
  // The next line with a draw as `resto`, its first field taken off as `primo`; false at the end.
  bool Prossima(std::string_view& primo, std::string_view& resto);
  int riga() const { return m_riga; }

 private:
  std::string_view m_testo;
  int m_riga = 0;
};

// Each line of a results file that holds a draw, with its number, a draw holding its date ("AAAA/MM/GG",
// the first field) and the fields after it; the first refusal, of a date or of what `riga` returns,
// ends the reading and is the result.
using LettoreRiga = std::function<std::optional<Avviso>(int riga, EstrazioneGioco& estrazione, std::string_view resto)>;
Esito<Fatto> PerOgniRigaDatata(std::string_view testo, const LettoreRiga& riga);

// Contests are numbered within their year (or day) and never reach this.
inline constexpr int kMassimoConcorso = 999;

// The next field as a contest number of 1..massimo; the refusal naming line `riga`.
std::optional<Avviso> LeggiCampoConcorso(int riga, std::string_view& resto, int massimo, int& concorso);

// The next field as a time "hh:mm", in minutes after midnight; the refusal naming line `riga`.
std::optional<Avviso> LeggiCampoOra(int riga, std::string_view& resto, int& minuti);

}  // namespace lottolab
