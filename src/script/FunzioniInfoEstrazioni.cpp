// A draw described in one line, and the draws around one: the last before it and the first after it
// in which a group of numbers came out, in the Lotto and in the generic archive; the 10eLotto draws
// of a band of hours.

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "ArgomentiGioco.h"
#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "FamigliaGiochi.h"
#include "RitardoConRegola.h"
#include "archive/DateEstrazione.h"

namespace lottolab::script {

namespace {

using namespace famiglia;
using S = Suffisso;

Variant Testo(const std::string& testo) { return Variant::String(text::Utf8ToUtf16(testo)); }

Result<Variant> GetInfoEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*archivio, args, 0, 0, "IdEstr"));
  const Estrazione& estrazione = (*archivio)[id_estr];
  return Testo(fmt::format("IdEstr {} - estrazione n. {} del {}", id_estr, estrazione.data.indice_annuale,
                           FormattaData(estrazione.data)));
}

template <Suffisso kSuffisso>
Result<Variant> GetInfoEstrazioneGioco(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  std::string testo = fmt::format("IdEstr {} - concorso n. {} del {}", estrazione->id_estr, estrazione->concorso,
                                  FormattaData(estrazione->data));
  if (tab->formato().con_ora)
    testo += fmt::format(" ore {:02}:{:02}", estrazione->minuti / 60, estrazione->minuti % 60);
  return Testo(testo);
}

// How many of the numbers the draw holds on one of the wheels, the best wheel.
int Punti(const Estrazione& estrazione, std::span<const int> ruote, std::span<const int> numeri) {
  int migliore = 0;
  for (int ruota : ruote) {
    int punti = 0;
    for (int p = 1; p <= kNumeriPerRuota; ++p)
      punti += std::find(numeri.begin(), numeri.end(), estrazione.Numero(ruota, p)) != numeri.end();
    migliore = std::max(migliore, punti);
  }
  return migliore;
}

Result<int> SorteDelGruppo(const CallArgs& args, size_t i, size_t quanti, std::string_view funzione) {
  VBS_TRY_ASSIGN(auto sorte, args.Long(i, 1));
  if (sorte < 1 || static_cast<size_t>(sorte) > quanti)
    return ArgomentoNonValido(fmt::format(
        "{}: la sorte {} non si può vincere con {} numeri (va da 1 a quanti sono i numeri)", funzione, sorte, quanti));
  return static_cast<int>(sorte);
}

// The numbers of argument i, each once, refused when empty.
Result<std::vector<int>> GruppoDiNumeri(const CallArgs& args, size_t i, int massimo, std::string_view funzione) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, i));
  std::vector<int> numeri;
  for (double valore : valori) {
    // The range first: a value past an int is not converted.
    if (!(valore >= 1 && valore <= massimo) || valore != std::floor(valore))
      return ArgomentoNonValido(fmt::format("{}: {} non è un numero da 1 a {}", funzione, valore, massimo));
    if (std::find(numeri.begin(), numeri.end(), static_cast<int>(valore)) == numeri.end())
      numeri.push_back(static_cast<int>(valore));
  }
  if (numeri.empty()) return ArgomentoNonValido(fmt::format("{}: non ci sono numeri da cercare", funzione));
  return numeri;
}

// IdEstr, aNumeri, Ruota, [Sorte = 1]: the nearest draw before (or after) IdEstr that holds Sorte
// of the numbers on the wheel; 0 when none.
template <bool kSuccessiva>
Result<Variant> PrimaUscita(Libreria& lib, CallArgs& args) {
  constexpr std::string_view kNome = kSuccessiva ? "PrimaSuccessiva" : "PrimaPrecedente";
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  const TabellaEstrazioni& tab = *archivio;
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(tab, args, 0, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto numeri, GruppoDiNumeri(args, 1, kMassimoNumero, kNome));
  VBS_TRY_ASSIGN(auto ruota, RuotaArgomento(args, 2, kTutteLeRuote));
  VBS_TRY_ASSIGN(auto sorte, SorteDelGruppo(args, 3, std::min<size_t>(numeri.size(), kNumeriPerRuota), kNome));
  const int ruote_date[] = {ruota};
  const std::vector<int> ruote = RuoteSingole(ruote_date);
  const int passo = kSuccessiva ? 1 : -1;
  for (int id = id_estr + passo; id >= 1 && id <= tab.EstrazioniArchivio(); id += passo) {
    if ((id & 0xFFF) == 0) VBS_TRY(lib.ControllaInterruzione());
    if (Punti(tab[id], ruote, numeri) >= sorte) return Variant::Long(id);
  }
  return Variant::Long(0);
}

template <bool kSuccessiva>
Result<Variant> PrimaUscitaFT(Libreria& lib, CallArgs& args) {
  constexpr std::string_view kNome = kSuccessiva ? "PrimaSuccessivaFT" : "PrimaPrecedenteFT";
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, S::FT));
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneDelGioco(*tab, args, 0));
  const FormatoGioco& formato = tab->formato();
  VBS_TRY_ASSIGN(auto numeri, GruppoDiNumeri(args, 1, formato.massimo, kNome));
  VBS_TRY_ASSIGN(auto sorte,
                 SorteDelGruppo(args, 2, std::min<size_t>(numeri.size(), static_cast<size_t>(formato.numeri)), kNome));
  const int passo = kSuccessiva ? 1 : -1;
  for (int id = estrazione->id_estr + passo; id >= 1 && id <= tab->EstrazioniArchivio(); id += passo) {
    const EstrazioneGioco& altra = (*tab)[id];
    const auto fine = altra.numeri.begin() + formato.numeri;
    const auto punti = std::count_if(numeri.begin(), numeri.end(),
                                     [&](int n) { return std::find(altra.numeri.begin(), fine, n) != fine; });
    if (punti >= sorte) return Variant::Long(id);
  }
  return Variant::Long(0);
}

