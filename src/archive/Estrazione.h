#pragma once

// One Lotto draw as the whole system holds it in memory. The layout is fixed: every analysis reads
// these records directly, and the archive file stores the same fields packed without the trailing
// alignment byte (67 bytes on disk, 68 here).

#include <array>
#include <cstdint>

#include "Ruote.h"

namespace lottolab {

// The date of a draw together with its number within the year. Date routines take the group as a
// whole, annual index first, as the archive stores it.
struct GruppoData {
  int16_t indice_annuale = 0;
  int16_t giorno = 0;
  int16_t mese = 0;
  int16_t anno = 0;

  friend bool operator==(const GruppoData&, const GruppoData&) = default;
};

struct Estrazione {
  int32_t id_estr = 0;
  GruppoData data;
  // Wheel-major: wheel w (1..11), position p (1..5) is element (w-1)*5 + (p-1); 0 means absent.
  std::array<uint8_t, kNumeroRuote * kNumeriPerRuota> numeri{};

  uint8_t Numero(int ruota, int posizione) const { return numeri[(ruota - 1) * kNumeriPerRuota + (posizione - 1)]; }
  void ImpostaNumero(int ruota, int posizione, int numero) {
    numeri[(ruota - 1) * kNumeriPerRuota + (posizione - 1)] = static_cast<uint8_t>(numero);
  }
  // A wheel counts as drawn when its first number is held.
  bool RuotaEstratta(int ruota) const { return Numero(ruota, 1) != 0; }
  // A record holds a draw when Bari's first number is held; only such records are archived.
  bool Presente() const { return numeri[0] != 0; }

  friend bool operator==(const Estrazione&, const Estrazione&) = default;
};

static_assert(sizeof(Estrazione) == 68, "the in-memory draw record is 68 bytes");
inline constexpr int kByteRecordArchivio = 67;

}  // namespace lottolab
