#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <deque>
#include <memory>

#include "ServerLocali.h"
#include "TempDir.h"
#include "agenda/Agenda.h"
#include "gui/archivio/AggiornamentoArchivio.h"
#include "gui/archivio/AvvioAggiornamento.h"
#include "gui/principale/Finestre.h"

namespace lottolab::gui {
namespace {

namespace fs = std::filesystem;
using test::BaseTemporanea;

constexpr const char* kRuote[] = {"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RO", "TO", "VE", "NZ"};

// Five numbers in a row on each wheel after the one before, so that no number repeats among the
// city wheels and the evening 10eLotto is their first two columns.
int Numero(int primo, int ruota, int posizione) { return (primo + ruota * 5 + posizione) % 90 + 1; }

std::string EstrazioneDelLotto(const std::string& data, int primo) {
  std::string righe;
  for (int ruota = 0; ruota < 11; ++ruota)
    righe +=
        fmt::format("{}\t{}\t{}\t{}\t{}\t{}\t{}\n", data, kRuote[ruota], Numero(primo, ruota, 0),
                    Numero(primo, ruota, 1), Numero(primo, ruota, 2), Numero(primo, ruota, 3), Numero(primo, ruota, 4));
  return righe;
}

// That Lotto draw's evening as the 10eLotto results give it, without the Numero Oro.
std::string SerataDelLotto(const std::string& data, int concorso, int primo) {
  std::vector<int> numeri;
  for (int ruota = 0; ruota < 10; ++ruota)
    for (int posizione = 0; posizione < 2; ++posizione) numeri.push_back(Numero(primo, ruota, posizione));
  std::sort(numeri.begin(), numeri.end());
  return fmt::format("{} {} {} -\n", data, concorso, fmt::join(numeri, " "));
}

// Answers given in advance, and what the flow told the user.
struct DialoghiDiProva : DialoghiArchivio {
  std::deque<std::optional<size_t>> scelte;
  std::deque<fs::path> file;
  std::vector<std::string> informazioni;
  std::vector<Avviso> avvisi;

  std::optional<size_t> Scegli(const std::string&, const std::string&, const std::vector<std::string>&) override {
    auto scelta = scelte.front();
    scelte.pop_front();
    return scelta;
  }
  std::optional<fs::path> ScegliFile(const std::string&, const fs::path&, const std::string&) override {
    if (file.empty()) return std::nullopt;
    fs::path scelto = file.front();
    file.pop_front();
    return scelto;
  }
  void Informa(const std::string&, const std::string& testo) override { informazioni.push_back(testo); }
  void Mostra(const Avviso& avviso) override { avvisi.push_back(avviso); }
  size_t Detti() const { return informazioni.size() + avvisi.size(); }
};

}  // namespace

class AggiornamentoArchivioTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<BaseTemporanea> m_base;

  fs::path Scrivi(const std::string& nome, const std::string& testo) {
    test::Scrivi(*m_base / nome, testo);
    return *m_base / nome;
  }
  std::string Indirizzo(const std::string& nome) const { return "file://" + (*m_base / nome).string(); }
  app::Configurazione Configurazione(const std::string& ini = {}) const {
    return app::Configurazione{m_base->Percorso(), app::FileIni::DaTesto(ini)};
  }

 private slots:
  void init() { m_base = std::make_unique<BaseTemporanea>(); }
  void cleanup() { m_base.reset(); }

