#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <memory>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/comuni/SceltaEstrazioni.h"
#include "gui/comuni/TabellaAnalisi.h"
#include "gui/distribuzioni/ModelloSomme.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/GiocoFinestra.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

namespace {

class FinestraSomme : public QWidget {
 public:
  FinestraSomme(ContestoGui& contesto, QWidget* parent);

  QSize sizeHint() const override { return {900, 640}; }

 private:
  QWidget* NuoveScelte();
  ArchivioDaAnalizzare Archivio() const;
  void Calcola();

  ContestoGui& m_contesto;
  ModelloSomme* m_estrazioni;
  ModelloSomme* m_valori;
  ModelloSomme* m_classi;
  SceltaEstrazioni* m_scelta;
  QSpinBox* m_posizioni = nullptr;
  QSpinBox* m_ampiezza = nullptr;
  QLabel* m_riassunto;
};

FinestraSomme::FinestraSomme(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent),
      m_contesto(contesto),
      m_estrazioni(new ModelloSomme(ModelloSomme::Vista::Estrazioni, this)),
      m_valori(new ModelloSomme(ModelloSomme::Vista::Valori, this)),
      m_classi(new ModelloSomme(ModelloSomme::Vista::Classi, this)),
      m_scelta(new SceltaEstrazioni(kGiochiDesktop, SceltaEstrazioni::ConDate::Si)),
      m_riassunto(new QLabel(QStringLiteral("Scegli le ruote e premi \"Calcola\"."))) {
  setWindowTitle(QStringLiteral("Somme"));
  setObjectName("finestraSomme");
  m_riassunto->setObjectName("riassuntoSomme");
  m_riassunto->setWordWrap(true);
  auto* schede = new QTabWidget;
  schede->setObjectName("schedeSomme");
  schede->addTab(NuovaTabellaAnalisi(m_estrazioni, ModelloSomme::kRuoloOrdinamento, QStringLiteral("Somme")),
                 QStringLiteral("Per estrazione"));
  schede->addTab(NuovaTabellaAnalisi(m_valori, ModelloSomme::kRuoloOrdinamento, QStringLiteral("Valori delle somme")),
                 QStringLiteral("Per valore"));
  schede->addTab(
      NuovaTabellaAnalisi(m_classi, ModelloSomme::kRuoloOrdinamento, QStringLiteral("Frequenze delle somme")),
      QStringLiteral("Tabella delle frequenze"));
  schede->setCurrentIndex(1);

  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(m_scelta);
  colonna->addWidget(NuoveScelte());
  colonna->addWidget(m_riassunto);
  colonna->addWidget(schede, 1);
  connect(m_scelta, &SceltaEstrazioni::GiocoCambiato, this, [this] {
    ImpostaGiocoFinestra(*this, m_scelta->GiocoScelto());
    m_scelta->ImpostaLimitiDate(Archivio());
  });
  m_scelta->ImpostaLimitiDate(Archivio());
}

QWidget* FinestraSomme::NuoveScelte() {
  auto* scelte = new QWidget;
  auto* riga = new QHBoxLayout(scelte);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->addWidget(new QLabel(QStringLiteral("Somma di:")));
  m_posizioni = new QSpinBox;
  m_posizioni->setObjectName("posizioniSomma");
  m_posizioni->setRange(0, kMassimoNumeriGioco);
  m_posizioni->setSpecialValueText(QStringLiteral("tutti i numeri"));
  m_posizioni->setPrefix(QStringLiteral("primi "));
  m_posizioni->setToolTip(QStringLiteral("I primi K numeri estratti di ogni ruota, o tutti"));
  riga->addWidget(m_posizioni);
  riga->addSpacing(12);
  riga->addWidget(new QLabel(QStringLiteral("Classi di:")));
  m_ampiezza = new QSpinBox;
  m_ampiezza->setObjectName("ampiezzaClassi");
  m_ampiezza->setRange(1, 500);
  m_ampiezza->setValue(10);
  m_ampiezza->setSuffix(QStringLiteral(" valori"));
  riga->addWidget(m_ampiezza);
  auto* calcola = new QPushButton(QStringLiteral("Calcola"));
  calcola->setObjectName("pulsanteCalcola");
  riga->addWidget(calcola);
  riga->addStretch();
  connect(m_ampiezza, &QSpinBox::valueChanged, m_classi, &ModelloSomme::ImpostaAmpiezzaClassi);
  connect(calcola, &QPushButton::clicked, this, &FinestraSomme::Calcola);
  return scelte;
}

ArchivioDaAnalizzare FinestraSomme::Archivio() const {
  const std::optional<Gioco> gioco = m_scelta->GiocoScelto();
  if (gioco) return {nullptr, m_contesto.ArchivioGioco(*gioco)};
  return {m_contesto.Archivio(), nullptr};
}

void FinestraSomme::Calcola() {
  const ArchivioDaAnalizzare archivio = Archivio();
  stats::RichiestaSomme richiesta;
  richiesta.ruote = m_scelta->RuoteScelte();
  richiesta.posizioni = m_posizioni->value();
  const GruppoData dal = m_scelta->Dal();
  const GruppoData al = m_scelta->Al();
  using Risultato =
      std::pair<std::shared_ptr<const stats::EstrazioniPerAnalisi>, std::shared_ptr<const stats::AnalisiSomme>>;
  AvviaCalcoloAnnullabile<Risultato>(
      this, windowTitle(), QStringLiteral("Calcolo delle somme…"), "FinestraSomme.Calcola",
      [archivio, richiesta, dal, al](stats::ControlloCalcolo& controllo) -> std::optional<Risultato> {
        auto estrazioni = std::make_shared<const stats::EstrazioniPerAnalisi>(archivio.PerAnalisi());
        stats::RichiestaSomme nelle_date = richiesta;
        std::tie(nelle_date.inizio, nelle_date.fine) = stats::IntervalloDate(*estrazioni, dal, al);
        // An empty range must stay empty: a fine of 0 would mean the last draw.
        if (nelle_date.fine < nelle_date.inizio) nelle_date.inizio = estrazioni->Estrazioni() + 1;
        auto analisi = stats::CalcolaSomme(*estrazioni, nelle_date, controllo);
        if (!analisi) return std::nullopt;
        return Risultato{estrazioni, std::make_shared<const stats::AnalisiSomme>(std::move(*analisi))};
      },
      [this](const Esito<std::optional<Risultato>>& esito) {
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) return;
        const auto& [estrazioni, analisi] = **esito;
        for (ModelloSomme* modello : {m_estrazioni, m_valori, m_classi}) modello->ImpostaSomme(estrazioni, analisi);
        if (analisi->estrazioni.empty()) {
          m_riassunto->setText(QStringLiteral("Nessuna estrazione in questo intervallo per le ruote scelte."));
          return;
        }
        m_riassunto->setText(
            QStringLiteral("%1 estrazioni dalla n. %2 alla n. %3, %4 somme di %5 numeri. Le attese sono quelle di "
                           "un'estrazione equa; il ritardo conta le estrazioni dall'ultima uscita della somma su una "
                           "delle ruote scelte.")
                .arg(analisi->estrazioni.size())
                .arg(analisi->estrazioni.front().id)
                .arg(analisi->estrazioni.back().id)
                .arg(analisi->conteggiate)
                .arg(analisi->posizioni));
      });
}

}  // namespace

QWidget* NuovaFinestraSomme(ContestoGui& contesto, QWidget* parent) { return new FinestraSomme(contesto, parent); }

}  // namespace lottolab::gui
