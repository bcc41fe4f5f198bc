#include "ArgomentiPremi.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cmath>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "stats/Numeri.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

using vbs::CallArgs;
using vbs::Result;

Result<stats::Centesimi> CentesimiDaEuro(double euro, std::string_view nome) {
  const double centesimi = euro * stats::kCentesimiPerEuro;
  const double intero = std::nearbyint(centesimi);
  if (!(euro >= 0 && euro <= 1e9) || std::abs(centesimi - intero) > 1e-6)
    return ArgomentoNonValido(fmt::format(
        "{} non valida: {} (in euro, non negativa, al più un miliardo, con al più due decimali: un numero intero di "
        "centesimi)",
        nome, euro));
  return static_cast<stats::Centesimi>(intero);
}

Result<stats::Centesimi> EuroArgomento(const CallArgs& args, size_t i, std::string_view nome) {
  VBS_TRY_ASSIGN(auto euro, args.Double(i));
  return CentesimiDaEuro(euro, nome);
}

Result<stats::Centesimi> EuroArgomento(const CallArgs& args, size_t i, std::string_view nome,
                                       stats::Centesimi se_omesso) {
  if (!args.Has(i)) return se_omesso;
  return EuroArgomento(args, i, nome);
}

Result<std::vector<int>> NumeriDiversi(const CallArgs& args, size_t i, int massimo) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, i));
  if (valori.empty()) return ArgomentoNonValido("Nessun numero indicato");
  std::vector<int> numeri;
  for (double valore : valori) {
    const int numero = stats::FuoriX(valore, static_cast<int16_t>(massimo));
    if (std::ranges::find(numeri, numero) != numeri.end())
      return ArgomentoNonValido(fmt::format("Il numero {} è indicato due volte", numero));
    numeri.push_back(numero);
  }
  return numeri;
}

Result<std::vector<int>> RuoteDellaGiocata(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto ruote, RuoteGiocate(args, i));
  return stats::RuoteGiocate(ruote);
}

Result<int> InteroFacoltativo(const CallArgs& args, size_t i, int da, int a, std::string_view nome, int se_omesso) {
  if (!args.Has(i)) return se_omesso;
  return InteroTra(args, i, da, a, nome);
}

Result<int> ColpiArgomento(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto colpi, args.Long(i));
  if (colpi < 1) return ArgomentoNonValido(fmt::format("Colpi non validi: {} (almeno 1)", colpi));
  return colpi;
}

vbs::ScriptError Rifiuto(const Avviso& avviso) {
  std::string testo = avviso.testo;
  if (!testo.empty()) testo[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(testo[0])));
  return ArgomentoNonValido(testo);
}

}  // namespace lottolab::script
