#include "gui/strutture/StruttureCondizioni.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "figures/CondizioneLessico.h"
#include "figures/FileStrutture.h"
#include "figures/LimitiStrutture.h"
#include "text/AsciiCase.h"

namespace lottolab::gui {

namespace {

constexpr std::array kForme{
    FormaCondizione{.modello = "[A] = [B]", .usa_b = true},
    FormaCondizione{.modello = "[A] + 1 = [B]", .usa_b = true},
    FormaCondizione{.modello = "[A] - 1 = [B]", .usa_b = true},
    FormaCondizione{.modello = "[A] <> [B]", .usa_b = true},
    FormaCondizione{.modello = "Cadenza([A]) = Cadenza([B])", .usa_b = true},
    FormaCondizione{.modello = "Decina([A]) = Decina([B])", .usa_b = true},
    FormaCondizione{.modello = "DecinaCabalistica([A]) = DecinaCabalistica([B])", .usa_b = true},
    FormaCondizione{.modello = "Figura([A]) = Figura([B])", .usa_b = true},
    FormaCondizione{.modello = "[B] = (Diametrale([A]))", .usa_b = true},
    FormaCondizione{.modello = "Vertibili([A], [B])", .usa_b = true},
    FormaCondizione{.modello = "DiffCiclometrica([A], [B]) = n", .usa_b = true, .usa_n = true},
    FormaCondizione{.modello = "SommaCiclometrica([A], [B]) = n", .usa_b = true, .usa_n = true},
    FormaCondizione{.modello = "[A] = n", .usa_n = true},
    FormaCondizione{.modello = "PosizioneVertice([A]) = n", .usa_n = true},
    FormaCondizione{.modello = "ContaPresenze([A]) = n", .usa_n = true},
    FormaCondizione{.modello = "RuotaUnica()", .usa_a = false},
    FormaCondizione{.modello = "SommaCiclometricaGlob() = n", .usa_a = false, .usa_n = true},
    FormaCondizione{.modello = "QuantitaCadenze() = n", .usa_a = false, .usa_n = true},
    FormaCondizione{.modello = "QuantitaFigure() = n", .usa_a = false, .usa_n = true},
};

std::string_view Ripulito(std::string_view testo) {
  while (!testo.empty() && std::isspace(static_cast<unsigned char>(testo.front()))) testo.remove_prefix(1);
  while (!testo.empty() && std::isspace(static_cast<unsigned char>(testo.back()))) testo.remove_suffix(1);
  return testo;
}

}  // namespace

std::span<const FormaCondizione> FormeCondizione() { return kForme; }

std::string RiferimentoVertice(const figures::ClsVertice& vertice, std::span<const figures::ClsVertice> vertici) {
  const std::string_view caption = Ripulito(vertice.Caption);
  const auto primo = std::find_if(vertici.begin(), vertici.end(), [&](const figures::ClsVertice& altro) {
    return altro.Index != 0 && text::EqualsIgnoringAsciiCase(Ripulito(altro.Caption), caption);
  });
  const bool per_caption = !caption.empty() && caption.find(']') == std::string_view::npos && primo != vertici.end() &&
                           primo->Index == vertice.Index;
  return "[" + (per_caption ? std::string(caption) : std::to_string(vertice.Index)) + "]";
}

std::string ComponiCondizione(const FormaCondizione& forma, std::string_view a, std::string_view b, int n,
                              bool negata) {
  std::string testo = negata ? "Not " : "";
  for (size_t i = 0; i < forma.modello.size(); ++i) {
    const std::string_view resto = forma.modello.substr(i);
    if (resto.starts_with("[A]")) {
      testo += a;
      i += 2;
    } else if (resto.starts_with("[B]")) {
      testo += b;
      i += 2;
    } else if (resto.front() == 'n' && (i == 0 || !std::isalpha(static_cast<unsigned char>(forma.modello[i - 1]))) &&
               (resto.size() == 1 || !std::isalpha(static_cast<unsigned char>(resto[1])))) {
      testo += std::to_string(n);
    } else {
      testo += resto.front();
    }
  }
  return testo;
}

std::string AccodaCondizione(std::string_view testo, std::string_view connettivo, std::string_view parte) {
  const std::string_view gia = Ripulito(testo);
  if (gia.empty()) return std::string(parte);
  return std::string(gia) + " " + std::string(connettivo) + " " + std::string(parte);
}

std::optional<figures::ErroreSintassi> VerificaCondizione(std::string_view testo,
                                                          std::span<const figures::ClsVertice> vertici) {
  if (auto motivo = figures::TestoNonAmmesso(testo, figures::kByteCondizione, "La condizione")) {
    const size_t fine = figures::PosizioneFine(testo);
    const size_t colonna = fine != std::string_view::npos ? figures::Colonna(testo, fine)
                           : figures::Colonna(testo, testo.size()) > figures::kByteCondizione
                               ? figures::kByteCondizione + 1
                               : 1;
    return figures::ErroreSintassi{std::move(*motivo), colonna};
  }
  auto compilata = figures::Condizione::Compila(testo, vertici);
  if (!compilata) return compilata.Errore();
  return std::nullopt;
}

}  // namespace lottolab::gui
