#pragma once

// A table exported as the spreadsheets of an Italian system read it: ";" between fields (the comma is
// the decimal mark), a field quoted when it holds ";", a quote or a new line, UTF-8 with its mark so
// that the accented letters survive.

#include <QAbstractItemModel>

#include <filesystem>
#include <string>

#include "archive/Esito.h"

namespace lottolab::gui {

// The headers and every row of `modello`, in its order, as the text of a CSV file.
std::string TestoCsv(const QAbstractItemModel& modello);

// `testo` written to `file` all at once: the old file stays whole if the write fails.
Esito<Fatto> ScriviCsv(const std::filesystem::path& file, const std::string& testo);

}  // namespace lottolab::gui
