#include "WinForLife.h"

#include <algorithm>
#include <fmt/format.h>

#include "ArchivioGioco.h"
#include "DateEstrazione.h"
#include "RigheDiTesto.h"

namespace lottolab {

namespace {

constexpr int kNumeri = 10;
constexpr int kMassimo = 20;

}  // namespace

Esito<TabellaGioco> LeggiRisultatiWinForLife(std::string_view testo) {
  const FormatoGioco& formato = Formato(Gioco::WinForLife);
  std::vector<EstrazioneGioco> estrazioni;
  auto lette = PerOgniRigaDatata(
      testo, [&](int riga, EstrazioneGioco& estrazione, std::string_view resto) -> std::optional<Avviso> {
        int minuti = 0;
        if (auto rifiuto = LeggiCampoOra(riga, resto, minuti)) return rifiuto;
        estrazione.minuti = static_cast<int16_t>(minuti);
        int concorso = 0;
        if (auto rifiuto = LeggiCampoConcorso(riga, resto, kMassimoConcorso, concorso)) return rifiuto;
        estrazione.concorso = static_cast<int16_t>(concorso);
        for (int i = 0; i <= kNumeri; ++i) {
          const std::string_view campo = ProssimoCampo(resto);
          int numero = 0;
          if (campo.empty()) return ErroreRiga(riga, "servono dieci numeri e il Numerone");
          if (!LeggiIntero(campo, numero) || numero < 1 || numero > kMassimo)
            return ErroreRiga(riga, fmt::format("\"{}\" non è un numero da 1 a {}", campo, kMassimo));
          if (i == kNumeri) {
            estrazione.speciali[0] = static_cast<uint8_t>(numero);
          } else {
            if (std::find(estrazione.numeri.begin(), estrazione.numeri.begin() + i, numero) !=
                estrazione.numeri.begin() + i)
              return ErroreRiga(riga, fmt::format("il numero {} compare due volte", numero));
            estrazione.numeri[i] = static_cast<uint8_t>(numero);
          }
        }
        if (!ProssimoCampo(resto).empty()) return ErroreRiga(riga, "ci sono campi in più dopo il Numerone");
        if (!estrazioni.empty()) {
          const EstrazioneGioco& prima = estrazioni.back();
          const int ordine = ConfrontaDate(prima.data, estrazione.data);
          if (ordine > 0 ||
              (ordine == 0 && (prima.minuti >= estrazione.minuti || prima.concorso >= estrazione.concorso)))
            return ErroreRiga(riga, fmt::format("il concorso {} del {} non viene dopo quello della riga prima",
                                                concorso, FormattaData(estrazione.data)));
        }
        estrazione.id_estr = static_cast<int32_t>(estrazioni.size()) + 1;
        if (auto difetto = DifettoEstrazioneGioco(formato, estrazione, estrazione.id_estr,
                                                  estrazioni.empty() ? nullptr : &estrazioni.back()))
          return ErroreRiga(riga, "l'estrazione " + *difetto);
        estrazioni.push_back(estrazione);
        return std::nullopt;
      });
  if (!lette) return lette.Errore();
  return TabellaGioco(formato, std::move(estrazioni));
}

}  // namespace lottolab