  // The download updates the Lotto and then each game with an address; one that fails is told
  // and the next still runs; a second update finds nothing new.
  void OgniGiocoConUnIndirizzo() {
    Scrivi("lotto.txt", EstrazioneDelLotto("2010/01/05", 0));
    Scrivi("se.txt", "2010/01/02\t1\t1\t2\t3\t4\t5\t6\t7\t8\n");
    Scrivi("ft.txt", "# numeri 3 massimo 40\n01/02/2026 1 2 40\n");
    const AggiornamentoArchivio aggiornamento(Configurazione(
        "[GENERALE]\nsIndirizzoRisultati=" + Indirizzo("lotto.txt") + "\nsIndirizzoRisultatiSE=" + Indirizzo("se.txt") +
        "\nsIndirizzoRisultatiWF=" + Indirizzo("non-pubblicato.txt") +
        "\nsIndirizzoRisultatiFT=" + Indirizzo("ft.txt")));

    std::vector<std::string> passi;
    const EsitoAggiornamento esito = aggiornamento.Scarica([&](std::string passo) {
      if (passo.ends_with("...")) passi.push_back(passo);
    });
    QCOMPARE(passi, (std::vector<std::string>{
                        "Aggiornamento dell'archivio del Lotto...", "Aggiornamento dell'archivio del SuperEnalotto...",
                        "Aggiornamento dell'archivio del Win for Life...", "Aggiornamento dell'archivio generico..."}));
    QVERIFY(!esito.Riuscito());
    QVERIFY(esito.GiochiCambiati());
    QVERIFY(!esito.dieci_e_lotto);
    const std::string testo = TestoAggiornamento(esito);
    QVERIFY2(testo.starts_with("Lotto: aggiunta 1 estrazione.\n"
                               "SuperEnalotto: aggiunta 1 estrazione.\n"
                               "Win for Life: non aggiornato. Impossibile scaricare " +
                               Indirizzo("non-pubblicato.txt")),
             testo.c_str());
    QVERIFY2(testo.ends_with("\nArchivio generico: aggiunta 1 estrazione."), testo.c_str());
    QVERIFY(!fs::exists(*m_base / "WinForLife.dat"));
    QVERIFY2(!fs::exists(*m_base / "10eLotto5.dat"), "no address, no archive");
    for (const fs::directory_entry& voce : fs::directory_iterator(m_base->Percorso()))
      QVERIFY2(!voce.path().filename().string().starts_with("risultati-scaricati"), voce.path().c_str());

    Scrivi("non-pubblicato.txt", "2026/01/02 08:00 1 1 2 3 4 5 6 7 8 9 10 20\n");
    const EsitoAggiornamento di_nuovo = aggiornamento.Scarica();
    QVERIFY(di_nuovo.Riuscito());
    QCOMPARE(TestoAggiornamento(di_nuovo), std::string("Lotto: già aggiornato, nessuna nuova estrazione.\n"
                                                       "SuperEnalotto: già aggiornato, nessuna nuova estrazione.\n"
                                                       "Win for Life: aggiunta 1 estrazione.\n"
                                                       "Archivio generico: già aggiornato, nessuna nuova estrazione."));
  }

