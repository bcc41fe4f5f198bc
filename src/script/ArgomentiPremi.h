#pragma once

// The arguments of the library's outcome and prize names: sums of money in euro, the stakes of a
// play per sorte, a forecast's numbers and wheels. Money reaches the prize engine as whole cents
// (stats/Denaro.h), so an amount that is not a whole number of cents is refused here, not rounded
// silently into another bet.

#include <cstddef>
#include <string_view>
#include <vector>

#include "ClsFunctionsGeodoScript.h"
#include "Famiglia.h"
#include "stats/Giocata.h"

namespace lottolab::script {

// Euro as cents: a whole number of cents from 0 up to a billion euro; `nome` names the amount in the
// refusal. Every amount a script gives in euro passes here.
vbs::Result<stats::Centesimi> CentesimiDaEuro(double euro, std::string_view nome);

// Argument i as euro, a whole number of cents from 0 up to a billion; `nome` names it in messages.
vbs::Result<stats::Centesimi> EuroArgomento(const vbs::CallArgs& args, size_t i, std::string_view nome);
// The same when the argument may be omitted.
vbs::Result<stats::Centesimi> EuroArgomento(const vbs::CallArgs& args, size_t i, std::string_view nome,
                                            stats::Centesimi se_omesso);

// Argument i as numbers brought into 1..massimo, at least one and all different.
vbs::Result<std::vector<int>> NumeriDiversi(const vbs::CallArgs& args, size_t i, int massimo = 90);

// Argument i as the wheels played, in the table's numbering, each once, Tutte (TT_) being the ten
// city wheels without Nazionale, as the operator plays it.
vbs::Result<std::vector<int>> RuoteDellaGiocata(const vbs::CallArgs& args, size_t i);

// Argument i as a whole number in da..a, `se_omesso` when it was omitted; `nome` names it in messages.
vbs::Result<int> InteroFacoltativo(const vbs::CallArgs& args, size_t i, int da, int a, std::string_view nome,
                                   int se_omesso);

// Argument i as a number of colpi, at least 1.
vbs::Result<int> ColpiArgomento(const vbs::CallArgs& args, size_t i);

// An amount in euro as a script's Double.
inline vbs::Variant Euro(stats::Centesimi importo) {
  return vbs::Variant::Double(static_cast<double>(importo) / stats::kCentesimiPerEuro);
}

// A refusal of the prize engine as error 5, its message begun with a capital as the library's are.
vbs::ScriptError Rifiuto(const Avviso& avviso);

}  // namespace lottolab::script
