// Tables a script builds row by row, written into the run's page as HTML tables and into the text
// output as columns. Two tables can be built at once: the functions ending in X work on the second.

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <filesystem>
#include <fmt/format.h>
#include <optional>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "ArgomentoPercorso.h"
#include "Famiglia.h"
#include "TabellaOutput.h"
#include "esporta/ScritturaXlsx.h"
#include "stats/Numeri.h"
#include "stats/Ritardi.h"
#include "text/Utf.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

constexpr size_t kPrima = 0;
constexpr size_t kSeconda = 1;

struct StatoTabelle {
  std::array<std::optional<TabellaOutput>, 2> tabelle;
  // The page that already holds the sorting script: every sortable table of the page shares it.
  std::filesystem::path pagina_ordinabile;
};

constexpr std::string_view NomeInit(size_t tabella) { return tabella == kPrima ? "InitTabella" : "InitTabellaX"; }

template <size_t N>
Result<TabellaOutput*> TabellaIniziata(Libreria& lib) {
  std::optional<TabellaOutput>& tabella = lib.Stato<StatoTabelle>().tabelle[N];
  if (!tabella) return ArgomentoNonValido(fmt::format("Nessuna tabella iniziata: chiamare prima {}", NomeInit(N)));
  return &*tabella;
}

Result<std::string> TestoCella(const Variant& valore, const vbs::Locale& locale) {
  VBS_TRY_ASSIGN(auto testo, valore.to_string(locale));
  return text::Utf16ToUtf8(testo.view());
}

// Argument i as the texts of a row: one value, or the elements of a one-dimensional array. Scripts
// often declare an array from 0 and fill it from 1: an Empty element 0 is then no cell.
Result<std::vector<Cella>> CelleArgomento(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  std::vector<Cella> celle;
  if (!valore.is_array()) {
    VBS_TRY_ASSIGN(auto testo, TestoCella(valore, args.locale()));
    celle.push_back({std::move(testo), {}});
    return celle;
  }
  const vbs::SafeArray& array = *valore.as_array();
  if (array.DimensionCount() != 1)
    return ArgomentoNonValido("I valori della riga vanno dati in un array a una dimensione");
  auto elementi = array.elements();
  if (!elementi.empty() && array.bounds()[0].lower == 0 && elementi[0].is_empty()) elementi = elementi.subspan(1);
  for (const Variant& elemento : elementi) {
    VBS_TRY_ASSIGN(auto testo, TestoCella(elemento, args.locale()));
    celle.push_back({std::move(testo), {}});
  }
  return celle;
}

// An HTML width: pixels ("600", 600) or a percentage ("80%"); 0 lets the page choose.
Result<std::string> LarghezzaArgomento(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto testo, args.String(i));
  std::string larghezza = text::Utf16ToUtf8(testo);
  std::string_view cifre = larghezza;
  if (cifre.ends_with('%')) cifre.remove_suffix(1);
  const bool valida = !cifre.empty() && std::all_of(cifre.begin(), cifre.end(),
                                                    [](char c) { return std::isdigit(static_cast<unsigned char>(c)); });
  if (!valida)
    return ArgomentoNonValido(
        fmt::format("Larghezza non valida: \"{}\" (pixel, come 600, o percentuale, come 80%)", larghezza));
  if (cifre.find_first_not_of('0') == std::string_view::npos) return std::string();
  return larghezza;
}

// InitTabella aTitoli, [ColoreSfondoTitoli], [Allineamento], [Bordo], [Larghezza], [ColoreTestoTitoli]
template <size_t N>
Result<Variant> InitTabella(Libreria& lib, CallArgs& args) {
  RigaTabella titoli;
  VBS_TRY_ASSIGN(auto celle, CelleArgomento(args, 0));
  if (celle.empty()) return ArgomentoNonValido("Nessun titolo per le colonne della tabella");
  titoli.celle = std::move(celle);
  VBS_TRY_ASSIGN(auto sfondo, ColoreFacoltativo(args, 1));
  VBS_TRY_ASSIGN(auto allineamento, AllineamentoArgomento(args, 2, Allineamento::Centro));
  VBS_TRY_ASSIGN(auto bordo, args.Long(3, 1));
  if (bordo < 0) return ArgomentoNonValido(fmt::format("Bordo non valido: {} (0 per nessun bordo)", bordo));
  VBS_TRY_ASSIGN(auto larghezza, args.Has(4) ? LarghezzaArgomento(args, 4) : Result<std::string>(std::string()));
  VBS_TRY_ASSIGN(auto testo, ColoreFacoltativo(args, 5));
  titoli.colori = {sfondo, testo};
  titoli.allineamento = allineamento;

  std::optional<TabellaOutput>& tabella = lib.Stato<StatoTabelle>().tabelle[N];
  tabella.emplace(std::move(titoli), bordo);
  tabella->ImpostaLarghezza(std::move(larghezza));
  return Variant();
}

