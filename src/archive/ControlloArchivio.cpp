#include "ControlloArchivio.h"

#include <fmt/format.h>

#include <algorithm>

#include "Ruote.h"

namespace lottolab {

namespace {

std::string DataGrezza(const GruppoData& data) { return fmt::format("{}/{}/{}", data.giorno, data.mese, data.anno); }

std::string DifettoRuota(const Estrazione& estrazione, int ruota) {
  int presenti = 0;
  for (int p = 1; p <= kNumeriPerRuota; ++p) {
    const int numero = estrazione.Numero(ruota, p);
    if (numero == 0) continue;
    ++presenti;
    if (numero > kMassimoNumero)
      return fmt::format("il numero {} sulla ruota di {} è fuori dall'intervallo 1-90", numero, NomeRuota(ruota));
    for (int q = 1; q < p; ++q)
      if (estrazione.Numero(ruota, q) == numero)
        return fmt::format("il numero {} è ripetuto sulla ruota di {}", numero, NomeRuota(ruota));
  }
  if (presenti != 0 && presenti != kNumeriPerRuota)
    return fmt::format("la ruota di {} ha {} numeri invece di 5", NomeRuota(ruota), presenti);
  return {};
}

}  // namespace

std::string DifettoEstrazione(const Estrazione& estrazione, int k, const GruppoData* precedente,
                              const GruppoData& oggi) {
  if (!DataValida(estrazione.data)) return fmt::format("la data {} non esiste", DataGrezza(estrazione.data));
  if (!DataPossibile(estrazione.data, oggi)) {
    return fmt::format("la data {} è fuori dal periodo possibile (dal {} a domani)", FormattaData(estrazione.data),
                       kPrimoAnnoLotto);
  }
  if (precedente && ConfrontaDate(estrazione.data, *precedente) < 0) {
    return fmt::format("la data {} viene prima di quella dell'estrazione precedente ({})",
                       FormattaData(estrazione.data), FormattaData(*precedente));
  }
  if (estrazione.id_estr != k)
    return fmt::format("il suo numero d'ordine (IdEstr) è {} invece di {}", estrazione.id_estr, k);
  if (!estrazione.RuotaEstratta(BA)) return "manca la ruota di Bari";
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
    if (std::string difetto = DifettoRuota(estrazione, ruota); !difetto.empty()) return difetto;
  return {};
}

RapportoArchivio ControllaArchivio(const TabellaEstrazioni& tabella, const std::filesystem::path& file,
                                   uintmax_t lunghezza, const GruppoData& oggi) {
  RapportoArchivio rapporto;
  rapporto.file = file;
  rapporto.lunghezza = lunghezza;
  rapporto.record_interi = static_cast<int>(lunghezza / kByteRecordArchivio);
  rapporto.byte_sparsi = static_cast<int>(lunghezza % kByteRecordArchivio);

  // A bad date is compared with nothing after it: otherwise one year 9999 would make every later
  // draw look out of order.
  const GruppoData* precedente = nullptr;
  const int controllati = std::min(rapporto.record_interi, tabella.EstrazioniArchivio());
  for (int k = 1; k <= controllati; ++k) {
    const Estrazione& estrazione = tabella[k];
    std::string difetto = DifettoEstrazione(estrazione, k, precedente, oggi);
    if (DataPossibile(estrazione.data, oggi)) precedente = &estrazione.data;
    if (difetto.empty()) continue;
    if (++rapporto.record_non_validi == 1) {
      rapporto.primo_non_valido = k;
      rapporto.difetto = std::move(difetto);
    }
  }
  return rapporto;
}

bool RapportoArchivio::NonEUnArchivio() const {
  // A damaged archive keeps most of its draws; random bytes give almost none (a random record has a
  // real date with odds of about one in ten thousand). More than half the records bad, or bytes
  // without a single whole record, means this is some other file.
  if (lunghezza == 0) return false;
  return record_interi == 0 || record_non_validi * 2 > record_interi;
}

std::vector<std::string> RapportoArchivio::Avvisi() const {
  std::vector<std::string> avvisi;
  if (byte_sparsi != 0) {
    const bool mostrati = byte_sparsi * 2 >= kByteRecordArchivio;
    avvisi.push_back(fmt::format(
        "L'archivio {} ha {} byte oltre l'ultima estrazione intera: la sua lunghezza ({} byte) non è un multiplo di "
        "67, il file è stato troncato o ha byte estranei in fondo ({}). Per ripararlo: lottolab ripara (prima ne fa "
        "una copia).",
        file.string(), byte_sparsi, lunghezza,
        mostrati ? fmt::format("l'estrazione n. {} mostrata è fatta di quei byte", record_interi + 1)
                 : std::string("quei byte non sono mostrati")));
  }
  if (record_non_validi != 0) {
    avvisi.push_back(
        fmt::format("L'archivio {} ha {} record su {} che non sono estrazioni valide; il primo è il n. {}: {}.",
                    file.string(), record_non_validi, record_interi, primo_non_valido, difetto));
  }
  return avvisi;
}

Avviso RapportoArchivio::Rifiuto() const {
  if (record_interi == 0) {
    return AvvisoEsclamativo(
        fmt::format("Il file {} non è un archivio delle estrazioni: i suoi {} byte non fanno "
                    "nemmeno un'estrazione intera di 67 byte.",
                    file.string(), lunghezza));
  }
  return AvvisoEsclamativo(
      fmt::format("Il file {} non è un archivio delle estrazioni: {} record su {} non sono "
                  "estrazioni valide (il primo, n. {}: {}).",
                  file.string(), record_non_validi, record_interi, primo_non_valido, difetto));
}

}  // namespace lottolab
