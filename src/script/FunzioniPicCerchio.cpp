// The circle of the 90 numbers from scripts: a drawing is made with GetNewDisegnoCiclometrico, its
// colours, widths and kinds set with the ImpostaProp... names, then painted on the picture area
// (DisegnaCerchioCiclometrico, DisegnaEstrazioneFromFiguraCiclometrica) or in a view of its own
// (QvCerchio_InitDisegno). Figures come as arrays of numbers, one array a figure, or as the figures
// of the cyclometry's collections, which keep their description for the view's list.

#include <fmt/format.h>

#include "AreaDisegnoScript.h"
#include "ArgomentiCiclometria.h"
#include "ArgomentiLotto.h"
#include "Collezione.h"
#include "Famiglia.h"
#include "FiguraCiclo.h"
#include "OutputHtml.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// A run may hold this many drawings: a script making one per draw in a loop is told, not let fill
// the memory.
constexpr size_t kDisegniMassimi = 1000;
constexpr size_t kFigureMassime = 100000;

struct StatoCerchi {
  std::vector<DisegnoCerchio> disegni;
};

Result<DisegnoCerchio*> DisegnoArgomento(Libreria& lib, const CallArgs& args) {
  VBS_TRY_ASSIGN(auto id, args.Long(0));
  auto& disegni = lib.Stato<StatoCerchi>().disegni;
  if (id < 1 || static_cast<size_t>(id) > disegni.size())
    return ArgomentoNonValido(fmt::format(
        "Disegno ciclometrico non valido: {} (GetNewDisegnoCiclometrico ne ha dati {})", id, disegni.size()));
  return &disegni[static_cast<size_t>(id - 1)];
}

// The numbers 1..90 of an array (or one number); Empty elements are passed over.
Result<std::vector<int>> NumeriDelCerchio(const CallArgs& args, size_t i, std::string_view cosa) {
  if (!args.Has(i)) return std::vector<int>();
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, i));
  std::vector<int> numeri;
  numeri.reserve(valori.size());
  for (double valore : valori) {
    if (!(valore >= 1 && valore <= 90 && valore == static_cast<int>(valore)))
      return ArgomentoNonValido(fmt::format("{}: numero non valido {} (da 1 a 90)", cosa, valore));
    numeri.push_back(static_cast<int>(valore));
  }
  return numeri;
}

// aFigure: an array whose elements are arrays of numbers, one figure each.
Result<std::vector<FiguraCerchio>> FigureArgomento(const CallArgs& args, size_t i) {
  std::vector<FiguraCerchio> figure;
  if (!args.Has(i)) return figure;
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  if (!valore.is_array()) return ArgomentoNonValido("aFigure deve essere un array di array di numeri");
  for (const Variant& elemento : valore.as_array()->elements()) {
    if (elemento.is_empty()) continue;
    if (figure.size() == kFigureMassime)
      return ArgomentoNonValido(fmt::format("Troppe figure: al massimo {}", kFigureMassime));
    Variant copia = elemento;
    CallArgs uno(std::span<Variant>(&copia, 1), args.locale());
    VBS_TRY_ASSIGN(auto numeri, NumeriDelCerchio(uno, 0, fmt::format("figura {}", figure.size() + 1)));
    figure.push_back(FiguraCerchio{std::move(numeri), std::nullopt, std::nullopt, {}});
  }
  return figure;
}

// A figure of the cyclometry's collections as the circle draws it.
FiguraCerchio FiguraDelCerchio(const stats::FiguraCiclometrica& figura) {
  return FiguraCerchio{std::vector<int>(figura.vertici.begin(), figura.vertici.begin() + figura.quanti), std::nullopt,
                       std::nullopt, stats::DescrizioneFigura(figura)};
}

FiguraCiclo* FiguraCicloDi(const Variant& valore) {
  return valore.is_object() ? dynamic_cast<FiguraCiclo*>(valore.as_object()) : nullptr;
}

