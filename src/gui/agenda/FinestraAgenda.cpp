// The agenda window: the bets played, sortable, with the wins not seen yet marked; a new bet, the
// check of the open bets or of the one chosen (off the window's thread), the removal of a bet, the
// check of the chosen bet draw by draw, the totals, and the list exported as CSV.

#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <fmt/format.h>

#include "agenda/Importi.h"
#include "agenda/TestiGiocata.h"
#include "agenda/VerificaAgenda.h"
#include "archive/DateEstrazione.h"
#include "gui/agenda/DialogoNuovaGiocata.h"
#include "gui/agenda/ModelloAgenda.h"
#include "gui/agenda/ModelloVerifiche.h"
#include "gui/comuni/CopiaRighe.h"
#include "gui/comuni/EsportaTabella.h"
#include "gui/comuni/LavoroConProgresso.h"
#include "gui/principale/Finestre.h"
#include "gui/principale/SegnalatoreGui.h"

namespace lottolab::gui {

namespace {

QTableView* NuovaTabella(const QString& nome) {
  auto* tabella = new QTableView;
  tabella->setObjectName(nome);
  tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella->setSelectionMode(QAbstractItemView::ExtendedSelection);
  tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella->verticalHeader()->hide();
  tabella->verticalHeader()->setDefaultSectionSize(tabella->fontMetrics().height() + 8);
  tabella->horizontalHeader()->setHighlightSections(false);
  AggiungiCopiaRighe(tabella);
  return tabella;
}

// The archives of the context as the check reads them; an empty table is no archive, so that a bet
// is never checked against nothing and its stored results wiped.
struct ArchiviDelContesto {
  std::shared_ptr<const TabellaEstrazioni> lotto;
  std::shared_ptr<const TabellaGioco> superenalotto, dieci_e_lotto, win_for_life;

  explicit ArchiviDelContesto(const ContestoGui& contesto)
      : lotto(contesto.Archivio()),
        superenalotto(contesto.ArchivioGioco(Gioco::SuperEnalotto)),
        dieci_e_lotto(contesto.ArchivioGioco(Gioco::DieciELotto)),
        win_for_life(contesto.ArchivioGioco(Gioco::WinForLife)) {}

