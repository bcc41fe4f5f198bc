// Reading the Lotto draw archive: the numbers, dates and indices of each draw.

#include <fmt/format.h>
#include <vector>

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "archive/DateEstrazione.h"
#include "text/Utf.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// Argument i as the index of a draw of the table. An index outside it is a subscript out of range,
// as for an array, because scripts walk the archive like one.
Result<int> IdEstrArgomento(const TabellaEstrazioni& tab, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto id_estr, args.Long(i));
  if (!tab.Contiene(id_estr)) return vbs::MakeError(vbs::err::kSubscript);
  return id_estr;
}

Result<const Estrazione*> EstrazioneArgomento(const Libreria& lib, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, IdEstrArgomento(*archivio, args, i));
  return &(*archivio)[id_estr];
}

Result<Variant> Estratto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, args.Long(0));
  VBS_TRY_ASSIGN(auto ruota, RuotaTabella(args, 1));
  VBS_TRY_ASSIGN(auto posizione, args.Long(2));
  auto numero = (archivio)->Estratto(id_estr, ruota, posizione);
  if (!numero) return vbs::MakeError(vbs::err::kSubscript);
  return Variant::Integer(static_cast<int16_t>(*numero));
}

// Estratto with whole numbers, as loops over draws, wheels and positions call it.
bool EstrattoIntero(vbs::Object& libreria, std::span<const int32_t> args, Variant& out) {
  const TabellaEstrazioni* archivio = static_cast<Libreria&>(libreria).impostazioni().archivio;
  if (args.size() != 3 || !archivio) return false;
  const auto ruota = RuotaTabellaIntera(args[1]);
  if (!ruota) return false;
  const auto numero = archivio->Estratto(args[0], *ruota, args[2]);
  if (!numero) return false;
  out = Variant::Integer(static_cast<int16_t>(*numero));
  return true;
}

Result<Variant> DataEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto anno_breve, args.Boolean(1, false));
  return Variant::String(text::Utf8ToUtf16(FormattaData((estrazione)->data, anno_breve)));
}

// A field of the draw's date group, as an Integer.
template <int16_t GruppoData::*Campo>
Result<Variant> CampoData(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneArgomento(lib, args, 0));
  return Variant::Integer((estrazione)->data.*Campo);
}

bool StessoMese(const GruppoData& a, const GruppoData& b) { return a.anno == b.anno && a.mese == b.mese; }

// Counted over the table rather than stored: the archive keeps only the annual index.
Result<Variant> IndiceMensile(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  const TabellaEstrazioni& tab = *archivio;
  VBS_TRY_ASSIGN(auto id_estr, IdEstrArgomento(tab, args, 0));
  int16_t indice = 1;
  for (int id = id_estr - 1; id >= 1 && StessoMese(tab[id].data, tab[id_estr].data); --id) ++indice;
  return Variant::Integer(indice);
}

Result<Variant> GetEstrazioneCompleta(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, args.Long(0));
  if (!(archivio)->Contiene(id_estr)) return Variant::Boolean(false);
  VBS_TRY_ASSIGN(auto numeri, ArrayEstrazione((*archivio)[id_estr]));
  args.Out(1) = std::move(numeri);
  return Variant::Boolean(true);
}

Result<Variant> EstrazioniArchivio(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  return Variant::Long((archivio)->EstrazioniArchivio());
}

// A text that is not a date is the user's mistake, not the script's: it is explained and the
// script goes on with no draw.
Result<Variant> DataEstrToIdEstr(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto testo, args.String(0));
  auto data = LeggiData(text::Utf16ToUtf8(testo));
  if (!data) {
    lib.ospite().Mostra(data.Errore());
    return Variant::Long(0);
  }
  const TabellaEstrazioni& tab = *archivio;
  const int id_estr = tab.UltimaEstrazioneEntro(*data);
  const bool trovata = id_estr > 0 && ConfrontaDate(tab[id_estr].data, *data) == 0;
  return Variant::Long(trovata ? id_estr : 0);
}

