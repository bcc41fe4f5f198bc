// Reading the Lotto draw archive: the numbers, dates and indices of each draw.

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "archive/DateEstrazione.h"
#include "vbscript/Interpreter.h"
#include "vbscript/SafeArray.h"
#include "vbscript/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// Argument i as the index of a draw of the table. An index outside it is a subscript out of range,
// as for an array, because scripts walk the archive like one.
Result<int> IdEstrArgomento(const TabellaEstrazioni& tab, const CallArgs& args, size_t i) {
  auto id_estr = args.Long(i);
  if (!id_estr) return std::move(id_estr).error();
  if (!tab.Contiene(*id_estr)) return vbs::MakeError(vbs::err::kSubscript);
  return *id_estr;
}

Result<const Estrazione*> EstrazioneArgomento(const Libreria& lib, const CallArgs& args, size_t i) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  auto id_estr = IdEstrArgomento(**archivio, args, i);
  if (!id_estr) return std::move(id_estr).error();
  return &(**archivio)[*id_estr];
}

Result<Variant> Estratto(Libreria& lib, CallArgs& args) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  auto id_estr = args.Long(0);
  if (!id_estr) return std::move(id_estr).error();
  auto ruota = RuotaTabella(args, 1);
  if (!ruota) return std::move(ruota).error();
  auto posizione = args.Long(2);
  if (!posizione) return std::move(posizione).error();
  auto numero = (*archivio)->Estratto(*id_estr, *ruota, *posizione);
  if (!numero) return vbs::MakeError(vbs::err::kSubscript);
  return Variant::Integer(static_cast<int16_t>(*numero));
}

Result<Variant> DataEstrazione(Libreria& lib, CallArgs& args) {
  auto estrazione = EstrazioneArgomento(lib, args, 0);
  if (!estrazione) return std::move(estrazione).error();
  auto anno_breve = args.Boolean(1, false);
  if (!anno_breve) return std::move(anno_breve).error();
  return Variant::String(vbs::Utf8ToUtf16(FormattaData((*estrazione)->data, *anno_breve)));
}

// A field of the draw's date group, as an Integer.
template <int16_t GruppoData::*Campo>
Result<Variant> CampoData(Libreria& lib, CallArgs& args) {
  auto estrazione = EstrazioneArgomento(lib, args, 0);
  if (!estrazione) return std::move(estrazione).error();
  return Variant::Integer((*estrazione)->data.*Campo);
}

bool StessoMese(const GruppoData& a, const GruppoData& b) { return a.anno == b.anno && a.mese == b.mese; }

// Counted over the table rather than stored: the archive keeps only the annual index.
Result<Variant> IndiceMensile(Libreria& lib, CallArgs& args) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  const TabellaEstrazioni& tab = **archivio;
  auto id_estr = IdEstrArgomento(tab, args, 0);
  if (!id_estr) return std::move(id_estr).error();
  int16_t indice = 1;
  for (int id = *id_estr - 1; id >= 1 && StessoMese(tab[id].data, tab[*id_estr].data); --id) ++indice;
  return Variant::Integer(indice);
}

// The array is indexed (wheel, position) from 1 in both dimensions, the first varying fastest in
// storage.
Result<Variant> ArrayEstrazione(const Estrazione& estrazione) {
  const vbs::ArrayBound limiti[] = {{1, kNumeroRuote}, {1, kNumeriPerRuota}};
  auto array = vbs::SafeArray::Create(limiti);
  if (!array) return std::move(array).error();
  auto elementi = (*array)->elements();
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
    for (int posizione = 1; posizione <= kNumeriPerRuota; ++posizione)
      elementi[(ruota - 1) + (posizione - 1) * kNumeroRuote] = Variant::Integer(estrazione.Numero(ruota, posizione));
  }
  return Variant::Array(std::move(*array));
}

