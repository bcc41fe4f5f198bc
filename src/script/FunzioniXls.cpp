// Spreadsheets for scripts, as a user who drove a spreadsheet program from a script knows them:
// one workbook open at a time, opened or created by file name, sheets by number from 1 or by name,
// cells by row and column from 1. The workbook lives in memory (esporta/CartellaLavoro.h) from
// XlsApriFile to XlsChiudi; XlsSalva, XlsChiudi and XlsMostra write it whole and all at once, so
// a workbook opened, read, changed and saved again goes through the same reader and writer as the
// desktop's exports.
//
// Wrong arguments are error 5, shown to the user, and the call gives Empty; a file that cannot be
// read or written is a notice and the call gives False. Before any file is touched the run's rules
// (AccessoFile.h) are asked, whose refusal ends the script with error 70.

#include <fmt/format.h>

#include <optional>

#include "AreaDisegno.h"
#include "ArgomentoPercorso.h"
#include "Famiglia.h"
#include "esporta/LetturaXlsx.h"
#include "esporta/ScritturaXlsx.h"
#include "text/AsciiCase.h"

namespace lottolab::script {

namespace {

namespace fs = std::filesystem;
using namespace famiglia;
using esporta::CartellaLavoro;
using esporta::Foglio;
using esporta::Formato;
using esporta::Posizione;

// The alignments of XlsLeft, XlsCenter and XlsRight: the numbers spreadsheet programs give them.
constexpr int32_t kSinistra = -4131;
constexpr int32_t kCentro = -4108;
constexpr int32_t kDestra = -4152;

struct StatoXls {
  std::optional<CartellaLavoro> cartella;
  fs::path file;
  size_t foglio = 0;  // the current sheet, from 0
  bool modificata = false;
};

void Segnala(Libreria& lib, std::string_view funzione, std::string motivo) {
  lib.ospite().Mostra(
      Avviso{TipoAvviso::Esclamativo, "ClsFunctionsGeodoScript." + std::string(funzione), std::move(motivo)});
}

Result<StatoXls*> Aperta(Libreria& lib) {
  auto& stato = lib.Stato<StatoXls>();
  if (!stato.cartella) return ArgomentoNonValido("Nessuna cartella di lavoro aperta: usare prima XlsApriFile");
  return &stato;
}

// Argument i as a sheet: its number from 1 or its name.
Result<size_t> ArgomentoFoglio(const StatoXls& stato, CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  const auto& fogli = stato.cartella->fogli;
  if (valore.is_string()) {
    const std::string nome = text::Utf16ToUtf8(valore.as_string_view());
    if (auto indice = stato.cartella->IndiceFoglio(nome)) return *indice;
    return ArgomentoNonValido(fmt::format("La cartella di lavoro non ha un foglio \"{}\"", nome));
  }
  VBS_TRY_ASSIGN(auto numero, args.Long(i));
  if (numero < 1 || static_cast<size_t>(numero) > fogli.size())
    return ArgomentoNonValido(
        fmt::format("Foglio {} inesistente: la cartella di lavoro ne ha {}", numero, fogli.size()));
  return static_cast<size_t>(numero - 1);
}

Result<Posizione> ArgomentoCella(CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto riga, args.Long(i));
  VBS_TRY_ASSIGN(auto colonna, args.Long(i + 1));
  if (riga < 1 || riga > esporta::kMassimoRighe)
    return ArgomentoNonValido(fmt::format("Riga {} fuori da 1..{}", riga, esporta::kMassimoRighe));
  if (colonna < 1 || colonna > esporta::kMassimoColonne)
    return ArgomentoNonValido(fmt::format("Colonna {} fuori da 1..{}", colonna, esporta::kMassimoColonne));
  return Posizione{riga, colonna};
}

// A script's value as a cell's; a date becomes its serial number, shown as a date.
Result<esporta::Valore> ValoreDaScript(Libreria& lib, const Variant& valore, bool& data) {
  data = valore.is_date();
  if (valore.is_empty() || valore.is_null()) return esporta::Valore();
  if (valore.is_boolean()) return esporta::Valore(valore.as_boolean());
  if (valore.is_string()) {
    if (valore.as_string_view().size() > esporta::kMassimoCaratteriCella)
      return ArgomentoNonValido(fmt::format("Un testo di {} caratteri non entra in una cella (al massimo {})",
                                            valore.as_string_view().size(), esporta::kMassimoCaratteriCella));
    return esporta::Valore(text::Utf16ToUtf8(valore.as_string_view()));
  }
  if (valore.is_number() || valore.is_date()) {
    VBS_TRY_ASSIGN(auto numero, valore.to_double(lib.locale()));
    return esporta::Valore(numero);
  }
  return ArgomentoNonValido("Un array o un oggetto non si può scrivere in una cella");
}

Variant ValorePerScript(const esporta::Valore& valore) {
  if (const auto* numero = std::get_if<double>(&valore)) return Variant::Double(*numero);
  if (const auto* testo = std::get_if<std::string>(&valore)) return Variant::String(text::Utf8ToUtf16(*testo));
  if (const auto* vero = std::get_if<bool>(&valore)) return Variant::Boolean(*vero);
  return Variant();
}

// The format arguments from position i on, each changing the cell's format only when given:
// Grassetto, ColoreTesto, ColoreSfondo, FormatoNumero, Allineamento, Corsivo.
Result<Formato> FormatoDaArgomenti(CallArgs& args, size_t i, Formato formato) {
  if (args.Has(i)) {
    VBS_TRY_ASSIGN(formato.grassetto, args.Boolean(i));
  }
  for (size_t k : {i + 1, i + 2}) {
    if (!args.Has(k)) continue;
    VBS_TRY_ASSIGN(auto colore, args.Long(k));
    std::optional<uint32_t> rgb;
    if (colore != -1) {
      auto dalla_tavolozza = RgbDiColoreScript(colore);
      if (!dalla_tavolozza)
        return ArgomentoNonValido(
            fmt::format("Colore {} non valido: 0..7 (Nero_..Magenta_), RGB(r, g, b) o -1", colore));
      rgb = *dalla_tavolozza;
    }
    (k == i + 1 ? formato.colore_testo : formato.colore_sfondo) = rgb;
  }
  if (args.Has(i + 3)) {
    VBS_TRY_ASSIGN(auto numero, args.String(i + 3));
    formato.formato_numero = text::Utf16ToUtf8(numero);
    if (formato.formato_numero.size() > 255) return ArgomentoNonValido("Formato numerico più lungo di 255 caratteri");
  }
  if (args.Has(i + 4)) {
    VBS_TRY_ASSIGN(auto allineamento, args.Long(i + 4));
    switch (allineamento) {
      case 0: formato.allineamento = esporta::Allineamento::Generale; break;
      case kSinistra: formato.allineamento = esporta::Allineamento::Sinistra; break;
      case kCentro: formato.allineamento = esporta::Allineamento::Centro; break;
      case kDestra: formato.allineamento = esporta::Allineamento::Destra; break;
      default:
        return ArgomentoNonValido(
            fmt::format("Allineamento {} non valido: XlsLeft, XlsCenter, XlsRight o 0", allineamento));
    }
  }
  if (args.Has(i + 5)) {
    VBS_TRY_ASSIGN(formato.corsivo, args.Boolean(i + 5));
  }
  return formato;
}

Result<Variant> Salva(Libreria& lib, StatoXls& stato, std::string_view funzione) {
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, stato.file, funzione));
  if (auto scritto = esporta::ScriviXlsx(*stato.cartella, stato.file); !scritto) {
    Segnala(lib, funzione, scritto.Errore().testo);
    return Variant::Boolean(false);
  }
  stato.modificata = false;
  return Variant::Boolean(true);
}