// AddRigaTabella aValori, [ColoreSfondo], [Allineamento], [ColoreTesto]
template <size_t N>
Result<Variant> AddRigaTabella(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tabella, TabellaIniziata<N>(lib));
  RigaTabella riga;
  VBS_TRY_ASSIGN(auto celle, CelleArgomento(args, 0));
  if (celle.size() > (tabella)->Colonne()) {
    return ArgomentoNonValido(
        fmt::format("La riga ha {} valori e la tabella {} colonne", celle.size(), (tabella)->Colonne()));
  }
  riga.celle = std::move(celle);
  VBS_TRY_ASSIGN(auto sfondo, ColoreFacoltativo(args, 1));
  VBS_TRY_ASSIGN(auto allineamento, AllineamentoArgomento(args, 2, Allineamento::Sinistra));
  VBS_TRY_ASSIGN(auto testo, ColoreFacoltativo(args, 3));
  riga.colori = {sfondo, testo};
  riga.allineamento = allineamento;
  (tabella)->AggiungiRiga(std::move(riga));
  return Variant();
}

// SetColoreCella Colonna, ColoreSfondo, [ColoreTesto]
template <size_t N>
Result<Variant> SetColoreCella(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tabella, TabellaIniziata<N>(lib));
  RigaTabella* riga = (tabella)->UltimaRiga();
  if (!riga) return ArgomentoNonValido("La tabella non ha ancora righe da colorare");
  VBS_TRY_ASSIGN(auto colonna, args.Long(0));
  if (colonna < 1 || static_cast<size_t>(colonna) > riga->celle.size()) {
    return ArgomentoNonValido(
        fmt::format("Colonna non valida: {} (la tabella ha le colonne da 1 a {})", colonna, riga->celle.size()));
  }
  VBS_TRY_ASSIGN(auto sfondo, ColoreArgomento(args, 1));
  VBS_TRY_ASSIGN(auto testo, ColoreFacoltativo(args, 2));
  riga->celle[static_cast<size_t>(colonna - 1)].colori = {sfondo, testo};
  return Variant();
}

template <size_t N>
Result<Variant> SetTableWidth(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tabella, TabellaIniziata<N>(lib));
  VBS_TRY_ASSIGN(auto larghezza, LarghezzaArgomento(args, 0));
  (tabella)->ImpostaLarghezza(std::move(larghezza));
  return Variant();
}

// The page is in preformatted text: the table goes between two runs of it.
void ScriviNellaPagina(Libreria& lib, const TabellaOutput& tabella, bool ordinabile) {
  OutputHtml& pagina = lib.html();
  if (!pagina.Aperto()) return;
  std::string markup = "</pre>\n";
  std::filesystem::path& pagina_ordinabile = lib.Stato<StatoTabelle>().pagina_ordinabile;
  if (ordinabile && pagina_ordinabile != pagina.Percorso()) {
    markup += ScriptOrdinamento();
    pagina_ordinabile = pagina.Percorso();
  }
  pagina.ScriviMarkup(markup + tabella.Html(ordinabile) + "<pre>");
}

// The table stays as it is after being written: GetTabella still gives it.
template <size_t N, bool Ordinabile>
Result<Variant> CreaTabella(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto tabella, TabellaIniziata<N>(lib));
  ScriviNellaPagina(lib, *tabella, Ordinabile);
  for (const TrattoTesto& tratto : (tabella)->Testo()) lib.ospite().Scrivi(tratto);
  return Variant();
}

template <size_t N>
Result<Variant> GetTabella(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto tabella, TabellaIniziata<N>(lib));
  return Variant::String(text::Utf8ToUtf16((tabella)->Html(false)));
}

