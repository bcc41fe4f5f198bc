#pragma once

// The number functions of the conditions. Several ClsFunctions rules work on the decimal text of
// the number, too slow for a search that asks them millions of times, so the answers for the
// values conditions meet in practice are kept in tables filled once from ClsFunctions itself; any
// other value is handed to ClsFunctions.

#include <array>
#include <cstddef>
#include <cstdint>

namespace lottolab::figures {

enum class FunzioneNumero : uint8_t {
  Cadenza,
  Decina,
  DecinaCabalistica,
  Figura,
  Diametrale,
  Vertibile,  // ClsFunctions::vert
  Fuori90,
  Quante,
};

class TabelleNumeri {
 public:
  // The tables, filled on the first call.
  static const TabelleNumeri& Uniche();

  int64_t Applica(FunzioneNumero funzione, int64_t n) const {
    if (n < kMinimo || n > kMassimo) return Calcola(funzione, n);
    return m_valori[static_cast<size_t>(funzione)][static_cast<size_t>(n - kMinimo)];
  }

  static int64_t Calcola(FunzioneNumero funzione, int64_t n);

  // Sums of the numbers of a few vertices, their differences and small multiples.
  static constexpr int64_t kMinimo = -512;
  static constexpr int64_t kMassimo = 1023;

 private:
  TabelleNumeri();

  static constexpr size_t kValori = kMassimo - kMinimo + 1;
  std::array<std::array<int16_t, kValori>, static_cast<size_t>(FunzioneNumero::Quante)> m_valori{};
};

}  // namespace lottolab::figures
