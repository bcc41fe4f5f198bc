// Charts from scripts: PreparaGrafico starts one, InserisciGrafico adds its series, LayOutGrafico
// sets size, scale and look for the charts of the run, Grafico shows it (a window in the desktop, a
// PNG linked from the page of a headless run). PuntiSuArray and DisegnaLineaGrafico put values on
// the picture area with the scaling of DisegnoGrafico.h.
//
// Arrays are read as the rest of the library reads them: their elements in order, the Empty ones
// (the unused element 0 of an array filled from 1) passed over, so the values stand at 1, 2, ... n.

#include <algorithm>
#include <cmath>
#include <fmt/format.h>

#include "AreaDisegnoScript.h"
#include "ArgomentiLotto.h"
#include "DisegnoGrafico.h"
#include "Famiglia.h"
#include "OutputHtml.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// A run that shows a chart per draw in a loop is told, not let open windows without end.
constexpr int kGraficiMassimi = 50;
// A chart needs room for its title, axes and legend.
constexpr int kLatoGraficoMinimo = 100;
constexpr size_t kTestoMassimo = 200;
constexpr double kCoordinataMassima = 1e6;

struct StatoGrafici {
  std::optional<DisegnoGrafico> in_preparazione;
  ImpaginazioneGrafico impaginazione;
  int mostrati = 0;
};

// Argument i as the values of a series: an array of one dimension whose elements are numbers, at
// least one and at most `massimo`.
Result<std::vector<double>> ValoriSerie(const CallArgs& args, size_t i, std::string_view nome, size_t massimo) {
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  if (!valore.is_array()) return ArgomentoNonValido(fmt::format("{} deve essere un array di numeri", nome));
  const vbs::SafeArray& array = *valore.as_array();
  if (array.DimensionCount() != 1)
    return ArgomentoNonValido(fmt::format("{} deve essere un array di una sola dimensione", nome));
  const int64_t primo = array.bounds().front().lower;
  std::vector<double> valori;
  const auto elementi = array.elements();
  for (size_t k = 0; k < elementi.size(); ++k) {
    const Variant& elemento = elementi[k];
    if (elemento.is_empty()) continue;
    const int64_t indice = primo + static_cast<int64_t>(k);
    if (valori.size() == massimo)
      return ArgomentoNonValido(fmt::format("{}: troppi valori, al massimo {}", nome, massimo));
    if (elemento.is_null()) return ArgomentoNonValido(fmt::format("{}({}) è Null, non un numero", nome, indice));
    auto numero = elemento.to_double(args.locale());
    if (!numero) return ArgomentoNonValido(fmt::format("{}({}) non è un numero", nome, indice));
    if (!(std::abs(*numero) <= kValoreMassimo))
      return ArgomentoNonValido(fmt::format("{}({}) fuori scala: {} (al massimo {} in valore assoluto)", nome, indice,
                                            *numero, kValoreMassimo));
    valori.push_back(*numero);
  }
  if (valori.empty())
    return ArgomentoNonValido(fmt::format("{} non ha valori: è vuoto o ha solo elementi Empty", nome));
  return valori;
}

Result<std::string> TestoBreve(const CallArgs& args, size_t i, std::string_view nome, std::u16string_view se_omesso) {
  VBS_TRY_ASSIGN(auto testo, args.String(i, se_omesso));
  if (testo.size() > kTestoMassimo)
    return ArgomentoNonValido(fmt::format("{} troppo lungo: al massimo {} caratteri", nome, kTestoMassimo));
  return text::Utf16ToUtf8(testo);
}

// aEtichetteX: the texts of the places 1, 2, ... of the X axis.
Result<std::vector<std::string>> EtichetteArgomento(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  if (!valore.is_array()) return ArgomentoNonValido("aEtichetteX deve essere un array di testi");
  std::vector<std::string> etichette;
  for (const Variant& elemento : valore.as_array()->elements()) {
    if (elemento.is_empty()) continue;
    if (etichette.size() == kEtichetteMassime)
      return ArgomentoNonValido(fmt::format("aEtichetteX: troppe etichette, al massimo {}", kEtichetteMassime));
    if (elemento.is_null()) {
      etichette.emplace_back();
      continue;
    }
    VBS_TRY_ASSIGN(auto testo, elemento.to_string(args.locale()));
    if (testo.view().size() > kTestoMassimo)
      return ArgomentoNonValido(fmt::format("aEtichetteX: etichetta {} troppo lunga: al massimo {} caratteri",
                                            etichette.size() + 1, kTestoMassimo));
    etichette.push_back(text::Utf16ToUtf8(testo.view()));
  }
  return etichette;
}

