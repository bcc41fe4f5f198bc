#include "gui/agenda/EsportaCsv.h"

#include "archive/FileSicuri.h"

namespace lottolab::gui {

namespace {

std::string Campo(const QString& testo) {
  std::string campo = testo.toStdString();
  if (campo.find_first_of(";\"\n\r") == std::string::npos) return campo;
  std::string citato = "\"";
  for (char c : campo) citato += c == '"' ? std::string("\"\"") : std::string(1, c);
  return citato + "\"";
}

}  // namespace

std::string TestoCsv(const QAbstractItemModel& modello) {
  std::string testo = "\xEF\xBB\xBF";
  auto riga = [&](auto&& cella) {
    for (int c = 0; c < modello.columnCount(); ++c) testo += (c ? ";" : "") + Campo(cella(c));
    testo += "\r\n";
  };
  riga([&](int c) { return modello.headerData(c, Qt::Horizontal).toString(); });
  for (int r = 0; r < modello.rowCount(); ++r) riga([&](int c) { return modello.index(r, c).data().toString(); });
  return testo;
}

Esito<Fatto> ScriviCsv(const std::filesystem::path& file, const std::string& testo) {
  return SostituisciFile(file, testo);
}

}  // namespace lottolab::gui
