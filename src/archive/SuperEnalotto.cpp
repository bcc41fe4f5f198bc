#include "SuperEnalotto.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>

#include "DateEstrazione.h"
#include "RigheDiTesto.h"

namespace lottolab {

namespace {

constexpr GruppoData kPrimaEstrazione{0, 3, 12, 1997};
constexpr GruppoData kUltimaDalLotto{0, 30, 6, 2009};
constexpr GruppoData kPrimaSuperStar{0, 28, 3, 2006};
constexpr int kNumeri = 6;
constexpr Ruota kRuoteDelLotto[kNumeri] = {BA, FI, MI, NA, PA, RO};

bool Tra(int valore, int minimo, int massimo) { return valore >= minimo && valore <= massimo; }

// The first number of the wheel not yet taken; 0 when all five are.
int PrimoLibero(const Estrazione& estrazione, int ruota, const std::vector<int>& presi) {
  for (int posizione = 1; posizione <= kNumeriPerRuota; ++posizione) {
    const int numero = estrazione.Numero(ruota, posizione);
    if (numero != 0 && std::find(presi.begin(), presi.end(), numero) == presi.end()) return numero;
  }
  return 0;
}

bool StessiNumeri(const EstrazioneGioco& a, const EstrazioneGioco& b) {
  auto ordinati = [](const EstrazioneGioco& e) {
    std::array<uint8_t, kNumeri> numeri{};
    std::copy_n(e.numeri.begin(), kNumeri, numeri.begin());
    std::sort(numeri.begin(), numeri.end());
    return numeri;
  };
  return ordinati(a) == ordinati(b) && a.speciali == b.speciali;
}

}  // namespace

Esito<std::vector<EstrazioneGioco>> LeggiRisultatiSuperEnalotto(std::string_view testo) {
  std::vector<EstrazioneGioco> estrazioni;
  auto lette = PerOgniRigaDatata(
      testo, [&](int riga, EstrazioneGioco& estrazione, std::string_view resto) -> std::optional<Avviso> {
        int valori[kNumeri + 1] = {};  // the six numbers, then the Jolly
        int concorso = 0;
        if (auto rifiuto = LeggiCampoConcorso(riga, resto, kMassimoConcorso, concorso)) return rifiuto;
        for (int i = 0; i < kNumeri + 1; ++i) {
          const std::string_view campo = ProssimoCampo(resto);
          if (!LeggiIntero(campo, valori[i]) || !Tra(valori[i], 1, 90))
            return ErroreRiga(riga, campo.empty()
                                        ? std::string("mancano dei numeri: ne servono sei, il Jolly e la SuperStar")
                                        : fmt::format("\"{}\" non è un numero da 1 a 90{}", campo,
                                                      i == kNumeri ? " (il Jolly)" : ""));
        }
        int superstar = 0;
        const std::string_view campo = ProssimoCampo(resto);
        if (campo.empty()) return ErroreRiga(riga, "manca la SuperStar (0 dove non c'era)");
        if (!LeggiIntero(campo, superstar) || !Tra(superstar, 0, 90))
          return ErroreRiga(riga, fmt::format("\"{}\" non è una SuperStar da 0 a 90", campo));
        if (!ProssimoCampo(resto).empty()) return ErroreRiga(riga, "ci sono campi in più dopo la SuperStar");
        for (int i = 0; i < kNumeri; ++i) {
          if (std::count(valori, valori + kNumeri, valori[i]) > 1)
            return ErroreRiga(riga, fmt::format("il numero {} compare due volte", valori[i]));
          estrazione.numeri[i] = static_cast<uint8_t>(valori[i]);
        }
        if (std::count(valori, valori + kNumeri, valori[kNumeri]) > 0)
          return ErroreRiga(riga, fmt::format("il Jolly {} è anche tra i sei numeri", valori[kNumeri]));
        estrazione.speciali = {static_cast<uint8_t>(valori[kNumeri]), static_cast<uint8_t>(superstar)};
        estrazione.concorso = static_cast<int16_t>(concorso);
        if (!estrazioni.empty()) {
          const EstrazioneGioco& prima = estrazioni.back();
          const int atteso = prima.data.anno == estrazione.data.anno ? prima.concorso + 1 : 1;
          if (concorso != atteso && ConfrontaDate(prima.data, estrazione.data) < 0)
            return ErroreRiga(riga, fmt::format("il concorso {} del {} doveva essere il {}", concorso,
                                                FormattaData(estrazione.data), atteso));
        }
        if (auto rifiuto = AccodaLetta(estrazioni, estrazione, riga)) return rifiuto;
        return std::nullopt;
      });
  if (!lette) return lette.Errore();
  return estrazioni;
}

std::vector<EstrazioneGioco> SuperEnalottoDalLotto(const TabellaEstrazioni& lotto) {
  std::vector<EstrazioneGioco> estrazioni;
  for (const Estrazione& draw : lotto.Tutte()) {
    if (ConfrontaDate(draw.data, kPrimaEstrazione) < 0 || ConfrontaDate(draw.data, kUltimaDalLotto) > 0) continue;
    std::vector<int> presi;
    for (Ruota ruota : kRuoteDelLotto) presi.push_back(PrimoLibero(draw, ruota, presi));
    const int jolly = PrimoLibero(draw, VE, presi);
    // A wheel missing from the record leaves no number to take: no SuperEnalotto draw either.
    if (std::count(presi.begin(), presi.end(), 0) > 0 || jolly == 0) continue;
    std::sort(presi.begin(), presi.end());
    EstrazioneGioco estrazione;
    estrazione.data = draw.data;
    const bool stesso_anno = !estrazioni.empty() && estrazioni.back().data.anno == draw.data.anno;
    estrazione.concorso = static_cast<int16_t>(stesso_anno ? estrazioni.back().concorso + 1 : 1);
    estrazione.data.indice_annuale = estrazione.concorso;
    for (int i = 0; i < kNumeri; ++i) estrazione.numeri[i] = static_cast<uint8_t>(presi[i]);
    const bool superstar = ConfrontaDate(draw.data, kPrimaSuperStar) >= 0;
    estrazione.speciali = {static_cast<uint8_t>(jolly), static_cast<uint8_t>(superstar ? draw.Numero(NZ, 1) : 0)};
    estrazione.id_estr = static_cast<int32_t>(estrazioni.size()) + 1;
    estrazioni.push_back(estrazione);
  }
  return estrazioni;
}

Esito<TabellaGioco> ArchivioSuperEnalotto(const TabellaEstrazioni& lotto, std::vector<EstrazioneGioco> risultati) {
  std::vector<EstrazioneGioco> derivate = SuperEnalottoDalLotto(lotto);
  std::vector<EstrazioneGioco> estrazioni;
  std::map<int, const EstrazioneGioco*> per_giorno;
  for (const EstrazioneGioco& risultato : risultati) per_giorno[GiornoAssoluto(risultato.data)] = &risultato;
  for (const EstrazioneGioco& derivata : derivate) {
    if (risultati.empty() || ConfrontaDate(derivata.data, risultati.front().data) < 0) {
      estrazioni.push_back(derivata);
      continue;
    }
    auto trovata = per_giorno.find(GiornoAssoluto(derivata.data));
    if (trovata == per_giorno.end())
      return AvvisoEsclamativo(fmt::format("Il SuperEnalotto del {} è nell'archivio del Lotto ma non nei risultati",
                                           FormattaData(derivata.data)));
    if (!StessiNumeri(derivata, *trovata->second))
      return AvvisoEsclamativo(
          fmt::format("Il SuperEnalotto del {} nei risultati non è quello che dà l'archivio del Lotto di quella sera",
                      FormattaData(derivata.data)));
  }
  for (EstrazioneGioco& risultato : risultati) estrazioni.push_back(risultato);
  for (size_t i = 0; i < estrazioni.size(); ++i) estrazioni[i].id_estr = static_cast<int32_t>(i) + 1;
  return TabellaGioco(Formato(Gioco::SuperEnalotto), std::move(estrazioni));
}

}  // namespace lottolab