Result<double> Coordinata(const CallArgs& args, size_t i, double se_omessa) {
  VBS_TRY_ASSIGN(auto valore, args.Double(i, se_omessa));
  if (!(std::abs(valore) <= kCoordinataMassima))
    return ArgomentoNonValido(
        fmt::format("Coordinata non valida: {} (al massimo {} in valore assoluto)", valore, kCoordinataMassima));
  return valore;
}

Result<double> Lato(const CallArgs& args, size_t i, double se_omesso) {
  VBS_TRY_ASSIGN(auto valore, args.Double(i, se_omesso));
  if (!(valore >= 0 && valore <= kLatoGraficoMassimo))
    return ArgomentoNonValido(
        fmt::format("Larghezza o altezza non valida: {} (da 0 a {} pixel)", valore, kLatoGraficoMassimo));
  return valore;
}

// Minimo and Massimo of the scale at i and i + 1: the values' own when omitted.
Result<std::pair<double, double>> Scala(const CallArgs& args, size_t i, const std::vector<double>& valori) {
  const auto [basso, alto] = std::minmax_element(valori.begin(), valori.end());
  VBS_TRY_ASSIGN(auto minimo, args.Double(i, *basso));
  VBS_TRY_ASSIGN(auto massimo, args.Double(i + 1, *alto));
  if (!(std::abs(minimo) <= kValoreMassimo && std::abs(massimo) <= kValoreMassimo && minimo <= massimo))
    return ArgomentoNonValido(fmt::format("Minimo e Massimo non validi: {} e {}", minimo, massimo));
  return std::pair{minimo, massimo};
}

Result<Variant> PreparaGrafico(Libreria& lib, CallArgs& args) {
  DisegnoGrafico grafico;
  VBS_TRY_ASSIGN(grafico.titolo, TestoBreve(args, 0, "Titolo", u""));
  VBS_TRY_ASSIGN(grafico.titolo_x, TestoBreve(args, 1, "TitoloX", u""));
  VBS_TRY_ASSIGN(grafico.titolo_y, TestoBreve(args, 2, "TitoloY", u""));
  VBS_TRY_ASSIGN(auto tipo, args.Long(3, 1));
  if (tipo < 1 || tipo > 3)
    return ArgomentoNonValido(fmt::format("Tipo di grafico non valido: {} (1 linee, 2 barre, 3 punti)", tipo));
  grafico.tipo = static_cast<TipoGrafico>(tipo);
  lib.Stato<StatoGrafici>().in_preparazione = std::move(grafico);
  return Variant();
}

Result<Variant> InserisciGrafico(Libreria& lib, CallArgs& args) {
  auto& stato = lib.Stato<StatoGrafici>();
  DisegnoGrafico& grafico = stato.in_preparazione ? *stato.in_preparazione : stato.in_preparazione.emplace();
  if (grafico.serie.size() == kSerieMassime)
    return ArgomentoNonValido(fmt::format("Troppe serie nel grafico: al massimo {}", kSerieMassime));
  const bool barre = grafico.tipo == TipoGrafico::Barre;
  const size_t massimo = barre ? kBarreMassime : kPuntiMassimi;
  // Two arrays are the X and the Y of the points; one array is the values alone.
  const bool coppie = args.size() > 1 && args[1].is_array();
  SerieGrafico serie;
  if (coppie) {
    if (barre) return ArgomentoNonValido("Un grafico a barre vuole i soli valori (aValori), non le coppie aX, aY");
    VBS_TRY_ASSIGN(serie.x, ValoriSerie(args, 0, "aX", massimo));
    VBS_TRY_ASSIGN(serie.y, ValoriSerie(args, 1, "aY", massimo));
    if (serie.x.size() != serie.y.size())
      return ArgomentoNonValido(fmt::format("aX e aY devono avere lo stesso numero di valori (aX ne ha {}, aY {})",
                                            serie.x.size(), serie.y.size()));
  } else {
    VBS_TRY_ASSIGN(serie.y, ValoriSerie(args, 0, "aValori", massimo));
  }
  const size_t i_nome = coppie ? 2 : 1;
  const std::u16string predefinito = text::Utf8ToUtf16(fmt::format("Serie {}", grafico.serie.size() + 1));
  VBS_TRY_ASSIGN(serie.nome, TestoBreve(args, i_nome, "NomeSerie", predefinito));
  VBS_TRY_ASSIGN(serie.colore, ColoreDisegnoFacoltativo(args, i_nome + 1));
  if (!coppie && args.Has(3)) {
    VBS_TRY_ASSIGN(grafico.etichette_x, EtichetteArgomento(args, 3));
  }
  grafico.serie.push_back(std::move(serie));
  return Variant::Long(static_cast<int32_t>(grafico.serie.size()));
}

