// Reading the archives of the games besides the Lotto: the numbers, dates and contests of each draw,
// the special numbers, the times of the games drawn through the day, and the choice of archive.

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "FamigliaGiochi.h"
#include "archive/DateEstrazione.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;
using S = Suffisso;

Variant Testo(std::string_view testo) { return Variant::String(text::Utf8ToUtf16(testo)); }

// The table of the suffix and the draw of argument i, for the functions that read one draw.
template <Suffisso kSuffisso>
Result<const EstrazioneGioco*> EstrazioneLetta(Libreria& lib, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  return EstrazioneDelGioco(*tab, args, i);
}

template <Suffisso kSuffisso>
Result<Variant> Estratto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  VBS_TRY_ASSIGN(auto posizione, args.Long(1));
  if (posizione < 1 || posizione > tab->formato().numeri) return vbs::MakeError(vbs::err::kSubscript);
  return Variant::Integer(estrazione->numeri[static_cast<size_t>(posizione - 1)]);
}

template <Suffisso kSuffisso>
Result<Variant> DataEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneLetta<kSuffisso>(lib, args, 0));
  VBS_TRY_ASSIGN(auto anno_breve, args.Boolean(1, false));
  return Testo(FormattaData(estrazione->data, anno_breve));
}

template <int16_t GruppoData::*kCampo>
struct CampoData {
  template <Suffisso kSuffisso>
  static Result<Variant> Leggi(Libreria& lib, CallArgs& args) {
    VBS_TRY_ASSIGN(auto estrazione, EstrazioneLetta<kSuffisso>(lib, args, 0));
    return Variant::Integer(estrazione->data.*kCampo);
  }
};

bool StessoMese(const GruppoData& a, const GruppoData& b) { return a.anno == b.anno && a.mese == b.mese; }

// Counted over the table, as the Lotto's: the contests of the month up to this one.
template <Suffisso kSuffisso>
Result<Variant> IndiceMensile(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  int32_t indice = 1;
  for (int id = estrazione->id_estr - 1; id >= 1 && StessoMese((*tab)[id].data, estrazione->data); --id) ++indice;
  return Variant::Long(indice);
}

// aNumeri(1..N) the main numbers, then the special numbers in the game's order, then the Extra.
template <Suffisso kSuffisso>
Result<Variant> GetEstrazioneCompleta(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto id_estr, args.Long(0));
  if (!tab->Contiene(id_estr)) return Variant::Boolean(false);
  const FormatoGioco& formato = tab->formato();
  const EstrazioneGioco& estrazione = (*tab)[id_estr];
  std::vector<int> numeri(estrazione.numeri.begin(), estrazione.numeri.begin() + formato.numeri);
  numeri.insert(numeri.end(), estrazione.speciali.begin(), estrazione.speciali.begin() + formato.speciali);
  numeri.insert(numeri.end(), estrazione.extra.begin(), estrazione.extra.begin() + formato.extra);
  args.Out(1) = ArrayDaUno(numeri);
  return Variant::Boolean(true);
}

template <Suffisso kSuffisso>
Result<Variant> EstrazioniArchivio(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  return Variant::Long(tab->EstrazioniArchivio());
}

// The first and the last draw of a day, 0 when the archive has none that day.
struct Giornata {
  int prima = 0;
  int ultima = 0;
};

Giornata EstrazioniDelGiorno(const TabellaGioco& tab, const GruppoData& data) {
  Giornata giornata;
  giornata.ultima = tab.UltimaEstrazioneEntro(data);
  if (giornata.ultima == 0 || ConfrontaDate(tab[giornata.ultima].data, data) != 0) return {};
  giornata.prima = giornata.ultima;
  while (giornata.prima > 1 && ConfrontaDate(tab[giornata.prima - 1].data, data) == 0) --giornata.prima;
  return giornata;
}

