#include "VerificaPrevisioni.h"

namespace lottolab::previsioni {

VerificaPrevisione Verifica(const TabellaEstrazioni& archivio, const Previsione& previsione) {
  VerificaPrevisione verifica;
  if (previsione.id_estr > archivio.EstrazioniArchivio()) {
    verifica.stato = StatoPrevisione::FuoriArchivio;
    return verifica;
  }
  verifica.esito =
      stats::VerificaPrevisione(archivio, previsione.numeri, previsione.ruote, previsione.id_estr, previsione.colpi, 1);
  if (verifica.esito.colpo > 0)
    verifica.stato = StatoPrevisione::Vinta;
  else if (verifica.esito.colpi_giocati < previsione.colpi)
    verifica.stato = StatoPrevisione::InCorso;
  else
    verifica.stato = StatoPrevisione::Negativa;
  return verifica;
}

}  // namespace lottolab::previsioni
