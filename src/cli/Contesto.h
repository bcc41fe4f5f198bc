#pragma once

// What every command of the command line works with: its streams, the archive it was pointed at and
// the way it reports a failure (one line on stderr and the exit status).

#include <filesystem>
#include <optional>
#include <ostream>

#include "app/Configurazione.h"
#include "app/Segnalatore.h"
#include "archive/ClsEstrazioni.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::cli {

inline constexpr int kUscitaRiuscita = 0;
inline constexpr int kUscitaErrore = 1;          // an unexpected failure (file access, ...)
inline constexpr int kUscitaInputNonValido = 2;  // bad arguments or an expected condition

class SegnalatoreTerminale : public app::Segnalatore {
 public:
  explicit SegnalatoreTerminale(std::ostream& err) : m_err(err) {}
  // Prints the message on one line; a critical one is prefixed by the procedure's name.
  void Mostra(const Avviso& avviso) override;
  // Prints a warning on one line; the exit status stays as it is.
  void Avverti(const std::string& testo);
  int CodiceUscita() const { return m_codice; }

 private:
  std::ostream& m_err;
  int m_codice = kUscitaRiuscita;
};

struct Contesto {
  std::ostream& out;
  std::ostream& err;  // messages and reports that are not the command's output
  SegnalatoreTerminale& segnalatore;
  app::Configurazione configurazione;
  std::filesystem::path archivio;
  // The game of --gioco; none for the Lotto.
  std::optional<Gioco> gioco;

  // Shows the failure and gives the exit status that goes with it.
  int Fallisci(const Avviso& avviso);
  // The whole archive; a missing file is a failure. What the check of the archive found is printed
  // on stderr, and the command goes on.
  Esito<TabellaEstrazioni> CaricaTabella() const;
  // The whole archive with the check's report; nothing is printed.
  Esito<EstrazioniCaricate> CaricaTabellaControllata() const;
  // The same, refused when it holds no draw.
  Esito<TabellaEstrazioni> CaricaTabellaNonVuota() const;
};

}  // namespace lottolab::cli
