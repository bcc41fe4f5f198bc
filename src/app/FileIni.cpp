#include "FileIni.h"

#include <algorithm>
#include <cctype>
#include <fmt/format.h>

#include "ErroreInatteso.h"
#include "archive/FileSicuri.h"
#include "text/AsciiCase.h"

namespace lottolab::app {

namespace fs = std::filesystem;

namespace {

std::string_view Rifila(std::string_view s) {
  while (!s.empty() && std::isspace(static_cast<unsigned char>(s.front()))) s.remove_prefix(1);
  while (!s.empty() && std::isspace(static_cast<unsigned char>(s.back()))) s.remove_suffix(1);
  return s;
}

}  // namespace

FileIni FileIni::DaTesto(std::string_view testo) {
  FileIni ini;
  std::string sezione;
  size_t inizio = 0;
  while (inizio < testo.size()) {
    size_t fine = testo.find('\n', inizio);
    if (fine == std::string_view::npos) fine = testo.size();
    std::string_view riga = testo.substr(inizio, fine - inizio);
    if (!riga.empty() && riga.back() == '\r') riga.remove_suffix(1);
    inizio = fine + 1;

    Riga r{std::string(riga), {}, {}, {}};
    std::string_view pulita = Rifila(riga);
    if (pulita.size() >= 2 && pulita.front() == '[' && pulita.back() == ']') {
      sezione = std::string(Rifila(pulita.substr(1, pulita.size() - 2)));
    } else if (!pulita.empty() && pulita.front() != ';' && pulita.front() != '#') {
      size_t uguale = pulita.find('=');
      if (uguale != std::string_view::npos) {
        r.chiave = std::string(Rifila(pulita.substr(0, uguale)));
        r.valore = std::string(Rifila(pulita.substr(uguale + 1)));
      }
    }
    r.sezione = sezione;
    ini.m_righe.push_back(std::move(r));
  }
  return ini;
}

Esito<FileIni> FileIni::Carica(const fs::path& percorso) {
  auto Errore = [&](std::string_view motivo) {
    return AvvisoEsclamativo(fmt::format("Impossibile leggere il file di configurazione {}: {}",
                                         PercorsoPerMessaggio(percorso.string()), motivo));
  };
  // Read without waiting, so that a pipe or a device put in the file's place is refused instead of
  // blocking the program before it starts.
  auto letto = LeggiFileOrdinario(percorso, kDimensioneMassima);
  if (letto) return DaTesto(*letto);
  switch (letto.Errore().genere) {
    case GuastoFile::Genere::Assente: return FileIni{};
    case GuastoFile::Genere::NonOrdinario: return Errore(letto.Errore().motivo + ", non un file ordinario");
    case GuastoFile::Genere::TroppoGrande:
      return Errore(letto.Errore().motivo + ", troppo per un file di configurazione");
    case GuastoFile::Genere::Sistema: break;
  }
  return Errore(letto.Errore().motivo);
}

size_t FileIni::IndiceChiave(std::string_view sezione, std::string_view chiave) const {
  auto trovata = std::find_if(m_righe.begin(), m_righe.end(), [&](const Riga& r) {
    return !r.chiave.empty() && text::EqualsIgnoringAsciiCase(r.sezione, sezione) &&
           text::EqualsIgnoringAsciiCase(r.chiave, chiave);
  });
  return static_cast<size_t>(trovata - m_righe.begin());
}

std::optional<std::string> FileIni::Leggi(std::string_view sezione, std::string_view chiave) const {
  size_t i = IndiceChiave(sezione, chiave);
  if (i == m_righe.size()) return std::nullopt;
  return m_righe[i].valore;
}

std::string FileIni::Leggi(std::string_view sezione, std::string_view chiave, std::string_view predefinito) const {
  auto valore = Leggi(sezione, chiave);
  return valore && !valore->empty() ? *valore : std::string(predefinito);
}

void FileIni::Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore_dato) {
  // A line break in a value would start a line of its own, read back as another key.
  std::string valore(valore_dato);
  std::replace_if(
      valore.begin(), valore.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
  std::string testo = fmt::format("{}={}", chiave, valore);
  if (size_t i = IndiceChiave(sezione, chiave); i < m_righe.size()) {
    m_righe[i].testo = testo;
    m_righe[i].valore = valore;
    return;
  }
  // A new key goes after the last key (or the header) of its section, before the blank lines that
  // part it from the next one; an absent section is added at the end.
  auto ultima = std::find_if(m_righe.rbegin(), m_righe.rend(), [&](const Riga& r) {
    return text::EqualsIgnoringAsciiCase(r.sezione, sezione) && !Rifila(r.testo).empty();
  });
  Riga nuova{testo, std::string(sezione), std::string(chiave), valore};
  if (ultima == m_righe.rend()) {
    m_righe.push_back(Riga{fmt::format("[{}]", sezione), std::string(sezione), {}, {}});
    m_righe.push_back(std::move(nuova));
  } else {
    m_righe.insert(ultima.base(), std::move(nuova));
  }
}

std::string FileIni::Testo() const {
  std::string testo;
  for (const Riga& r : m_righe) {
    testo += r.testo;
    testo += '\n';
  }
  return testo;
}

Esito<Fatto> FileIni::Salva(const fs::path& percorso) const {
  auto Errore = [&](std::string_view motivo) {
    return AvvisoEsclamativo(fmt::format("Impossibile scrivere il file di configurazione {}: {}",
                                         PercorsoPerMessaggio(percorso.string()), motivo));
  };
  std::error_code ec;
  if (percorso.has_parent_path()) fs::create_directories(percorso.parent_path(), ec);
  if (ec) return Errore(DescriviErroreDiSistema(ec));
  auto scritto = ScriviFileOrdinario(percorso, Testo());
  if (!scritto) return Errore(scritto.Errore().motivo);
  return Fatto{};
}

}  // namespace lottolab::app