// A text that is not a date is the user's mistake: it is explained and the script goes on.
Result<std::optional<GruppoData>> DataArgomento(Libreria& lib, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto testo, args.String(i));
  auto data = LeggiData(text::Utf16ToUtf8(testo));
  if (!data) {
    lib.ospite().Mostra(data.Errore());
    return std::optional<GruppoData>();
  }
  return std::optional<GruppoData>(*data);
}

template <bool kUltima>
Result<Variant> EstrazioneDelGiorno(Libreria& lib, CallArgs& args, Suffisso suffisso) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, suffisso));
  VBS_TRY_ASSIGN(auto data, DataArgomento(lib, args, 0));
  if (!data) return Variant::Long(0);
  const Giornata giornata = EstrazioniDelGiorno(*tab, *data);
  return Variant::Long(kUltima ? giornata.ultima : giornata.prima);
}

template <Suffisso kSuffisso>
Result<Variant> DataEstrToIdEstr(Libreria& lib, CallArgs& args) {
  return EstrazioneDelGiorno<false>(lib, args, kSuffisso);
}

Result<Variant> EstrazioneIniDL(Libreria& lib, CallArgs& args) { return EstrazioneDelGiorno<false>(lib, args, S::DL); }
Result<Variant> EstrazioneFinDL(Libreria& lib, CallArgs& args) { return EstrazioneDelGiorno<true>(lib, args, S::DL); }

// The first draw of the day at or after the time, or the last at or before it; 0 when none.
template <bool kFine>
Result<Variant> Fascia(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, S::DL));
  VBS_TRY_ASSIGN(auto data, DataArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto minuti, OraArgomento(args, 1));
  if (!data) return Variant::Long(0);
  const Giornata giornata = EstrazioniDelGiorno(*tab, *data);
  if (giornata.prima == 0) return Variant::Long(0);
  if (kFine) {
    for (int id = giornata.ultima; id >= giornata.prima; --id)
      if ((*tab)[id].minuti <= minuti) return Variant::Long(id);
  } else {
    for (int id = giornata.prima; id <= giornata.ultima; ++id)
      if ((*tab)[id].minuti >= minuti) return Variant::Long(id);
  }
  return Variant::Long(0);
}

// A question about the archive: no archive is simply a "no".
template <Suffisso kSuffisso>
Result<Variant> isIdEstrValido(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto id_estr, args.Long(0));
  auto tab = TabellaDelGioco(lib, kSuffisso);
  return Variant::Boolean(tab && (*tab)->Contiene(id_estr));
}

template <Suffisso kSuffisso>
Result<Variant> isSorteValida(Libreria& lib, CallArgs& args) {
  auto valore = args.Double(0);
  auto tab = TabellaDelGioco(lib, kSuffisso);
  if (!valore || !tab) return Variant::Boolean(false);
  return Variant::Boolean(*valore >= 1 && *valore <= (*tab)->formato().numeri && *valore == static_cast<int>(*valore));
}

// The position 1..N of the number among the main numbers, 0 when it was not drawn.
int PosizioneNellEstrazione(const TabellaGioco& tab, const EstrazioneGioco& estrazione, int numero) {
  for (int p = 1; p <= tab.formato().numeri; ++p)
    if (estrazione.numeri[static_cast<size_t>(p - 1)] == numero) return p;
  return 0;
}

template <Suffisso kSuffisso>
Result<Variant> Posizione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  VBS_TRY_ASSIGN(auto numero, args.Long(1));
  return Variant::Integer(static_cast<int16_t>(PosizioneNellEstrazione(*tab, *estrazione, numero)));
}

template <Suffisso kSuffisso>
Result<Variant> IsNumeroPresenteInEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  VBS_TRY_ASSIGN(auto numero, args.Long(1));
  return Variant::Boolean(PosizioneNellEstrazione(*tab, *estrazione, numero) != 0);
}