  agenda::ArchiviGiocate Archivi() const {
    auto pieno = [](const auto& tabella) {
      return tabella && tabella->EstrazioniArchivio() > 0 ? tabella.get() : nullptr;
    };
    return agenda::ArchiviGiocate{pieno(lotto), pieno(superenalotto), pieno(dieci_e_lotto), pieno(win_for_life)};
  }
};

QString DaStd(const std::string& testo) { return QString::fromStdString(testo); }

class FinestraAgenda : public QWidget {
 public:
  FinestraAgenda(ContestoGui& contesto, QWidget* parent)
      : QWidget(parent),
        m_contesto(contesto),
        m_modello(new ModelloAgenda(this)),
        m_ordinato(new QSortFilterProxyModel(this)),
        m_verifiche(new ModelloVerifiche(this)),
        m_elenco(NuovaTabella(QStringLiteral("elencoGiocate"))),
        m_dettaglio(NuovaTabella(QStringLiteral("dettaglioGiocata"))),
        m_novita(new QLabel),
        m_titolo_dettaglio(new QLabel),
        m_totali(new QLabel),
        m_filtro(new QComboBox) {
    setWindowTitle(QStringLiteral("Agenda delle giocate"));
    setObjectName(QStringLiteral("finestraAgenda"));

    m_ordinato->setSourceModel(m_modello);
    m_ordinato->setSortRole(ModelloAgenda::kRuoloOrdine);
    m_ordinato->setFilterKeyColumn(ModelloAgenda::Stato);
    m_elenco->setModel(m_ordinato);
    m_elenco->setSortingEnabled(true);
    m_elenco->sortByColumn(ModelloAgenda::Id, Qt::DescendingOrder);
    m_elenco->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    // The numbers are what the user looks for: they keep their width, the stakes give way.
    m_elenco->horizontalHeader()->setSectionResizeMode(ModelloAgenda::Poste, QHeaderView::Stretch);
    m_elenco->setTextElideMode(Qt::ElideRight);
    m_elenco->setWordWrap(false);
    m_dettaglio->setModel(m_verifiche);
    AggiungiEsportazione(m_elenco, QStringLiteral("Agenda"));
    AggiungiEsportazione(m_dettaglio, QStringLiteral("Verifica della giocata"));
    m_dettaglio->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_dettaglio->horizontalHeader()->setStretchLastSection(true);
    // A draw with many wins shows them all, on as many lines as they take.
    m_dettaglio->setWordWrap(true);
    connect(m_verifiche, &QAbstractItemModel::modelReset, m_dettaglio, &QTableView::resizeRowsToContents);

    auto pulsante = [this](const QString& testo, const char* nome, const QString& suggerimento, auto&& eseguire) {
      auto* nuovo = new QPushButton(testo);
      nuovo->setObjectName(QString::fromLatin1(nome));
      nuovo->setToolTip(suggerimento);
      connect(nuovo, &QPushButton::clicked, this, std::forward<decltype(eseguire)>(eseguire));
      return nuovo;
    };
    auto* nuova = pulsante(QStringLiteral("Nuova giocata..."), "pulsanteNuova",
                           QStringLiteral("Registra una giocata fatta"), [this] { NuovaGiocata(); });
    auto* verifica_aperte =
        pulsante(QStringLiteral("Verifica aperte"), "pulsanteVerificaAperte",
                 QStringLiteral("Verifica tutte le giocate aperte sugli archivi"), [this] { Verifica(std::nullopt); });
    m_verifica_scelta = pulsante(QStringLiteral("Verifica selezionata"), "pulsanteVerificaScelta",
                                 QStringLiteral("Verifica di nuovo la giocata selezionata, anche se chiusa"),
                                 [this] { Verifica(IdScelto()); });
    m_rimuovi = pulsante(QStringLiteral("Rimuovi..."), "pulsanteRimuovi",
                         QStringLiteral("Toglie la giocata selezionata dall'agenda"), [this] { Rimuovi(); });
    m_viste = pulsante(QStringLiteral("Segna come viste"), "pulsanteViste",
                       QStringLiteral("Le vincite evidenziate non saranno più segnalate come nuove"),
                       [this] { SegnaViste(); });
    auto* esporta = pulsante(QStringLiteral("Esporta CSV..."), "pulsanteEsporta",
                             QStringLiteral("Salva l'elenco come mostrato in un file CSV"), [this] { Esporta(); });
    m_filtro->setObjectName(QStringLiteral("filtroStato"));
    m_filtro->addItems({QStringLiteral("Tutte"), QStringLiteral("Aperte"), QStringLiteral("Chiuse")});
    connect(m_filtro, &QComboBox::currentIndexChanged, this, [this](int scelta) {
      m_ordinato->setFilterFixedString(scelta == 1   ? QStringLiteral("aperta")
                                       : scelta == 2 ? QStringLiteral("chiusa")
                                                     : QString());
    });

    auto* barra = new QHBoxLayout;
    for (QWidget* w :
         std::initializer_list<QWidget*>{nuova, verifica_aperte, m_verifica_scelta, m_rimuovi, m_viste, esporta})
      barra->addWidget(w);
    barra->addStretch();
    barra->addWidget(new QLabel(QStringLiteral("Mostra:")));
    barra->addWidget(m_filtro);

    m_novita->setObjectName(QStringLiteral("novita"));
    m_novita->setStyleSheet(QStringLiteral("background: #fff3b0; padding: 4px;"));
    m_novita->setWordWrap(true);
    m_titolo_dettaglio->setObjectName(QStringLiteral("titoloDettaglio"));
    m_totali->setObjectName(QStringLiteral("totali"));
    m_totali->setWordWrap(true);

    auto* sotto = new QWidget;
    auto* layout_sotto = new QVBoxLayout(sotto);
    layout_sotto->setContentsMargins(0, 0, 0, 0);
    m_quota = new QPushButton(QStringLiteral("Quota..."));
    m_quota->setObjectName(QStringLiteral("pulsanteQuota"));
    m_quota->setToolTip(QStringLiteral("La quota pubblicata per una vincita di cui l'importo non è noto"));
    connect(m_quota, &QPushButton::clicked, this, [this] { ChiediQuota(); });
    auto* testa = new QHBoxLayout;
    testa->addWidget(m_titolo_dettaglio, 1);
    testa->addWidget(m_quota);
    layout_sotto->addLayout(testa);
    layout_sotto->addWidget(m_dettaglio);
    auto* divisore = new QSplitter(Qt::Vertical);
    divisore->addWidget(m_elenco);
    divisore->addWidget(sotto);
    divisore->setStretchFactor(0, 3);
    divisore->setStretchFactor(1, 2);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(barra);
    layout->addWidget(m_novita);
    layout->addWidget(divisore, 1);
    layout->addWidget(m_totali);

    connect(m_elenco->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { MostraDettaglio(); });
    connect(m_dettaglio->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { m_quota->setEnabled(!CategorieSenzaQuota().empty()); });
    // Another window (an update) or this one changed the agenda: the list follows.
    connect(&m_contesto, &ContestoGui::AgendaCambiata, this, [this] { Ricarica(); });
    connect(&m_contesto, &ContestoGui::ArchivioCambiato, this, [this] { Ricarica(); });
    Ricarica();
  }

