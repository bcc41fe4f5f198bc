#include "AreaDisegnoScript.h"

#include <cmath>

#include <fmt/format.h>

#include "Famiglia.h"

namespace lottolab::script {

namespace {

// Whether this run's page already links the picture.
struct StatoCollegamento {
  bool fatto = false;
};

}  // namespace

std::filesystem::path PaginaDellEsecuzione(ClsFunctionsGeodoScript& lib) {
  if (lib.html().Aperto()) return lib.html().Percorso();
  return lib.impostazioni().cartella_output / lib.nome_file_html();
}

vbs::Result<AreaDisegno*> AreaDelloScript(ClsFunctionsGeodoScript& lib, std::string_view funzione) {
  AreaDisegno* area = lib.ospite().Disegno();
  if (!area) return ArgomentoNonValido("Nessuna area di disegno: chi esegue lo script non disegna");
  auto& collegamento = lib.Stato<StatoCollegamento>();
  if (collegamento.fatto) return area;
  collegamento.fatto = true;
  if (auto file = area->FileImmagine(PaginaDellEsecuzione(lib))) {
    VBS_TRY(lib.Consenti(vbs::FileAccess::Write, *file, funzione));
    lib.html().ScriviMarkup(
        fmt::format("<p><img src=\"{}\" alt=\"Disegno dello script\"></p>\n", TestoHtml(file->filename().string())));
  }
  return area;
}

vbs::Result<Rgb> ColoreDisegno(const vbs::CallArgs& args, size_t i, Rgb se_omesso) {
  if (!args.Has(i)) return se_omesso;
  VBS_TRY_ASSIGN(auto colore, args.Long(i));
  auto rgb = RgbDiColoreScript(colore);
  if (!rgb)
    return ArgomentoNonValido(
        fmt::format("Colore non valido: {} (da 0, Nero_, a 7, Magenta_, o un colore di RGB(r, g, b))", colore));
  return *rgb;
}

vbs::Result<std::optional<Rgb>> ColoreDisegnoFacoltativo(const vbs::CallArgs& args, size_t i) {
  if (!args.Has(i)) return std::optional<Rgb>();
  VBS_TRY_ASSIGN(auto colore, ColoreDisegno(args, i, 0));
  return std::optional<Rgb>(colore);
}

vbs::Result<double> SpessoreDisegno(const vbs::CallArgs& args, size_t i, double se_omesso) {
  VBS_TRY_ASSIGN(auto spessore, args.Double(i, se_omesso));
  if (!(spessore >= 0 && spessore <= kSpessoreMassimo))
    return ArgomentoNonValido(fmt::format("Spessore non valido: {} (da 0 a {} pixel)", spessore, kSpessoreMassimo));
  return spessore;
}

vbs::Result<double> CoordinataDisegno(const vbs::CallArgs& args, size_t i, std::optional<double> se_omessa) {
  double valore = 0;
  if (se_omessa) {
    VBS_TRY_ASSIGN(valore, args.Double(i, *se_omessa));
  } else {
    VBS_TRY_ASSIGN(valore, args.Double(i));
  }
  if (!(std::abs(valore) <= kCoordinataMassima))
    return ArgomentoNonValido(
        fmt::format("Coordinata non valida: {} (al massimo {} in valore assoluto)", valore, kCoordinataMassima));
  return valore;
}

vbs::Result<int> DimensioneTestoDisegno(const vbs::CallArgs& args, size_t i, int se_omessa) {
  VBS_TRY_ASSIGN(auto dimensione, args.Long(i, se_omessa));
  if (dimensione < 1 || dimensione > kDimensioneTestoMassima)
    return ArgomentoNonValido(
        fmt::format("Dimensione del testo non valida: {} (da 1 a {} pixel)", dimensione, kDimensioneTestoMassima));
  return static_cast<int>(dimensione);
}

}  // namespace lottolab::script