// A cell's text as a number when it is one as Italians write it ("12", "-3,5"), so the sheet can
// sum it; any other text stays text.
esporta::Valore ValoreDiCella(const std::string& testo) {
  const size_t inizio = testo.starts_with('-') ? 1 : 0;
  const size_t virgola = testo.find(',');
  const bool cifre = testo.size() > inizio && testo.size() <= 15 + inizio &&
                     std::all_of(testo.begin() + static_cast<ptrdiff_t>(inizio), testo.end(),
                                 [&](char c) { return std::isdigit(static_cast<unsigned char>(c)) || c == ','; });
  if (!cifre || testo.find(',', virgola + 1) != std::string::npos || virgola == inizio || virgola + 1 == testo.size())
    return testo.empty() ? esporta::Valore() : esporta::Valore(testo);
  std::string punto = testo;
  std::replace(punto.begin(), punto.end(), ',', '.');
  double numero = 0;
  std::from_chars(punto.data(), punto.data() + punto.size(), numero);
  return esporta::Valore(numero);
}

std::optional<uint32_t> RgbDiColore(std::optional<int16_t> colore) {
  return colore ? RgbDiColoreScript(*colore) : std::nullopt;
}

// The table the script built, exported as the list it shows: titles bold, each cell's colours,
// written all at once.
Result<Variant> EsportaListviewInXls(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto file, PercorsoArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto seconda, args.Boolean(1, false));
  const TabellaOutput* tabella = nullptr;
  if (seconda) {
    VBS_TRY_ASSIGN(tabella, TabellaIniziata<kSeconda>(lib));
  } else {
    VBS_TRY_ASSIGN(tabella, TabellaIniziata<kPrima>(lib));
  }
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, file, "EsportaListviewInXls"));
  esporta::CartellaLavoro cartella;
  esporta::Foglio& foglio = cartella.fogli[*cartella.AggiungiFoglio("")];
  foglio.adatta_colonne = true;
  auto riga = [&](int numero, const RigaTabella& r, bool grassetto) {
    for (size_t c = 0; c < r.celle.size() && c < esporta::kMassimoColonne; ++c) {
      const Cella& cella = r.celle[c];
      esporta::Formato formato{
          .grassetto = grassetto,
          .colore_testo = RgbDiColore(cella.colori.testo ? cella.colori.testo : r.colori.testo),
          .colore_sfondo = RgbDiColore(cella.colori.sfondo ? cella.colori.sfondo : r.colori.sfondo)};
      foglio.celle[{numero, static_cast<int>(c) + 1}] = {
          grassetto ? esporta::Valore(cella.testo) : ValoreDiCella(cella.testo), cartella.IndiceFormato(formato)};
    }
  };
  riga(1, tabella->Titoli(), true);
  for (size_t r = 0; r < tabella->Righe().size() && r + 2 <= esporta::kMassimoRighe; ++r)
    riga(static_cast<int>(r) + 2, tabella->Righe()[r], false);
  if (auto scritto = esporta::ScriviXlsx(cartella, file); !scritto) {
    lib.ospite().Mostra(
        Avviso{TipoAvviso::Esclamativo, "ClsFunctionsGeodoScript.EsportaListviewInXls", scritto.Errore().testo});
    return Variant::Boolean(false);
  }
  return Variant::Boolean(true);
}