// aIdEstr, OraIniziale, OraFinale, aRet: the 10eLotto draws of the list drawn in the band of hours.
Result<Variant> FiltraArrayEstrDieciELotto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, S::DL));
  if (!tab->formato().con_ora)
    return ArgomentoNonValido(
        "FiltraArrayEstrDieciELotto: il 10eLotto in uso è quello serale, senza l'ora; ImpostaArchivio10ELotto True "
        "sceglie quello ogni cinque minuti");
  VBS_TRY_ASSIGN(auto elenco, ValoriArgomento(args, 0));
  VBS_TRY_ASSIGN(auto da, OraArgomento(args, 1));
  VBS_TRY_ASSIGN(auto a, OraArgomento(args, 2));
  if (da > a) return ArgomentoNonValido("FiltraArrayEstrDieciELotto: l'ora iniziale viene dopo quella finale");
  std::vector<int> tenute;
  for (double valore : elenco) {
    if (!(valore >= 1 && valore <= tab->EstrazioniArchivio()) || valore != std::floor(valore))
      return ArgomentoNonValido(
          fmt::format("FiltraArrayEstrDieciELotto: {} non è un'estrazione dell'archivio del 10eLotto (1..{})", valore,
                      tab->EstrazioniArchivio()));
    const int id = static_cast<int>(valore);
    const int minuti = (*tab)[id].minuti;
    if (minuti >= da && minuti <= a) tenute.push_back(id);
  }
  args.Out(3) = ArrayDaUno(tenute);
  return Variant::Long(static_cast<int32_t>(tenute.size()));
}

const FunzioneDeiGiochi kInfoGiochi[] = {
    {"GetInfoEstrazione", 1, 1, LOTTOLAB_PER_OGNI_GIOCO(GetInfoEstrazioneGioco),
     "IdEstr: l'estrazione descritta in una riga: IdEstr, numero del concorso nell'anno, data e, per i giochi che "
     "l'hanno, l'ora",
     "String: \"IdEstr 120 - concorso n. 15 del 04/02/2025\"", "Scrivi GetInfoEstrazione{s}(EstrazioniArchivio{s})"},
};

const Libreria::Funzione kInfoLotto[] = {
    {"GetInfoEstrazione", 1, 1, &GetInfoEstrazione,
     "IdEstr: l'estrazione descritta in una riga: IdEstr, numero dell'estrazione nell'anno e data",
     "String: \"IdEstr 10500 - estrazione n. 45 del 15/04/2025\"", "Scrivi GetInfoEstrazione(EstrazioniArchivio)"},
    {"PrimaPrecedente", 3, 4, &PrimaUscita<false>,
     "IdEstr, aNumeri, Ruota, [Sorte = 1]: l'ultima estrazione prima di IdEstr in cui almeno Sorte dei numeri sono "
     "usciti insieme su Ruota (TU_: su una qualunque delle ruote)",
     "Long: l'IdEstr trovato, 0 se non c'è", "Scrivi PrimaPrecedente(EstrazioniArchivio, Array(12, 34), BA_, 2)"},
    {"PrimaSuccessiva", 3, 4, &PrimaUscita<true>,
     "IdEstr, aNumeri, Ruota, [Sorte = 1]: la prima estrazione dopo IdEstr in cui almeno Sorte dei numeri sono usciti "
     "insieme su Ruota (TU_: su una qualunque delle ruote)",
     "Long: l'IdEstr trovato, 0 se non c'è", "Scrivi PrimaSuccessiva(1, Array(90), TU_)"},
    {"PrimaPrecedenteFT", 2, 3, &PrimaUscitaFT<false>,
     "IdEstr, aNumeri, [Sorte = 1]: l'ultima estrazione dell'archivio generico prima di IdEstr con almeno Sorte dei "
     "numeri",
     "Long: l'IdEstr trovato, 0 se non c'è", "Scrivi PrimaPrecedenteFT(EstrazioniArchivioFT, Array(1, 2), 1)"},
    {"PrimaSuccessivaFT", 2, 3, &PrimaUscitaFT<true>,
     "IdEstr, aNumeri, [Sorte = 1]: la prima estrazione dell'archivio generico dopo IdEstr con almeno Sorte dei "
     "numeri",
     "Long: l'IdEstr trovato, 0 se non c'è", "Scrivi PrimaSuccessivaFT(1, Array(1, 2), 1)"},
    {"FiltraArrayEstrDieciELotto", 4, 4, &FiltraArrayEstrDieciELotto,
     "aIdEstr, OraIniziale, OraFinale, aRet: riempie aRet(1..) con le estrazioni di aIdEstr del 10eLotto ogni "
     "cinque minuti estratte tra le due ore \"hh:mm\" comprese, nell'ordine dell'elenco",
     "Long: quante estrazioni; in aRet i loro IdEstr (array da 1)",
     "ImpostaArchivio10ELotto True : n = FiltraArrayEstrDieciELotto(Array(1, 2, 3), \"00:00\", \"12:00\", aF) : "
     "ImpostaArchivio10ELotto False"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniInfoEstrazioni() {
  static const std::vector<Libreria::Funzione> funzioni = DeclinaPerGioco(kInfoGiochi, kInfoLotto);
  return funzioni;
}

}  // namespace lottolab::script