// The draw that opens (Ini) or closes (Fin) a period starting or ending on a date: the first draw on
// that day or after it, the last on that day or before it; 0 when there is none, or for a text that
// is not a date, after explaining it.
template <bool Fin>
Result<Variant> EstrazioneDellaData(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto testo, args.String(0));
  const std::string scritta = text::Utf16ToUtf8(testo);
  auto data = LeggiData(scritta);
  if (data && !DataValida(*data))
    data = AvvisoEsclamativo(fmt::format("La data {} non esiste: si scrive GG/MM/AAAA", scritta));
  if (!data) {
    lib.ospite().Mostra(data.Errore());
    return Variant::Long(0);
  }
  const TabellaEstrazioni& tab = *archivio;
  const int entro = tab.UltimaEstrazioneEntro(*data);
  if (Fin) return Variant::Long(entro);
  const bool del_giorno = entro > 0 && ConfrontaDate(tab[entro].data, *data) == 0;
  const int dal = del_giorno ? entro : entro + 1;
  return Variant::Long(tab.Contiene(dal) ? dal : 0);
}

// The archive's last draw is not known to close its month: later draws of the month may come.
Result<Variant> IsUltimaDelMese(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, IdEstrArgomento(*archivio, args, 0));
  if (!archivio->Contiene(id_estr + 1)) return Variant::Boolean(false);
  const GruppoData& questa = (*archivio)[id_estr].data;
  const GruppoData& dopo = (*archivio)[id_estr + 1].data;
  return Variant::Boolean(dopo.mese != questa.mese || dopo.anno != questa.anno);
}

// Argument i as one wheel of the table (1..11); all the wheels together (TU_) is no single wheel.
Result<int> RuotaSingola(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto ruota, RuotaTabella(args, i));
  if (ruota < 1 || ruota > kNumeroRuote) return ArgomentoNonValido("Serve una ruota sola: da BA_ a VE_ o NZ_");
  return ruota;
}

// The draw of argument 0 and the single wheel of argument 1.
struct RuotaDiEstrazione {
  const Estrazione* estrazione;
  int ruota;
};

Result<RuotaDiEstrazione> RuotaDiEstrazioneArgomenti(const Libreria& lib, const CallArgs& args) {
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto ruota, RuotaSingola(args, 1));
  return RuotaDiEstrazione{estrazione, ruota};
}

// The position 1..5 of the number on the wheel, 0 when it was not drawn there.
int PosizioneSuRuota(const Estrazione& estrazione, int ruota, int numero) {
  for (int p = 1; p <= kNumeriPerRuota; ++p)
    if (estrazione.Numero(ruota, p) == numero) return p;
  return 0;
}

Result<Variant> Posizione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto punto, RuotaDiEstrazioneArgomenti(lib, args));
  VBS_TRY_ASSIGN(auto numero, args.Long(2));
  return Variant::Integer(static_cast<int16_t>(PosizioneSuRuota(*punto.estrazione, punto.ruota, numero)));
}

Result<Variant> IsNumeroPresenteInEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto ruota, RuotaTabella(args, 1));
  VBS_TRY_ASSIGN(auto numero, args.Long(2));
  if (ruota == kTutteLeRuote) {
    for (int r = 1; r <= kNumeroRuote; ++r)
      if (PosizioneSuRuota(*estrazione, r, numero) != 0) return Variant::Boolean(true);
    return Variant::Boolean(false);
  }
  if (ruota < 1 || ruota > kNumeroRuote) return ArgomentoNonValido("Ruota non valida: da BA_ a VE_, TU_ o NZ_");
  return Variant::Boolean(PosizioneSuRuota(*estrazione, ruota, numero) != 0);
}

Result<Variant> SommaEstratti(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto punto, RuotaDiEstrazioneArgomenti(lib, args));
  int32_t somma = 0;
  for (int p = 1; p <= kNumeriPerRuota; ++p) somma += punto.estrazione->Numero(punto.ruota, p);
  return Variant::Long(somma);
}

Result<Variant> GetArrayNumeriRuota(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto punto, RuotaDiEstrazioneArgomenti(lib, args));
  if (!punto.estrazione->RuotaEstratta(punto.ruota)) return Variant::Boolean(false);
  std::vector<int> numeri;
  for (int p = 1; p <= kNumeriPerRuota; ++p) numeri.push_back(punto.estrazione->Numero(punto.ruota, p));
  args.Out(2) = ArrayDaUno(numeri);
  return Variant::Boolean(true);
}

// Whether a whole number argument lies in da..a; anything that is not a number is simply not valid.
template <int kDa, int kA>
Result<Variant> InteroValido(Libreria&, CallArgs& args) {
  auto valore = args.Double(0);
  if (!valore) return Variant::Boolean(false);
  // The range first: a value past any int must not reach the conversion.
  return Variant::Boolean(*valore >= kDa && *valore <= kA && *valore == static_cast<int>(*valore));
}

