#include "CondizioneNumeri.h"

#include "stats/ClsFunctions.h"

namespace lottolab::figures {

using stats::ClsFunctions;

const TabelleNumeri& TabelleNumeri::Uniche() {
  static const TabelleNumeri tabelle;
  return tabelle;
}

TabelleNumeri::TabelleNumeri() {
  for (size_t f = 0; f < m_valori.size(); ++f)
    for (size_t i = 0; i < kValori; ++i)
      m_valori[f][i] = static_cast<int16_t>(Calcola(static_cast<FunzioneNumero>(f), kMinimo + static_cast<int64_t>(i)));
}

int64_t TabelleNumeri::Calcola(FunzioneNumero funzione, int64_t n) {
  const auto x = static_cast<double>(n);
  switch (funzione) {
    case FunzioneNumero::Cadenza: return ClsFunctions::Cadenza(x);
    case FunzioneNumero::Decina: return ClsFunctions::Decina(x);
    case FunzioneNumero::DecinaCabalistica: return ClsFunctions::DecinaCabalistica(x);
    case FunzioneNumero::Figura: return ClsFunctions::Figura(x);
    case FunzioneNumero::Diametrale: return ClsFunctions::Diametrale(x);
    case FunzioneNumero::Vertibile: return ClsFunctions::vert(x);
    case FunzioneNumero::Fuori90: return ClsFunctions::Fuori90(x);
    case FunzioneNumero::Quante: break;
  }
  return 0;
}

}  // namespace lottolab::figures
