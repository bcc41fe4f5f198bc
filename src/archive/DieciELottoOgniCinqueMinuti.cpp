#include "DieciELottoOgniCinqueMinuti.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <utility>

#include "DateEstrazione.h"
#include "DieciELotto.h"
#include "RigheDiTesto.h"

namespace lottolab {

namespace {

constexpr int kConcorsiAlGiorno = 288;
constexpr int kMinutiTraConcorsi = 5;
constexpr int kUltimoMinuto = 24 * 60 - 1;

GruppoData GiornoPrima(const GruppoData& data) {
  GruppoData prima = data;
  if (--prima.giorno >= 1) return prima;
  if (--prima.mese < 1) {
    prima.mese = 12;
    --prima.anno;
  }
  for (prima.giorno = 31; !DataValida(prima); --prima.giorno) {
  }
  return prima;
}

}  // namespace

Esito<RisultatiCinqueMinuti> LeggiRisultatiCinqueMinuti(std::string_view testo) {
  // The contests of each day, keyed by day and contest; a contest seen twice keeps both readings.
  std::map<std::pair<int, int>, std::vector<EstrazioneGioco>> letti;
  std::map<int, GruppoData> giorni;
  std::map<int, int> ultimo_letto;  // the highest contest read for each day
  std::pair<int, int> precedente{0, 0};
  auto lette = PerOgniRigaDatata(
      testo, [&](int riga, EstrazioneGioco& estrazione, std::string_view resto) -> std::optional<Avviso> {
        int minuti = 0;
        if (auto rifiuto = LeggiCampoOra(riga, resto, minuti)) return rifiuto;
        int concorso = 0;
        if (auto rifiuto = LeggiCampoConcorso(riga, resto, kConcorsiAlGiorno, concorso)) return rifiuto;
        // The last contest of a day may be written at midnight, as the first minute of the next.
        if (concorso == kConcorsiAlGiorno && minuti == 0) estrazione.data = GiornoPrima(estrazione.data);
        const int atteso = concorso == kConcorsiAlGiorno ? kUltimoMinuto : concorso * kMinutiTraConcorsi;
        if (minuti != atteso && !(concorso == kConcorsiAlGiorno && minuti == 0))
          return ErroreRiga(riga, fmt::format("il concorso {} è alle {:02}:{:02}, non alle {:02}:{:02}", concorso,
                                              minuti / 60, minuti % 60, atteso / 60, atteso % 60));
        if (auto difetto = LeggiNumeriDieciELotto(resto, estrazione)) return ErroreRiga(riga, std::move(*difetto));
        ProssimoCampo(resto);
        if (!ProssimoCampo(resto).empty()) return ErroreRiga(riga, "ci sono campi in più dopo il Doppio Oro");
        const std::pair<int, int> chiave{GiornoAssoluto(estrazione.data), concorso};
        if (chiave < precedente && chiave.second != kConcorsiAlGiorno)
          return ErroreRiga(riga, fmt::format("il concorso {} del {} viene dopo uno successivo", concorso,
                                              FormattaData(estrazione.data)));
        precedente = std::max(precedente, chiave);
        estrazione.concorso = static_cast<int16_t>(concorso);
        estrazione.minuti = static_cast<int16_t>(atteso);
        giorni[chiave.first] = estrazione.data;
        ultimo_letto[chiave.first] = std::max(ultimo_letto[chiave.first], concorso);
        letti[chiave].push_back(estrazione);
        return std::nullopt;
      });
  if (!lette) return lette.Errore();

  RisultatiCinqueMinuti risultati{TabellaGioco(Formato(Gioco::DieciELottoOgniCinqueMinuti)), {}};
  std::vector<EstrazioneGioco> estrazioni;
  auto segnala = [&](const GruppoData& giorno, int concorso, std::string_view motivo) {
    risultati.segnalazioni.push_back(
        fmt::format("{} concorso {}: {}; non è nell'archivio", FormattaData(giorno), concorso, motivo));
  };
  const int ultimo_giorno = giorni.empty() ? 0 : giorni.rbegin()->first;
  for (const auto& [giorno, data] : giorni) {
    // The last day of the file may stop anywhere: its contests are the ones not yet drawn.
    const int fino_a = giorno == ultimo_giorno ? ultimo_letto[giorno] : kConcorsiAlGiorno;
    for (int concorso = 1; concorso <= fino_a; ++concorso) {
      auto trovati = letti.find({giorno, concorso});
      if (trovati == letti.end()) {
        segnala(data, concorso, "manca nei risultati");
        continue;
      }
      const std::vector<EstrazioneGioco>& letture = trovati->second;
      bool concordi = true;
      for (const EstrazioneGioco& lettura : letture)
        concordi = concordi && lettura.numeri == letture.front().numeri && lettura.speciali == letture.front().speciali;
      if (!concordi) {
        segnala(data, concorso, fmt::format("i risultati ne danno {} diversi", letture.size()));
        continue;
      }
      estrazioni.push_back(letture.front());
      estrazioni.back().data.indice_annuale = 0;
      estrazioni.back().id_estr = static_cast<int32_t>(estrazioni.size());
    }
  }
  risultati.tabella = TabellaGioco(Formato(Gioco::DieciELottoOgniCinqueMinuti), std::move(estrazioni));
  return risultati;
}

}  // namespace lottolab