// Argument i of DisegnaEstrazioneFromFiguraCiclometrica: the figures to draw among `insieme`. Omitted,
// every kind a set holds; a figure or a collection of figures, those; numbers, those kinds.
Result<std::vector<FiguraCerchio>> FigureDaDisegnare(const CallArgs& args, size_t i,
                                                     const stats::InsiemeCiclometrico& insieme) {
  std::vector<FiguraCerchio> figure;
  stats::TipiFigura tipi = stats::kFigureDiUnInsieme;
  if (args.Has(i)) {
    // An object is looked at as it is: its value would be its default member's.
    const Variant& valore = args[i];
    if (auto* figura = FiguraCicloDi(valore)) {
      figure.push_back(FiguraDelCerchio(figura->figura()));
      return figure;
    }
    if (auto* collezione = valore.is_object() ? dynamic_cast<Collezione*>(valore.as_object()) : nullptr) {
      for (size_t k = 0; k < collezione->size(); ++k) {
        auto* voce = FiguraCicloDi((*collezione)[k]);
        if (!voce)
          return ArgomentoNonValido(
              fmt::format("Figure: l'elemento {} della collezione non è una figura ciclometrica", k + 1));
        if (figure.size() == kFigureMassime)
          return ArgomentoNonValido(fmt::format("Troppe figure: al massimo {}", kFigureMassime));
        figure.push_back(FiguraDelCerchio(voce->figura()));
      }
      return figure;
    }
    VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, i));
    tipi = 0;
    for (double tipo : valori) {
      if (!(tipo >= 1 && tipo < stats::kTipiFigura && tipo == static_cast<int>(tipo)))
        return ArgomentoNonValido(
            fmt::format("Figure non valide: {} (una figura, una collezione di figure o i tipi da 1 a 7)", tipo));
      tipi |= stats::Tipo(static_cast<stats::TipoFigura>(tipo));
    }
  }
  for (const auto& figura : stats::TrovaFigure(insieme, tipi)) {
    if (figure.size() == kFigureMassime) break;
    figure.push_back(FiguraDelCerchio(figura));
  }
  return figure;
}

// Evidenziata at i (0 none, from 1), X, Y and Lato after it: where the circle goes on the picture.
struct PostoCerchio {
  int evidenziata = -1;
  double x = 0;
  double y = 0;
  double lato = 0;
};

Result<PostoCerchio> PostoArgomenti(const CallArgs& args, size_t i, size_t figure) {
  PostoCerchio posto;
  VBS_TRY_ASSIGN(auto evidenziata, args.Long(i, 0));
  if (evidenziata < 0 || static_cast<size_t>(evidenziata) > figure)
    return ArgomentoNonValido(fmt::format("Evidenziata non valida: {} (0 nessuna, da 1 a {})", evidenziata, figure));
  posto.evidenziata = static_cast<int>(evidenziata) - 1;
  VBS_TRY_ASSIGN(posto.x, CoordinataDisegno(args, i + 1, 0));
  VBS_TRY_ASSIGN(posto.y, CoordinataDisegno(args, i + 2, 0));
  VBS_TRY_ASSIGN(posto.lato, args.Double(i + 3, 0));
  if (!(posto.lato >= 0 && posto.lato <= 8000))
    return ArgomentoNonValido(fmt::format("Lato non valido: {} (da 0 a 8000 pixel)", posto.lato));
  return posto;
}

Result<Variant> GetNewDisegnoCiclometrico(Libreria& lib, CallArgs&) {
  auto& disegni = lib.Stato<StatoCerchi>().disegni;
  if (disegni.size() == kDisegniMassimi)
    return ArgomentoNonValido(
        fmt::format("Troppi disegni ciclometrici: al massimo {} per esecuzione", kDisegniMassimi));
  disegni.emplace_back();
  return Variant::Long(static_cast<int32_t>(disegni.size()));
}

Result<Variant> DisegnaCerchioCiclometrico(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto disegno, DisegnoArgomento(lib, args));
  VBS_TRY_ASSIGN(auto marcati, NumeriDelCerchio(args, 1, "aNumeri"));
  VBS_TRY_ASSIGN(auto figure, FigureArgomento(args, 2));
  if (args.Has(3)) {
    VBS_TRY_ASSIGN(auto colori, ValoriArgomento(args, 3));
    for (size_t k = 0; k < colori.size() && k < figure.size(); ++k) {
      auto rgb = RgbDiColoreScript(static_cast<int32_t>(colori[k]));
      if (!rgb || colori[k] != static_cast<int32_t>(colori[k]))
        return ArgomentoNonValido(fmt::format("aColori: colore non valido {} per la figura {}", colori[k], k + 1));
      figure[k].colore = *rgb;
    }
  }
  if (args.Has(4)) {
    VBS_TRY_ASSIGN(auto spessori, ValoriArgomento(args, 4));
    for (size_t k = 0; k < spessori.size() && k < figure.size(); ++k) {
      if (!(spessori[k] >= 0 && spessori[k] <= kSpessoreMassimo))
        return ArgomentoNonValido(
            fmt::format("aSpessori: spessore non valido {} per la figura {}", spessori[k], k + 1));
      figure[k].spessore = spessori[k];
    }
  }
  VBS_TRY_ASSIGN(auto posto, PostoArgomenti(args, 5, figure.size()));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "DisegnaCerchioCiclometrico"));
  disegno->marcati = std::move(marcati);
  disegno->figure = std::move(figure);
  disegno->evidenziata = posto.evidenziata;
  area->DisegnaCerchio(*disegno, posto.x, posto.y, posto.lato);
  return Variant();
}