  // A new installation downloads into a base folder that does not exist yet; the steps tell the
  // megabytes downloaded. A cancelled download stops within a second and leaves the archive as it
  // was, and the report says so.
  void ScaricaInUnaNuovaCartellaEAnnulla() {
    test::ServerHttp server;
    server.Aggiungi("/lotto.txt", {200, EstrazioneDelLotto("2010/01/05", 0)});
    server.Aggiungi("/lento.txt", {200, std::string(200'000, ' '), std::chrono::milliseconds(0), 1000,
                                   std::chrono::milliseconds(20)});
    const fs::path nuova = *m_base / "nuova" / "lottolab";
    auto configurazione = [&](const std::string& percorso) {
      return app::Configurazione{
          nuova, app::FileIni::DaTesto("[GENERALE]\nsIndirizzoRisultati=" + server.Indirizzo(percorso))};
    };
    std::vector<std::string> passi;
    const EsitoAggiornamento esito =
        AggiornamentoArchivio(configurazione("/lotto.txt")).Scarica([&](std::string passo) { passi.push_back(passo); });
    QVERIFY2(esito.Riuscito(), TestoAggiornamento(esito).c_str());
    QVERIFY(fs::exists(nuova / "BaseDati.dat"));
    QVERIFY(std::find(passi.begin(), passi.end(), "Aggiornamento dell'archivio del Lotto: 1 KB scaricati di 1 KB") !=
            passi.end());

    const std::string archivio = test::Leggi(nuova / "BaseDati.dat");
    bool iniziato = false;
    const auto inizio = std::chrono::steady_clock::now();
    const EsitoAggiornamento annullato =
        AggiornamentoArchivio(configurazione("/lento.txt"))
            .Scarica([&](std::string passo) { iniziato = passo.ends_with("KB"); }, [&] { return iniziato; });
    QVERIFY(std::chrono::steady_clock::now() - inizio < std::chrono::seconds(2));
    QCOMPARE(TestoAggiornamento(annullato), "Lotto: non aggiornato. Impossibile scaricare " +
                                                server.Indirizzo("/lento.txt") + ": trasferimento annullato");
    QCOMPARE(test::Leggi(nuova / "BaseDati.dat"), archivio);
  }

  // A Lotto import that adds draws derives the evening 10eLotto again when it has an archive, and
  // says so in the same report; an evening the Lotto lacks leaves that archive as it was.
  void IlDieciELottoSegueIlLotto() {
    const AggiornamentoArchivio aggiornamento(Configurazione());
    const EsitoAggiornamento senza_dieci_e_lotto = aggiornamento.ImportaDaFile(
        Scrivi("lotto1.txt", EstrazioneDelLotto("2010/01/05", 0) + EstrazioneDelLotto("2010/01/07", 3)));
    QCOMPARE(senza_dieci_e_lotto.lotto.aggiunte.ValoreOppure(-1), 2);
    QVERIFY2(!senza_dieci_e_lotto.dieci_e_lotto, "no 10eLotto archive yet, nothing to follow");

    const EsitoImportazione dl = ImportaRisultatiGioco(Configurazione(), Gioco::DieciELotto,
                                                       Scrivi("dl.txt", SerataDelLotto("2010/01/09", 7, 11)));
    QCOMPARE(dl.aggiunte.ValoreOppure(-1), 3);

    const fs::path lotto2 =
        Scrivi("lotto2.txt", EstrazioneDelLotto("2010/01/09", 11) + EstrazioneDelLotto("2010/01/12", 20));
    const EsitoAggiornamento seguito = aggiornamento.ImportaDaFile(lotto2);
    QVERIFY(seguito.Riuscito());
    QVERIFY(seguito.GiochiCambiati());
    QCOMPARE(TestoAggiornamento(seguito),
             std::string("Lotto: aggiunte 2 estrazioni.\n"
                         "10eLotto serale: aggiunta 1 serata, completata 1 serata dall'archivio del Lotto."));
    QVERIFY2(!aggiornamento.ImportaDaFile(lotto2).dieci_e_lotto, "no draw added, nothing derived");

    QCOMPARE(ImportaRisultatiGioco(Configurazione(), Gioco::DieciELotto,
                                   Scrivi("dl2.txt", SerataDelLotto("2010/01/14", 9, 30)))
                 .aggiunte.ValoreOppure(-1),
             1);
    const std::string con_la_14 = test::Leggi(*m_base / "10eLotto.dat");
    const EsitoAggiornamento senza =
        aggiornamento.ImportaDaFile(Scrivi("lotto3.txt", EstrazioneDelLotto("2010/01/16", 40)));
    QCOMPARE(senza.lotto.aggiunte.ValoreOppure(-1), 1);
    QVERIFY(!senza.Riuscito());
    QVERIFY(!senza.GiochiCambiati());
    QVERIFY2(TestoAggiornamento(senza).starts_with("Lotto: aggiunta 1 estrazione.\n10eLotto serale: non ricavato di "
                                                   "nuovo dall'archivio del Lotto. L'archivio del 10eLotto "),
             TestoAggiornamento(senza).c_str());
    QCOMPARE(test::Leggi(*m_base / "10eLotto.dat"), con_la_14);
  }

  // The draws an update adds check the agenda's open bets of their game, the others left waiting, and
  // the report says how many wins wait to be seen.
  void LAgendaSiVerificaDopoLAggiornamento() {
    const AggiornamentoArchivio aggiornamento(Configurazione());
    const fs::path lotto = Scrivi("lotto1.txt", EstrazioneDelLotto("2010/01/05", 0));
    QVERIFY2(!aggiornamento.ImportaDaFile(lotto).agenda, "no agenda, nothing checked and none created");
    QVERIFY(!fs::exists(*m_base / "AgendaGiocate.db"));

    auto aperta = agenda::Agenda::Apri(*m_base / "AgendaGiocate.db");
    QVERIFY(aperta);
    agenda::Giocata ambo;
    ambo.colonne = {{1, 2}};  // the first two numbers of Bari in the draw of 2010/01/07
    ambo.ruote = {BA};
    ambo.poste = {{"ambo", 100}};
    ambo.dal = GruppoData{0, 6, 1, 2010};
    ambo.colpi = 2;
    QVERIFY(aperta->Aggiungi(ambo));
    agenda::Giocata superenalotto;
    superenalotto.gioco = agenda::GiocoGiocata::SuperEnalotto;
    superenalotto.colonne = {{1, 2, 3, 4, 5, 6}};
    superenalotto.poste = {{"giocata", 100}};
    superenalotto.dal = GruppoData{0, 6, 1, 2010};
    QVERIFY(aperta->Aggiungi(superenalotto));

    const EsitoAggiornamento esito = aggiornamento.ImportaDaFile(
        Scrivi("lotto2.txt", EstrazioneDelLotto("2010/01/05", 0) + EstrazioneDelLotto("2010/01/07", 0)));
    QVERIFY(esito.agenda && *esito.agenda);
    QCOMPARE((*esito.agenda)->verificate, 1);
    QCOMPARE(TestoAggiornamento(esito),
             std::string("Lotto: aggiunta 1 estrazione.\n"
                         "Agenda delle giocate: verificate 1 giocata, 1 vincita da vedere."));
    QCOMPARE(aperta->VinciteNonViste()->front().vincita.lordo, int64_t{25000});
  }

  // A game window's "Importa da file...": the file the user picks is imported, what it leaves in
  // doubt is told with the outcome, and the open window shows the new draws.
  void ImportaDaFileNellaFinestraDelGioco() {
    ContestoGui contesto(Configurazione());
    contesto.RicaricaArchiviGiochi();
    std::unique_ptr<QWidget> finestra(NuovaFinestraArchivioGioco(contesto, Gioco::SuperEnalotto));
    const QAbstractItemModel& modello = *finestra->findChild<QTableView*>("tabellaEstrazioni")->model();
    QCOMPARE(modello.rowCount(), 0);

    auto dialoghi = std::make_shared<DialoghiDiProva>();
    dialoghi->file.push_back(
        Scrivi("se.txt", "2010/01/02\t1\t1\t2\t3\t4\t5\t6\t7\t8\n2010/01/05\t2\t11\t12\t13\t14\t15\t90\t17\t0\n"));
    AvviaImportazioneGioco(contesto, Gioco::SuperEnalotto, finestra.get(), dialoghi);
    QTRY_COMPARE(dialoghi->Detti(), size_t{1});
    QCOMPARE(dialoghi->informazioni.size(), size_t{1});
    const std::string& testo = dialoghi->informazioni.front();
    QVERIFY2(testo.starts_with("SuperEnalotto: aggiunte 2 estrazioni.\n\nDa controllare:\n- L'archivio del Lotto "),
             testo.c_str());
    QCOMPARE(modello.rowCount(), 2);

    dialoghi->file.push_back(Scrivi("se2.txt", "2010/01/02\t1\t1\t2\t3\t4\t5\t6\t7\t9\n"));
    AvviaImportazioneGioco(contesto, Gioco::SuperEnalotto, finestra.get(), dialoghi);
    QTRY_COMPARE(dialoghi->Detti(), size_t{2});
    QCOMPARE(dialoghi->avvisi.size(), size_t{1});
    QVERIFY2(dialoghi->avvisi.front().testo.starts_with("SuperEnalotto: non aggiornato. "),
             dialoghi->avvisi.front().testo.c_str());
    QCOMPARE(modello.rowCount(), 2);

    AvviaImportazioneGioco(contesto, Gioco::SuperEnalotto, finestra.get(), dialoghi);
    QCOMPARE(dialoghi->Detti(), size_t{2});
  }

  // "Aggiorna archivio" from a file, through the dialogs: the Lotto and the 10eLotto windows reload
  // and the report names both.
  void AggiornaDaFileRicaricaGliArchivi() {
    ContestoGui contesto(Configurazione());
    QVERIFY(ImportaRisultatiGioco(contesto.Configurazione(), Gioco::DieciELotto,
                                  Scrivi("dl.txt", SerataDelLotto("2010/01/05", 1, 0)))
                .aggiunte.Riuscito());
    contesto.RicaricaArchiviGiochi();
    QSignalSpy lotto(&contesto, &ContestoGui::ArchivioCambiato);
    QSignalSpy giochi(&contesto, &ContestoGui::ArchiviGiochiCambiati);

    auto dialoghi = std::make_shared<DialoghiDiProva>();
    dialoghi->scelte = {1};
    dialoghi->file.push_back(Scrivi("lotto.txt", EstrazioneDelLotto("2010/01/05", 0)));
    AvviaAggiornamentoArchivio(contesto, nullptr, dialoghi);
    QTRY_COMPARE(dialoghi->Detti(), size_t{1});
    QCOMPARE(dialoghi->informazioni.size(), size_t{1});
    QCOMPARE(dialoghi->informazioni.front(),
             std::string("Lotto: aggiunta 1 estrazione.\n"
                         "10eLotto serale: completata 1 serata dall'archivio del Lotto."));
    QCOMPARE(lotto.count(), 1);
    QCOMPARE(giochi.count(), 1);
    QCOMPARE(contesto.Archivio()->EstrazioniArchivio(), 1);

    dialoghi->scelte = {std::nullopt};
    AvviaAggiornamentoArchivio(contesto, nullptr, dialoghi);
    QCOMPARE(dialoghi->Detti(), size_t{1});
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::AggiornamentoArchivioTest)
#include "AggiornamentoArchivioTest.moc"
