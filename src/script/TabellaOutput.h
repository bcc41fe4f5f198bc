#pragma once

// A table a script builds row by row and then writes twice: as an HTML table into the run's page
// and as columns of text into the text output. Also the column alignment that the other text
// output shares, and the arguments that choose colours and alignments.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "InterfacciaScript.h"
#include "vbscript/value/CallArgs.h"

namespace lottolab::script {

enum class Allineamento { Sinistra, Centro, Destra };

// Colours of the script's palette; none leaves the colour of the row or of the page.
struct Colori {
  std::optional<int16_t> sfondo;
  std::optional<int16_t> testo;
};

struct Cella {
  std::string testo;
  Colori colori;
};

struct RigaTabella {
  std::vector<Cella> celle;
  Colori colori;
  Allineamento allineamento = Allineamento::Sinistra;
};

class TabellaOutput {
 public:
  // The titles fix the number of columns.
  TabellaOutput(RigaTabella titoli, int bordo);

  size_t Colonne() const { return m_titoli.celle.size(); }
  // A row shorter than the titles is completed with empty cells; the caller refuses a longer one.
  void AggiungiRiga(RigaTabella riga);
  // Null before the first row.
  RigaTabella* UltimaRiga() { return m_righe.empty() ? nullptr : &m_righe.back(); }
  const RigaTabella& Titoli() const { return m_titoli; }
  const std::vector<RigaTabella>& Righe() const { return m_righe; }
  // An HTML width ("600", "80%"); empty lets the page choose.
  void ImpostaLarghezza(std::string larghezza) { m_larghezza = std::move(larghezza); }

  // The table element. A sortable table sorts its rows when a title is clicked, through the
  // functions of ScriptOrdinamento, which the page must hold once.
  std::string Html(bool ordinabile) const;
  // Titles, a rule of dashes, then the rows, each cell in its text colour, the columns as wide as
  // their widest cell.
  std::vector<TrattoTesto> Testo() const;

 private:
  RigaTabella m_titoli;
  std::vector<RigaTabella> m_righe;
  int m_bordo;
  std::string m_larghezza;
};

// The page's script that sorts a table by the clicked title: numbers as numbers, dates gg/mm/aaaa
// as dates, anything else as text; a second click reverses the order.
std::string_view ScriptOrdinamento();

// ---- Text in columns ----

// How many characters the UTF-8 text shows.
size_t LarghezzaTesto(std::string_view testo);
// The text padded with blanks to `larghezza` characters; a longer text is left whole.
std::string Allinea(std::string_view testo, size_t larghezza, Allineamento allineamento);
// The width of each column: its widest cell. Rows may have different lengths.
std::vector<size_t> LarghezzeColonne(const std::vector<std::vector<std::string>>& righe);

// What separates two columns of text.
inline constexpr std::string_view kSpazioColonne = "  ";

// ---- Arguments of the output functions ----

// Argument i as a colour index of the palette, Nero_ .. Magenta_.
vbs::Result<int16_t> ColoreArgomento(const vbs::CallArgs& args, size_t i);
// Argument i as a colour, none when omitted.
vbs::Result<std::optional<int16_t>> ColoreFacoltativo(const vbs::CallArgs& args, size_t i);
// Argument i as "sinistra", "centro" or "destra" (or "left", "center", "right"), any case; the
// given one when omitted.
vbs::Result<Allineamento> AllineamentoArgomento(const vbs::CallArgs& args, size_t i, Allineamento se_omesso);

}  // namespace lottolab::script