Result<Variant> DisegnaEstrazioneFromFiguraCiclometrica(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto disegno, DisegnoArgomento(lib, args));
  VBS_TRY_ASSIGN(auto insieme, InsiemeArgomenti(lib, args, 1));
  VBS_TRY_ASSIGN(auto figure, FigureDaDisegnare(args, 3, insieme));
  VBS_TRY_ASSIGN(auto posto, PostoArgomenti(args, 4, figure.size()));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "DisegnaEstrazioneFromFiguraCiclometrica"));
  disegno->marcati.assign(insieme.Numeri().begin(), insieme.Numeri().end());
  // A figure given from elsewhere is marked too, so that its vertices never float unringed.
  for (const FiguraCerchio& figura : figure)
    for (int numero : figura.numeri)
      if (!insieme.Contiene(numero)) disegno->marcati.push_back(numero);
  disegno->figure = std::move(figure);
  disegno->evidenziata = posto.evidenziata;
  area->DisegnaCerchio(*disegno, posto.x, posto.y, posto.lato);
  return Variant::Long(static_cast<int32_t>(disegno->figure.size()));
}

Result<Variant> QvCerchio_TovataFigura(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto disegno, DisegnoArgomento(lib, args));
  FiguraCerchio figura;
  if (auto* trovata = FiguraCicloDi(args[1])) {
    figura = FiguraDelCerchio(trovata->figura());
  } else {
    VBS_TRY_ASSIGN(figura.numeri, NumeriDelCerchio(args, 1, "Figura"));
    if (figura.numeri.empty())
      return ArgomentoNonValido("Figura: serve una figura ciclometrica o un array dei suoi numeri");
    for (int numero : figura.numeri)
      figura.descrizione += fmt::format("{}{}", figura.descrizione.empty() ? "" : "-", numero);
  }
  if (args.Has(2)) {
    VBS_TRY_ASSIGN(figura.colore, ColoreDisegno(args, 2, 0));
  }
  if (args.Has(3)) {
    VBS_TRY_ASSIGN(figura.spessore, SpessoreDisegno(args, 3, 0));
  }
  VBS_TRY_ASSIGN(auto descrizione, args.String(4, u""));
  if (!descrizione.empty()) figura.descrizione = text::Utf16ToUtf8(descrizione);
  if (disegno->figure.size() == kFigureMassime)
    return ArgomentoNonValido(fmt::format("Troppe figure: al massimo {}", kFigureMassime));
  for (int numero : figura.numeri)
    if (std::find(disegno->marcati.begin(), disegno->marcati.end(), numero) == disegno->marcati.end())
      disegno->marcati.push_back(numero);
  disegno->figure.push_back(std::move(figura));
  return Variant::Long(static_cast<int32_t>(disegno->figure.size()));
}

Result<Variant> ImpostaPropColoriCerchioCiclo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto disegno, DisegnoArgomento(lib, args));
  ImpostazioniCerchio& imp = disegno->impostazioni;
  Rgb* campi[] = {&imp.sfondo, &imp.cerchio, &imp.numeri, &imp.marcati, &imp.figure, &imp.evidenziata};
  Rgb nuovi[6];
  for (size_t i = 0; i < 6; ++i) {
    VBS_TRY_ASSIGN(nuovi[i], ColoreDisegno(args, i + 1, *campi[i]));
  }
  for (size_t i = 0; i < 6; ++i) *campi[i] = nuovi[i];
  return Variant();
}