// The pyramid of a draw's numbers on one wheel: the five numbers as drawn, then each row the sums,
// brought into 1..90, of neighbours in the row above, down to one number. Each cell shows the
// number and its delay on the wheel at that draw, as students of the pyramid read it.
Result<Variant> CreaPiramideRitardi(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  const TabellaEstrazioni& tab = *archivio;
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(tab, args, 0, tab.EstrazioniArchivio(), "IdEstr"));
  VBS_TRY_ASSIGN(auto ruota, RuotaTabella(args, 1));
  if (ruota < 1 || ruota > kNumeroRuote) return ArgomentoNonValido("Ruota deve essere una sola ruota, BA_ .. NZ_");
  const Estrazione& estrazione = tab[id_estr];
  if (!estrazione.RuotaEstratta(ruota))
    return ArgomentoNonValido(
        fmt::format("La ruota {} non è stata estratta nell'estrazione {}", NomeRuota(ruota), id_estr));

  std::vector<int> riga;
  for (int posizione = 1; posizione <= kNumeriPerRuota; ++posizione)
    riga.push_back(estrazione.Numero(ruota, posizione));
  RigaTabella titoli;
  for (int colonna = 1; colonna <= kNumeriPerRuota; ++colonna) titoli.celle.push_back({fmt::format("{}", colonna), {}});
  TabellaOutput tabella(std::move(titoli), 1);
  while (!riga.empty()) {
    RigaTabella celle;
    celle.allineamento = Allineamento::Centro;
    for (int numero : riga)
      celle.celle.push_back(
          {fmt::format("{:02} ({})", numero, stats::EstrattoRitardo(tab, ruota, numero, 1, id_estr)), {}});
    tabella.AggiungiRiga(std::move(celle));
    for (size_t i = 0; i + 1 < riga.size(); ++i) riga[i] = stats::Fuori90(riga[i] + riga[i + 1]);
    riga.pop_back();
  }
  ScriviNellaPagina(lib, tabella, false);
  for (const TrattoTesto& tratto : tabella.Testo()) lib.ospite().Scrivi(tratto);
  return Variant();
}

