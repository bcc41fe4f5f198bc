#include "LetturaFile.h"

#include <fmt/format.h>

#include "archive/FileSicuri.h"

namespace lottolab::script {

namespace {

// The script's sentence around the reason, naming the file.
Avviso Rifiuto(const std::filesystem::path& file, const GuastoFile& guasto) {
  switch (guasto.genere) {
    case GuastoFile::Genere::NonOrdinario:
      return AvvisoEsclamativo(fmt::format("{} {}, non un file: non viene letto", file.string(), guasto.motivo));
    case GuastoFile::Genere::TroppoGrande:
      return AvvisoEsclamativo(fmt::format("Il file {} {}: non viene letto", file.string(), guasto.motivo));
    case GuastoFile::Genere::Assente:
    case GuastoFile::Genere::Sistema: break;
  }
  return AvvisoEsclamativo(fmt::format("Impossibile leggere il file {}: {}", file.string(), guasto.motivo));
}

}  // namespace

Esito<std::string> LeggiFileRegolare(const std::filesystem::path& file, uintmax_t limite) {
  auto letto = LeggiFileOrdinario(file, limite);
  if (!letto) return Rifiuto(file, letto.Errore());
  return std::move(letto).Valore();
}

Esito<Fatto> FileRegolare(const std::filesystem::path& file) {
  auto verificato = VerificaFileOrdinario(file);
  if (verificato) return Fatto{};
  if (verificato.Errore().genere == GuastoFile::Genere::Assente)
    return AvvisoEsclamativo(fmt::format("Il file {} non esiste", file.string()));
  return Rifiuto(file, verificato.Errore());
}

}  // namespace lottolab::script
