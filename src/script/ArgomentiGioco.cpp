#include "ArgomentiGioco.h"

#include <fmt/format.h>

#include <cstdio>
#include <string>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

Result<std::vector<int>> NumeriGiocati(const TabellaGioco& tab, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, i));
  if (valori.empty()) return ArgomentoNonValido("Nessun numero indicato");
  std::vector<int> numeri;
  for (double valore : valori) {
    VBS_TRY_ASSIGN(auto numero, NumeroRiportato(valore, tab.formato().massimo));
    numeri.push_back(numero);
  }
  return numeri;
}

Result<int> SorteDelGioco(const TabellaGioco& tab, const CallArgs& args, size_t i) {
  return InteroTra(args, i, 1, tab.formato().numeri, "Sorte");
}

Result<MisuraGioco> Completa(const TabellaGioco& tab, const CallArgs& args, MisuraGioco misura, PostiGioco posti) {
  misura.tab = &tab;
  VBS_TRY_ASSIGN(auto intervallo, IntervalloGioco(tab, args, posti.inizio, posti.fine));
  misura.inizio = intervallo.inizio;
  misura.fine = intervallo.fine;
  VBS_TRY_ASSIGN(auto posizioni, PosizioniArgomento(args, posti.posizioni, tab.formato().numeri));
  misura.posizioni = posizioni;
  return misura;
}

}  // namespace

Result<Intervallo> IntervalloGioco(const TabellaGioco& tab, const CallArgs& args, std::optional<size_t> i_inizio,
                                   size_t i_fine) {
  const int estrazioni = tab.EstrazioniArchivio();
  VBS_TRY_ASSIGN(auto inizio,
                 i_inizio ? EstrazioneArgomento(estrazioni, args, *i_inizio, 1, "Inizio") : Result<int>(1));
  VBS_TRY_ASSIGN(auto fine, EstrazioneArgomento(estrazioni, args, i_fine, estrazioni, "Fine"));
  return Intervallo{inizio, fine};
}

Result<const TabellaGioco*> TabellaDelGioco(Libreria& lib, Suffisso suffisso) {
  const Esito<TabellaGioco>& tabella =
      lib.Stato<ArchiviGiochi>().Tabella(suffisso, lib.impostazioni().archivi_giochi, lib.impostazioni().archivio);
  if (!tabella) return ArgomentoNonValido(tabella.Errore().testo);
  return &*tabella;
}

Result<const EstrazioneGioco*> EstrazioneDelGioco(const TabellaGioco& tab, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto id_estr, args.Long(i));
  if (!tab.Contiene(id_estr)) return vbs::MakeError(vbs::err::kSubscript);
  return &tab[id_estr];
}

Result<int> NumeroDelGioco(const TabellaGioco& tab, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto numero, args.Double(i));
  return NumeroRiportato(numero, tab.formato().massimo);
}

Result<MisuraGioco> MisuraGruppoGioco(Libreria& lib, Suffisso suffisso, const CallArgs& args, PostiGioco posti) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, suffisso));
  MisuraGioco misura;
  VBS_TRY_ASSIGN(auto numeri, NumeriGiocati(*tab, args, 0));
  misura.numeri = std::move(numeri);
  VBS_TRY_ASSIGN(auto sorte, SorteDelGioco(*tab, args, 1));
  misura.sorte = sorte;
  return Completa(*tab, args, std::move(misura), posti);
}

Result<MisuraGioco> MisuraNumeriGioco(Libreria& lib, Suffisso suffisso, const CallArgs& args, int quanti) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, suffisso));
  MisuraGioco misura;
  for (size_t i = 0; i < static_cast<size_t>(quanti); ++i) {
    VBS_TRY_ASSIGN(auto numero, NumeroDelGioco(*tab, args, i));
    misura.numeri.push_back(numero);
  }
  misura.sorte = quanti;
  const auto dopo = static_cast<size_t>(quanti);
  return Completa(*tab, args, std::move(misura), {.inizio = dopo, .fine = dopo + 1, .posizioni = dopo + 2});
}

Result<int> OraArgomento(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto testo, args.String(i));
  const std::string ora = text::Utf16ToUtf8(testo);
  int ore = 0, minuti = 0;
  char due_punti = 0;
  if (std::sscanf(ora.c_str(), "%d%c%d", &ore, &due_punti, &minuti) != 3 || (due_punti != ':' && due_punti != '.') ||
      ore < 0 || ore > 23 || minuti < 0 || minuti > 59)
    return ArgomentoNonValido(fmt::format("Ora non valida: \"{}\" (si scrive hh:mm, da 00:00 a 23:59)", ora));
  return ore * 60 + minuti;
}

}  // namespace lottolab::script
