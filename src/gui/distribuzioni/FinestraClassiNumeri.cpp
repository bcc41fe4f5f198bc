#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "gui/comuni/CalcoloAnnullabile.h"
#include "gui/comuni/SceltaEstrazioni.h"
#include "gui/comuni/TabellaAnalisi.h"
#include "gui/distribuzioni/ModelloClassiNumeri.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/GiocoFinestra.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

namespace {

class FinestraClassiNumeri : public QWidget {
 public:
  FinestraClassiNumeri(ContestoGui& contesto, QWidget* parent);

  QSize sizeHint() const override { return {900, 720}; }

 private:
  ArchivioDaAnalizzare Archivio() const;
  void Calcola();

  ContestoGui& m_contesto;
  ModelloClassiNumeri* m_modello;
  SceltaEstrazioni* m_scelta;
  QLabel* m_riassunto;
};

FinestraClassiNumeri::FinestraClassiNumeri(ContestoGui& contesto, QWidget* parent)
    : QWidget(parent),
      m_contesto(contesto),
      m_modello(new ModelloClassiNumeri(this)),
      m_scelta(new SceltaEstrazioni(kGiochiDesktop, SceltaEstrazioni::ConDate::Si)),
      m_riassunto(new QLabel) {
  setWindowTitle(QStringLiteral("Cadenze, figure e decine"));
  setObjectName("finestraClassiNumeri");
  m_riassunto->setObjectName("riassuntoClassi");
  auto* tabella =
      NuovaTabellaAnalisi(m_modello, ModelloClassiNumeri::kRuoloOrdinamento, QStringLiteral("Cadenze figure decine"));
  tabella->setObjectName("tabellaClassi");
  auto* calcola = new QPushButton(QStringLiteral("Calcola"));
  calcola->setObjectName("pulsanteCalcola");
  auto* riga = new QHBoxLayout;
  riga->addWidget(m_riassunto, 1);
  riga->addWidget(calcola);
  auto* legenda = new QLabel(QStringLiteral(
      "Ogni classe si segue come un'unica combinazione: esce quando esce uno qualsiasi dei suoi numeri su una delle "
      "ruote scelte. Il colore del ritardo lo confronta con il ritardo storico della classe: bianco appena uscita, "
      "rosso pieno quando lo eguaglia."));
  legenda->setWordWrap(true);

  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(m_scelta);
  colonna->addLayout(riga);
  colonna->addWidget(tabella, 1);
  colonna->addWidget(legenda);
  connect(calcola, &QPushButton::clicked, this, &FinestraClassiNumeri::Calcola);
  connect(m_scelta, &SceltaEstrazioni::GiocoCambiato, this, [this] {
    ImpostaGiocoFinestra(*this, m_scelta->GiocoScelto());
    m_scelta->ImpostaLimitiDate(Archivio());
    Calcola();
  });
  m_scelta->ImpostaLimitiDate(Archivio());
  connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, &FinestraClassiNumeri::Calcola);
  Calcola();
}

ArchivioDaAnalizzare FinestraClassiNumeri::Archivio() const {
  const std::optional<Gioco> gioco = m_scelta->GiocoScelto();
  if (gioco) return {nullptr, m_contesto.ArchivioGioco(*gioco)};
  return {m_contesto.Archivio(), nullptr};
}

void FinestraClassiNumeri::Calcola() {
  const ArchivioDaAnalizzare archivio = Archivio();
  const std::vector<int> ruote = m_scelta->RuoteScelte();
  const GruppoData dal = m_scelta->Dal();
  const GruppoData al = m_scelta->Al();
  struct Risultato {
    std::vector<stats::StatisticaClasse> classi;
    int inizio = 1;
    int fine = 0;
    GruppoData data_fine;
  };
  AvviaCalcoloAnnullabile<Risultato>(
      this, windowTitle(), QStringLiteral("Calcolo di cadenze, figure e decine…"), "FinestraClassiNumeri.Calcola",
      [archivio, ruote, dal, al](stats::ControlloCalcolo&) -> std::optional<Risultato> {
        const stats::EstrazioniPerAnalisi estrazioni = archivio.PerAnalisi();
        Risultato risultato;
        std::tie(risultato.inizio, risultato.fine) = stats::IntervalloDate(estrazioni, dal, al);
        if (risultato.fine < risultato.inizio) return risultato;
        risultato.classi = stats::CalcolaClassi(estrazioni, ruote, risultato.inizio, risultato.fine);
        risultato.data_fine = estrazioni.date[static_cast<size_t>(risultato.fine - 1)];
        return risultato;
      },
      [this](const Esito<std::optional<Risultato>>& esito) {
        if (!esito) {
          SegnalatoreGui(this).Mostra(esito.Errore());
          return;
        }
        if (!*esito) return;
        const Risultato& risultato = **esito;
        m_modello->ImpostaClassi(risultato.classi);
        m_riassunto->setText(risultato.classi.empty() ? QStringLiteral("Nessuna estrazione in questo intervallo.")
                                                      : QStringLiteral("Dall'estrazione n. %1 alla n. %2 del %3.")
                                                            .arg(risultato.inizio)
                                                            .arg(risultato.fine)
                                                            .arg(TestoData(risultato.data_fine)));
      });
}

}  // namespace

QWidget* NuovaFinestraClassiNumeri(ContestoGui& contesto, QWidget* parent) {
  return new FinestraClassiNumeri(contesto, parent);
}

}  // namespace lottolab::gui