// A question about the archive, so no archive loaded is simply a "no".
Result<Variant> isIdEstrValido(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto id_estr, args.Long(0));
  const TabellaEstrazioni* archivio = lib.impostazioni().archivio;
  return Variant::Boolean(archivio && archivio->Contiene(id_estr));
}

const Libreria::Funzione kArchivio[] = {
    {"Estratto", 3, 3, &Estratto,
     "IdEstr, Ruota, Posizione: il numero estratto in quel punto (Integer); 0 per TU_ o per un valore che non è una "
     "ruota, errore 9 per un'estrazione fuori dall'archivio o una posizione fuori da 1..5",
     "Integer: il numero 1..90 (0 per TU_); errore 9 fuori dall'archivio o da 1..5",
     "Scrivi Estratto(EstrazioniArchivio, BA_, 1)"},
    {"DataEstrazione", 1, 2, &DataEstrazione,
     "IdEstr, [AnnoBreve = False]: la data dell'estrazione come \"GG/MM/AAAA\", oppure \"GG/MM/AA\" con AnnoBreve",
     "String: la data \"GG/MM/AAAA\" (\"GG/MM/AA\" con AnnoBreve)", "Scrivi DataEstrazione(EstrazioniArchivio)"},
    {"giorno", 1, 1, &CampoData<&GruppoData::giorno>, "IdEstr: il giorno del mese dell'estrazione (Integer)",
     "Integer: il giorno del mese, 1..31", "Scrivi giorno(EstrazioniArchivio)"},
    {"Mese", 1, 1, &CampoData<&GruppoData::mese>, "IdEstr: il mese dell'estrazione, 1..12 (Integer)",
     "Integer: il mese, 1..12", "Scrivi Mese(EstrazioniArchivio)"},
    {"Anno", 1, 1, &CampoData<&GruppoData::anno>, "IdEstr: l'anno dell'estrazione, a quattro cifre (Integer)",
     "Integer: l'anno a quattro cifre", "Scrivi Anno(EstrazioniArchivio)"},
    {"IndiceAnnuale", 1, 1, &CampoData<&GruppoData::indice_annuale>,
     "IdEstr: il numero progressivo dell'estrazione nel suo anno (Integer)",
     "Integer: il progressivo dell'estrazione nell'anno", "Scrivi IndiceAnnuale(EstrazioniArchivio)"},
    {"IndiceMensile", 1, 1, &IndiceMensile,
     "IdEstr: il numero progressivo dell'estrazione nel suo mese, 1 per la prima estrazione del mese (Integer)",
     "Integer: il progressivo dell'estrazione nel mese, da 1", "Scrivi IndiceMensile(EstrazioniArchivio)"},
    {"GetEstrazioneCompleta", 2, 2, &GetEstrazioneCompleta,
     "IdEstr, aNumeri: riempie aNumeri con i numeri dell'estrazione come aNumeri(Ruota 1..11, Posizione 1..5), NZ "
     "alla 11; True se l'estrazione esiste, altrimenti False lasciando aNumeri invariato",
     "Boolean: True se l'estrazione esiste; in aNumeri la matrice (1..11, 1..5) dei numeri",
     "If GetEstrazioneCompleta(EstrazioniArchivio, aN) Then Scrivi aN(RO_, 1)"},
    {"EstrazioniArchivio", 0, 0, &EstrazioniArchivio,
     "il numero di estrazioni nell'archivio, cioè l'ultimo IdEstr (Long)", "Long: l'indice dell'ultima estrazione",
     "Scrivi EstrazioniArchivio"},
    {"DataEstrToIdEstr", 1, 1, &DataEstrToIdEstr,
     "Data: l'IdEstr dell'estrazione di quella data \"GG/MM/AAAA\" (Long), 0 se non ce n'è alcuna",
     "Long: l'IdEstr, 0 se quel giorno non c'è estrazione (o, dopo un avviso, se la data non è valida)",
     "Scrivi DataEstrToIdEstr(DataEstrazione(EstrazioniArchivio - 1))"},
    {"EstrazioneIni", 1, 1, &EstrazioneDellaData<false>,
     "Data: l'IdEstr della prima estrazione di quel giorno \"GG/MM/AAAA\" o successiva (Long), 0 se non ce n'è "
     "alcuna: l'inizio di un periodo",
     "Long: l'IdEstr, 0 se non c'è (o, dopo un avviso, se la data non è valida)",
     "Scrivi EstrazioneIni(\"01/01/2020\")"},
    {"EstrazioneFin", 1, 1, &EstrazioneDellaData<true>,
     "Data: l'IdEstr dell'ultima estrazione di quel giorno \"GG/MM/AAAA\" o precedente (Long), 0 se non ce n'è "
     "alcuna: la fine di un periodo",
     "Long: l'IdEstr, 0 se non c'è (o, dopo un avviso, se la data non è valida)",
     "Scrivi EstrazioneFin(\"31/12/2020\")"},
    {"IsUltimaDelMese", 1, 1, &IsUltimaDelMese,
     "IdEstr: True se è l'ultima estrazione del suo mese nell'archivio (False per l'ultima dell'archivio: il mese "
     "può non essere finito)",
     "Boolean: True per l'ultima estrazione del mese", "Scrivi IsUltimaDelMese(EstrazioniArchivio - 1)"},
    {"isIdEstrValido", 1, 1, &isIdEstrValido, "IdEstr: True se l'archivio contiene un'estrazione con quell'indice",
     "Boolean: True se l'estrazione esiste", "Scrivi isIdEstrValido(EstrazioniArchivio + 1)"},
    {"Posizione", 3, 3, &Posizione,
     "IdEstr, Ruota, Numero: la posizione 1..5 del numero sulla ruota in quell'estrazione, 0 se non è uscito "
     "(Integer)",
     "Integer: la posizione 1..5, 0 se il numero non è uscito",
     "Scrivi Posizione(EstrazioniArchivio, MI_, Estratto(EstrazioniArchivio, MI_, 3))"},
    {"IsNumeroPresenteInEstrazione", 3, 3, &IsNumeroPresenteInEstrazione,
     "IdEstr, Ruota, Numero: True se il numero è uscito sulla ruota in quell'estrazione (con TU_ su una ruota "
     "qualsiasi)",
     "Boolean: True se il numero è uscito", "Scrivi IsNumeroPresenteInEstrazione(EstrazioniArchivio, TU_, 90)"},
    {"SommaEstratti", 2, 2, &SommaEstratti,
     "IdEstr, Ruota: la somma dei cinque numeri della ruota in quell'estrazione, 0 se non fu estratta (Long)",
     "Long: la somma dei cinque numeri, 0 se la ruota non fu estratta",
     "Scrivi SommaEstratti(EstrazioniArchivio, VE_)"},
    {"GetArrayNumeriRuota", 3, 3, &GetArrayNumeriRuota,
     "IdEstr, Ruota, aNumeri: riempie aNumeri(1..5) con i numeri della ruota; True se la ruota fu estratta, "
     "altrimenti False lasciando aNumeri invariato",
     "Boolean: True se la ruota fu estratta; in aNumeri i cinque numeri (array da 1)",
     "If GetArrayNumeriRuota(EstrazioniArchivio, RO_, aN) Then Scrivi aN(1) & \" \" & aN(5)"},
    {"isNumeroValidoLotto", 1, 1, &InteroValido<1, 90>, "Numero: True se è un numero intero da 1 a 90",
     "Boolean: True per un intero da 1 a 90", "Scrivi isNumeroValidoLotto(91)"},
    {"isRuotaValidaLotto", 1, 1, &InteroValido<1, 12>,
     "Ruota: True se è una ruota degli script: da BA_ (1) a VE_ (10), TU_ (11) o NZ_ (12)",
     "Boolean: True per un intero da 1 a 12", "Scrivi isRuotaValidaLotto(NZ_)"},
    {"isSorteValidaLotto", 1, 1, &InteroValido<1, 10>,
     "Sorte: True se è una sorte del Lotto: da AMBATA_ (1) a CINQUINA_ (5) o da EDET1_ (6) a EDET5_ (10)",
     "Boolean: True per un intero da 1 a 10", "Scrivi isSorteValidaLotto(TERNO_)"},
};

const Libreria::FormaIntera kFormeIntere[] = {{"Estratto", &EstrattoIntero}};

}  // namespace

std::span<const Libreria::Funzione> FunzioniArchivio() { return kArchivio; }
std::span<const Libreria::FormaIntera> FormeIntereArchivio() { return kFormeIntere; }

}  // namespace lottolab::script