Result<Variant> XlsApriFile(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto crea, args.Boolean(1, true));
  if (text::EqualsIgnoringAsciiCase(file.extension().string(), ".xls"))
    return ArgomentoNonValido(fmt::format("{}: il vecchio formato .xls non è gestito, usare .xlsx", file.string()));
  auto& stato = lib.Stato<StatoXls>();
  if (stato.cartella && stato.modificata) {
    VBS_TRY_ASSIGN(auto salvata, Salva(lib, stato, "XlsApriFile"));
    if (!salvata.as_boolean()) return salvata;
  }
  stato = StatoXls{};
  std::error_code ec;
  if (fs::exists(file, ec)) {
    VBS_TRY(lib.Consenti(vbs::FileAccess::Read, file, "XlsApriFile"));
    auto letta = esporta::LeggiXlsx(file);
    if (!letta) {
      Segnala(lib, "XlsApriFile", letta.Errore().testo);
      return Variant::Boolean(false);
    }
    stato.cartella = std::move(letta).Valore();
  } else if (crea) {
    VBS_TRY(lib.Consenti(vbs::FileAccess::Write, file, "XlsApriFile"));
    stato.cartella.emplace();
    (void)stato.cartella->AggiungiFoglio("");
    stato.modificata = true;
  } else {
    Segnala(lib, "XlsApriFile", fmt::format("Il file {} non esiste", file.string()));
    return Variant::Boolean(false);
  }
  stato.file = file;
  return Variant::Boolean(true);
}

