#include "gui/agenda/ModelloAgenda.h"

#include <QBrush>
#include <QColor>
#include <QFont>

#include <array>

#include "agenda/Importi.h"
#include "agenda/TestiGiocata.h"

namespace lottolab::gui {

namespace {

constexpr std::array<const char*, ModelloAgenda::NumeroColonne> kIntestazioni = {
    "N.", "Gioco", "Numeri", "Ruote", "Poste", "Dal", "Colpi", "Stato", "Spesa", "Vinto netto", "Saldo"};

// The light yellow of a row with news, readable with the usual dark text.
const QColor kColoreNuove(255, 243, 176);

QString DaStd(const std::string& testo) { return QString::fromStdString(testo); }

bool Importo(int colonna) {
  return colonna == ModelloAgenda::Spesa || colonna == ModelloAgenda::Vinto || colonna == ModelloAgenda::Saldo;
}

}  // namespace

QString TestoImporto(int64_t centesimi) { return DaStd(agenda::FormattaImporto(centesimi)); }

QString TestoVincite(int quante) {
  return quante == 1 ? QStringLiteral("1 vincita") : QStringLiteral("%1 vincite").arg(quante);
}

QString TestoVinto(const agenda::Totali& totali) {
  return TestoImporto(totali.netto) + (totali.vincite_senza_importo > 0 ? QStringLiteral("*") : QString());
}

void ModelloAgenda::Imposta(std::vector<agenda::VoceAgenda> voci, std::set<int64_t> con_vincite_nuove) {
  beginResetModel();
  m_voci = std::move(voci);
  m_nuove = std::move(con_vincite_nuove);
  endResetModel();
}

int ModelloAgenda::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_voci.size());
}

int ModelloAgenda::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : NumeroColonne; }

QString ModelloAgenda::Testo(const agenda::VoceAgenda& voce, int colonna) const {
  const agenda::Giocata& g = voce.giocata;
  switch (colonna) {
    case Id: return QString::number(g.id);
    case Gioco: return QString::fromLatin1(agenda::SiglaGioco(g.gioco).data(), 2);
    case Numeri: return DaStd(agenda::TestoNumeri(g));
    case Ruote: return DaStd(agenda::TestoRuote(g));
    case Poste: return DaStd(agenda::TestoPoste(g));
    case Dal: return DaStd(agenda::TestoDal(g));
    case Colpi: return QStringLiteral("%1/%2").arg(voce.totali.colpi_verificati).arg(g.colpi);
    case Stato: return voce.chiusa ? QStringLiteral("chiusa") : QStringLiteral("aperta");
    case Spesa: return TestoImporto(voce.totali.spesa);
    case Vinto: return TestoVinto(voce.totali);
    case Saldo: return TestoImporto(voce.totali.Saldo());
    default: return {};
  }
}

QVariant ModelloAgenda::Ordine(const agenda::VoceAgenda& voce, int colonna) const {
  const agenda::Giocata& g = voce.giocata;
  switch (colonna) {
    case Id: return QVariant::fromValue<qlonglong>(g.id);
    case Dal:
      // A bet given by its draw's index sorts after those given by a date.
      return g.dal ? QVariant::fromValue<qlonglong>(g.dal->anno * 10000LL + g.dal->mese * 100 + g.dal->giorno)
                   : QVariant::fromValue<qlonglong>(100'000'000LL + g.id_estr_dal.value_or(0));
    case Colpi: return voce.totali.colpi_verificati;
    case Spesa: return QVariant::fromValue<qlonglong>(voce.totali.spesa);
    case Vinto: return QVariant::fromValue<qlonglong>(voce.totali.netto);
    case Saldo: return QVariant::fromValue<qlonglong>(voce.totali.Saldo());
    default: return Testo(voce, colonna);
  }
}

QVariant ModelloAgenda::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || indice.row() >= rowCount()) return {};
  const agenda::VoceAgenda& voce = Voce(indice.row());
  const bool nuove = m_nuove.contains(voce.giocata.id);
  switch (ruolo) {
    case Qt::DisplayRole: return Testo(voce, indice.column());
    case kRuoloOrdine: return Ordine(voce, indice.column());
    case kRuoloNuove: return nuove;
    case Qt::TextAlignmentRole:
      return QVariant::fromValue((Importo(indice.column()) || indice.column() == Id ? Qt::AlignRight : Qt::AlignLeft) |
                                 Qt::AlignVCenter);
    case Qt::BackgroundRole: return nuove ? QVariant(QBrush(kColoreNuove)) : QVariant();
    case Qt::FontRole: {
      if (!nuove) return {};
      QFont grassetto;
      grassetto.setBold(true);
      return grassetto;
    }
    case Qt::ToolTipRole:
      if (indice.column() == Vinto && voce.totali.vincite_senza_importo > 0)
        return QStringLiteral("Più %1 di cui la quota non è nota: il vinto e il saldo non le contano.")
            .arg(TestoVincite(voce.totali.vincite_senza_importo));
      // A long list of numbers or stakes is cut in its cell: the tip shows it whole.
      if (indice.column() == Numeri || indice.column() == Poste) return Testo(voce, indice.column());
      if (nuove) return QStringLiteral("Vincite nuove dall'ultima visione");
      if (!voce.giocata.nota.empty()) return DaStd(voce.giocata.nota);
      return {};
    default: return {};
  }
}

QVariant ModelloAgenda::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
  if (orientamento != Qt::Horizontal || ruolo != Qt::DisplayRole || sezione < 0 || sezione >= NumeroColonne) return {};
  return QString::fromUtf8(kIntestazioni[static_cast<size_t>(sezione)]);
}

}  // namespace lottolab::gui
