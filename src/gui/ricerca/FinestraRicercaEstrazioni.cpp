#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include <memory>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/comuni/SceltaEstrazioni.h"
#include "gui/comuni/TabellaAnalisi.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/GiocoFinestra.h"
#include "gui/principale/SegnalatoreGui.h"
#include "gui/ricerca/ModelloRicercaEstrazioni.h"
#include "stats/RicercaEstrazioni.h"

namespace lottolab::gui {

namespace {

class FinestraRicercaEstrazioni : public QWidget {
 public:
  FinestraRicercaEstrazioni(ContestoGui& contesto, QWidget* parent);

  QSize sizeHint() const override { return {1000, 640}; }

 private:
  QWidget* NuoviFiltri();
  ArchivioDaAnalizzare Archivio() const;
  void AggiornaLimiti();
  void Cerca();
  void MostraEstrazione(const QModelIndex& indice);

  ContestoGui& m_contesto;
  ModelloRicercaEstrazioni* m_modello;
  SceltaEstrazioni* m_scelta;
  QLineEdit* m_numeri = nullptr;
  QComboBox* m_quanti = nullptr;
  QSpinBox* m_almeno = nullptr;
  QComboBox* m_dove = nullptr;
  QLabel* m_riassunto;
  QTableView* m_tabella;
};

FinestraRicercaEstrazioni::FinestraRicercaEstrazioni(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent),
      m_contesto(contesto),
      m_modello(new ModelloRicercaEstrazioni(this)),
      m_scelta(new SceltaEstrazioni(kGiochiDesktop, SceltaEstrazioni::ConDate::Si)),
      m_riassunto(new QLabel),
      m_tabella(NuovaTabellaAnalisi(m_modello, ModelloRicercaEstrazioni::kRuoloOrdinamento,
                                    QStringLiteral("Ricerca estrazioni"))) {
  setWindowTitle(QStringLiteral("Ricerca estrazioni"));
  setObjectName("finestraRicercaEstrazioni");
  m_riassunto->setObjectName("riassuntoRicerca");
  m_riassunto->setText(m_modello->Riassunto());
  m_tabella->setObjectName("tabellaRicerca");
  m_tabella->setToolTip(QStringLiteral("Doppio clic su una riga per vedere tutta l'estrazione"));

  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(m_scelta);
  colonna->addWidget(NuoviFiltri());
  colonna->addWidget(m_riassunto);
  colonna->addWidget(m_tabella, 1);

  connect(m_scelta, &SceltaEstrazioni::GiocoCambiato, this, [this] {
    ImpostaGiocoFinestra(*this, m_scelta->GiocoScelto());
    AggiornaLimiti();
  });
  connect(m_tabella, &QTableView::doubleClicked, this, &FinestraRicercaEstrazioni::MostraEstrazione);
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraRicercaEstrazioni::AggiornaLimiti);
  connect(&m_contesto, &ContestoGui::ArchiviGiochiCambiati, this, &FinestraRicercaEstrazioni::AggiornaLimiti);
  AggiornaLimiti();
}

QWidget* FinestraRicercaEstrazioni::NuoviFiltri() {
  auto* filtri = new QWidget;
  auto* riga = new QHBoxLayout(filtri);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel(QStringLiteral("Numeri:")));
  m_numeri = new QLineEdit;
  m_numeri->setObjectName("numeriCercati");
  m_numeri->setPlaceholderText(QStringLiteral("es. 7 45 90 (vuoto: tutte)"));
  m_numeri->setToolTip(QStringLiteral("I numeri che l'estrazione deve contenere, separati da spazi o virgole"));
  riga->addWidget(m_numeri, 1);
  m_quanti = new QComboBox;
  m_quanti->setObjectName("quantiNumeri");
  m_quanti->addItems({QStringLiteral("tutti"), QStringLiteral("almeno")});
  riga->addWidget(m_quanti);
  m_almeno = new QSpinBox;
  m_almeno->setObjectName("almenoNumeri");
  m_almeno->setRange(1, 20);
  m_almeno->setEnabled(false);
  riga->addWidget(m_almeno);
  m_dove = new QComboBox;
  m_dove->setObjectName("doveNumeri");
  m_dove->addItems({QStringLiteral("su una stessa ruota"), QStringLiteral("anche su ruote diverse")});
  m_dove->setToolTip(
      QStringLiteral("Se i numeri devono uscire insieme su una delle ruote scelte o basta che "
                     "escano nell'estrazione, ognuno su una delle ruote scelte"));
  riga->addWidget(m_dove);
  auto* cerca = new QPushButton(QStringLiteral("Cerca"));
  cerca->setObjectName("pulsanteCerca");
  cerca->setDefault(true);
  riga->addWidget(cerca);

