#pragma once

// The rows of the saved forecasts, each with its check against the draws that followed it: the
// numbers, the wheels, the draw it was made at, the colpi, its text and what became of it. No
// widgets: tested as the view reads it.

#include <QAbstractTableModel>

#include <memory>
#include <vector>

#include "archive/TabellaEstrazioni.h"
#include "previsioni/VerificaPrevisioni.h"

namespace lottolab::gui {

struct RigaPrevisione {
  previsioni::Previsione previsione;
  previsioni::VerificaPrevisione verifica;
};

// Every forecast of `elenco` checked on `archivio`.
std::vector<RigaPrevisione> VerificaElenco(const TabellaEstrazioni& archivio,
                                           std::vector<previsioni::Previsione> elenco);

class ModelloPrevisioni : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna {
    kColonnaId,
    kColonnaFatta,
    kColonnaNumeri,
    kColonnaRuote,
    kColonnaColpi,
    kColonnaEsito,
    kColonnaTesto,
    kColonne
  };
  static constexpr int kRuoloOrdinamento = Qt::UserRole;

  explicit ModelloPrevisioni(QObject* parent = nullptr);

  void Mostra(std::vector<RigaPrevisione> righe, std::shared_ptr<const TabellaEstrazioni> archivio);
  int64_t Id(int riga) const { return m_righe[static_cast<size_t>(riga)].previsione.id; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo = Qt::DisplayRole) const override;

 private:
  QString TestoEsito(const RigaPrevisione& riga) const;
  QString TestoEstrazione(int id_estr) const;

  std::vector<RigaPrevisione> m_righe;
  std::shared_ptr<const TabellaEstrazioni> m_archivio;
};

}  // namespace lottolab::gui