template <Suffisso kSuffisso>
Result<Variant> SommaEstratti(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  int32_t somma = 0;
  for (int p = 0; p < tab->formato().numeri; ++p) somma += estrazione->numeri[static_cast<size_t>(p)];
  return Variant::Long(somma);
}

std::string DueCifre(std::span<const uint8_t> numeri, std::string_view separatore) {
  std::string testo;
  for (size_t i = 0; i < numeri.size(); ++i) testo += fmt::format("{}{:02}", i ? separatore : "", numeri[i]);
  return testo;
}

template <Suffisso kSuffisso>
Result<Variant> StringaEstratti(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  VBS_TRY_ASSIGN(auto separatore, args.String(1, u"."));
  const auto numeri = std::span(estrazione->numeri).first(static_cast<size_t>(tab->formato().numeri));
  return Testo(DueCifre(numeri, text::Utf16ToUtf8(separatore)));
}

template <Suffisso kSuffisso>
Result<Variant> ScriviEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  const FormatoGioco& formato = tab->formato();
  std::string testo = fmt::format("{} del {}", formato.nome, FormattaData(estrazione->data));
  if (formato.con_ora) testo += fmt::format(" ore {:02}:{:02}", estrazione->minuti / 60, estrazione->minuti % 60);
  if (estrazione->concorso > 0) testo += fmt::format(", concorso {}", estrazione->concorso);
  testo += "\n" + DueCifre(std::span(estrazione->numeri).first(static_cast<size_t>(formato.numeri)), " ") + "\n";
  std::string speciali;
  for (int i = 0; i < formato.speciali; ++i) {
    const int numero = estrazione->speciali[static_cast<size_t>(i)];
    if (numero != 0)
      speciali += fmt::format("{}{} {:02}", speciali.empty() ? "" : "  ", NomeNumeroSpeciale(formato.gioco, i), numero);
  }
  if (!speciali.empty()) testo += speciali + "\n";
  if (formato.extra > 0 && estrazione->extra[0] != 0)
    testo += "Extra " + DueCifre(std::span(estrazione->extra).first(static_cast<size_t>(formato.extra)), " ") + "\n";
  lib.Scrivi(std::move(testo), lib.colore_testo(), false);
  return Variant();
}

Result<Variant> NumeroOroDL(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneLetta<S::DL>(lib, args, 0));
  VBS_TRY_ASSIGN(auto doppio, args.Boolean(1, false));
  return Variant::Integer(estrazione->speciali[doppio ? 1 : 0]);
}

Result<Variant> NumeroOroWF(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneLetta<S::WF>(lib, args, 0));
  return Variant::Integer(estrazione->speciali[0]);
}

Result<Variant> OraWF(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneLetta<S::WF>(lib, args, 0));
  return Testo(fmt::format("{:02}:{:02}", estrazione->minuti / 60, estrazione->minuti % 60));
}

Result<Variant> ImpostaArchivio10ELotto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto ogni_cinque_minuti, args.Boolean(0));
  lib.Stato<ArchiviGiochi>().ScegliDieciELottoOgniCinqueMinuti(ogni_cinque_minuti);
  return Variant();
}

Result<Variant> ResetArchivi(Libreria& lib, CallArgs&) {
  ArchiviGiochi& archivi = lib.Stato<ArchiviGiochi>();
  archivi.Dimentica();
  archivi.ScegliDieciELottoOgniCinqueMinuti(false);
  return Variant();
}

Result<Suffisso> SuffissoArgomento(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto testo, args.String(i));
  const std::string sigla = text::Utf16ToUtf8(testo);
  constexpr std::pair<std::string_view, Suffisso> kSigle[] = {
      {"SE", S::SE}, {"DL", S::DL}, {"WF", S::WF}, {"FT", S::FT}};
  for (const auto& [nome, suffisso] : kSigle)
    if (sigla.size() == nome.size() && std::equal(sigla.begin(), sigla.end(), nome.begin(), [](char a, char b) {
          return std::toupper(static_cast<unsigned char>(a)) == b;
        }))
      return suffisso;
  return ArgomentoNonValido(fmt::format("Gioco non valido: \"{}\" (SE, DL, WF o FT)", sigla));
}