  connect(m_quanti, &QComboBox::currentIndexChanged, this, [this](int scelta) { m_almeno->setEnabled(scelta == 1); });
  connect(m_numeri, &QLineEdit::returnPressed, this, &FinestraRicercaEstrazioni::Cerca);
  connect(cerca, &QPushButton::clicked, this, &FinestraRicercaEstrazioni::Cerca);
  return filtri;
}

ArchivioDaAnalizzare FinestraRicercaEstrazioni::Archivio() const {
  const std::optional<Gioco> gioco = m_scelta->GiocoScelto();
  if (gioco) return {nullptr, m_contesto.ArchivioGioco(*gioco)};
  return {m_contesto.Archivio(), nullptr};
}

void FinestraRicercaEstrazioni::AggiornaLimiti() {
  m_scelta->ImpostaLimitiDate(Archivio());
  m_dove->setEnabled(!m_scelta->GiocoScelto());
}

void FinestraRicercaEstrazioni::Cerca() {
  const ArchivioDaAnalizzare archivio = Archivio();
  const int massimo = archivio.gioco ? archivio.gioco->formato().massimo : kMassimoNumero;
  Esito<std::vector<int>> numeri = LeggiNumeriCercati(m_numeri->text(), massimo);
  if (!numeri) {
    SegnalatoreGui(this).Mostra(numeri.Errore());
    return;
  }
  stats::FiltroEstrazioni filtro;
  filtro.ruote = m_scelta->RuoteScelte();
  filtro.numeri = *numeri;
  filtro.almeno = m_quanti->currentIndex() == 1 ? m_almeno->value() : 0;
  filtro.dove = m_dove->currentIndex() == 1 ? stats::DoveNumeri::Ovunque : stats::DoveNumeri::SuUnaRuota;
  const GruppoData dal = m_scelta->Dal();
  const GruppoData al = m_scelta->Al();
  using Risultato = std::pair<std::shared_ptr<const stats::EstrazioniPerAnalisi>, std::vector<int>>;
  AvviaCalcoloAnnullabile<Risultato>(
      this, windowTitle(), QStringLiteral("Ricerca delle estrazioni…"), "FinestraRicercaEstrazioni.Cerca",
      [archivio, filtro, dal, al](stats::ControlloCalcolo& controllo) -> std::optional<Risultato> {
        auto estrazioni = std::make_shared<const stats::EstrazioniPerAnalisi>(archivio.PerAnalisi());
        stats::FiltroEstrazioni nelle_date = filtro;
        std::tie(nelle_date.inizio, nelle_date.fine) = stats::IntervalloDate(*estrazioni, dal, al);
        if (nelle_date.fine < nelle_date.inizio) return Risultato{estrazioni, {}};
        auto trovate = stats::CercaEstrazioni(*estrazioni, nelle_date, controllo);
        if (!trovate) return std::nullopt;
        return Risultato{estrazioni, std::move(*trovate)};
      },
      [this, filtro](const Esito<std::optional<Risultato>>& esito) {
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) return;
        m_modello->ImpostaRisultato((*esito)->first, (*esito)->second, filtro);
        m_riassunto->setText(m_modello->Riassunto());
      });
}

void FinestraRicercaEstrazioni::MostraEstrazione(const QModelIndex& indice) {
  const auto* ordinamento = static_cast<const QSortFilterProxyModel*>(m_tabella->model());
  const QString dettaglio = m_modello->Dettaglio(ordinamento->mapToSource(indice).row());
  if (dettaglio.isEmpty()) return;
  QMessageBox::information(this, QStringLiteral("Estrazione"), dettaglio);
}

}  // namespace

QWidget* NuovaFinestraRicercaEstrazioni(ContestoGui& contesto, QWidget* parent) {
  return new FinestraRicercaEstrazioni(contesto, parent);
}

}  // namespace lottolab::gui