const Libreria::Funzione kTabelle[] = {
    {"InitTabella", 1, 6, &InitTabella<kPrima>,
     "aTitoli, [ColoreSfondoTitoli], [Allineamento = \"centro\"], [Bordo = 1], [Larghezza], [ColoreTestoTitoli]: "
     "avvia una nuova tabella con una colonna per ogni titolo; Allineamento è \"sinistra\", \"centro\" o \"destra\", "
     "Larghezza in pixel (600) o in percentuale (\"80%\")",
     "niente (Sub)", "InitTabella Array(\"Numero\", \"Ritardo\"), Giallo_, \"centro\", 1, \"80%\""},
    {"AddRigaTabella", 1, 4, &AddRigaTabella<kPrima>,
     "aValori, [ColoreSfondo], [Allineamento = \"sinistra\"], [ColoreTesto]: aggiunge una riga; meno valori che "
     "colonne lasciano vuote le ultime celle, di più danno errore 5",
     "niente (Sub); errore 5 senza InitTabella o con più valori che colonne",
     "InitTabella Array(\"Numero\", \"Ritardo\") : AddRigaTabella Array(90, EstrattoRitardo(BA_, 90)), Bianco_, "
     "\"destra\""},
    {"SetColoreCella", 2, 3, &SetColoreCella<kPrima>,
     "Colonna, ColoreSfondo, [ColoreTesto]: colora la cella della colonna 1.. dell'ultima riga",
     "niente (Sub); errore 5 se la tabella non ha righe o la colonna non c'è",
     "InitTabella Array(\"Numero\", \"Ritardo\") : AddRigaTabella Array(90, EstrattoRitardo(BA_, 90)) : SetColoreCella "
     "2, Rosso_, Bianco_"},
    {"SetTableWidth", 1, 1, &SetTableWidth<kPrima>,
     "Larghezza: la larghezza della tabella, in pixel (600) o in percentuale (\"80%\"), 0 per lasciarla scegliere "
     "alla pagina",
     "niente (Sub)",
     "InitTabella Array(\"Numero\", \"Ritardo\") : AddRigaTabella Array(90, EstrattoRitardo(BA_, 90)) : SetTableWidth "
     "\"50%\""},
    {"CreaTabella", 0, 0, &CreaTabella<kPrima, false>,
     "scrive la tabella nella pagina HTML e come colonne allineate nell'output di testo",
     "niente (Sub): scrive la tabella; errore 5 senza InitTabella",
     "InitTabella Array(\"Numero\", \"Ritardo\") : AddRigaTabella Array(90, EstrattoRitardo(BA_, 90)) : CreaTabella"},
    {"CreaTabellaOrdinabile", 0, 0, &CreaTabella<kPrima, true>,
     "scrive la tabella come CreaTabella; nella pagina un clic su un titolo ordina le righe secondo quella colonna",
     "niente (Sub): scrive la tabella; errore 5 senza InitTabella",
     "InitTabella Array(\"Numero\", \"Ritardo\") : AddRigaTabella Array(90, EstrattoRitardo(BA_, 90)) : "
     "CreaTabellaOrdinabile"},
    {"GetTabella", 0, 0, &GetTabella<kPrima>, "l'HTML della tabella (String)",
     "String: il codice HTML della tabella; errore 5 senza InitTabella",
     "InitTabella Array(\"Numero\", \"Ritardo\") : AddRigaTabella Array(90, EstrattoRitardo(BA_, 90)) : s = "
     "GetTabella() : Scrivi Len(s)"},
    {"EsportaListviewInXls", 1, 2, &EsportaListviewInXls,
     "NomeFile, [Seconda = False]: scrive la tabella costruita (InitTabella, AddRigaTabella; con True quella di "
     "InitTabellaX) in una cartella di lavoro .xlsx, titoli in grassetto, colori delle celle, numeri come numeri "
     "(Boolean)",
     "Boolean: True se il file è stato scritto, False dopo un avviso",
     "InitTabella Array(\"Numero\", \"Ritardo\") : AddRigaTabella Array(90, EstrattoRitardo(BA_, 90)) : Scrivi "
     "EsportaListviewInXls(\"scriptOutput/ritardi.xlsx\")"},
    {"CreaPiramideRitardi", 2, 2, &CreaPiramideRitardi,
     "IdEstr, Ruota: scrive come tabella la piramide dei numeri della ruota nell'estrazione: i cinque estratti in "
     "ordine di estrazione, poi in ogni riga le somme (riportate in 1..90) dei numeri vicini della riga sopra, fino "
     "a un numero; ogni cella dà il numero e, tra parentesi, il suo ritardo sulla ruota a quell'estrazione",
     "niente (Sub): scrive la tabella della piramide", "CreaPiramideRitardi EstrazioniArchivio, BA_"},
    {"InitTabellaX", 1, 6, &InitTabella<kSeconda>,
     "aTitoli, [ColoreSfondoTitoli], [Allineamento], [Bordo], [Larghezza], [ColoreTestoTitoli]: InitTabella per una "
     "seconda tabella, costruita separatamente dalla prima",
     "niente (Sub)", "InitTabellaX Array(\"Numero\", \"Frequenza\")"},
    {"AddRigaTabellaX", 1, 4, &AddRigaTabella<kSeconda>,
     "aValori, [ColoreSfondo], [Allineamento], [ColoreTesto]: AddRigaTabella per la seconda tabella",
     "niente (Sub); errore 5 senza InitTabellaX o con più valori che colonne",
     "InitTabellaX Array(\"Numero\", \"Ritardo\") : AddRigaTabellaX Array(90, EstrattoRitardo(BA_, 90))"},
    {"SetColoreCellaX", 2, 3, &SetColoreCella<kSeconda>,
     "Colonna, ColoreSfondo, [ColoreTesto]: SetColoreCella per la seconda tabella", "niente (Sub)",
     "InitTabellaX Array(\"Numero\", \"Ritardo\") : AddRigaTabellaX Array(90, EstrattoRitardo(BA_, 90)) : "
     "SetColoreCellaX 1, Verde_"},
    {"SetTableWidthX", 1, 1, &SetTableWidth<kSeconda>, "Larghezza: SetTableWidth per la seconda tabella",
     "niente (Sub)",
     "InitTabellaX Array(\"Numero\", \"Ritardo\") : AddRigaTabellaX Array(90, EstrattoRitardo(BA_, 90)) : "
     "SetTableWidthX 400"},
    {"CreaTabellaX", 0, 0, &CreaTabella<kSeconda, false>, "scrive la seconda tabella come CreaTabella",
     "niente (Sub): scrive la seconda tabella",
     "InitTabellaX Array(\"Numero\", \"Ritardo\") : AddRigaTabellaX Array(90, EstrattoRitardo(BA_, 90)) : "
     "CreaTabellaX"},
    {"GetTabellaX", 0, 0, &GetTabella<kSeconda>, "l'HTML della seconda tabella (String)",
     "String: il codice HTML della seconda tabella",
     "InitTabellaX Array(\"Numero\", \"Ritardo\") : AddRigaTabellaX Array(90, EstrattoRitardo(BA_, 90)) : Scrivi "
     "Len(GetTabellaX())"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniTabelle() { return kTabelle; }

}  // namespace lottolab::script
