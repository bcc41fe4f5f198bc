#pragma once

// Tables as CSV files that the spreadsheets of an Italian system open as they are: ";" between
// fields (the comma is the decimal mark), a field in quotes when it holds ";", a quote or a line
// end, lines ended by CR LF, UTF-8 with its mark so that accented letters survive. The reader
// takes back what the writer writes, and also plain files without the mark or with LF alone.

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "CartellaLavoro.h"
#include "archive/Esito.h"

namespace lottolab::esporta {

using RigheCsv = std::vector<std::vector<std::string>>;

std::string TestoCsv(const RigheCsv& righe);
// The rows of `testo`; refused with the line when a quoted field never closes, or when there are
// more than `massimo_campi` fields in all.
Esito<RigheCsv> LeggiTestoCsv(std::string_view testo, size_t massimo_campi = 10'000'000);

// The rows of a sheet from its first row and column to its last cell, numbers written with the
// decimal comma and without a thousands mark.
RigheCsv RigheDelFoglio(const Foglio& foglio);

// `righe` written to `file` all at once: the old file stays whole if the write fails.
Esito<Fatto> ScriviCsv(const RigheCsv& righe, const std::filesystem::path& file);

}  // namespace lottolab::esporta
