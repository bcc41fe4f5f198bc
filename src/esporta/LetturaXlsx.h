#pragma once

// Reads an .xlsx workbook into the model: every sheet's values, the formats the writer knows
// (bold, italic, colours, number format, horizontal alignment), joined cells and column widths.
// A formula is kept as the value last computed and saved with it, which is what a script reads.
//
// The file comes from outside: its zip directory, the sizes it declares and its XML are all
// untrusted. The reader stops at the limits below with an Italian message naming what was
// exceeded, counts the bytes it really inflates (never the sizes declared), and parses with
// pugixml, which expands no entity a document defines.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>

#include "CartellaLavoro.h"
#include "archive/Esito.h"

namespace lottolab::esporta {

struct LimitiLettura {
  uintmax_t file = 64ull << 20;     // the .xlsx itself
  uintmax_t parte = 128ull << 20;   // one part (a sheet, the shared strings) once inflated
  uintmax_t totale = 512ull << 20;  // every part read, once inflated
  size_t celle = 2'000'000;         // every sheet's cells together
  size_t fogli = 255;
  size_t formati = 10'000;
};

// The workbook in `file`; refused with the reason when it is not a regular file, not a zip, not a
// workbook, or over a limit.
Esito<CartellaLavoro> LeggiXlsx(const std::filesystem::path& file, const LimitiLettura& limiti = {});
// The same from the file's bytes; the messages say "il file" without a name.
Esito<CartellaLavoro> LeggiXlsxDaByte(std::string_view byte, const LimitiLettura& limiti = {});

}  // namespace lottolab::esporta