// Argument i as a bound of the Y scale: omitted keeps the one set, Empty goes back to the values'.
Result<std::optional<double>> LimiteY(const CallArgs& args, size_t i, std::optional<double> attuale) {
  if (!args.Has(i)) return attuale;
  if (args[i].is_empty()) return std::optional<double>();
  VBS_TRY_ASSIGN(auto limite, args.Double(i));
  if (!(std::abs(limite) <= kValoreMassimo))
    return ArgomentoNonValido(fmt::format("Limite della scala non valido: {}", limite));
  return std::optional<double>(limite);
}

Result<Variant> LayOutGrafico(Libreria& lib, CallArgs& args) {
  ImpaginazioneGrafico nuova = lib.Stato<StatoGrafici>().impaginazione;
  VBS_TRY_ASSIGN(nuova.larghezza, args.Long(0, nuova.larghezza));
  VBS_TRY_ASSIGN(nuova.altezza, args.Long(1, nuova.altezza));
  if (nuova.larghezza < kLatoGraficoMinimo || nuova.larghezza > kLatoGraficoMassimo ||
      nuova.altezza < kLatoGraficoMinimo || nuova.altezza > kLatoGraficoMassimo)
    return ArgomentoNonValido(fmt::format("Dimensioni del grafico non valide: {} x {} (ciascuna da {} a {} pixel)",
                                          nuova.larghezza, nuova.altezza, kLatoGraficoMinimo, kLatoGraficoMassimo));
  VBS_TRY_ASSIGN(nuova.minimo_y, LimiteY(args, 2, nuova.minimo_y));
  VBS_TRY_ASSIGN(nuova.massimo_y, LimiteY(args, 3, nuova.massimo_y));
  if (nuova.minimo_y && nuova.massimo_y && !(*nuova.minimo_y < *nuova.massimo_y))
    return ArgomentoNonValido(
        fmt::format("MinY deve essere minore di MaxY (MinY {}, MaxY {})", *nuova.minimo_y, *nuova.massimo_y));
  VBS_TRY_ASSIGN(nuova.legenda, args.Boolean(4, nuova.legenda));
  VBS_TRY_ASSIGN(nuova.griglia, args.Boolean(5, nuova.griglia));
  VBS_TRY_ASSIGN(nuova.sfondo, ColoreDisegno(args, 6, nuova.sfondo));
  lib.Stato<StatoGrafici>().impaginazione = nuova;
  return Variant();
}

