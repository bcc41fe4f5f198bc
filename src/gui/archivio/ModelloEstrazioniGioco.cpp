#include "gui/archivio/ModelloEstrazioniGioco.h"
#include "gui/archivio/VistaEstrazioni.h"

#include <QFontDatabase>

#include <fmt/format.h>

#include "archive/DateEstrazione.h"

namespace lottolab::gui {

namespace {

std::string Numeri(const uint8_t* numeri, int quanti) {
  std::string testo;
  for (int i = 0; i < quanti; ++i) testo += fmt::format("{}{:02}", i ? " " : "", numeri[i]);
  return testo;
}

// A period without the Extra leaves them all 0: the cell stays empty rather than a row of zeros.
std::string Extra(const FormatoGioco& formato, const EstrazioneGioco& estrazione) {
  return estrazione.extra[0] == 0 ? std::string() : Numeri(estrazione.extra.data(), formato.extra);
}

std::string Ora(const EstrazioneGioco& estrazione) {
  return fmt::format("{:02}:{:02}", estrazione.minuti / 60, estrazione.minuti % 60);
}

// 0 is a special number the period did not draw (a SuperStar before 2006, a Gong before 2022).
std::string Speciale(const EstrazioneGioco& estrazione, int i) {
  return estrazione.speciali[static_cast<size_t>(i)] == 0
             ? std::string()
             : fmt::format("{:02}", estrazione.speciali[static_cast<size_t>(i)]);
}

QString DaStd(const std::string& testo) { return QString::fromStdString(testo); }

}  // namespace

std::string NomeSpeciale(Gioco gioco, int i) {
  static constexpr std::string_view kNomi[][kMassimoSpecialiGioco] = {
      {"Jolly", "SuperStar", ""}, {"Oro", "Doppio Oro", "Gong"}, {"Oro", "Doppio Oro", "Gong"}, {"Numerone", "", ""}};
  if (gioco == Gioco::Generico || i < 0 || i >= kMassimoSpecialiGioco) return {};
  return std::string(kNomi[static_cast<int>(gioco)][i]);
}

ModelloEstrazioniGioco::ModelloEstrazioniGioco(std::shared_ptr<const TabellaGioco> tabella, QObject* parent)
    : QAbstractTableModel(parent), m_tabella(std::move(tabella)) {
  PreparaColonne();
}

void ModelloEstrazioniGioco::ImpostaTabella(std::shared_ptr<const TabellaGioco> tabella) {
  beginResetModel();
  m_tabella = std::move(tabella);
  PreparaColonne();
  endResetModel();
}

void ModelloEstrazioniGioco::PreparaColonne() {
  const FormatoGioco& formato = m_tabella->formato();
  m_colonne = {Colonna::Id, Colonna::Data};
  if (formato.con_ora) m_colonne.push_back(Colonna::Ora);
  m_colonne.insert(m_colonne.end(), {Colonna::Concorso, Colonna::Numeri});
  if (formato.extra > 0) m_colonne.push_back(Colonna::Extra);
  m_colonne.insert(m_colonne.end(), static_cast<size_t>(formato.speciali), Colonna::Speciale);
}

ModelloEstrazioniGioco::Colonna ModelloEstrazioniGioco::TipoColonna(int colonna, int* speciale) const {
  const Colonna tipo = m_colonne.at(static_cast<size_t>(colonna));
  if (speciale != nullptr) *speciale = tipo == Colonna::Speciale ? colonna - ColonnaDi(Colonna::Speciale) : -1;
  return tipo;
}

int ModelloEstrazioniGioco::ColonnaDi(Colonna tipo) const {
  for (size_t i = 0; i < m_colonne.size(); ++i)
    if (m_colonne[i] == tipo) return static_cast<int>(i);
  return -1;
}

int ModelloEstrazioniGioco::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_tabella->EstrazioniArchivio();
}

int ModelloEstrazioniGioco::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_colonne.size());
}

QString ModelloEstrazioniGioco::Testo(const EstrazioneGioco& estrazione, int colonna) const {
  const FormatoGioco& formato = m_tabella->formato();
  int speciale = 0;
  switch (TipoColonna(colonna, &speciale)) {
    case Colonna::Id: return QString::number(estrazione.id_estr);
    case Colonna::Data: return DaStd(FormattaData(estrazione.data));
    case Colonna::Ora: return DaStd(Ora(estrazione));
    case Colonna::Concorso: return QString::number(estrazione.concorso);
    case Colonna::Numeri: return DaStd(Numeri(estrazione.numeri.data(), formato.numeri));
    case Colonna::Extra: return DaStd(Extra(formato, estrazione));
    case Colonna::Speciale: return DaStd(Speciale(estrazione, speciale));
  }
  return {};
}

