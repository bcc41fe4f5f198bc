// The script's text output: to the output box (with colours) and to the run's HTML page.

#include "Famiglia.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// What Scrivi and ScriviConColori do at the end of a text when the script does not say.
struct StatoOutput {
  bool a_capo = true;
};

// The text of an argument as the script would print it (numbers in the engine's locale); an omitted
// argument is empty.
Result<std::string> Testo(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto testo, args.String(i, u""));
  return text::Utf16ToUtf8(testo);
}

Result<Variant> ScriviTesto(Libreria& lib, CallArgs& args, size_t i_testo, size_t i_grassetto, size_t i_a_capo,
                            int16_t colore) {
  VBS_TRY_ASSIGN(auto testo, Testo(args, i_testo));
  VBS_TRY_ASSIGN(auto grassetto, args.Boolean(i_grassetto, false));
  VBS_TRY_ASSIGN(auto a_capo, args.Boolean(i_a_capo, lib.Stato<StatoOutput>().a_capo));
  if (a_capo) testo += '\n';
  lib.Scrivi(std::move(testo), colore, grassetto);
  return Variant();
}

// Scrivi [Testo], [Grassetto], [ACapo], [ColoreSfondo], [ColoreTesto], [Dimensione]
Result<Variant> Scrivi(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto colore, args.Has(4) ? args.Integer(4) : Result<int16_t>(lib.colore_testo()));
  return ScriviTesto(lib, args, 0, 1, 2, colore);
}

// ScriviConColori Testo, ColoreTesto, [Grassetto], [ACapo]
Result<Variant> ScriviConColori(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto colore, args.Integer(1));
  return ScriviTesto(lib, args, 0, 2, 3, colore);
}

Result<Variant> ColoreTesto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto colore, args.Integer(0));
  lib.colore_testo() = colore;
  return Variant();
}

Result<Variant> SetComportamentoACapo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto a_capo, args.Boolean(0));
  lib.Stato<StatoOutput>().a_capo = a_capo;
  return Variant();
}

Result<Variant> Messaggio(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto testo, Testo(args, 0));
  lib.ospite().Messaggio(testo);
  return Variant();
}

const Libreria::Funzione kOutput[] = {
    {"Scrivi", 0, 6, &Scrivi,
     "[Testo], [Grassetto], [ACapo = True, vedi SetComportamentoACapo], [ColoreSfondo], [ColoreTesto], [Dimensione]: "
     "scrive una riga di output",
     "niente (Sub): scrive il testo nell'output e nella pagina HTML",
     "Scrivi \"Ritardo: \" & EstrattoRitardo(BA_, 90), True"},
    {"ScriviConColori", 2, 4, &ScriviConColori, "Testo, ColoreTesto, [Grassetto], [ACapo = True]: scrive con un colore",
     "niente (Sub)", "ScriviConColori \"Numeri caldi\", Rosso_, True"},
    {"ColoreTesto", 1, 1, &ColoreTesto, "Colore: il colore del testo scritto da Scrivi da qui in poi", "niente (Sub)",
     "ColoreTesto Blu_ : Scrivi \"in blu\" : ColoreTesto Nero_"},
    {"SetComportamentoACapo", 1, 1, &SetComportamentoACapo,
     "ACapo: se Scrivi e ScriviConColori vanno a capo dopo il testo quando il loro argomento ACapo è omesso "
     "(all'inizio di ogni esecuzione True); False scrive i testi seguenti sulla stessa riga",
     "niente (Sub)",
     "SetComportamentoACapo False : Scrivi \"12 \" : Scrivi \"34\" : SetComportamentoACapo True : Scrivi"},
    {"Messaggio", 1, 1, &Messaggio, "Testo: mostra un breve avviso nella barra di stato", "niente (Sub)",
     "Messaggio \"Elaborazione finita\""},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniOutput() { return kOutput; }

}  // namespace lottolab::script