Result<Variant> Grafico(Libreria& lib, CallArgs& args) {
  auto& stato = lib.Stato<StatoGrafici>();
  DisegnoGrafico grafico;
  const bool diretto = args.Has(0) && args[0].is_array();
  if (diretto) {
    SerieGrafico serie;
    VBS_TRY_ASSIGN(serie.y, ValoriSerie(args, 0, "aValori", kPuntiMassimi));
    VBS_TRY_ASSIGN(grafico.titolo, TestoBreve(args, 1, "Titolo", u""));
    serie.nome = grafico.titolo.empty() ? "Serie 1" : grafico.titolo;
    grafico.serie.push_back(std::move(serie));
  } else {
    if (!stato.in_preparazione || stato.in_preparazione->serie.empty())
      return ArgomentoNonValido("Nessun grafico da mostrare: InserisciGrafico ne aggiunge le serie prima di Grafico");
    if (args.Has(1))
      return ArgomentoNonValido("Grafico vuole [Titolo] oppure aValori, [Titolo]: aValori non è un array");
    grafico = *stato.in_preparazione;
    if (args.Has(0)) {
      VBS_TRY_ASSIGN(grafico.titolo, TestoBreve(args, 0, "Titolo", u""));
    }
  }
  if (stato.mostrati == kGraficiMassimi)
    return ArgomentoNonValido(fmt::format("Troppi grafici: al massimo {} per esecuzione", kGraficiMassimi));
  grafico.impaginazione = stato.impaginazione;
  AreaDisegno* area = lib.ospite().Disegno();
  if (!area) return ArgomentoNonValido("Nessuna area di disegno: chi esegue lo script non disegna");
  const auto pagina = PaginaDellEsecuzione(lib);
  const int numero = stato.mostrati + 1;
  // A headless host writes beside the page; the rules judge a file by where it lies.
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write,
                       pagina.parent_path() / fmt::format("{}_grafico{}.png", pagina.stem().string(), numero),
                       "Grafico"));
  auto file = area->MostraGrafico(grafico, pagina);
  if (!file) return ArgomentoNonValido(file.Errore().testo);
  stato.mostrati = numero;
  if (!diretto) stato.in_preparazione.reset();
  if (*file) {
    const std::string alt = grafico.titolo.empty() ? fmt::format("Grafico {}", numero) : grafico.titolo;
    lib.html().ScriviMarkup(
        fmt::format("<p><img src=\"{}\" alt=\"{}\"></p>\n", TestoHtml((*file)->filename().string()), TestoHtml(alt)));
  }
  return Variant::Long(numero);
}

Result<Variant> PuntiSuArray(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valori, ValoriSerie(args, 0, "aValori", kPuntiMassimi));
  RettangoloGrafico rettangolo;
  VBS_TRY_ASSIGN(rettangolo.x, Coordinata(args, 3, 0));
  VBS_TRY_ASSIGN(rettangolo.y, Coordinata(args, 4, 0));
  VBS_TRY_ASSIGN(rettangolo.larghezza, Lato(args, 5, 0));
  VBS_TRY_ASSIGN(rettangolo.altezza, Lato(args, 6, 0));
  VBS_TRY_ASSIGN(auto scala, Scala(args, 7, valori));
  const auto punti = PuntiNelRettangolo(valori, rettangolo, scala.first, scala.second);
  std::vector<Variant> xs;
  std::vector<Variant> ys;
  xs.reserve(punti.size());
  ys.reserve(punti.size());
  for (const auto& [x, y] : punti) {
    xs.push_back(Variant::Double(x));
    ys.push_back(Variant::Double(y));
  }
  args.Out(1) = ArrayDaUno(std::move(xs));
  args.Out(2) = ArrayDaUno(std::move(ys));
  return Variant::Long(static_cast<int32_t>(punti.size()));
}

Result<Variant> DisegnaLineaGrafico(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valori, ValoriSerie(args, 0, "aValori", kPuntiMassimi));
  VBS_TRY_ASSIGN(auto colore, ColoreDisegno(args, 1, 0x000000));
  VBS_TRY_ASSIGN(auto spessore, SpessoreDisegno(args, 2, 1));
  RettangoloGrafico rettangolo;
  VBS_TRY_ASSIGN(rettangolo.x, Coordinata(args, 3, 0));
  VBS_TRY_ASSIGN(rettangolo.y, Coordinata(args, 4, 0));
  VBS_TRY_ASSIGN(auto scala, Scala(args, 7, valori));
  // The sizes are checked before the area is asked for, so a refused call links no picture.
  VBS_TRY_ASSIGN(auto larghezza, Lato(args, 5, 0));
  VBS_TRY_ASSIGN(auto altezza, Lato(args, 6, 0));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "DisegnaLineaGrafico"));
  const auto [larghezza_area, altezza_area] = area->Dimensioni();
  rettangolo.larghezza = args.Has(5) ? larghezza : std::max(0.0, larghezza_area - 1 - rettangolo.x);
  rettangolo.altezza = args.Has(6) ? altezza : std::max(0.0, altezza_area - 1 - rettangolo.y);
  const auto punti = PuntiNelRettangolo(valori, rettangolo, scala.first, scala.second);
  area->Spezzata(punti, Tratto{colore, spessore, false});
  return Variant::Long(static_cast<int32_t>(punti.size()));
}

