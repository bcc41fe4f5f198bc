#include "OggettoFinestra.h"

#include <cmath>

#include "text/Utf.h"

namespace lottolab::script {

using vbs::CallArgs;
using vbs::Result;
using vbs::Variant;

namespace {

// A caption longer than this is cut: a title bar shows far less, and a script's runaway string
// must not reach the window manager whole.
constexpr size_t kMassimoCaption = 500;

}  // namespace

std::span<const OggettoFinestra::Member> OggettoFinestra::Members() {
  static const Member kMembri[] = {
      {"Caption", 0, 0, &OggettoFinestra::Caption, &OggettoFinestra::ImpostaCaption,
       "il titolo della finestra dello script"},
      {"Avanzamento", 0, 0, &OggettoFinestra::Avanzamento, &OggettoFinestra::ImpostaAvanzamento,
       "la barra di avanzamento, da 0 a 100"},
      {"PulisciOutput", 0, 0, &OggettoFinestra::PulisciOutput, nullptr, "svuota l'output di testo"},
      {"PulisciDisegno", 0, 0, &OggettoFinestra::PulisciDisegno, nullptr, "svuota l'area di disegno"},
  };
  return kMembri;
}

Result<Variant> OggettoFinestra::Caption(CallArgs&) { return Variant::String(m_caption); }

Result<Variant> OggettoFinestra::ImpostaCaption(CallArgs&, Variant valore) {
  VBS_TRY_ASSIGN(auto testo, valore.to_string(locale()));
  m_caption = std::u16string(testo.view().substr(0, kMassimoCaption));
  m_ospite.Titolo(text::Utf16ToUtf8(m_caption));
  return Variant();
}

Result<Variant> OggettoFinestra::Avanzamento(CallArgs&) { return Variant::Double(m_avanzamento); }

Result<Variant> OggettoFinestra::ImpostaAvanzamento(CallArgs&, Variant valore) {
  VBS_TRY_ASSIGN(auto percentuale, valore.to_double(locale()));
  if (!std::isfinite(percentuale) || percentuale < 0 || percentuale > 100)
    return vbs::MakeError(vbs::err::kInvalidCall);
  m_avanzamento = percentuale;
  m_ospite.Avanzamento(percentuale);
  return Variant();
}

Result<Variant> OggettoFinestra::PulisciOutput(CallArgs&) {
  m_ospite.PulisciOutput();
  return Variant();
}

Result<Variant> OggettoFinestra::PulisciDisegno(CallArgs&) {
  if (AreaDisegno* area = m_ospite.Disegno()) area->Clear();
  return Variant();
}

}  // namespace lottolab::script