Result<Variant> XlsSalva(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto stato, Aperta(lib));
  if (args.Has(0)) {
    VBS_TRY_ASSIGN(stato->file, PercorsoArgomento(lib, args, 0));
  }
  return Salva(lib, *stato, "XlsSalva");
}

Result<Variant> XlsChiudi(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto salva, args.Boolean(0, true));
  auto& stato = lib.Stato<StatoXls>();
  if (!stato.cartella) return Variant::Boolean(true);
  if (salva && stato.modificata) {
    VBS_TRY_ASSIGN(auto salvata, Salva(lib, stato, "XlsChiudi"));
    if (!salvata.as_boolean()) return salvata;
  }
  stato = StatoXls{};
  return Variant::Boolean(true);
}

// Where no spreadsheet program can be shown, the workbook is written and the output says where.
Result<Variant> XlsMostra(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto stato, Aperta(lib));
  VBS_TRY_ASSIGN(auto salvata, Salva(lib, *stato, "XlsMostra"));
  if (salvata.as_boolean())
    lib.Scrivi(fmt::format("Cartella di lavoro salvata in {}\n", stato->file.string()), kNero, false);
  return salvata;
}

// At the end of the run: the workbook is let go, and changes never saved are told, not written.
Result<Variant> DeinizializzaXls(Libreria& lib, CallArgs&) {
  auto& stato = lib.Stato<StatoXls>();
  if (stato.cartella && stato.modificata)
    Segnala(
        lib, "DeinizializzaXls",
        fmt::format("Le modifiche alla cartella di lavoro {} non sono state salvate (XlsSalva, XlsChiudi o XlsMostra)",
                    stato.file.string()));
  stato = StatoXls{};
  return Variant();
}

Result<Variant> XlsGetFoglio(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto stato, Aperta(lib));
  if (args.Has(0)) {
    VBS_TRY_ASSIGN(stato->foglio, ArgomentoFoglio(*stato, args, 0));
  }
  return Variant::Long(static_cast<int32_t>(stato->foglio + 1));
}

Result<Variant> XlsAddFoglio(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto stato, Aperta(lib));
  VBS_TRY_ASSIGN(auto nome, args.String(0, u""));
  if (stato->cartella->fogli.size() >= 255) return ArgomentoNonValido("Una cartella di lavoro ha al massimo 255 fogli");
  auto aggiunto = stato->cartella->AggiungiFoglio(text::Utf16ToUtf8(nome));
  if (!aggiunto) return ArgomentoNonValido(aggiunto.Errore().testo);
  stato->foglio = *aggiunto;
  stato->modificata = true;
  return Variant::Long(static_cast<int32_t>(*aggiunto + 1));
}

// The forms with and without the sheet differ only in where the cell's arguments start: `InFoglio`
// reads the sheet first.
template <bool InFoglio>
Result<std::pair<StatoXls*, Foglio*>> FoglioDellaChiamata(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto stato, Aperta(lib));
  size_t indice = stato->foglio;
  if constexpr (InFoglio) {
    VBS_TRY_ASSIGN(indice, ArgomentoFoglio(*stato, args, 0));
  }
  return std::pair{stato, &stato->cartella->fogli[indice]};
}

struct CellaChiamata {
  StatoXls* stato;
  Foglio* foglio;
  Posizione cella;
};

// The sheet and the cell a call names, the row and column coming after the sheet when `InFoglio`.
template <bool InFoglio>
Result<CellaChiamata> CellaDellaChiamata(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto dove, (FoglioDellaChiamata<InFoglio>(lib, args)));
  VBS_TRY_ASSIGN(auto cella, ArgomentoCella(args, InFoglio ? 1 : 0));
  return CellaChiamata{dove.first, dove.second, cella};
}

