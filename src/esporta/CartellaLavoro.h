#pragma once

// A spreadsheet held in memory: sheets of cells addressed by row and column from 1, each cell a
// number, a text or a truth value with an index into the workbook's table of formats. The reader
// fills it from an .xlsx file and the writer writes it whole, so a workbook opened from disk,
// changed and saved again goes through this model and never through a change of the file in place.
// Formats are kept once in a table because a sheet of a million cells has a handful of them.

#include <compare>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "archive/Esito.h"

namespace lottolab::esporta {

// The limits of the file format.
inline constexpr int kMassimoRighe = 1'048'576;
inline constexpr int kMassimoColonne = 16'384;
inline constexpr size_t kMassimoCaratteriCella = 32'767;

enum class Allineamento : uint8_t { Generale, Sinistra, Centro, Destra };

struct Formato {
  bool grassetto = false;
  bool corsivo = false;
  std::optional<uint32_t> colore_testo{};   // 0xRRGGBB
  std::optional<uint32_t> colore_sfondo{};  // 0xRRGGBB, a solid fill
  std::string formato_numero{};             // "0.00", "dd/mm/yyyy"; empty for the general format
  Allineamento allineamento = Allineamento::Generale;
  bool operator==(const Formato&) const = default;
};

using Valore = std::variant<std::monostate, double, std::string, bool>;

struct Cella {
  Valore valore{};
  uint32_t formato = 0;  // index into CartellaLavoro::formati; 0 is the plain format
};

struct Posizione {
  int riga = 1;
  int colonna = 1;
  auto operator<=>(const Posizione&) const = default;
};

// Cells joined into one, from the top left corner to the bottom right one.
struct Unione {
  Posizione inizio;
  Posizione fine;
};

struct Foglio {
  std::string nome{};
  std::map<Posizione, Cella> celle{};
  std::vector<Unione> unioni{};
  std::map<int, double> larghezze{};  // by column, in characters
  bool adatta_colonne = false;        // widths from the cells' texts when written

  const Cella* Trova(Posizione posizione) const;
  // False, and nothing joined, when the range overlaps one already joined.
  bool AggiungiUnione(Unione unione);
};

struct CartellaLavoro {
  std::vector<Foglio> fogli{};
  std::vector<Formato> formati{Formato{}};

  // The index of `formato` in the table, added when new.
  uint32_t IndiceFormato(const Formato& formato);
  // The sheet so named, letters compared without case, as the spreadsheets do.
  std::optional<size_t> IndiceFoglio(std::string_view nome) const;
  // A sheet named `nome`, or "FoglioN" when empty; refused when the name is not valid or taken.
  Esito<size_t> AggiungiFoglio(std::string nome);
};

// "A" for 1, "Z" for 26, "AA" for 27; empty outside 1..kMassimoColonne.
std::string LetteraColonna(int colonna);
// "B3" as row 3, column 2; nothing when it is not a reference inside the sheet's limits.
std::optional<Posizione> LeggiRiferimento(std::string_view riferimento);
// Why `nome` cannot name a sheet: empty, longer than 31 characters, one of []:*?/\ in it, or
// an apostrophe at either end; nothing when it can.
std::optional<std::string> NomeFoglioNonValido(std::string_view nome);
bool PosizioneValida(Posizione posizione);

}  // namespace lottolab::esporta