  QSize sizeHint() const override { return {1000, 600}; }

 private:
  std::filesystem::path File() const { return m_contesto.Configurazione().FileAgenda(); }

  // The agenda, opened for one action; an agenda that does not exist yet is created only by adding.
  Esito<agenda::Agenda> Apri() const { return agenda::Agenda::Apri(File()); }

  void Mostra(const Avviso& avviso) { SegnalatoreGui(this).Mostra(avviso); }

  std::optional<int64_t> IdScelto() const {
    const QModelIndex corrente = m_elenco->currentIndex();
    if (!corrente.isValid()) return std::nullopt;
    return m_modello->Voce(m_ordinato->mapToSource(corrente).row()).giocata.id;
  }

  void Ricarica() {
    const std::optional<int64_t> scelto = IdScelto();
    std::vector<agenda::VoceAgenda> voci;
    std::set<int64_t> con_nuove;
    m_nuove.clear();
    agenda::Totali totali;
    std::error_code ec;
    if (std::filesystem::exists(File(), ec)) {
      auto aperta = Apri();
      auto elenco = aperta ? aperta->Elenco() : Esito<std::vector<agenda::VoceAgenda>>(aperta.Errore());
      auto nuove = aperta ? aperta->VinciteNonViste() : Esito<std::vector<agenda::VincitaNonVista>>(aperta.Errore());
      auto somme = aperta ? aperta->TotaliComplessivi() : Esito<agenda::Totali>(aperta.Errore());
      if (!elenco || !nuove || !somme) {
        m_totali->setText(DaStd(!elenco  ? elenco.Errore().testo
                                : !nuove ? nuove.Errore().testo
                                         : somme.Errore().testo));
      } else {
        voci = std::move(elenco).Valore();
        m_nuove = std::move(nuove).Valore();
        totali = *somme;
        for (const agenda::VincitaNonVista& v : m_nuove) con_nuove.insert(v.giocata);
      }
    }
    m_modello->Imposta(voci, con_nuove);
    MostraTotali(voci, totali);
    m_novita->setVisible(!m_nuove.empty());
    m_novita->setText(
        QStringLiteral("%1 dall'ultima visione: le giocate evidenziate. \"Segna come viste\" le toglie dalle novità.")
            .arg(m_nuove.size() == 1 ? QStringLiteral("1 vincita nuova")
                                     : QStringLiteral("%1 vincite nuove").arg(m_nuove.size())));
    m_viste->setEnabled(!m_nuove.empty());
    Seleziona(scelto);
  }