template <bool InFoglio, bool ConFormato>
Result<Variant> XlsScrivi(Libreria& lib, CallArgs& args) {
  constexpr size_t kPrimo = InFoglio ? 1 : 0;
  VBS_TRY_ASSIGN(auto chiamata, CellaDellaChiamata<InFoglio>(lib, args));
  auto [stato, foglio, cella] = chiamata;
  VBS_TRY_ASSIGN(auto grezzo, args.Value(kPrimo + 2));
  bool data = false;
  VBS_TRY_ASSIGN(auto valore, ValoreDaScript(lib, grezzo, data));
  esporta::Cella& scritta = foglio->celle[cella];
  Formato formato = stato->cartella->formati[scritta.formato];
  if (data && formato.formato_numero.empty()) formato.formato_numero = "dd/mm/yyyy";
  if constexpr (ConFormato) {
    VBS_TRY_ASSIGN(formato, FormatoDaArgomenti(args, kPrimo + 3, formato));
  }
  scritta.valore = std::move(valore);
  scritta.formato = stato->cartella->IndiceFormato(formato);
  stato->modificata = true;
  return Variant::Boolean(true);
}

template <bool InFoglio>
Result<Variant> XlsFormatoCella(Libreria& lib, CallArgs& args) {
  constexpr size_t kPrimo = InFoglio ? 1 : 0;
  VBS_TRY_ASSIGN(auto chiamata, CellaDellaChiamata<InFoglio>(lib, args));
  auto [stato, foglio, cella] = chiamata;
  const esporta::Cella* esistente = foglio->Trova(cella);
  VBS_TRY_ASSIGN(auto formato,
                 FormatoDaArgomenti(args, kPrimo + 2, stato->cartella->formati[esistente ? esistente->formato : 0]));
  foglio->celle[cella].formato = stato->cartella->IndiceFormato(formato);
  stato->modificata = true;
  return Variant::Boolean(true);
}

template <bool InFoglio>
Result<Variant> XlsMerge(Libreria& lib, CallArgs& args) {
  constexpr size_t kPrimo = InFoglio ? 1 : 0;
  VBS_TRY_ASSIGN(auto dove, (FoglioDellaChiamata<InFoglio>(lib, args)));
  auto [stato, foglio] = dove;
  VBS_TRY_ASSIGN(auto inizio, ArgomentoCella(args, kPrimo));
  VBS_TRY_ASSIGN(auto fine, ArgomentoCella(args, kPrimo + 2));
  if (!foglio->AggiungiUnione({inizio, fine}))
    return ArgomentoNonValido(fmt::format(
        "Le celle {}{}:{}{} non si possono unire: l'intervallo è di una sola cella, è rovesciato o tocca un'unione già "
        "fatta",
        esporta::LetteraColonna(inizio.colonna), inizio.riga, esporta::LetteraColonna(fine.colonna), fine.riga));
  stato->modificata = true;
  return Variant::Boolean(true);
}

template <bool InFoglio>
Result<Variant> XlsLeggi(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto chiamata, CellaDellaChiamata<InFoglio>(lib, args));
  const esporta::Cella* letta = chiamata.foglio->Trova(chiamata.cella);
  return letta ? ValorePerScript(letta->valore) : Variant();
}

Result<Variant> XlsAutoFit(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto stato, Aperta(lib));
  size_t indice = stato->foglio;
  if (args.Has(0)) {
    VBS_TRY_ASSIGN(indice, ArgomentoFoglio(*stato, args, 0));
  }
  stato->cartella->fogli[indice].adatta_colonne = true;
  stato->modificata = true;
  return Variant::Boolean(true);
}

Result<Variant> XlsGetLetteraFromColonna(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto colonna, args.Long(0));
  const std::string lettere = esporta::LetteraColonna(colonna);
  if (lettere.empty())
    return ArgomentoNonValido(fmt::format("Colonna {} fuori da 1..{}", colonna, esporta::kMassimoColonne));
  return Variant::String(text::Utf8ToUtf16(lettere));
}

template <int32_t Valore>
Result<Variant> Costante(Libreria&, CallArgs&) {
  return Variant::Long(Valore);
}

