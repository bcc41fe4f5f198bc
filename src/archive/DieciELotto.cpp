#include "DieciELotto.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>

#include "DateEstrazione.h"
#include "RigheDiTesto.h"

namespace lottolab {

namespace {

constexpr GruppoData kPrimaSerale{0, 11, 6, 2009};
constexpr GruppoData kPrimoDoppioOro{0, 1, 10, 2017};
constexpr GruppoData kPrimoExtra{0, 25, 10, 2022};
constexpr GruppoData kPrimoGong{0, 26, 10, 2022};
constexpr int kNumeri = 20;
constexpr int kExtra = 15;
constexpr int kRuoteCittadine = 10;
enum Speciale { kOro, kDoppioOro, kGong };

bool DalGiorno(const GruppoData& data, const GruppoData& inizio) { return ConfrontaDate(data, inizio) >= 0; }

std::array<uint8_t, kNumeri> Ordinati(const EstrazioneGioco& estrazione) {
  std::array<uint8_t, kNumeri> numeri{};
  std::copy_n(estrazione.numeri.begin(), kNumeri, numeri.begin());
  std::sort(numeri.begin(), numeri.end());
  return numeri;
}

std::string Elenco(const std::array<uint8_t, kNumeri>& numeri) {
  return fmt::format("{}", fmt::join(numeri.begin(), numeri.end(), " "));
}

}  // namespace

std::vector<EstrazioneGioco> DieciELottoDalLotto(const TabellaEstrazioni& lotto) {
  std::vector<EstrazioneGioco> estrazioni;
  for (const Estrazione& draw : lotto.Tutte()) {
    if (!DalGiorno(draw.data, kPrimaSerale)) continue;
    bool completa = true;
    for (int ruota = BA; ruota <= kRuoteCittadine; ++ruota) completa = completa && draw.RuotaEstratta(ruota);
    if (!completa) continue;
    std::vector<int> presi;
    for (int colonna = 1; colonna <= kNumeriPerRuota && presi.size() < kNumeri + kExtra; ++colonna)
      for (int ruota = BA; ruota <= kRuoteCittadine && presi.size() < kNumeri + kExtra; ++ruota) {
        const int numero = draw.Numero(ruota, colonna);
        if (numero != 0 && std::find(presi.begin(), presi.end(), numero) == presi.end()) presi.push_back(numero);
      }
    EstrazioneGioco estrazione;
    estrazione.data = draw.data;
    estrazione.concorso = draw.data.indice_annuale;
    std::sort(presi.begin(), presi.begin() + kNumeri);
    std::copy_n(presi.begin(), kNumeri, estrazione.numeri.begin());
    if (DalGiorno(draw.data, kPrimoExtra)) {
      std::sort(presi.begin() + kNumeri, presi.end());
      std::copy(presi.begin() + kNumeri, presi.end(), estrazione.extra.begin());
    }
    estrazione.speciali[kOro] = draw.Numero(BA, 1);
    if (DalGiorno(draw.data, kPrimoDoppioOro)) estrazione.speciali[kDoppioOro] = draw.Numero(BA, 2);
    if (DalGiorno(draw.data, kPrimoGong)) estrazione.speciali[kGong] = draw.Numero(NZ, 1);
    estrazione.id_estr = static_cast<int32_t>(estrazioni.size()) + 1;
    estrazioni.push_back(estrazione);
  }
  return estrazioni;
}

std::optional<std::string> LeggiNumeriDieciELotto(std::string_view& resto, EstrazioneGioco& estrazione) {
  for (int i = 0; i < kNumeri; ++i) {
    const std::string_view campo = ProssimoCampo(resto);
    int numero = 0;
    if (campo.empty()) return fmt::format("ci sono {} numeri invece di 20", i);
    if (!LeggiIntero(campo, numero) || numero < 1 || numero > 90)
      return fmt::format("\"{}\" non è un numero da 1 a 90", campo);
    if (std::find(estrazione.numeri.begin(), estrazione.numeri.begin() + i, numero) != estrazione.numeri.begin() + i)
      return fmt::format("il numero {} compare due volte", numero);
    estrazione.numeri[i] = static_cast<uint8_t>(numero);
  }
  const std::string_view campo = ProssimoCampo(resto);
  if (campo.empty()) return std::string("manca il Numero Oro (\"-\" dove non è dato)");
  if (campo == "-") return std::nullopt;
  int oro = 0;
  if (!LeggiIntero(campo, oro) || std::find(estrazione.numeri.begin(), estrazione.numeri.begin() + kNumeri, oro) ==
                                      estrazione.numeri.begin() + kNumeri)
    return fmt::format("il Numero Oro \"{}\" non è tra i 20 numeri", campo);
  estrazione.speciali[kOro] = static_cast<uint8_t>(oro);
  return std::nullopt;
}

Esito<std::vector<EstrazioneGioco>> LeggiRisultatiDieciELotto(std::string_view testo) {
  std::vector<EstrazioneGioco> estrazioni;
  auto lette = PerOgniRigaDatata(
      testo, [&](int riga, EstrazioneGioco& estrazione, std::string_view resto) -> std::optional<Avviso> {
        int concorso = 0;
        if (auto rifiuto = LeggiCampoConcorso(riga, resto, kMassimoConcorso, concorso)) return rifiuto;
        estrazione.concorso = static_cast<int16_t>(concorso);
        if (auto difetto = LeggiNumeriDieciELotto(resto, estrazione)) return ErroreRiga(riga, std::move(*difetto));
        if (!ProssimoCampo(resto).empty()) return ErroreRiga(riga, "ci sono campi in più dopo il Numero Oro");
        if (auto rifiuto = AccodaLetta(estrazioni, estrazione, riga)) return rifiuto;
        return std::nullopt;
      });
  if (!lette) return lette.Errore();
  return estrazioni;
}

ArchivioDieciELottoCostruito ArchivioDieciELotto(const TabellaEstrazioni& lotto,
                                                 const std::vector<EstrazioneGioco>& risultati) {
  std::vector<EstrazioneGioco> estrazioni = DieciELottoDalLotto(lotto);
  std::map<int, EstrazioneGioco*> per_giorno;
  for (EstrazioneGioco& derivata : estrazioni) per_giorno[GiornoAssoluto(derivata.data)] = &derivata;
  ArchivioDieciELottoCostruito costruito{TabellaGioco(Formato(Gioco::DieciELotto)), {}, 0};
  std::vector<EstrazioneGioco> successive;
  for (const EstrazioneGioco& risultato : risultati) {
    auto trovata = per_giorno.find(GiornoAssoluto(risultato.data));
    if (trovata == per_giorno.end()) {
      if (estrazioni.empty() || ConfrontaDate(risultato.data, estrazioni.back().data) > 0)
        successive.push_back(risultato);
      else
        costruito.differenze.push_back(fmt::format(
            "{}: c'è nei risultati ma non nell'archivio del Lotto; non è aggiunta", FormattaData(risultato.data)));
      continue;
    }
    ++costruito.confrontate;
    EstrazioneGioco& derivata = *trovata->second;
    // The published contest number, which the Lotto's count within the year does not always give
    // (in 2020 the draws suspended in the spring kept their numbers).
    derivata.concorso = risultato.concorso;
    const bool oro_diverso = risultato.speciali[kOro] != 0 && risultato.speciali[kOro] != derivata.speciali[kOro];
    if (Ordinati(risultato) != Ordinati(derivata) || oro_diverso)
      costruito.differenze.push_back(
          fmt::format("{}: i risultati danno {}{}, l'archivio del Lotto {}{}; resta quella del Lotto",
                      FormattaData(risultato.data), Elenco(Ordinati(risultato)),
                      risultato.speciali[kOro] ? fmt::format(" (Oro {})", risultato.speciali[kOro]) : "",
                      Elenco(Ordinati(derivata)), fmt::format(" (Oro {})", derivata.speciali[kOro])));
  }
  estrazioni.insert(estrazioni.end(), successive.begin(), successive.end());
  for (size_t i = 0; i < estrazioni.size(); ++i) estrazioni[i].id_estr = static_cast<int32_t>(i) + 1;
  costruito.tabella = TabellaGioco(Formato(Gioco::DieciELotto), std::move(estrazioni));
  return costruito;
}

}  // namespace lottolab