QVariant ModelloEstrazioniGioco::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || !m_tabella->Contiene(index.row() + 1) || index.column() >= columnCount()) return {};
  const Colonna tipo = TipoColonna(index.column());
  switch (role) {
    case Qt::DisplayRole: return Testo((*m_tabella)[index.row() + 1], index.column());
    case Qt::TextAlignmentRole:
      return tipo == Colonna::Id || tipo == Colonna::Concorso ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                                              : QVariant(Qt::AlignCenter);
    case Qt::FontRole:
      // Numbers in a fixed-width font line up from row to row, so a column reads as a column.
      if (tipo == Colonna::Numeri || tipo == Colonna::Extra || tipo == Colonna::Speciale)
        return QFontDatabase::systemFont(QFontDatabase::FixedFont);
      return {};
    default: return {};
  }
}

QVariant ModelloEstrazioniGioco::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
    return QAbstractTableModel::headerData(section, orientation, role);
  const FormatoGioco& formato = m_tabella->formato();
  int speciale = 0;
  const Colonna tipo = TipoColonna(section, &speciale);
  if (role == Qt::DisplayRole) {
    switch (tipo) {
      case Colonna::Id: return QStringLiteral("N.");
      case Colonna::Data: return QStringLiteral("Data");
      case Colonna::Ora: return QStringLiteral("Ora");
      case Colonna::Concorso: return QStringLiteral("Concorso");
      case Colonna::Numeri: return QStringLiteral("Numeri");
      case Colonna::Extra: return QStringLiteral("Extra");
      case Colonna::Speciale: return DaStd(NomeSpeciale(formato.gioco, speciale));
    }
  }
  if (role == Qt::ToolTipRole) {
    switch (tipo) {
      case Colonna::Id: return QStringLiteral("Numero dell'estrazione nell'archivio");
      case Colonna::Concorso:
        return formato.con_ora ? QStringLiteral("Numero del concorso nella giornata")
                               : QStringLiteral("Numero del concorso nell'anno");
      case Colonna::Numeri:
        return QStringLiteral("I %1 numeri estratti, da 1 a %2").arg(formato.numeri).arg(formato.massimo);
      case Colonna::Extra:
        return QStringLiteral("I %1 numeri Extra, estratti dopo i primi %2; vuoto dove il gioco non li aveva")
            .arg(formato.extra)
            .arg(formato.numeri);
      case Colonna::Speciale:
        return QStringLiteral("Vuoto dove il gioco non lo aveva ancora o dove i risultati non lo danno");
      default: return {};
    }
  }
  return {};
}

DettaglioEstrazioneGioco ModelloEstrazioniGioco::Dettaglio(int riga) const {
  DettaglioEstrazioneGioco dettaglio;
  if (!m_tabella->Contiene(riga + 1)) return dettaglio;
  const FormatoGioco& formato = m_tabella->formato();
  const EstrazioneGioco& estrazione = (*m_tabella)[riga + 1];
  dettaglio.id_estr = riga + 1;
  dettaglio.quando = FormattaData(estrazione.data) + (formato.con_ora ? " ore " + Ora(estrazione) : "");
  dettaglio.concorso = estrazione.concorso;
  dettaglio.voci.emplace_back("Numeri", Numeri(estrazione.numeri.data(), formato.numeri));
  if (formato.extra > 0)
    if (std::string extra = Extra(formato, estrazione); !extra.empty()) dettaglio.voci.emplace_back("Extra", extra);
  for (int i = 0; i < formato.speciali; ++i)
    if (std::string numero = Speciale(estrazione, i); !numero.empty())
      dettaglio.voci.emplace_back(NomeSpeciale(formato.gioco, i), numero);
  return dettaglio;
}

int ModelloEstrazioniGioco::RigaEntro(const QDate& data) const {
  return m_tabella->UltimaEstrazioneEntro(DataDelCalendario(data)) - 1;
}

}  // namespace lottolab::gui
