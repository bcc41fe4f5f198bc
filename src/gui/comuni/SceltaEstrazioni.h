#pragma once

// The choice that opens every analysis of the draws: the game (the Lotto or another), the Lotto's
// wheels, and the dates from and to, each date left open unless ticked. The windows read the choice
// and hand it, with the archive it names, to a computation on another thread.

#include <QWidget>

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "archive/Estrazione.h"
#include "archive/Giochi.h"
#include "archive/TabellaEstrazioni.h"
#include "archive/TabellaGioco.h"
#include "stats/EstrazioniPerAnalisi.h"

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;

namespace lottolab::gui {

// The archive of the game chosen, held while a computation reads it: one of the two is set.
struct ArchivioDaAnalizzare {
  std::shared_ptr<const TabellaEstrazioni> lotto;
  std::shared_ptr<const TabellaGioco> gioco;

  // The draws in the analyses' shape; an empty table when neither is set. May run on any thread.
  stats::EstrazioniPerAnalisi PerAnalisi() const;
};

class SceltaEstrazioni : public QWidget {
  Q_OBJECT

 public:
  enum class ConDate { No, Si };

  // `giochi`: the games offered after the Lotto.
  SceltaEstrazioni(std::span<const Gioco> giochi, ConDate con_date, QWidget* parent = nullptr);

  // Nothing for the Lotto.
  std::optional<Gioco> GiocoScelto() const;
  // The Lotto's wheels ticked (none: every wheel); empty for another game, which has no wheels.
  std::vector<int> RuoteScelte() const;
  // A default date when that side is left open.
  GruppoData Dal() const;
  GruppoData Al() const;
  // Brings the dates offered within the archive's first and last draw, keeping what the user ticked.
  void ImpostaLimitiDate(const ArchivioDaAnalizzare& archivio);
  void ScegliGioco(std::optional<Gioco> gioco);
  void ScegliRuote(std::span<const int> ruote);

 signals:
  void GiocoCambiato();

 private:
  void CambiaGioco();

  std::vector<Gioco> m_giochi;
  QComboBox* m_gioco;
  QWidget* m_ruote;
  std::array<QCheckBox*, kNumeroRuote> m_caselle{};
  QCheckBox* m_con_dal = nullptr;
  QCheckBox* m_con_al = nullptr;
  QDateEdit* m_dal = nullptr;
  QDateEdit* m_al = nullptr;
};

}  // namespace lottolab::gui
