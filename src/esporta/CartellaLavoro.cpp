#include "esporta/CartellaLavoro.h"

#include <algorithm>
#include <fmt/format.h>

#include "text/AsciiCase.h"
#include "text/Utf.h"

namespace lottolab::esporta {

namespace {

bool Sovrapposte(const Unione& a, const Unione& b) {
  return a.inizio.riga <= b.fine.riga && b.inizio.riga <= a.fine.riga && a.inizio.colonna <= b.fine.colonna &&
         b.inizio.colonna <= a.fine.colonna;
}

bool LetteraAscii(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

}  // namespace

const Cella* Foglio::Trova(Posizione posizione) const {
  auto it = celle.find(posizione);
  return it == celle.end() ? nullptr : &it->second;
}

bool Foglio::AggiungiUnione(Unione unione) {
  if (!PosizioneValida(unione.inizio) || !PosizioneValida(unione.fine) || unione.fine < unione.inizio ||
      unione.fine.colonna < unione.inizio.colonna || unione.inizio == unione.fine)
    return false;
  if (std::any_of(unioni.begin(), unioni.end(), [&](const Unione& u) { return Sovrapposte(u, unione); })) return false;
  unioni.push_back(unione);
  return true;
}

uint32_t CartellaLavoro::IndiceFormato(const Formato& formato) {
  auto it = std::find(formati.begin(), formati.end(), formato);
  if (it != formati.end()) return static_cast<uint32_t>(it - formati.begin());
  formati.push_back(formato);
  return static_cast<uint32_t>(formati.size() - 1);
}

std::optional<size_t> CartellaLavoro::IndiceFoglio(std::string_view nome) const {
  // Sheet names are compared as the user sees them: accented letters too.
  const std::u16string cercato = text::Utf8ToUtf16(nome);
  for (size_t i = 0; i < fogli.size(); ++i)
    if (text::EqualsIgnoringCase(text::Utf8ToUtf16(fogli[i].nome), cercato)) return i;
  return std::nullopt;
}

Esito<size_t> CartellaLavoro::AggiungiFoglio(std::string nome) {
  if (nome.empty()) {
    for (size_t n = fogli.size() + 1; nome.empty() || IndiceFoglio(nome); ++n) nome = fmt::format("Foglio{}", n);
  }
  if (auto motivo = NomeFoglioNonValido(nome)) return AvvisoEsclamativo(*motivo);
  if (IndiceFoglio(nome)) return AvvisoEsclamativo(fmt::format("Il foglio \"{}\" esiste già", nome));
  fogli.push_back(Foglio{.nome = std::move(nome)});
  return fogli.size() - 1;
}

std::string LetteraColonna(int colonna) {
  if (colonna < 1 || colonna > kMassimoColonne) return {};
  std::string lettere;
  for (; colonna > 0; colonna = (colonna - 1) / 26) lettere.insert(lettere.begin(), char('A' + (colonna - 1) % 26));
  return lettere;
}

std::optional<Posizione> LeggiRiferimento(std::string_view riferimento) {
  size_t i = 0;
  int colonna = 0;
  int riga = 0;
  for (; i < riferimento.size() && LetteraAscii(riferimento[i]); ++i) {
    colonna = colonna * 26 + (text::UpperAscii(riferimento[i]) - 'A' + 1);
    if (colonna > kMassimoColonne) return std::nullopt;
  }
  if (i == 0 || i == riferimento.size()) return std::nullopt;
  for (; i < riferimento.size(); ++i) {
    if (riferimento[i] < '0' || riferimento[i] > '9') return std::nullopt;
    riga = riga * 10 + (riferimento[i] - '0');
    if (riga > kMassimoRighe) return std::nullopt;
  }
  Posizione posizione{riga, colonna};
  if (!PosizioneValida(posizione)) return std::nullopt;
  return posizione;
}

std::optional<std::string> NomeFoglioNonValido(std::string_view nome) {
  if (nome.empty()) return "Il nome di un foglio non può essere vuoto";
  if (text::Utf8ToUtf16(nome).size() > 31) return fmt::format("Il nome del foglio \"{}\" supera i 31 caratteri", nome);
  if (nome.find_first_of("[]:*?/\\") != std::string_view::npos)
    return fmt::format("Il nome del foglio \"{}\" contiene uno dei caratteri [ ] : * ? / \\", nome);
  if (nome.front() == '\'' || nome.back() == '\'')
    return fmt::format("Il nome del foglio \"{}\" non può iniziare né finire con un apostrofo", nome);
  return std::nullopt;
}

bool PosizioneValida(Posizione posizione) {
  return posizione.riga >= 1 && posizione.riga <= kMassimoRighe && posizione.colonna >= 1 &&
         posizione.colonna <= kMassimoColonne;
}

}  // namespace lottolab::esporta