// The Lotto's draw IdEstr in another archive: its first draw of the same day, 0 when it has none.
Result<Variant> AllineaArchivi(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto lotto, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*lotto, args, 0, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto suffisso, SuffissoArgomento(args, 1));
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, suffisso));
  return Variant::Long(EstrazioniDelGiorno(*tab, (*lotto)[id_estr].data).prima);
}

const FunzioneDeiGiochi kArchivioGiochi[] = {
    {"Estratto", 2, 2, LOTTOLAB_PER_OGNI_GIOCO(Estratto),
     "IdEstr, Posizione: il numero estratto in quella posizione (1..{n}) tra i numeri principali (Integer); errore 9 "
     "per un'estrazione fuori dall'archivio o una posizione fuori da 1..{n}",
     "Integer: il numero estratto in quella posizione", "Scrivi Estratto{s}(EstrazioniArchivio{s}, 1)"},
    {"DataEstrazione", 1, 2, LOTTOLAB_PER_OGNI_GIOCO(DataEstrazione),
     "IdEstr, [AnnoBreve = False]: la data dell'estrazione come \"GG/MM/AAAA\", oppure \"GG/MM/AA\" con AnnoBreve",
     "String: la data \"GG/MM/AAAA\" (\"GG/MM/AA\" con AnnoBreve)", "Scrivi DataEstrazione{s}(EstrazioniArchivio{s})"},
    {"Giorno", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(CampoData<&GruppoData::giorno>::Leggi),
     "IdEstr: il giorno del mese dell'estrazione (Integer)", "Integer: il giorno del mese, 1..31",
     "Scrivi Giorno{s}(EstrazioniArchivio{s})"},
    {"Mese", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(CampoData<&GruppoData::mese>::Leggi),
     "IdEstr: il mese dell'estrazione, 1..12 (Integer)", "Integer: il mese, 1..12",
     "Scrivi Mese{s}(EstrazioniArchivio{s})"},
    {"Anno", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(CampoData<&GruppoData::anno>::Leggi),
     "IdEstr: l'anno dell'estrazione, a quattro cifre (Integer)", "Integer: l'anno, a quattro cifre",
     "Scrivi Anno{s}(EstrazioniArchivio{s})"},
    {"IndiceAnnuale", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(CampoData<&GruppoData::indice_annuale>::Leggi),
     "IdEstr: il numero del concorso (nell'anno; nel giorno per i giochi estratti più volte al giorno) (Integer)",
     "Integer: il numero del concorso", "Scrivi IndiceAnnuale{s}(EstrazioniArchivio{s})"},
    {"IndiceMensile", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(IndiceMensile),
     "IdEstr: il numero progressivo dell'estrazione nel suo mese, 1 per la prima (Long)",
     "Long: il posto dell'estrazione nel suo mese, da 1", "Scrivi IndiceMensile{s}(EstrazioniArchivio{s})"},
    {"GetEstrazioneCompleta", 2, 2, LOTTOLAB_PER_OGNI_GIOCO(GetEstrazioneCompleta),
     "IdEstr, aNumeri: riempie aNumeri(1..{n}) con i numeri principali e, dopo, con i numeri speciali (Jolly e "
     "SuperStar; Oro, Doppio Oro, Gong e i 15 Extra; Numerone), 0 dove non c'erano; True se l'estrazione esiste, "
     "altrimenti False lasciando aNumeri invariato",
     "Boolean: True se l'estrazione esiste; in aNumeri (array da 1) i numeri principali, poi gli speciali",
     "If GetEstrazioneCompleta{s}(EstrazioniArchivio{s}, aN) Then Scrivi Join(aN, \" \")"},
    {"EstrazioniArchivio", 0, 0, LOTTOLAB_PER_OGNI_GIOCO(EstrazioniArchivio),
     "il numero di estrazioni nell'archivio, cioè l'ultimo IdEstr (Long)",
     "Long: quante estrazioni ha l'archivio, cioè l'IdEstr dell'ultima", "Scrivi EstrazioniArchivio{s}"},
    {"DataEstrToIdEstr", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(DataEstrToIdEstr),
     "Data: l'IdEstr della (prima) estrazione di quella data \"GG/MM/AAAA\" (Long), 0 se non ce n'è alcuna",
     "Long: l'IdEstr della prima estrazione di quel giorno, 0 se non ce n'è (una data non valida è segnalata e dà 0)",
     "Scrivi DataEstrToIdEstr{s}(DataEstrazione{s}(EstrazioniArchivio{s}))"},
    {"isIdEstrValido", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(isIdEstrValido),
     "IdEstr: True se l'archivio contiene un'estrazione con quell'indice",
     "Boolean: True se l'archivio ha quell'estrazione (False anche senza archivio)",
     "Scrivi isIdEstrValido{s}(EstrazioniArchivio{s} + 1)"},
    {"isSorteValida", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(isSorteValida),
     "Sorte: True se è un intero da 1 a {n}, i numeri principali di un'estrazione",
     "Boolean: True per un intero da 1 a {n}", "Scrivi isSorteValida{s}(2)"},
    {"Posizione", 2, 2, LOTTOLAB_PER_OGNI_GIOCO(Posizione),
     "IdEstr, Numero: la posizione 1..{n} del numero tra i numeri principali, 0 se non è uscito (Integer)",
     "Integer: la posizione 1..{n} del numero, 0 se non è uscito",
     "Scrivi Posizione{s}(EstrazioniArchivio{s}, Estratto{s}(EstrazioniArchivio{s}, 2))"},
    {"IsNumeroPresenteInEstrazione", 2, 2, LOTTOLAB_PER_OGNI_GIOCO(IsNumeroPresenteInEstrazione),
     "IdEstr, Numero: True se il numero è tra i numeri principali dell'estrazione",
     "Boolean: True se il numero è tra i principali dell'estrazione",
     "Scrivi IsNumeroPresenteInEstrazione{s}(EstrazioniArchivio{s}, 7)"},
    {"SommaEstratti", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(SommaEstratti),
     "IdEstr: la somma dei {n} numeri principali dell'estrazione (Long)", "Long: la somma dei numeri principali",
     "Scrivi SommaEstratti{s}(EstrazioniArchivio{s})"},
    {"StringaEstratti", 1, 2, LOTTOLAB_PER_OGNI_GIOCO(StringaEstratti),
     "IdEstr, [Separatore = \".\"]: i {n} numeri principali a due cifre uniti dal separatore",
     "String: i numeri a due cifre uniti dal separatore, \"03.17.45...\"",
     "Scrivi StringaEstratti{s}(EstrazioniArchivio{s}, \" - \")"},
    {"ScriviEstrazione", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(ScriviEstrazione),
     "IdEstr: scrive la data (e l'ora) dell'estrazione, il concorso, i numeri principali e quelli speciali",
     "niente (Sub): scrive l'estrazione nell'output", "ScriviEstrazione{s} EstrazioniArchivio{s}"},
};

