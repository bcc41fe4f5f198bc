// The script's picture area: size, background, points, lines, polygons, circles, text. The host
// paints (src/disegno on a QImage); here the arguments are read and checked. Colours are the
// palette's 0..7 (Nero_ .. Magenta_) or a colour of RGB(r, g, b).

#include <cmath>
#include <fmt/format.h>

#include "AreaDisegnoScript.h"
#include "ArgomentiLotto.h"
#include "Famiglia.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

constexpr int kLatoMassimo = 8000;

Result<std::string> Testo(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto testo, args.String(i));
  return text::Utf16ToUtf8(testo);
}

Result<Tratto> TrattoArgomenti(const CallArgs& args, size_t i_colore, size_t i_spessore, bool tratteggiato) {
  VBS_TRY_ASSIGN(auto colore, ColoreDisegno(args, i_colore, 0x000000));
  VBS_TRY_ASSIGN(auto spessore, SpessoreDisegno(args, i_spessore, 1));
  return Tratto{colore, spessore, tratteggiato};
}

Result<Variant> PicSetDimensioni(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto larghezza, args.Long(0));
  VBS_TRY_ASSIGN(auto altezza, args.Long(1));
  if (larghezza < 1 || larghezza > kLatoMassimo || altezza < 1 || altezza > kLatoMassimo)
    return ArgomentoNonValido(
        fmt::format("Dimensioni non valide: {} x {} (ciascuna da 1 a {} pixel)", larghezza, altezza, kLatoMassimo));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "PicSetDimensioni"));
  area->SetDimensioni(larghezza, altezza);
  return Variant();
}

Result<Variant> PicColoreSfondo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto colore, ColoreDisegno(args, 0, 0));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "PicColoreSfondo"));
  area->ColoreSfondo(colore);
  return Variant();
}

Result<Variant> PicRiempi(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto colore, ColoreDisegno(args, 0, 0));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "PicRiempi"));
  area->Riempi(colore);
  return Variant();
}

Result<Variant> PicClear(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "PicClear"));
  area->Clear();
  return Variant();
}

template <bool Larghezza>
Result<Variant> PicMisuraTesto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto testo, Testo(args, 0));
  VBS_TRY_ASSIGN(auto dimensione, DimensioneTestoDisegno(args, 1));
  // Measuring draws nothing, so it does not link a picture from the page.
  AreaDisegno* area = lib.ospite().Disegno();
  if (!area) return ArgomentoNonValido("Nessuna area di disegno: chi esegue lo script non disegna");
  return Variant::Long(Larghezza ? area->TextWidth(testo, dimensione) : area->TextHeight(testo, dimensione));
}

Result<Variant> StampaTesto(Libreria& lib, CallArgs& args, std::string_view funzione, double angolo, size_t i_colore) {
  VBS_TRY_ASSIGN(auto x, CoordinataDisegno(args, 0));
  VBS_TRY_ASSIGN(auto y, CoordinataDisegno(args, 1));
  VBS_TRY_ASSIGN(auto testo, Testo(args, 2));
  VBS_TRY_ASSIGN(auto colore, ColoreDisegno(args, i_colore, 0x000000));
  VBS_TRY_ASSIGN(auto dimensione, DimensioneTestoDisegno(args, i_colore + 1));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, funzione));
  area->StampaTesto(x, y, testo, colore, dimensione, angolo);
  return Variant();
}

Result<Variant> PicStampaTesto(Libreria& lib, CallArgs& args) { return StampaTesto(lib, args, "PicStampaTesto", 0, 3); }

Result<Variant> PicStampaTestoRT(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto angolo, args.Double(3));
  if (!std::isfinite(angolo)) return ArgomentoNonValido("Angolo non valido");
  return StampaTesto(lib, args, "PicStampaTestoRT", std::fmod(angolo, 360), 4);
}

Result<Variant> PicPunto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto x, CoordinataDisegno(args, 0));
  VBS_TRY_ASSIGN(auto y, CoordinataDisegno(args, 1));
  VBS_TRY_ASSIGN(auto tratto, TrattoArgomenti(args, 2, 3, false));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "PicPunto"));
  area->Punto(x, y, tratto);
  return Variant();
}

template <bool Tratteggiata>
Result<Variant> PicLinea(Libreria& lib, CallArgs& args) {
  double c[4];
  for (size_t i = 0; i < 4; ++i) {
    VBS_TRY_ASSIGN(c[i], CoordinataDisegno(args, i));
  }
  VBS_TRY_ASSIGN(auto tratto, TrattoArgomenti(args, 4, 5, Tratteggiata));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, Tratteggiata ? "PicLineaTratteggiata" : "PicLinea"));
  area->Linea(c[0], c[1], c[2], c[3], tratto);
  return Variant();
}

Result<Variant> PicPoligono(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto xs, ValoriArgomento(args, 0));
  VBS_TRY_ASSIGN(auto ys, ValoriArgomento(args, 1));
  if (xs.size() != ys.size() || xs.size() < 2)
    return ArgomentoNonValido(fmt::format(
        "aX e aY devono avere lo stesso numero di valori, almeno 2 (aX ne ha {}, aY {})", xs.size(), ys.size()));
  std::vector<std::pair<double, double>> punti;
  punti.reserve(xs.size());
  for (size_t i = 0; i < xs.size(); ++i) {
    if (!(std::abs(xs[i]) <= kCoordinataMassima && std::abs(ys[i]) <= kCoordinataMassima))
      return ArgomentoNonValido(fmt::format("Vertice {} non valido: ({}, {})", i + 1, xs[i], ys[i]));
    punti.emplace_back(xs[i], ys[i]);
  }
  VBS_TRY_ASSIGN(auto tratto, TrattoArgomenti(args, 2, 3, false));
  VBS_TRY_ASSIGN(auto riempimento, ColoreDisegnoFacoltativo(args, 4));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "PicPoligono"));
  area->Poligono(punti, tratto, riempimento);
  return Variant();
}

