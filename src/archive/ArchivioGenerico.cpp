#include "ArchivioGenerico.h"

#include <fmt/format.h>
#include <string>
#include <vector>

#include "ArchivioGioco.h"
#include "DateEstrazione.h"
#include "RigheDiTesto.h"

namespace lottolab {

namespace {

constexpr int kMassimoPredefinito = 90;

// "# numeri K massimo M", read into `misure` where the caller left them open.
bool LeggiIntestazione(std::string_view testo, MisureGeneriche& misure) {
  std::string_view resto = testo;
  if (ProssimoCampo(resto) != "#" || ProssimoCampo(resto) != "numeri") return false;
  int numeri = 0, massimo = 0;
  if (!LeggiIntero(ProssimoCampo(resto), numeri) || ProssimoCampo(resto) != "massimo" ||
      !LeggiIntero(ProssimoCampo(resto), massimo))
    return false;
  if (misure.numeri == 0) misure.numeri = numeri;
  if (misure.massimo == 0) misure.massimo = massimo;
  return true;
}

// Either order of the date, told apart by where the four-digit year stands.
bool LeggiDataGenerica(std::string_view testo, GruppoData& data) {
  if (testo.size() > 4 && testo[4] == '/') return LeggiDataRisultati(testo, data);
  auto letta = LeggiData(testo);
  if (!letta || !DataValida(*letta) || letta->anno < 1000) return false;
  data = *letta;
  return true;
}

}  // namespace

std::optional<MisureGeneriche> MisureDichiarate(std::string_view testo) {
  std::string prima_riga(testo.substr(0, testo.find('\n')));
  for (char& c : prima_riga)
    if (c == ';') c = '\t';
  MisureGeneriche misure;
  if (!LeggiIntestazione(prima_riga, misure)) return std::nullopt;
  return misure;
}

Esito<TabellaGioco> LeggiArchivioGenerico(std::string_view testo, MisureGeneriche misure) {
  std::string senza_punti_e_virgola(testo);
  for (char& c : senza_punti_e_virgola)
    if (c == ';') c = '\t';
  const std::string_view prima_riga =
      std::string_view(senza_punti_e_virgola).substr(0, senza_punti_e_virgola.find('\n'));
  const bool intestazione = LeggiIntestazione(prima_riga, misure);
  if (misure.massimo == 0) misure.massimo = kMassimoPredefinito;

  std::vector<EstrazioneGioco> estrazioni;
  RigheRisultati righe(senza_punti_e_virgola);
  std::string_view campo_data;
  std::string_view resto;
  FormatoGioco formato;
  while (righe.Prossima(campo_data, resto)) {
    const int riga = righe.riga();
    EstrazioneGioco estrazione;
    if (!LeggiDataGenerica(campo_data, estrazione.data))
      return ErroreRiga(riga, fmt::format("\"{}\" non è una data GG/MM/AAAA o AAAA/MM/GG", campo_data));
    std::vector<int> numeri;
    for (std::string_view campo = ProssimoCampo(resto); !campo.empty(); campo = ProssimoCampo(resto)) {
      int numero = 0;
      if (!LeggiIntero(campo, numero)) return ErroreRiga(riga, fmt::format("\"{}\" non è un numero", campo));
      numeri.push_back(numero);
    }
    if (misure.numeri == 0) misure.numeri = static_cast<int>(numeri.size());
    if (misure.numeri < 1 || misure.numeri > kMassimoNumeriGioco || misure.massimo < misure.numeri ||
        misure.massimo > kMassimoNumeroGenerico)
      return ErroreRiga(riga, fmt::format("{} numeri da 1 a {} non sono un'estrazione che l'archivio possa tenere "
                                          "(al più {} numeri, da 1 a non più di {})",
                                          misure.numeri, misure.massimo, kMassimoNumeriGioco, kMassimoNumeroGenerico));
    formato = FormatoGenerico(misure.numeri, misure.massimo);
    if (static_cast<int>(numeri.size()) != misure.numeri)
      return ErroreRiga(riga, fmt::format("ci sono {} numeri invece di {}", numeri.size(), misure.numeri));
    for (int i = 0; i < misure.numeri; ++i) {
      if (numeri[i] < 1 || numeri[i] > misure.massimo)
        return ErroreRiga(riga, fmt::format("il numero {} è fuori da 1..{}{}", numeri[i], misure.massimo,
                                            intestazione ? ""
                                                         : fmt::format(" (un'altra misura si scrive in testa al file: "
                                                                       "\"# numeri {} massimo M\")",
                                                                       misure.numeri)));
      estrazione.numeri[i] = static_cast<uint8_t>(numeri[i]);
    }
    estrazione.id_estr = static_cast<int32_t>(estrazioni.size()) + 1;
    if (auto difetto = DifettoEstrazioneGioco(formato, estrazione, estrazione.id_estr,
                                              estrazioni.empty() ? nullptr : &estrazioni.back()))
      return ErroreRiga(riga, "l'estrazione " + *difetto);
    estrazioni.push_back(estrazione);
  }
  if (estrazioni.empty())
    return AvvisoEsclamativo("Il testo non contiene estrazioni: una riga per estrazione, la data e i numeri");
  return TabellaGioco(formato, std::move(estrazioni));
}

}  // namespace lottolab