  void MostraTotali(const std::vector<agenda::VoceAgenda>& voci, const agenda::Totali& totali) {
    if (voci.empty()) {
      m_totali->setText(QStringLiteral("Nessuna giocata nell'agenda: \"Nuova giocata...\" registra la prima."));
      return;
    }
    const auto aperte = std::count_if(voci.begin(), voci.end(), [](const agenda::VoceAgenda& v) { return !v.chiusa; });
    QString testo = QStringLiteral(
                        "<b>Totale</b>: %1 (%2) &nbsp;·&nbsp; spesa %3 &nbsp;·&nbsp; "
                        "vinto netto %4 &nbsp;·&nbsp; saldo <b>%5</b>")
                        .arg(DaStd(agenda::ContaGiocate(static_cast<int>(voci.size()))))
                        .arg(aperte == 1 ? QStringLiteral("1 aperta") : QStringLiteral("%1 aperte").arg(aperte))
                        .arg(TestoImporto(totali.spesa), TestoVinto(totali), TestoImporto(totali.Saldo()));
    if (totali.vincite_senza_importo > 0)
      testo += QStringLiteral(
                   "<br>* più %1 di cui la quota non è nota (SuperEnalotto, Win for Life, premi del "
                   "10eLotto non confermati): vinto e saldo non le contano.")
                   .arg(TestoVincite(totali.vincite_senza_importo));
    m_totali->setText(testo);
  }

  void Seleziona(std::optional<int64_t> id) {
    for (int riga = 0; id && riga < m_ordinato->rowCount(); ++riga)
      if (m_modello->Voce(m_ordinato->mapToSource(m_ordinato->index(riga, 0)).row()).giocata.id == *id) {
        m_elenco->selectRow(riga);
        return;
      }
    MostraDettaglio();
  }

  void MostraDettaglio() {
    const std::optional<int64_t> id = IdScelto();
    m_verifica_scelta->setEnabled(id.has_value());
    m_rimuovi->setEnabled(id.has_value());
    if (!id) {
      m_titolo_dettaglio->setText(QStringLiteral("Seleziona una giocata per vederne la verifica colpo per colpo."));
      m_verifiche->Imposta({}, {});
      return;
    }
    auto aperta = Apri();
    auto verifiche = aperta ? aperta->Verifiche(*id) : Esito<std::vector<agenda::VerificaColpo>>(aperta.Errore());
    if (!verifiche) {
      m_titolo_dettaglio->setText(DaStd(verifiche.Errore().testo));
      m_verifiche->Imposta({}, {});
      return;
    }
    std::set<int> colpi_nuovi;
    for (const agenda::VincitaNonVista& v : m_nuove)
      if (v.giocata == *id) colpi_nuovi.insert(v.colpo);
    m_titolo_dettaglio->setText(
        verifiche->empty()
            ? QStringLiteral("Giocata %1: non ancora verificata (nessuna estrazione in gioco finora).").arg(*id)
            : QStringLiteral("Giocata %1: verifica colpo per colpo").arg(*id));
    m_verifiche->Imposta(std::move(verifiche).Valore(), colpi_nuovi);
    m_quota->setEnabled(false);
  }

  // The wins of the chosen draw whose amount a quota can give: the pool prizes not priced yet.
  std::vector<std::string> CategorieSenzaQuota() const {
    const QModelIndex riga = m_dettaglio->currentIndex();
    const std::optional<int64_t> id = IdScelto();
    if (!riga.isValid() || !id) return {};
    const agenda::GiocoGiocata gioco =
        m_modello->Voce(m_ordinato->mapToSource(m_elenco->currentIndex()).row()).giocata.gioco;
    if (gioco != agenda::GiocoGiocata::SuperEnalotto && gioco != agenda::GiocoGiocata::WinForLife) return {};
    std::vector<std::string> categorie;
    for (const agenda::VincitaColpo& vincita : m_verifiche->Verificato(riga.row()).vincite)
      if (!vincita.importo_noto) categorie.push_back(vincita.sorte);
    return categorie;
  }

