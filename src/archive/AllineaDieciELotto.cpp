#include "AllineaDieciELotto.h"

#include <fmt/format.h>
#include <map>

#include "ArchivioGioco.h"
#include "DateEstrazione.h"
#include "DieciELotto.h"
#include "FileSicuri.h"

namespace lottolab {

namespace fs = std::filesystem;

Esito<std::optional<DieciELottoAllineato>> AllineaDieciELotto(const TabellaEstrazioni& lotto, const fs::path& file) {
  std::error_code ec;
  if (!fs::exists(file, ec)) return std::optional<DieciELottoAllineato>();
  auto blocco = BloccoScrittura::Acquisisci(file);
  if (!blocco) return blocco.Errore();
  const FormatoGioco& formato = Formato(Gioco::DieciELotto);
  auto archivio = CaricaArchivioGioco(formato, file);
  if (!archivio) return archivio.Errore();

  // The evenings held stand as the results: their contests are kept, and those after the Lotto
  // archive's last draw stay as they are.
  ArchivioDieciELottoCostruito costruito = ArchivioDieciELotto(lotto, archivio->Tutte());
  std::map<int, const EstrazioneGioco*> nuove;
  for (const EstrazioneGioco& estrazione : costruito.tabella.Tutte())
    nuove.emplace(GiornoAssoluto(estrazione.data), &estrazione);
  DieciELottoAllineato allineato;
  for (const EstrazioneGioco& tenuta : archivio->Tutte()) {
    auto trovata = nuove.find(GiornoAssoluto(tenuta.data));
    if (trovata == nuove.end())
      return AvvisoEsclamativo(fmt::format("L'{} {} ha la serata del {}, che l'archivio del Lotto non ha",
                                           NomeArchivioGioco(formato), file.string(), FormattaData(tenuta.data)));
    const EstrazioneGioco& nuova = *trovata->second;
    if (nuova.numeri != tenuta.numeri || nuova.extra != tenuta.extra || nuova.speciali != tenuta.speciali)
      ++allineato.completate;
  }
  allineato.aggiunte = costruito.tabella.EstrazioniArchivio() - archivio->EstrazioniArchivio();
  allineato.differenze = std::move(costruito.differenze);
  if (allineato.aggiunte == 0 && allineato.completate == 0) return std::optional(allineato);

  const TabellaGioco& tabella = costruito.tabella;
  for (int k = 1; k <= tabella.EstrazioniArchivio(); ++k)
    if (auto difetto = DifettoEstrazioneGioco(formato, tabella[k], k, k > 1 ? &tabella[k - 1] : nullptr))
      return AvvisoEsclamativo(
          fmt::format("La serata del {} ricavata dall'archivio del Lotto {}: l'{} non è stato "
                      "cambiato",
                      FormattaData(tabella[k].data), *difetto, NomeArchivioGioco(formato)));
  auto salvato = SalvaArchivioGioco(tabella, file);
  if (!salvato) return salvato.Errore();
  return std::optional(allineato);
}

}  // namespace lottolab
