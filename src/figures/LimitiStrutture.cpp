#include "LimitiStrutture.h"

#include <fmt/format.h>

#include <algorithm>

#include "text/AsciiCase.h"
#include "text/Utf.h"

namespace lottolab::figures {

namespace {

bool ByteDiSeguito(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

size_t Caratteri(std::string_view utf8) {
  return static_cast<size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) { return !ByteDiSeguito(c); }));
}

}  // namespace

size_t PosizioneFine(std::string_view utf8) {
  constexpr std::string_view kFine = "FINE";
  for (size_t i = 0; i + kFine.size() <= utf8.size(); ++i)
    if (text::EqualsIgnoringAsciiCase(utf8.substr(i, kFine.size()), kFine)) return i;
  return std::string_view::npos;
}

std::optional<std::string> LimiteSuperato(const Struttura& struttura) {
  if (struttura.vertici.size() > kMassimoVertici)
    return fmt::format("ha {} vertici, al massimo {}", struttura.vertici.size(), kMassimoVertici);
  if (struttura.linee.size() > kMassimoLinee)
    return fmt::format("ha {} linee, al massimo {}", struttura.linee.size(), kMassimoLinee);
  if (struttura.condizioni.size() > kMassimoCondizioni)
    return fmt::format("ha {} condizioni, al massimo {}", struttura.condizioni.size(), kMassimoCondizioni);
  int prima = 0;
  int ultima = 0;
  bool trovato = false;
  for (const ClsVertice& vertice : struttura.vertici) {
    if (vertice.Index == 0) continue;
    prima = trovato ? std::min<int>(prima, vertice.Riga) : vertice.Riga;
    ultima = trovato ? std::max<int>(ultima, vertice.Riga) : vertice.Riga;
    trovato = true;
  }
  if (ultima - prima + 1 > kMassimeRigheFigura)
    return fmt::format("si stende su {} estrazioni, al massimo {}", ultima - prima + 1, kMassimeRigheFigura);
  return std::nullopt;
}

std::optional<std::string> TestoNonAmmesso(std::string_view utf8, size_t caratteri, std::string_view cosa) {
  if (PosizioneFine(utf8) != std::string_view::npos)
    return fmt::format(
        "{} non può contenere la parola \"fine\" (in nessuna forma di maiuscole e minuscole): nel "
        "file della struttura \"fine\" chiude la sezione, e ciò che segue andrebbe perso.",
        cosa);
  if (Caratteri(utf8) > caratteri)
    return fmt::format("{} è lunga {} caratteri: il file della struttura ne tiene al massimo {}.", cosa,
                       Caratteri(utf8), caratteri);
  const std::u16string testo = text::Utf8ToUtf16(utf8);
  if (text::Windows1252ToUtf16(text::Utf16ToWindows1252(testo)) != testo)
    return fmt::format(
        "{} contiene caratteri che il file della struttura non può tenere (solo lettere dell'alfabeto "
        "latino, cifre e segni comuni).",
        cosa);
  return std::nullopt;
}

}  // namespace lottolab::figures
