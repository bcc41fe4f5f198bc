#include "ArgomentiRitardi.h"

#include <fmt/format.h>

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

Result<int> RuotaValida(int ruota, int ultima) {
  if (ruota >= 1 && ruota <= ultima) return ruota;
  return ArgomentoNonValido(ultima == kTutteLeRuote
                                ? fmt::format("Ruota non valida: {} (da 1 a 12, TU_ per tutte)", ruota)
                                : fmt::format("Ruota non valida: {} (una ruota da 1 a 10 o NZ_)", ruota));
}

}  // namespace

Result<std::vector<int>> RuoteGiocate(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto ruote, RuoteArgomento(args, i));
  if (ruote.empty()) return ArgomentoNonValido("Nessuna ruota indicata");
  for (int ruota : ruote) {
    VBS_TRY(RuotaValida(ruota, kTutteLeRuote));
  }
  return ruote;
}

Result<int> RuotaArgomento(const CallArgs& args, size_t i, int ultima) {
  VBS_TRY_ASSIGN(auto ruota, RuotaTabella(args, i));
  return RuotaValida(ruota, ultima);
}

Result<int> NumeroArgomento(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto numero, args.Double(i));
  return NumeroRiportato(numero, 90);
}

Result<int> InteroTra(const CallArgs& args, size_t i, int da, int a, std::string_view nome) {
  VBS_TRY_ASSIGN(auto valore, args.Long(i));
  if (valore < da || valore > a)
    return ArgomentoNonValido(fmt::format("{} non valida: {} (da {} a {})", nome, valore, da, a));
  return valore;
}

Result<int> SorteArgomento(const CallArgs& args, size_t i) { return InteroTra(args, i, 1, kNumeriPerRuota, "Sorte"); }

Result<int> EstrazioneArgomento(int estrazioni, const CallArgs& args, size_t i, int se_omesso, std::string_view nome) {
  VBS_TRY_ASSIGN(auto id_estr, args.Long(i, se_omesso));
  if (id_estr < 1 || id_estr > estrazioni) {
    return ArgomentoNonValido(
        fmt::format("{} fuori dall'archivio: {} (le estrazioni vanno da 1 a {})", nome, id_estr, estrazioni));
  }
  return id_estr;
}

Result<int> EstrazioneArgomento(const TabellaEstrazioni& tab, const CallArgs& args, size_t i, int se_omesso,
                                std::string_view nome) {
  return EstrazioneArgomento(tab.EstrazioniArchivio(), args, i, se_omesso, nome);
}

Result<uint32_t> PosizioniArgomento(const CallArgs& args, std::optional<size_t> i, int quante) {
  if (!i || !args.Has(*i)) return ~uint32_t{0};
  VBS_TRY_ASSIGN(auto valore, args.Value(*i));
  const std::string forma = fmt::format("Le posizioni vanno date in un array con gli indici da 1 a {}", quante);
  if (!valore.is_array()) return ArgomentoNonValido(forma);
  uint32_t posizioni = 0;
  for (int32_t p = 1; p <= quante; ++p) {
    auto flag = vbs::ReadElement(valore, std::span<const int32_t>(&p, 1));
    if (!flag) return ArgomentoNonValido(forma);
    VBS_TRY_ASSIGN(auto attiva, flag->to_boolean(args.locale()));
    if (attiva) posizioni |= uint32_t{1} << (p - 1);
  }
  return posizioni;
}

Result<Intervallo> IntervalloArgomento(const TabellaEstrazioni& tab, const CallArgs& args,
                                       std::optional<size_t> i_inizio, size_t i_fine) {
  VBS_TRY_ASSIGN(auto inizio, i_inizio ? EstrazioneArgomento(tab, args, *i_inizio, 1, "Inizio") : Result<int>(1));
  VBS_TRY_ASSIGN(auto fine, EstrazioneArgomento(tab, args, i_fine, tab.EstrazioniArchivio(), "Fine"));
  if (inizio > fine) return ArgomentoNonValido(fmt::format("Inizio ({}) dopo Fine ({})", inizio, fine));
  return Intervallo{inizio, fine};
}

namespace {

Result<std::vector<int>> NumeriGiocati(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto numeri, NumeriArgomento(args, i));
  if (numeri.empty()) return ArgomentoNonValido("Nessun numero indicato");
  return numeri;
}

Result<stats::Posizioni> PosizioniGiocate(const CallArgs& args, std::optional<size_t> i) {
  VBS_TRY_ASSIGN(auto maschera, PosizioniArgomento(args, i, kNumeriPerRuota));
  stats::Posizioni posizioni{};
  for (size_t p = 0; p < posizioni.size(); ++p) posizioni[p] = ((maschera >> p) & 1U) != 0;
  return posizioni;
}

// The archive, the range and the positions, once the combination is read.
Result<Misura> Completa(const Libreria& lib, const CallArgs& args, Giocata giocata, PostiFacoltativi posti) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  Misura misura;
  misura.tab = archivio;
  misura.giocata = std::move(giocata);
  VBS_TRY_ASSIGN(auto inizio, EstrazioneArgomento(*misura.tab, args, posti.inizio, 1, "Inizio"));
  misura.inizio = inizio;
  VBS_TRY_ASSIGN(auto fine,
                 EstrazioneArgomento(*misura.tab, args, posti.fine, misura.tab->EstrazioniArchivio(), "Fine"));
  misura.fine = fine;
  VBS_TRY_ASSIGN(auto posizioni, PosizioniGiocate(args, posti.posizioni));
  misura.posizioni = posizioni;
  return misura;
}

}  // namespace

Result<Misura> MisuraGruppo(const Libreria& lib, const CallArgs& args, PostiFacoltativi posti) {
  Giocata giocata;
  VBS_TRY_ASSIGN(auto ruote, RuoteGiocate(args, 0));
  giocata.ruote = std::move(ruote);
  VBS_TRY_ASSIGN(auto numeri, NumeriGiocati(args, 1));
  giocata.numeri = std::move(numeri);
  VBS_TRY_ASSIGN(auto sorte, SorteArgomento(args, 2));
  giocata.sorte = sorte;
  return Completa(lib, args, std::move(giocata), posti);
}

Result<Misura> MisuraSuRuota(const Libreria& lib, const CallArgs& args, int quanti_numeri, PostiFacoltativi posti) {
  Giocata giocata;
  VBS_TRY_ASSIGN(auto ruote, RuoteGiocate(args, 0));
  giocata.ruote = std::move(ruote);
  for (size_t i = 1; i <= static_cast<size_t>(quanti_numeri); ++i) {
    VBS_TRY_ASSIGN(auto numero, NumeroArgomento(args, i));
    giocata.numeri.push_back(numero);
  }
  giocata.sorte = quanti_numeri;
  return Completa(lib, args, std::move(giocata), posti);
}

PostiFacoltativi PostiDopoINumeri(int quanti_numeri) {
  const size_t dopo = static_cast<size_t>(quanti_numeri) + 1;
  return {.inizio = dopo, .fine = dopo + 1, .posizioni = dopo + 2};
}

}  // namespace lottolab::script
