#include "ArgomentiCiclometria.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"

namespace lottolab::script {

using namespace famiglia;

Result<std::vector<int>> RuoteDellaFigura(const CallArgs& args, size_t i) {
  std::vector<int> date{kTutteLeRuote};
  if (args.Has(i)) {
    VBS_TRY_ASSIGN(auto lette, RuoteGiocate(args, i));
    date = std::move(lette);
  }
  std::vector<int> ruote;
  for (int ruota : date)
    for (int r = ruota == kTutteLeRuote ? BA : ruota; r <= (ruota == kTutteLeRuote ? VE : ruota); ++r)
      if (std::find(ruote.begin(), ruote.end(), r) == ruote.end()) ruote.push_back(r);
  return ruote;
}

Result<stats::InsiemeCiclometrico> InsiemeDiNumeri(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, i));
  stats::InsiemeCiclometrico insieme;
  for (double valore : valori) {
    if (valore != std::floor(valore) || valore < 1 || valore > 90)
      return ArgomentoNonValido(fmt::format("Numero non valido: {} (i numeri vanno da 1 a 90)", valore));
    insieme.Aggiungi(static_cast<int>(valore));
  }
  return insieme;
}

Result<stats::InsiemeCiclometrico> InsiemeArgomenti(Libreria& lib, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto origine, args.Value(i));
  if (origine.is_array()) {
    if (args.Has(i + 1))
      return ArgomentoNonValido("aRuote vale solo con IdEstr: i numeri dati in un array non hanno ruota");
    return InsiemeDiNumeri(args, i);
  }
  VBS_TRY_ASSIGN(auto tab, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*tab, args, i, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto ruote, RuoteDellaFigura(args, i + 1));
  return stats::InsiemeDaEstrazione((*tab)[id_estr], ruote);
}

}  // namespace lottolab::script