Result<Variant> ImpostaPropDrawWidthCerchioCiclo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto disegno, DisegnoArgomento(lib, args));
  ImpostazioniCerchio& imp = disegno->impostazioni;
  VBS_TRY_ASSIGN(auto cerchio, SpessoreDisegno(args, 1, imp.spessore_cerchio));
  VBS_TRY_ASSIGN(auto figure, SpessoreDisegno(args, 2, imp.spessore_figure));
  VBS_TRY_ASSIGN(auto evidenziata, SpessoreDisegno(args, 3, imp.spessore_evidenziata));
  imp.spessore_cerchio = cerchio;
  imp.spessore_figure = figure;
  imp.spessore_evidenziata = evidenziata;
  return Variant();
}

Result<Variant> ImpostaPropFlagFigureCerchioCiclo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto disegno, DisegnoArgomento(lib, args));
  uint32_t flag = disegno->impostazioni.flag;
  // Arguments 1..6 are the bits 0..5: diameters, triangles, quadrilaterals, polygons, numbers, marks.
  for (size_t i = 1; i <= 6; ++i) {
    const uint32_t bit = 1u << (i - 1);
    VBS_TRY_ASSIGN(auto acceso, args.Boolean(i, (flag & bit) != 0));
    flag = acceso ? flag | bit : flag & ~bit;
  }
  disegno->impostazioni.flag = flag;
  return Variant();
}

Result<Variant> QvCerchio_InitDisegno(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto disegno, DisegnoArgomento(lib, args));
  VBS_TRY_ASSIGN(auto titolo, args.String(1, u"Cerchio ciclometrico"));
  AreaDisegno* area = lib.ospite().Disegno();
  if (!area) return ArgomentoNonValido("Nessuna area di disegno: chi esegue lo script non disegna");
  const auto pagina = PaginaDellEsecuzione(lib);
  // A headless host writes beside the page; the rules judge a file by where it lies.
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, pagina.parent_path() / (pagina.stem().string() + "_cerchio.png"),
                       "QvCerchio_InitDisegno"));
  auto file = area->MostraCerchio(*disegno, text::Utf16ToUtf8(titolo), pagina);
  if (!file) return ArgomentoNonValido(file.Errore().testo);
  if (*file) {
    std::string markup = fmt::format("<p><img src=\"{}\" alt=\"{}\"></p>\n", TestoHtml((*file)->filename().string()),
                                     TestoHtml(text::Utf16ToUtf8(titolo)));
    // The page has no list beside the picture to click: the figures are named under it.
    std::string elenco;
    for (const FiguraCerchio& figura : disegno->figure)
      if (!figura.descrizione.empty()) elenco += fmt::format("<li>{}</li>", TestoHtml(figura.descrizione));
    if (!elenco.empty()) markup += fmt::format("<ol>{}</ol>\n", elenco);
    lib.html().ScriviMarkup(markup);
  }
  return Variant();
}