const Libreria::Funzione kGrafici[] = {
    {"PreparaGrafico", 1, 4, &PreparaGrafico,
     "Titolo, [TitoloX], [TitoloY], [Tipo = 1]: comincia un nuovo grafico (1 linee, 2 barre, 3 punti) al posto di "
     "quello non ancora mostrato; InserisciGrafico ne aggiunge le serie, Grafico lo mostra",
     "niente (Sub)",
     "PreparaGrafico \"Uscite per numero\", \"numero\", \"uscite\", 2 : InserisciGrafico Array(12, 9, 15, 7)"},
    {"InserisciGrafico", 1, 4, &InserisciGrafico,
     "aValori, [NomeSerie], [Colore], [aEtichetteX] oppure aX, aY, [NomeSerie], [Colore]: aggiunge al grafico una "
     "serie (al massimo 16), i valori alle posizioni 1, 2, ... o i punti (aX(i), aY(i)); aEtichetteX sono i testi "
     "delle posizioni sull'asse X; gli elementi Empty sono saltati; restituisce il numero della serie",
     "Long: il numero della serie nel grafico",
     "PreparaGrafico \"Ritardi\" : Scrivi InserisciGrafico(Array(3, 8, 1, 12), \"Bari\", Rosso_, Array(\"gen\", "
     "\"feb\", \"mar\", \"apr\"))"},
    {"LayOutGrafico", 0, 7, &LayOutGrafico,
     "[Larghezza = 800], [Altezza = 500], [MinY], [MaxY], [Legenda = True], [Griglia = True], [ColoreSfondo = "
     "Bianco_]: l'aspetto dei grafici che seguono nell'esecuzione (da 100 a 8000 pixel); MinY e MaxY fissano la "
     "scala dei valori, Empty la torna automatica; quelli omessi restano",
     "niente (Sub)", "LayOutGrafico 1000, 600"},
    {"Grafico", 0, 2, &Grafico,
     "[Titolo] oppure aValori, [Titolo]: mostra il grafico preparato (o quello dei soli aValori): nel programma in "
     "una finestra, a riga di comando in un'immagine PNG accanto alla pagina HTML, che la mostra; restituisce il "
     "numero del grafico nell'esecuzione (al massimo 50)",
     "Long: il numero del grafico nell'esecuzione, da 1", "Scrivi Grafico(Array(3, 8, 1, 12, 5), \"Ritardi\")"},
    {"PuntiSuArray", 7, 9, &PuntiSuArray,
     "aValori, aX, aY, X, Y, Larghezza, Altezza, [Minimo], [Massimo]: riempie aX e aY (da 1) dei pixel dei valori "
     "nel rettangolo di angolo (X, Y): il primo sul bordo sinistro, l'ultimo sul destro, Minimo (il più piccolo dei "
     "valori se omesso) in basso e Massimo in alto; per PicLinea e PicPoligono; restituisce quanti sono",
     "Long: quanti punti; in aX e aY (array da 1) le loro coordinate in pixel",
     "Scrivi PuntiSuArray(Array(3, 8, 1, 12), aX, aY, 10, 10, 300, 200) & \" punti, il primo in \" & aX(1) & \", \" & "
     "aY(1)"},
    {"DisegnaLineaGrafico", 1, 9, &DisegnaLineaGrafico,
     "aValori, [Colore = Nero_], [Spessore = 1], [X = 0], [Y = 0], [Larghezza], [Altezza], [Minimo], [Massimo]: "
     "disegna nell'area di disegno la linea dei valori, posti come li pone PuntiSuArray (il rettangolo, se omesso, "
     "arriva al bordo dell'immagine); restituisce quanti punti ha",
     "Long: quanti punti ha la linea",
     "Scrivi DisegnaLineaGrafico(Array(3, 8, 1, 12, 5), Rosso_, 2, 20, 20, 400, 200)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniGrafici() { return kGrafici; }

}  // namespace lottolab::script
