#include "ArgomentiLotto.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>

#include "archive/Ruote.h"
#include "stats/Numeri.h"
#include "text/Utf.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

// The swap of the two wheel values that scripts and the table number differently; nullopt for
// every other text.
std::optional<int> RuotaScambiata(std::u16string_view testo) {
  if (testo == u"11") return kTutteLeRuote;
  if (testo == u"12") return NZ;
  return std::nullopt;
}

// The elements of argument i converted one by one. Scripts declare their arrays from 0 and fill
// them from 1, so the Empty elements they leave hold no value and are passed over.
template <typename T, typename Converti>
vbs::Result<std::vector<T>> Elementi(const vbs::CallArgs& args, size_t i, Converti converti) {
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  std::vector<T> elementi;
  if (!valore.is_array()) {
    VBS_TRY_ASSIGN(auto convertito, converti(valore));
    elementi.push_back(convertito);
    return elementi;
  }
  for (const vbs::Variant& elemento : valore.as_array()->elements()) {
    if (elemento.is_empty()) continue;
    VBS_TRY_ASSIGN(auto convertito, converti(elemento));
    elementi.push_back(convertito);
  }
  return elementi;
}

// A whole number's text is "11" or "12" exactly when its value is: the common case needs no text.
std::optional<int> RuotaIntera(const vbs::Variant& valore) {
  if (!valore.is_whole()) return std::nullopt;
  return RuotaTabellaIntera(valore.as_whole());
}

}  // namespace

std::optional<int> RuotaTabellaIntera(int32_t ruota) {
  if (ruota == 11) return kTutteLeRuote;
  if (ruota == 12) return NZ;
  if (ruota < INT16_MIN || ruota > INT16_MAX) return std::nullopt;
  return ruota;
}

vbs::Result<int> RuotaTabella(const vbs::Variant& valore, const vbs::Locale& locale) {
  if (auto ruota = RuotaIntera(valore)) return *ruota;
  VBS_TRY_ASSIGN(auto testo, valore.to_string(locale));
  if (auto scambiata = RuotaScambiata(testo.view())) return *scambiata;
  VBS_TRY_ASSIGN(auto ruota, valore.to_integer(locale));
  return int{ruota};
}

vbs::Result<int> RuotaTabellaConvertita(const vbs::CallArgs& args, size_t i) {
  if (auto ruota = RuotaIntera(args[i])) return *ruota;
  VBS_TRY_ASSIGN(auto testo, args.String(i));
  if (auto scambiata = RuotaScambiata(testo)) return *scambiata;
  VBS_TRY_ASSIGN(auto ruota, args.Integer(i));
  return int{ruota};
}

vbs::Result<std::vector<int>> RuoteArgomento(const vbs::CallArgs& args, size_t i) {
  return Elementi<int>(args, i, [&args](const vbs::Variant& v) { return RuotaTabella(v, args.locale()); });
}

vbs::Result<std::vector<double>> ValoriArgomento(const vbs::CallArgs& args, size_t i) {
  return Elementi<double>(args, i, [&args](const vbs::Variant& v) { return v.to_double(args.locale()); });
}

vbs::Result<int> NumeroRiportato(double valore, int massimo) {
  if (auto ridotto = stats::RiduciInX(valore, static_cast<int16_t>(massimo))) return int{*ridotto};
  return vbs::MakeError(vbs::err::kInvalidCall,
                        text::Utf8ToUtf16(fmt::format(
                            "Numero non valido: {} (troppo grande per essere riportato in 1..{})", valore, massimo)));
}

vbs::Result<std::vector<int>> NumeriArgomento(const vbs::CallArgs& args, size_t i) {
  return Elementi<int>(args, i, [&args](const vbs::Variant& v) -> vbs::Result<int> {
    VBS_TRY_ASSIGN(auto numero, v.to_double(args.locale()));
    return NumeroRiportato(numero, 90);
  });
}

vbs::Result<vbs::Variant> ArrayEstrazione(const Estrazione& estrazione) {
  const vbs::ArrayBound limiti[] = {{1, kNumeroRuote}, {1, kNumeriPerRuota}};
  VBS_TRY_ASSIGN(auto array, vbs::SafeArray::Create(limiti));
  auto elementi = (array)->elements();
  // The first index varies fastest in storage.
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
    for (int posizione = 1; posizione <= kNumeriPerRuota; ++posizione)
      elementi[(ruota - 1) + (posizione - 1) * kNumeroRuote] =
          vbs::Variant::Integer(estrazione.Numero(ruota, posizione));
  }
  return vbs::Variant::Array(std::move(array));
}

vbs::Variant ArrayDaUno(std::vector<vbs::Variant> valori) {
  const vbs::ArrayBound limiti{1, static_cast<int32_t>(valori.size())};
  auto array = vbs::SafeArray::Create(std::span<const vbs::ArrayBound>(&limiti, 1));
  if (!array) return vbs::Variant();  // only a list too long for any array gets here
  std::move(valori.begin(), valori.end(), (*array)->elements().begin());
  return vbs::Variant::Array(std::move(*array));
}

vbs::Variant ArrayDaUno(std::span<const int> valori) {
  std::vector<vbs::Variant> lunghi;
  lunghi.reserve(valori.size());
  for (int valore : valori) lunghi.push_back(vbs::Variant::Long(valore));
  return ArrayDaUno(std::move(lunghi));
}

}  // namespace lottolab::script
