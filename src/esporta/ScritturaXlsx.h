#pragma once

// Writes the whole model as an .xlsx workbook with libxlsxwriter. The library writes only whole
// new files, so the workbook goes first to a temporary file, and its bytes then replace the user's
// file all at once (archive/FileSicuri.h): a failed write leaves the old workbook as it was.

#include <filesystem>
#include <map>

#include "CartellaLavoro.h"
#include "archive/Esito.h"

namespace lottolab::esporta {

// `cartella` written to `file`; an empty workbook gets one empty sheet, as the format needs one.
Esito<Fatto> ScriviXlsx(const CartellaLavoro& cartella, const std::filesystem::path& file);

// The width, in characters, that shows the longest text of each column of `foglio` (what the
// writer uses for a sheet whose columns fit their content); a text joined over several columns
// widens none of them.
std::map<int, double> LarghezzeAdattate(const Foglio& foglio);

}  // namespace lottolab::esporta