Result<Variant> PicCerchio(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto x, CoordinataDisegno(args, 0));
  VBS_TRY_ASSIGN(auto y, CoordinataDisegno(args, 1));
  VBS_TRY_ASSIGN(auto raggio, CoordinataDisegno(args, 2));
  if (raggio < 0) return ArgomentoNonValido(fmt::format("Raggio non valido: {}", raggio));
  VBS_TRY_ASSIGN(auto tratto, TrattoArgomenti(args, 3, 4, false));
  VBS_TRY_ASSIGN(auto riempimento, ColoreDisegnoFacoltativo(args, 5));
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "PicCerchio"));
  area->Cerchio(x, y, raggio, tratto, riempimento);
  return Variant();
}

Result<Variant> PicEsegui(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, "PicEsegui"));
  auto fatto = area->Esegui();
  if (!fatto) return ArgomentoNonValido(fatto.Errore().testo);
  return Variant();
}

const Libreria::Funzione kPic[] = {
    {"PicSetDimensioni", 2, 2, &PicSetDimensioni,
     "Larghezza, Altezza: una nuova immagine vuota di quei pixel (da 1 a 8000 ciascuno) nel colore di sfondo; "
     "all'inizio l'immagine è di 640 x 480 pixel bianchi",
     "niente (Sub)", "PicSetDimensioni 800, 600"},
    {"PicColoreSfondo", 1, 1, &PicColoreSfondo,
     "Colore: il colore che PicClear e PicSetDimensioni danno all'immagine (da Nero_ a Magenta_ o un colore di RGB)",
     "niente (Sub)", "PicColoreSfondo Giallo_ : PicClear"},
    {"PicRiempi", 1, 1, &PicRiempi, "Colore: colora tutta l'immagine", "niente (Sub)", "PicRiempi RGB(230, 240, 255)"},
    {"PicClear", 0, 0, &PicClear, "cancella l'immagine col colore di sfondo", "niente (Sub)", "PicClear"},
    {"PicTextWidth", 1, 2, &PicMisuraTesto<true>,
     "Testo, [Dimensione = 12]: la larghezza in pixel del testo scritto con caratteri alti Dimensione pixel",
     "Long: la larghezza in pixel", "Scrivi PicTextWidth(\"Ritardi di Bari\", 16)"},
    {"PicTextHeight", 1, 2, &PicMisuraTesto<false>,
     "Testo, [Dimensione = 12]: l'altezza in pixel del testo, una riga per ogni a capo", "Long: l'altezza in pixel",
     "Scrivi PicTextHeight(\"prima riga\" & vbLf & \"seconda riga\")"},
    {"PicStampaTesto", 3, 5, &PicStampaTesto,
     "X, Y, Testo, [Colore = Nero_], [Dimensione = 12]: scrive il testo con l'angolo in alto a sinistra in (X, Y)",
     "niente (Sub)", "PicStampaTesto 10, 10, \"Ritardi di Bari\", Rosso_, 16"},
    {"PicStampaTestoRT", 4, 6, &PicStampaTestoRT,
     "X, Y, Testo, Angolo, [Colore = Nero_], [Dimensione = 12]: scrive il testo ruotato di Angolo gradi in senso "
     "orario attorno a (X, Y), il suo angolo in alto a sinistra",
     "niente (Sub)", "PicStampaTestoRT 20, 200, \"ritardo\", 270, Blu_"},
    {"PicPunto", 2, 4, &PicPunto, "X, Y, [Colore = Nero_], [Spessore = 1]: un punto, un disco se Spessore > 1",
     "niente (Sub)", "PicPunto 100, 100, Rosso_, 5"},
    {"PicLinea", 4, 6, &PicLinea<false>, "X1, Y1, X2, Y2, [Colore = Nero_], [Spessore = 1]: una linea", "niente (Sub)",
     "PicLinea 0, 0, 200, 100, Blu_, 2"},
    {"PicLineaTratteggiata", 4, 6, &PicLinea<true>,
     "X1, Y1, X2, Y2, [Colore = Nero_], [Spessore = 1]: una linea tratteggiata", "niente (Sub)",
     "PicLineaTratteggiata 0, 100, 200, 100, Nero_"},
    {"PicPoligono", 2, 5, &PicPoligono,
     "aX, aY, [Colore = Nero_], [Spessore = 1], [ColoreRiempimento]: il poligono chiuso dei vertici (aX(i), aY(i)), "
     "almeno 2, riempito se ColoreRiempimento è dato; gli elementi Empty sono saltati",
     "niente (Sub)", "PicPoligono Array(10, 110, 60), Array(100, 100, 20), Nero_, 1, Giallo_"},
    {"PicCerchio", 3, 6, &PicCerchio,
     "X, Y, Raggio, [Colore = Nero_], [Spessore = 1], [ColoreRiempimento]: il cerchio di centro (X, Y)", "niente (Sub)",
     "PicCerchio 200, 200, 50, Rosso_, 2"},
    {"PicEsegui", 0, 0, &PicEsegui,
     "mostra quanto disegnato: la finestra aggiorna l'area di disegno, a riga di comando l'immagine PNG accanto "
     "alla pagina HTML è scritta subito (lo è comunque alla fine)",
     "niente (Sub)", "PicLinea 0, 0, 100, 100 : PicEsegui"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniPic() { return kPic; }

}  // namespace lottolab::script