const Libreria::Funzione kXls[] = {
    {"XlsApriFile", 1, 2, &XlsApriFile,
     "NomeFile, [Crea = True]: apre la cartella di lavoro .xlsx, o la crea vuota (un foglio) se il file non esiste; "
     "le modifiche non salvate di quella aperta prima vengono salvate (Boolean)",
     "Boolean: True se aperta o creata; False, con un avviso, se il file non si legge o manca (con Crea False)",
     "Scrivi XlsApriFile(\"ritardi.xlsx\") : XlsScrivi 1, 1, \"Numero\" : XlsChiudi"},
    {"XlsSalva", 0, 1, &XlsSalva, "[NomeFile]: scrive la cartella di lavoro, nel suo file o con il nome dato (Boolean)",
     "Boolean: True se scritta; False, con un avviso, se non si può scrivere",
     "XlsApriFile \"ritardi.xlsx\" : XlsScrivi 1, 2, EstrattoRitardo(BA_, 7) : Scrivi XlsSalva(\"ritardi_copia.xlsx\") "
     ": XlsChiudi"},
    {"XlsChiudi", 0, 1, &XlsChiudi,
     "[Salva = True]: chiude la cartella di lavoro, scrivendo prima le modifiche (Boolean)",
     "Boolean: True; False, con un avviso, se le modifiche non si possono scrivere",
     "XlsApriFile \"ritardi.xlsx\" : XlsScrivi 2, 1, 7 : Scrivi XlsChiudi()"},
    {"XlsMostra", 0, 0, &XlsMostra, "scrive la cartella di lavoro e indica nell'output dove è stata salvata (Boolean)",
     "Boolean: True se scritta; False, con un avviso, se non si può scrivere",
     "XlsApriFile \"ritardi.xlsx\" : XlsScrivi 1, 1, \"Numero\" : Scrivi XlsMostra() : XlsChiudi"},
    {"XlsGetFoglio", 0, 1, &XlsGetFoglio,
     "[Foglio]: rende corrente il foglio (numero da 1 o nome); il numero del foglio corrente (Long)",
     "Long: il numero del foglio corrente, da 1",
     "XlsApriFile \"ritardi.xlsx\" : XlsAddFoglio \"Bari\" : Scrivi XlsGetFoglio(1) : XlsChiudi False"},
    {"XlsAddFoglio", 0, 1, &XlsAddFoglio,
     "[Nome]: aggiunge un foglio in fondo e lo rende corrente; il suo numero (Long)",
     "Long: il numero del foglio aggiunto",
     "XlsApriFile \"ritardi.xlsx\" : Scrivi XlsAddFoglio(\"Ruote\") : XlsChiudi False"},
    {"XlsScrivi", 3, 3, &XlsScrivi<false, false>,
     "Riga, Colonna, Valore: scrive nel foglio corrente un numero, un testo, un Boolean o una data; Empty svuota la "
     "cella",
     "Boolean: True",
     "XlsApriFile \"ritardi.xlsx\" : XlsScrivi 1, 1, \"Ritardo del 7\" : XlsScrivi 1, 2, EstrattoRitardo(BA_, 7) : "
     "XlsChiudi"},
    {"XlsScriviInFoglio", 4, 4, &XlsScrivi<true, false>, "Foglio, Riga, Colonna, Valore: XlsScrivi nel foglio dato",
     "Boolean: True", "XlsApriFile \"ritardi.xlsx\" : XlsScriviInFoglio 1, 3, 1, \"Bari\" : XlsChiudi"},
    {"XlsScriviC", 3, 9, &XlsScrivi<false, true>,
     "Riga, Colonna, Valore, [Grassetto], [ColoreTesto], [ColoreSfondo], [FormatoNumero], [Allineamento], [Corsivo]: "
     "scrive con il formato (vedi XlsFormatoCella)",
     "Boolean: True",
     "XlsApriFile \"ritardi.xlsx\" : XlsScriviC 4, 1, 12.5, True, Rosso_, -1, \"0.00\", XlsRight : XlsChiudi"},
    {"XlsScriviCInFoglio", 4, 10, &XlsScrivi<true, true>,
     "Foglio, Riga, Colonna, Valore, ...: XlsScriviC nel foglio dato", "Boolean: True",
     "XlsApriFile \"ritardi.xlsx\" : XlsScriviCInFoglio 1, 5, 1, \"Totale\", True, Bianco_, Blu_ : XlsChiudi"},
    {"XlsFormatoCella", 2, 8, &XlsFormatoCella<false>,
     "Riga, Colonna, [Grassetto], [ColoreTesto], [ColoreSfondo], [FormatoNumero], [Allineamento], [Corsivo]: cambia il "
     "formato dei soli argomenti dati; colori 0..7 (Nero_..Magenta_), RGB(r, g, b) o -1 (nessuno); FormatoNumero "
     "come \"0.00\" o \"dd/mm/yyyy\"; Allineamento XlsLeft, XlsCenter, XlsRight o 0",
     "Boolean: True", "XlsApriFile \"ritardi.xlsx\" : XlsFormatoCella 1, 1, True, Rosso_ : XlsChiudi"},
    {"XlsFormatoCellaInFoglio", 3, 9, &XlsFormatoCella<true>,
     "Foglio, Riga, Colonna, ...: XlsFormatoCella nel foglio dato", "Boolean: True",
     "XlsApriFile \"ritardi.xlsx\" : XlsFormatoCellaInFoglio 1, 1, 1, False, Nero_, Giallo_ : XlsChiudi"},
    {"XlsMerge", 4, 4, &XlsMerge<false>, "Riga1, Colonna1, Riga2, Colonna2: unisce le celle dell'intervallo (Boolean)",
     "Boolean: True; errore 5 per un intervallo di una sola cella, rovesciato o che tocca un'unione",
     "XlsApriFile \"unione.xlsx\" : XlsScrivi 1, 1, \"Titolo\" : Scrivi XlsMerge(1, 1, 1, 4) : XlsChiudi False"},
    {"XlsMergeInFoglio", 5, 5, &XlsMerge<true>, "Foglio, Riga1, Colonna1, Riga2, Colonna2: XlsMerge nel foglio dato",
     "Boolean: True; errore 5 come XlsMerge",
     "XlsApriFile \"unione.xlsx\" : Scrivi XlsMergeInFoglio(1, 2, 1, 3, 2) : XlsChiudi False"},
    {"XlsLeggi", 2, 2, &XlsLeggi<false>,
     "Riga, Colonna: il valore della cella del foglio corrente (Double, String, Boolean o Empty)",
     "il valore della cella: Double, String o Boolean; Empty se vuota",
     "XlsApriFile \"ritardi.xlsx\" : XlsScrivi 3, 1, 42 : Scrivi XlsLeggi(3, 1) : XlsChiudi"},
    {"XlsLeggiinFoglio", 3, 3, &XlsLeggi<true>, "Foglio, Riga, Colonna: XlsLeggi nel foglio dato",
     "il valore della cella: Double, String o Boolean; Empty se vuota",
     "XlsApriFile \"ritardi.xlsx\" : XlsScrivi 3, 1, 42 : Scrivi XlsLeggiinFoglio(1, 3, 1) : XlsChiudi"},
    {"XlsAutoFit", 0, 1, &XlsAutoFit, "[Foglio]: le colonne del foglio prendono la larghezza dei loro testi (Boolean)",
     "Boolean: True",
     "XlsApriFile \"ritardi.xlsx\" : XlsScrivi 1, 1, \"Un testo piuttosto lungo\" : XlsAutoFit : XlsChiudi"},
    {"XlsGetLetteraFromColonna", 1, 1, &XlsGetLetteraFromColonna,
     "Colonna: le lettere della colonna, 1 -> A, 27 -> AA (String)", "String: le lettere della colonna",
     "Scrivi XlsGetLetteraFromColonna(28)"},
    {"XlsLeft", 0, 0, &Costante<kSinistra>, "l'allineamento a sinistra per XlsFormatoCella e XlsScriviC (Long)",
     "Long: la costante dell'allineamento a sinistra",
     "XlsApriFile \"ritardi.xlsx\" : XlsScriviC 1, 1, \"Bari\", False, Nero_, -1, \"\", XlsLeft : XlsChiudi"},
    {"XlsCenter", 0, 0, &Costante<kCentro>, "l'allineamento al centro per XlsFormatoCella e XlsScriviC (Long)",
     "Long: la costante dell'allineamento al centro",
     "XlsApriFile \"ritardi.xlsx\" : XlsScriviC 1, 1, \"Bari\", False, Nero_, -1, \"\", XlsCenter : XlsChiudi"},
    {"XlsRight", 0, 0, &Costante<kDestra>, "l'allineamento a destra per XlsFormatoCella e XlsScriviC (Long)",
     "Long: la costante dell'allineamento a destra",
     "XlsApriFile \"ritardi.xlsx\" : XlsScriviC 1, 1, 7, False, Nero_, -1, \"\", XlsRight : XlsChiudi"},
    {"DeinizializzaXls", 0, 0, &DeinizializzaXls,
     "(host) a fine esecuzione rilascia la cartella di lavoro; le modifiche non salvate sono segnalate", "niente (Sub)",
     "DeinizializzaXls"},
};

}  // namespace

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniXls() { return kXls; }

}  // namespace lottolab::script
