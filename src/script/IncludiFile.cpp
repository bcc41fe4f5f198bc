#include "IncludiFile.h"

#include <algorithm>
#include <fmt/format.h>

#include "LetturaFile.h"
#include "text/AsciiCase.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace fs = std::filesystem;

namespace {

constexpr std::u16string_view kIncludi = u"includi ";
constexpr std::u16string_view kAppData = u"GetDirectoryAppData";

bool Spazio(char16_t c) { return c == u' ' || c == u'\t' || c == u'\r'; }

std::u16string_view Trim(std::u16string_view testo) {
  while (!testo.empty() && Spazio(testo.front())) testo.remove_prefix(1);
  while (!testo.empty() && Spazio(testo.back())) testo.remove_suffix(1);
  return testo;
}

bool IniziaCon(std::u16string_view testo, std::u16string_view prefisso) {
  return testo.size() >= prefisso.size() && text::EqualsIgnoringAsciiCase(testo.substr(0, prefisso.size()), prefisso);
}

// Windows paths in scripts use backslashes.
fs::path PercorsoLocale(std::u16string_view testo) {
  std::string percorso = text::Utf16ToUtf8(testo);
  std::replace(percorso.begin(), percorso.end(), '\\', '/');
  return fs::path(percorso);
}

void TogliOgni(std::u16string& testo, std::u16string_view parola) {
  for (size_t i = 0; i + parola.size() <= testo.size();) {
    if (IniziaCon(std::u16string_view(testo).substr(i), parola))
      testo.erase(i, parola.size());
    else
      ++i;
  }
}

// The file's text; a missing file keeps the message users know, anything else says what is wrong.
Esito<std::string> LeggiInclusione(const fs::path& percorso, const vbs::FileAccessPolicy* accesso) {
  if (auto permesso = vbs::CheckAccess(accesso, vbs::FileAccess::Read, percorso, "includi"); !permesso)
    return AvvisoEsclamativo(text::Utf16ToUtf8(permesso.error().description));
  std::error_code ec;
  if (!fs::exists(percorso, ec))
    return AvvisoEsclamativo(fmt::format("File di inclusione \n{}\npercorso errato", percorso.string()));
  auto contenuto = LeggiFileRegolare(percorso, kLimiteFileScript);
  if (!contenuto) return AvvisoEsclamativo("File di inclusione non letto: " + contenuto.Errore().testo);
  return contenuto;
}

}  // namespace

std::optional<fs::path> FileDiInclusione(std::u16string_view riga, const CartelleScript& cartelle) {
  riga = Trim(riga);
  if (!IniziaCon(riga, kIncludi)) return std::nullopt;
  std::u16string_view resto = riga.substr(riga.find(u' ') + 1);
  if (size_t apice = resto.find(u'\''); apice != std::u16string_view::npos) resto = resto.substr(0, apice);
  std::u16string nome(resto);
  std::erase(nome, u'"');
  std::u16string_view percorso = Trim(nome);
  if (IniziaCon(percorso, kAppData)) {
    std::u16string_view dopo = percorso.substr(kAppData.size());
    while (!dopo.empty() && (dopo.front() == u'\\' || dopo.front() == u'/')) dopo.remove_prefix(1);
    return cartelle.dati_app / PercorsoLocale(dopo);
  }
  if (percorso.find(u'\\') == std::u16string_view::npos && percorso.find(u'/') == std::u16string_view::npos)
    return cartelle.base / "Script" / "Funzioni" / PercorsoLocale(percorso);
  return PercorsoLocale(percorso);
}

Esito<CodiceEspanso> GestioneIncludiFile(std::u16string_view testo, const CartelleScript& cartelle,
                                         const vbs::FileAccessPolicy* accesso) {
  CodiceEspanso espanso;
  size_t inizio = 0;
  while (inizio <= testo.size()) {
    size_t fine = testo.find(u'\n', inizio);
    if (fine == std::u16string_view::npos) fine = testo.size();
    std::u16string_view riga = testo.substr(inizio, fine - inizio);
    if (auto percorso = FileDiInclusione(riga, cartelle)) {
      auto contenuto = LeggiInclusione(*percorso, accesso);
      if (!contenuto) return contenuto.Errore();
      std::u16string codice = text::DecodeScriptFile(*contenuto);
      TogliOgni(codice, u"Option Explicit");
      TogliOgni(codice, u"Option Compare Text");
      espanso.inclusi.push_back({*percorso, std::move(codice)});
      espanso.codice_utente += u'\'';
    }
    espanso.codice_utente += riga;
    if (fine < testo.size()) espanso.codice_utente += u'\n';
    inizio = fine + 1;
  }
  return espanso;
}

}  // namespace lottolab::script