const Libreria::Funzione kCerchio[] = {
    {"GetNewDisegnoCiclometrico", 0, 0, &GetNewDisegnoCiclometrico,
     "un nuovo disegno del cerchio dei 90 numeri, coi colori, gli spessori e le figure predefiniti: il numero che "
     "gli altri nomi del cerchio vogliono come IdDisegno",
     "Long: il numero del disegno (IdDisegno); errore 5 oltre i 1000 disegni",
     "d = GetNewDisegnoCiclometrico() : ImpostaPropDrawWidthCerchioCiclo d, 1, 3 : Scrivi \"disegno n. \" & d"},
    {"DisegnaCerchioCiclometrico", 1, 9, &DisegnaCerchioCiclometrico,
     "IdDisegno, [aNumeri], [aFigure], [aColori], [aSpessori], [Evidenziata = 0], [X = 0], [Y = 0], [Lato]: "
     "disegna nell'area di disegno il cerchio dei 90 numeri (1 in alto, in senso orario) nel quadrato di lato Lato "
     "(omesso, il lato minore dell'immagine) con l'angolo in alto a sinistra in (X, Y); aNumeri sono segnati, "
     "aFigure è un array di array di numeri, ciascuno una figura (i vertici uniti nell'ordine dato, due numeri una "
     "linea), aColori e aSpessori il colore e lo spessore di ciascuna, Evidenziata la figura evidenziata da 1",
     "niente (Sub)",
     "d = GetNewDisegnoCiclometrico() : DisegnaCerchioCiclometrico d, Array(1, 46, 31, 61), Array(Array(1, 46), "
     "Array(1, 31, 61)), Array(Rosso_, Verde_)"},
    {"DisegnaEstrazioneFromFiguraCiclometrica", 2, 8, &DisegnaEstrazioneFromFiguraCiclometrica,
     "IdDisegno, IdEstr o aNumeri, [aRuote = TT_], [Figure], [Evidenziata = 0], [X = 0], [Y = 0], [Lato]: disegna "
     "nell'area di disegno il cerchio coi numeri dell'estrazione IdEstr sulle ruote aRuote (o quelli di aNumeri) "
     "segnati e le loro figure: tutte se Figure è omesso, quelle dei tipi Figure (un numero o un array, da 1 a 7 "
     "come in GetCollFigureCiclometriche), o la figura o la collezione di figure Figure; restituisce quante figure "
     "ha disegnato, che QvCerchio_InitDisegno elenca accanto al cerchio",
     "Long: quante figure ha disegnato",
     "d = GetNewDisegnoCiclometrico() : Scrivi DisegnaEstrazioneFromFiguraCiclometrica(d, EstrazioniArchivio, "
     "Array(BA_, VE_), Array(2, 7))"},
    {"ImpostaPropColoriCerchioCiclo", 2, 7, &ImpostaPropColoriCerchioCiclo,
     "IdDisegno, [ColoreSfondo], [ColoreCerchio], [ColoreNumeri], [ColoreNumeriSegnati], [ColoreFigure], "
     "[ColoreEvidenziata]: i colori del disegno (da Nero_ a Magenta_ o un colore di RGB); quelli omessi restano",
     "niente (Sub)",
     "d = GetNewDisegnoCiclometrico() : ImpostaPropColoriCerchioCiclo d, Bianco_, Nero_, Nero_, Rosso_, Blu_, Verde_"},
    {"ImpostaPropDrawWidthCerchioCiclo", 2, 4, &ImpostaPropDrawWidthCerchioCiclo,
     "IdDisegno, [SpessoreCerchio = 1], [SpessoreFigure = 2], [SpessoreEvidenziata = 4]: gli spessori in pixel "
     "(da 0 a 100) delle linee del disegno; quelli omessi restano",
     "niente (Sub)", "d = GetNewDisegnoCiclometrico() : ImpostaPropDrawWidthCerchioCiclo d, 1, 3, 5"},
    {"ImpostaPropFlagFigureCerchioCiclo", 2, 7, &ImpostaPropFlagFigureCerchioCiclo,
     "IdDisegno, [Diametri], [Triangoli], [Quadrilateri], [Poligoni], [Numeri], [NumeriSegnati]: True o False, "
     "quali tipi di figura (per numero di vertici: 2, 3, 4, 5 o più), se i 90 numeri e se i numeri segnati sono "
     "disegnati; all'inizio tutti, quelli omessi restano",
     "niente (Sub)", "d = GetNewDisegnoCiclometrico() : ImpostaPropFlagFigureCerchioCiclo d, True, True, False, False"},
    {"QvCerchio_InitDisegno", 1, 2, &QvCerchio_InitDisegno,
     "IdDisegno, [Titolo]: mostra il disegno, coi numeri e le figure dell'ultimo DisegnaCerchioCiclometrico, in "
     "una vista a sé: nel programma una finestra, a riga di comando un'immagine PNG accanto alla pagina HTML",
     "niente (Sub)",
     "d = GetNewDisegnoCiclometrico() : DisegnaEstrazioneFromFiguraCiclometrica d, EstrazioniArchivio, Array(BA_, "
     "VE_), 7 : QvCerchio_InitDisegno d, \"Aquiloni di Bari e Venezia\""},
    {"QvCerchio_TovataFigura", 2, 5, &QvCerchio_TovataFigura,
     "IdDisegno, Figura, [Colore], [Spessore], [Descrizione]: aggiunge al disegno una figura trovata (una figura "
     "delle collezioni ciclometriche o un array dei suoi numeri), coi vertici segnati, e ne restituisce il numero "
     "(da 1); QvCerchio_InitDisegno la mostra nell'elenco accanto al cerchio, dove sceglierla la evidenzia",
     "Long: il numero della figura nel disegno, da 1",
     "d = GetNewDisegnoCiclometrico() : Scrivi QvCerchio_TovataFigura(d, Array(1, 31, 61), Rosso_, 2, \"triangolo "
     "1-31-61\")"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniPicCerchio() { return kCerchio; }

}  // namespace lottolab::script