const Libreria::Funzione kSoloAlcuniGiochi[] = {
    {"NumeroOroDL", 1, 2, &NumeroOroDL,
     "IdEstr, [Doppio = False]: il Numero Oro dell'estrazione del 10eLotto, o il Doppio Oro con Doppio True; 0 dove "
     "non si giocava (Integer)",
     "Integer: il Numero Oro, o il Doppio Oro; 0 dove non si giocava",
     "Scrivi NumeroOroDL(EstrazioniArchivioDL) & \" \" & NumeroOroDL(EstrazioniArchivioDL, True)"},
    {"NumeroOroWF", 1, 1, &NumeroOroWF, "IdEstr: il Numerone dell'estrazione del Win for Life (Integer)",
     "Integer: il Numerone, 1..20", "Scrivi NumeroOroWF(EstrazioniArchivioWF)"},
    {"OraWF", 1, 1, &OraWF, "IdEstr: l'ora del concorso del Win for Life, \"hh:mm\"",
     "String: l'ora del concorso, \"hh:mm\"", "Scrivi OraWF(EstrazioniArchivioWF)"},
    {"EstrazioneIniDL", 1, 1, &EstrazioneIniDL,
     "Data: l'IdEstr della prima estrazione del 10eLotto di quel giorno (Long), 0 se non ce n'è alcuna",
     "Long: l'IdEstr della prima estrazione del giorno, 0 se non ce n'è (una data non valida è segnalata e dà 0)",
     "Scrivi EstrazioneIniDL(DataEstrazioneDL(EstrazioniArchivioDL))"},
    {"EstrazioneFinDL", 1, 1, &EstrazioneFinDL,
     "Data: l'IdEstr dell'ultima estrazione del 10eLotto di quel giorno (Long), 0 se non ce n'è alcuna",
     "Long: l'IdEstr dell'ultima estrazione del giorno, 0 se non ce n'è (una data non valida è segnalata e dà 0)",
     "Scrivi EstrazioneFinDL(DataEstrazioneDL(EstrazioniArchivioDL))"},
    {"FasciaIniDL", 2, 2, &Fascia<false>,
     "Data, Ora: l'IdEstr della prima estrazione del 10eLotto di quel giorno alle \"hh:mm\" o dopo (Long), 0 se non "
     "ce n'è alcuna",
     "Long: l'IdEstr della prima estrazione del giorno a quell'ora o dopo, 0 se non ce n'è",
     "Scrivi FasciaIniDL(DataEstrazioneDL(EstrazioniArchivioDL), \"00:00\")"},
    {"FasciaFinDL", 2, 2, &Fascia<true>,
     "Data, Ora: l'IdEstr dell'ultima estrazione del 10eLotto di quel giorno alle \"hh:mm\" o prima (Long), 0 se non "
     "ce n'è alcuna",
     "Long: l'IdEstr dell'ultima estrazione del giorno a quell'ora o prima, 0 se non ce n'è",
     "Scrivi FasciaFinDL(DataEstrazioneDL(EstrazioniArchivioDL), \"23:59\")"},
    {"ImpostaArchivio10ELotto", 1, 1, &ImpostaArchivio10ELotto,
     "OgniCinqueMinuti: con True le funzioni DL leggono il 10eLotto ogni 5 minuti, con False quello serale",
     "niente (Sub)", "ImpostaArchivio10ELotto False : Scrivi EstrazioniArchivioDL"},
    {"ResetArchivi", 0, 0, &ResetArchivi,
     "dimentica gli archivi dei giochi letti dall'esecuzione (e l'archivio generico aperto): ciascuno si rilegge dal "
     "suo file al primo uso; le funzioni DL tornano al 10eLotto serale",
     "niente (Sub)", "ResetArchivi : Scrivi EstrazioniArchivioFT"},
    {"AllineaArchivi", 2, 2, &AllineaArchivi,
     "IdEstr, Gioco: l'IdEstr, nell'archivio del gioco \"SE\", \"DL\", \"WF\" o \"FT\", della (prima) estrazione "
     "dello stesso giorno dell'estrazione IdEstr del Lotto (Long), 0 se quel giorno non ne ha",
     "Long: l'IdEstr nell'archivio di quel gioco, 0 se quel giorno non ne ha",
     "Scrivi AllineaArchivi(EstrazioniArchivio, \"SE\")"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniGiochiArchivio() {
  static const std::vector<Libreria::Funzione> funzioni = DeclinaPerGioco(kArchivioGiochi, kSoloAlcuniGiochi);
  return funzioni;
}

}  // namespace lottolab::script