  void ChiediQuota() {
    const std::vector<std::string> categorie = CategorieSenzaQuota();
    const std::optional<int64_t> id = IdScelto();
    if (categorie.empty() || !id) return;
    const agenda::VerificaColpo colpo = m_verifiche->Verificato(m_dettaglio->currentIndex().row());
    QStringList voci;
    for (const std::string& categoria : categorie) voci << DaStd(categoria);
    bool scelta = false;
    const QString categoria = QInputDialog::getItem(
        this, QStringLiteral("Quota"), QStringLiteral("Categoria vinta il %1:").arg(DaStd(FormattaData(colpo.data))),
        voci, 0, false, &scelta);
    if (!scelta) return;
    const QString testo = QInputDialog::getText(
        this, QStringLiteral("Quota"),
        QStringLiteral("Quota pubblicata per \"%1\" (euro per colonna vincente, al lordo):").arg(categoria),
        QLineEdit::Normal, QString(), &scelta);
    if (!scelta) return;
    auto importo = agenda::LeggiImporto(testo.trimmed().toStdString());
    if (!importo) return Mostra(importo.Errore());
    const agenda::QuotaPubblicata quota{
        m_modello->Voce(m_ordinato->mapToSource(m_elenco->currentIndex()).row()).giocata.gioco, colpo.id_estr,
        colpo.data, categoria.toStdString(), *importo};
    const ArchiviDelContesto archivi(m_contesto);
    const std::filesystem::path file = File();
    AvviaLavoroConProgresso<agenda::EsitoVerificaAgenda>(
        this, QStringLiteral("Quota"), QStringLiteral("Verifica delle giocate con la nuova quota..."),
        "FinestraAgenda.Quota",
        [archivi, file, quota](Avanzamento&) -> Esito<agenda::EsitoVerificaAgenda> {
          auto aperta = agenda::Agenda::Apri(file);
          if (!aperta) return aperta.Errore();
          return agenda::ApplicaQuota(aperta.Valore(), archivi.Archivi(), quota);
        },
        [this](const Esito<agenda::EsitoVerificaAgenda>& esito) {
          Ricarica();
          emit m_contesto.AgendaCambiata();
          if (!esito) return Mostra(esito.Errore());
          if (!esito->non_verificate.empty()) MostraEsito(*esito);
        });
  }

  void NuovaGiocata() {
    DialogoNuovaGiocata dialogo(this);
    if (dialogo.exec() != QDialog::Accepted) return;
    auto aperta = Apri();
    auto id = aperta ? aperta->Aggiungi(*dialogo.Giocata()) : Esito<int64_t>(aperta.Errore());
    if (!id) {
      Mostra(id.Errore());
      return;
    }
    Ricarica();
    Seleziona(*id);
    emit m_contesto.AgendaCambiata();
  }

  // The check runs on another thread with an agenda of its own, on the archives as the desktop
  // holds them; the window shows the outcome and reloads.
  void Verifica(std::optional<int64_t> id) {
    const ArchiviDelContesto archivi(m_contesto);
    const std::filesystem::path file = File();
    AvviaLavoroConProgresso<agenda::EsitoVerificaAgenda>(
        this, QStringLiteral("Verifica delle giocate"), QStringLiteral("Verifica delle giocate in corso..."),
        "FinestraAgenda.Verifica",
        [archivi, file, id](Avanzamento& avanzamento) -> Esito<agenda::EsitoVerificaAgenda> {
          auto aperta = agenda::Agenda::Apri(file);
          if (!aperta) return aperta.Errore();
          return agenda::VerificaAgenda(aperta.Valore(), archivi.Archivi(), {.id = id}, [&](int fatte, int totali) {
            avanzamento.Passo(fmt::format("Verifica della giocata {} di {}...", fatte + 1, totali));
          });
        },
        [this](const Esito<agenda::EsitoVerificaAgenda>& esito) {
          Ricarica();
          emit m_contesto.AgendaCambiata();
          if (!esito) return Mostra(esito.Errore());
          MostraEsito(*esito);
        });
  }

