#pragma once

// The reference of the script library as a table: every public name, family by family, with its
// arguments and meaning taken from the library's own binding rows. Built from the lists the
// library keeps, so a name bound tomorrow appears here without touching the desktop.

#include <QAbstractTableModel>

#include <string_view>
#include <vector>

namespace lottolab::gui {

class ModelloFunzioni : public QAbstractTableModel {
 public:
  enum Colonna { kColonnaNome, kColonnaArgomenti, kColonnaSignificato, kColonnaFamiglia, kColonne };

  explicit ModelloFunzioni(QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

  // How many names the library binds, of rowCount().
  int Disponibili() const;

 private:
  struct Voce {
    std::string_view famiglia;
    std::string_view nome;
    std::string_view argomenti;
    std::string_view significato;
    bool disponibile = false;
  };

  std::vector<Voce> m_voci;
};

}  // namespace lottolab::gui