Result<Variant> GetEstrazioneCompleta(Libreria& lib, CallArgs& args) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  auto id_estr = args.Long(0);
  if (!id_estr) return std::move(id_estr).error();
  if (!(*archivio)->Contiene(*id_estr)) return Variant::Boolean(false);
  auto numeri = ArrayEstrazione((**archivio)[*id_estr]);
  if (!numeri) return std::move(numeri).error();
  args.Out(1) = std::move(*numeri);
  return Variant::Boolean(true);
}

Result<Variant> EstrazioniArchivio(Libreria& lib, CallArgs&) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  return Variant::Long((*archivio)->EstrazioniArchivio());
}

// A text that is not a date is the user's mistake, not the script's: it is explained and the
// script goes on with no draw.
Result<Variant> DataEstrToIdEstr(Libreria& lib, CallArgs& args) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  auto testo = args.String(0);
  if (!testo) return std::move(testo).error();
  auto data = LeggiData(vbs::Utf16ToUtf8(*testo));
  if (!data) {
    lib.ospite().Mostra(data.Errore());
    return Variant::Long(0);
  }
  const TabellaEstrazioni& tab = **archivio;
  const int id_estr = tab.UltimaEstrazioneEntro(*data);
  const bool trovata = id_estr > 0 && ConfrontaDate(tab[id_estr].data, *data) == 0;
  return Variant::Long(trovata ? id_estr : 0);
}

// A question about the archive, so no archive loaded is simply a "no".
Result<Variant> isIdEstrValido(Libreria& lib, CallArgs& args) {
  auto id_estr = args.Long(0);
  if (!id_estr) return std::move(id_estr).error();
  const TabellaEstrazioni* archivio = lib.impostazioni().archivio;
  return Variant::Boolean(archivio && archivio->Contiene(*id_estr));
}

const Libreria::Funzione kArchivio[] = {
    {"Estratto", 3, 3, &Estratto,
     "IdEstr, Ruota, Posizione: the number drawn there (Integer); 0 for TU_ or a value that is no wheel, error 9 "
     "for a draw outside the archive or a position outside 1..5"},
    {"DataEstrazione", 1, 2, &DataEstrazione,
     "IdEstr, [AnnoBreve = False]: the draw's date as \"GG/MM/AAAA\", or \"GG/MM/AA\" with AnnoBreve"},
    {"giorno", 1, 1, &CampoData<&GruppoData::giorno>, "IdEstr: the day of the month of the draw (Integer)"},
    {"Mese", 1, 1, &CampoData<&GruppoData::mese>, "IdEstr: the month of the draw, 1..12 (Integer)"},
    {"Anno", 1, 1, &CampoData<&GruppoData::anno>, "IdEstr: the four-digit year of the draw (Integer)"},
    {"IndiceAnnuale", 1, 1, &CampoData<&GruppoData::indice_annuale>,
     "IdEstr: the number of the draw within its year (Integer)"},
    {"IndiceMensile", 1, 1, &IndiceMensile,
     "IdEstr: the number of the draw within its month, 1 for the month's first draw (Integer)"},
    {"GetEstrazioneCompleta", 2, 2, &GetEstrazioneCompleta,
     "IdEstr, aNumeri: fills aNumeri with the draw's numbers as aNumeri(Ruota 1..11, Posizione 1..5), NZ at 11; "
     "True when the draw exists, else False with aNumeri untouched"},
    {"EstrazioniArchivio", 0, 0, &EstrazioniArchivio, "the number of draws in the archive, the last IdEstr (Long)"},
    {"DataEstrToIdEstr", 1, 1, &DataEstrToIdEstr,
     "Data: the IdEstr of the draw of that date \"GG/MM/AAAA\" (Long), 0 when there is none"},
    {"isIdEstrValido", 1, 1, &isIdEstrValido, "IdEstr: True when the archive holds a draw with that index"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniArchivio() { return kArchivio; }

}  // namespace lottolab::script