  void MostraEsito(const agenda::EsitoVerificaAgenda& esito) {
    std::string testo = fmt::format("Verificate {}.", agenda::ContaGiocate(esito.verificate));
    testo += esito.vincite_da_vedere == 0
                 ? std::string(" Nessuna vincita da vedere.")
                 : fmt::format(" Vincite da vedere: {} (evidenziate).", esito.vincite_da_vedere);
    if (!esito.non_verificate.empty()) {
      testo += "\n\nNon verificate:";
      for (const std::string& riga : esito.non_verificate) testo += "\n- " + riga;
    }
    if (esito.non_verificate.empty())
      QMessageBox::information(this, QStringLiteral("Verifica delle giocate"), DaStd(testo));
    else
      QMessageBox::warning(this, QStringLiteral("Verifica delle giocate"), DaStd(testo));
  }

  void Rimuovi() {
    const std::optional<int64_t> id = IdScelto();
    if (!id) return;
    const int riga = m_ordinato->mapToSource(m_elenco->currentIndex()).row();
    const QString numeri = DaStd(agenda::TestoNumeri(m_modello->Voce(riga).giocata));
    if (QMessageBox::question(this, QStringLiteral("Rimuovi giocata"),
                              QStringLiteral("Rimuovere dall'agenda la giocata %1 (%2)?\nLe sue verifiche e le sue "
                                             "vincite vanno perse.")
                                  .arg(*id)
                                  .arg(numeri),
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes)
      return;
    auto aperta = Apri();
    auto rimossa = aperta ? aperta->Rimuovi(*id) : Esito<Fatto>(aperta.Errore());
    if (!rimossa) Mostra(rimossa.Errore());
    Ricarica();
    emit m_contesto.AgendaCambiata();
  }

  void SegnaViste() {
    auto aperta = Apri();
    auto viste = aperta ? aperta->SegnaVisione() : Esito<Fatto>(aperta.Errore());
    if (!viste) Mostra(viste.Errore());
    Ricarica();
    emit m_contesto.AgendaCambiata();
  }

  void Esporta() {
    const QString scelto = QFileDialog::getSaveFileName(
        this, QStringLiteral("Esporta l'agenda"), DaStd((m_contesto.Configurazione().base / "agenda.csv").string()),
        QStringLiteral("CSV (*.csv);;Tutti i file (*)"));
    if (scelto.isEmpty()) return;
    if (auto scritto = esporta::ScriviCsv(RigheDelModello(*m_ordinato), scelto.toStdString()); !scritto)
      Mostra(scritto.Errore());
  }

  ContestoGui& m_contesto;
  ModelloAgenda* m_modello;
  QSortFilterProxyModel* m_ordinato;
  ModelloVerifiche* m_verifiche;
  QTableView* m_elenco;
  QTableView* m_dettaglio;
  QLabel* m_novita;
  QLabel* m_titolo_dettaglio;
  QLabel* m_totali;
  QComboBox* m_filtro;
  QPushButton* m_verifica_scelta = nullptr;
  QPushButton* m_rimuovi = nullptr;
  QPushButton* m_viste = nullptr;
  QPushButton* m_quota = nullptr;
  std::vector<agenda::VincitaNonVista> m_nuove;
};

}  // namespace

QWidget* NuovaFinestraAgenda(ContestoGui& contesto, QWidget* parent) { return new FinestraAgenda(contesto, parent); }

Esito<int> VinciteDaVedere(const app::Configurazione& configurazione) {
  std::error_code ec;
  if (!std::filesystem::exists(configurazione.FileAgenda(), ec)) return 0;
  auto aperta = agenda::Agenda::Apri(configurazione.FileAgenda());
  if (!aperta) return aperta.Errore();
  auto nuove = aperta->VinciteNonViste();
  if (!nuove) return nuove.Errore();
  return static_cast<int>(nuove->size());
}

}  // namespace lottolab::gui
