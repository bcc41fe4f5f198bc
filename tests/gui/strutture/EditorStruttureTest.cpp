#include <QApplication>
#include <QGraphicsLineItem>
#include <QGraphicsView>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "TempDir.h"
#include "figures/FigureDiProva.h"
#include "figures/FileStrutture.h"
#include "figures/LimitiStrutture.h"
#include "gui/principale/ContestoGui.h"
#include "gui/principale/Finestre.h"
#include "gui/strutture/F_EditorStrutture.h"
#include "gui/strutture/F_InsCondizione.h"
#include "gui/strutture/GrigliaScena.h"
#include "gui/strutture/QvVertice.h"
#include "gui/strutture/StruttureCondizioni.h"
#include "gui/strutture/StruttureModello.h"
#include "gui/strutture/StruttureRicerca.h"

namespace lottolab::gui {

namespace {

std::vector<int16_t> Index(const StruttureModello& modello) {
  std::vector<int16_t> index;
  for (const figures::ClsVertice& vertice : modello.Vertici()) index.push_back(vertice.Index);
  return index;
}

using figures::test::SeiEstrazioni;
using figures::test::Vertice;

// A on a cell holding 7, B on the next column of the same draw; A's number is the play.
RichiestaRicerca SetteEVicino() {
  RichiestaRicerca richiesta;
  StruttureModello modello;
  modello.Nuova(6);
  modello.AggiungiVertice(12, 1);
  modello.AggiungiVertice(12, 2);
  modello.ImpostaChiusura(1, true);
  if (!modello.AggiungiCondizione("[A] = 7")) qFatal("the condition is refused");
  richiesta.struttura = modello.Struttura();
  richiesta.colpi = 2;
  return richiesta;
}

// Runs `azione` and closes the message box it opens; the box's text, empty when none opened.
QString TestoDelMessaggio(const std::function<void()>& azione) {
  QString testo;
  QTimer controllo;
  controllo.setInterval(5);
  QObject::connect(&controllo, &QTimer::timeout, [&] {
    if (auto* messaggio = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      testo = messaggio->text();
      messaggio->done(QMessageBox::Ok);
    }
  });
  controllo.start();
  azione();
  return testo;
}

std::vector<int> Estrazioni(const RisultatoRicerca& risultato) {
  std::vector<int> estrazioni;
  for (const figures::FiguraTrovata& trovata : risultato.trovate.elenco) estrazioni.push_back(trovata.estrazione);
  return estrazioni;
}

}  // namespace

class EditorStruttureTest : public QObject {
  Q_OBJECT

 private slots:
  void ClickedCellsBecomeVerticesOnTheirRowsDraws() {
    StruttureModello modello;
    modello.Nuova(100);
    QCOMPARE(modello.AggiungiVertice(12, 1), int16_t{1});
    QCOMPARE(modello.AggiungiVertice(3, 55), int16_t{2});
    const figures::ClsVertice& ultimo = modello.Vertici().back();
    QCOMPARE(ultimo.Riga, int16_t{3});
    QCOMPARE(ultimo.Colonna, int16_t{55});
    QCOMPARE(ultimo.IdEstrazione, 91);  // nine rows above the last, which shows draw 100
    QCOMPARE(ultimo.Caption, std::string("B"));
    QCOMPARE(modello.Vertici().front().IdEstrazione, 100);
    QVERIFY(modello.Modificata());

    QCOMPARE(modello.AggiungiVertice(12, 1), int16_t{0});  // taken
    QCOMPARE(modello.AggiungiVertice(13, 1), int16_t{0});  // below the grid
    QCOMPARE(modello.AggiungiVertice(0, 1), int16_t{0});
    QCOMPARE(modello.AggiungiVertice(5, 56), int16_t{0});
    QCOMPARE(modello.AggiungiVertice(5, 0), int16_t{0});

    modello.RimuoviVertice(1);
    modello.MostraFinoA(50);
    QCOMPARE(modello.AggiungiVertice(1, 6), int16_t{1});  // the freed Index and caption come back
    QCOMPARE(modello.Vertici().back().Caption, std::string("A"));
    QCOMPARE(modello.Vertici().back().IdEstrazione, 39);
    QCOMPARE(modello.Vertice(2)->IdEstrazione, 91);  // placed on draw 91, it stays so
    QCOMPARE(modello.AggiungiVertice(2, 6), int16_t{3});
    QCOMPARE(modello.Vertici().back().Caption, std::string("C"));
  }

  void TheEditorShowsTheStructureOfTheFileItOpens() {
    test::CartellaTemporanea cartella;
    StruttureModello modello;
    modello.Nuova(0);
    for (int colonna = 1; colonna <= 3; ++colonna) modello.AggiungiVertice(colonna + 4, colonna * 2);
    modello.Unisci(1, 2);
    modello.Unisci(2, 3);
    const auto file = cartella / "tre.dat";
    QVERIFY(modello.Salva(file).Riuscito());

    ContestoGui contesto(app::Configurazione{cartella.Percorso(), {}});
    std::unique_ptr<QWidget> editor(NuovoEditorStrutture(contesto, QString::fromStdString(file.string())));
    QVERIFY(editor->windowTitle().contains("tre.dat"));
    const QList<QGraphicsItem*> elementi = editor->findChild<QGraphicsView*>()->scene()->items();
    QCOMPARE(
        std::count_if(elementi.begin(), elementi.end(), [](QGraphicsItem* e) { return dynamic_cast<QvVertice*>(e); }),
        3);
    // The pane of the grid is as tall as its rows, not taller.
    const QGraphicsView* vista = editor->findChild<QGraphicsView*>();
    const qreal righe = vista->scene()->sceneRect().height();
    QVERIFY(vista->maximumHeight() >= righe && vista->maximumHeight() < righe + 60);
    QCOMPARE(std::count_if(elementi.begin(), elementi.end(),
                           [](QGraphicsItem* e) { return dynamic_cast<QGraphicsLineItem*>(e); }),
             2);
  }

  void EachPivotBelongsToOneVertex() {
    StruttureModello modello;
    modello.Nuova(20);
    for (int colonna = 1; colonna <= 3; ++colonna) modello.AggiungiVertice(5, colonna);
    auto orizz = [&] {
      std::vector<int16_t> fulcri;
      for (const figures::ClsVertice& vertice : modello.Vertici())
        if (vertice.FulcroOrizz) fulcri.push_back(vertice.Index);
      return fulcri;
    };
    modello.ImpostaFulcroOrizz(1, true);
    modello.ImpostaFulcroVert(3, true);
    modello.ImpostaFulcroOrizz(2, true);
    QCOMPARE(orizz(), std::vector<int16_t>{2});
    QVERIFY(modello.Vertice(3)->FulcroVert);
    modello.ImpostaFulcroVert(1, true);
    QVERIFY(!modello.Vertice(3)->FulcroVert);
    QVERIFY(modello.Vertice(2)->FulcroOrizz);  // the other kind is left alone
    modello.ImpostaFulcroOrizz(2, false);
    QVERIFY(orizz().empty());
  }

  void LinesJoinVerticesByIndexAndGoWithThem() {
    StruttureModello modello;
    modello.Nuova(20);
    for (int colonna = 1; colonna <= 3; ++colonna) modello.AggiungiVertice(colonna + 2, colonna);
    QVERIFY(modello.Unisci(1, 3));
    QVERIFY(!modello.Unisci(3, 1));
    QVERIFY(!modello.Unisci(2, 2));
    QVERIFY(!modello.Unisci(1, 9));
    QVERIFY(modello.Unisci(2, 3));
    QVERIFY(modello.Unisci(1, 2));
    QCOMPARE(modello.Linee(), (std::vector<figures::ClsLinea>{{1, 1, 3}, {2, 2, 3}, {3, 1, 2}}));
    modello.RimuoviVertice(1);
    QCOMPARE(Index(modello), (std::vector<int16_t>{2, 3}));
    QCOMPARE(modello.Linee(), (std::vector<figures::ClsLinea>{{1, 2, 3}}));
  }

  void ASavedStructureLoadsBackTheSame() {
    test::CartellaTemporanea cartella;
    StruttureModello modello;
    modello.Nuova(300);
    modello.AggiungiVertice(4, 2);
    modello.AggiungiVertice(7, 13);
    modello.AggiungiVertice(12, 55);
    QVERIFY(modello.ImpostaCaption(1, "ABCDEFG").Riuscito());
    QVERIFY(modello.ImpostaCaption(2, "Perù12").Riuscito());
    modello.ImpostaFulcroVert(2, true);
    modello.ImpostaFulcroOrizz(3, true);
    modello.ImpostaVersoVert(2, kVersoEntrambi);
    modello.ImpostaVersoOrizz(3, kVersoRovesciato);
    modello.ImpostaChiusura(1, true);
    modello.Unisci(1, 2);
    modello.Unisci(3, 2);
    QVERIFY(modello.AggiungiCondizione("[ABCDE] = [Perù1]").Riuscito());
    QVERIFY(modello.AggiungiCondizione("Cadenza([ABCDE]) = Cadenza([C]) Or [C] = 90").Riuscito());
    QCOMPARE(modello.Vertice(1)->Caption, std::string("ABCDE"));
    QCOMPARE(modello.Vertice(2)->Caption, std::string("Perù1"));

    const auto file = cartella / "figura.dat";
    QVERIFY(modello.Salva(file).Riuscito());
    QVERIFY(!modello.Modificata());

    StruttureModello riletto;
    riletto.Nuova(300);
    QVERIFY(riletto.Apri(file, 300).Riuscito());
    QVERIFY(riletto.Struttura() == modello.Struttura());
    QCOMPARE(riletto.File(), file);
    QVERIFY(!riletto.Modificata());
    for (const figures::ClsVertice& vertice : riletto.Vertici())
      QCOMPARE(riletto.Griglia().EstrazioneDellaRiga(vertice.Riga), vertice.IdEstrazione);
  }

  void ABadFileLeavesTheEditorEmpty() {
    test::CartellaTemporanea cartella;
    const auto file = cartella / "rotto.dat";
    std::ofstream(file) << "non una struttura";
    StruttureModello modello;
    modello.Nuova(10);
    modello.AggiungiVertice(2, 2);
    QVERIFY(modello.AggiungiCondizione("[A] = 1").Riuscito());
    auto aperto = modello.Apri(file, 10);
    QVERIFY(!aperto.Riuscito());
    QVERIFY(aperto.Errore().testo.starts_with("File " + file.string() + " non valido: "));
    QVERIFY(modello.Vertici().empty());
    QVERIFY(modello.Condizioni().empty());
    QVERIFY(modello.File().empty());
    QVERIFY(!modello.Modificata());
  }

  void TheDialogsFormsGiveTextsThatCompile() {
    const std::vector<figures::ClsVertice> vertici{Vertice(1, "A"), Vertice(2, "B"), Vertice(3, "")};
    for (const FormaCondizione& forma : FormeCondizione()) {
      for (bool negata : {false, true}) {
        const std::string testo = ComponiCondizione(forma, "[A]", "[3]", 12, negata);
        const auto errore = VerificaCondizione(testo, vertici);
        QVERIFY2(!errore, (testo + ": " + (errore ? errore->messaggio : "")).c_str());
      }
    }
    QCOMPARE(ComponiCondizione(FormeCondizione()[1], "[A]", "[B]", 0, false), std::string("[A] + 1 = [B]"));
    const auto diff =
        std::find_if(FormeCondizione().begin(), FormeCondizione().end(),
                     [](const FormaCondizione& forma) { return forma.modello.starts_with("DiffCiclometrica"); });
    QCOMPARE(ComponiCondizione(*diff, "[B]", "[A]", 45, true), std::string("Not DiffCiclometrica([B], [A]) = 45"));

    QCOMPARE(AccodaCondizione("  ", "Or", "[A] = 3"), std::string("[A] = 3"));
    const std::string unite = AccodaCondizione("[A] = [B] ", "Or", "[A] - 1 = [B]");
    QCOMPARE(unite, std::string("[A] = [B] Or [A] - 1 = [B]"));
    QVERIFY(!VerificaCondizione(unite, vertici));
  }

  void VerticesAreNamedByCaptionWhenTheCaptionCanNameThem() {
    const std::vector<figures::ClsVertice> vertici{Vertice(1, "A"), Vertice(2, "a"), Vertice(3, ""), Vertice(4, "x]"),
                                                   Vertice(5, " C ")};
    QCOMPARE(RiferimentoVertice(vertici[0], vertici), std::string("[A]"));
    QCOMPARE(RiferimentoVertice(vertici[1], vertici), std::string("[2]"));  // [a] would name A
    QCOMPARE(RiferimentoVertice(vertici[2], vertici), std::string("[3]"));
    QCOMPARE(RiferimentoVertice(vertici[3], vertici), std::string("[4]"));
    QCOMPARE(RiferimentoVertice(vertici[4], vertici), std::string("[C]"));
  }

  void ABadTextIsRefusedSayingWhere() {
    const std::vector<figures::ClsVertice> vertici{Vertice(1, "A"), Vertice(2, "B")};
    auto errore = VerificaCondizione("[A] = [Q]", vertici);
    QVERIFY(errore);
    QVERIFY(errore->messaggio.starts_with("Errore di sintassi"));
    QCOMPARE(errore->colonna, size_t{7});
    errore = VerificaCondizione("Cadenza([A]) = = 3", vertici);
    QVERIFY(errore);
    QCOMPARE(errore->colonna, size_t{16});

    F_InsCondizione dialogo(vertici, "  [A] = [B]  ");
    dialogo.accept();
    QCOMPARE(dialogo.result(), int(QDialog::Accepted));
    QCOMPARE(dialogo.Testo(), QString("[A] = [B]"));
  }

  void TheSearchFindsTheFiguresCountedByHand() {
    const TabellaEstrazioni tab = SeiEstrazioni();
    const std::atomic<bool> mai = false;
    RichiestaRicerca richiesta = SetteEVicino();

    // On every wheel B may fall on the next wheel's first column: draws 2 (Cagliari), 3 and 4 too.
    auto tutte = CercaStruttura(tab, richiesta, {}, mai);
    QVERIFY(tutte.Riuscito());
    QCOMPARE(Estrazioni(*tutte), (std::vector<int>{1, 2, 3, 4, 6}));
    QCOMPARE(DescriviFigura(tab, tutte->trovate, tutte->trovate.elenco[1]).ruote, std::string("CA"));
    QCOMPARE(DescriviFigura(tab, tutte->trovate, tutte->trovate.elenco[1]).numeri, std::string("07 01"));
    QCOMPARE(DescriviFigura(tab, tutte->trovate, tutte->trovate.elenco[2]).ruote, std::string("BA,CA"));
    QCOMPARE(DescriviFigura(tab, tutte->trovate, tutte->trovate.elenco[2]).numeri, std::string("07 81"));

    richiesta.ruote = {BA};
    auto bari = CercaStruttura(tab, richiesta, {}, mai);
    QVERIFY(bari.Riuscito());
    QCOMPARE(Estrazioni(*bari), (std::vector<int>{1, 6}));
    QVERIFY(!bari->interrotta);
    QVERIFY(bari->statistica);
    // Draw 1's 7 comes back on Bari at draw 3, the second colpo; nothing follows draw 6.
    QCOMPARE(bari->statistica->per_sorte[1], 1);
    QCOMPARE(bari->statistica->in_corso, 1);
    QCOMPARE(bari->statistica->negativi, 0);
    QCOMPARE(bari->statistica->ritardo, 0);
    QCOMPARE(bari->statistica->ritardo_massimo, 4);

    richiesta.fine = 5;
    auto fino_a_cinque = CercaStruttura(tab, richiesta, {}, mai);
    QVERIFY(fino_a_cinque.Riuscito());
    QCOMPARE(Estrazioni(*fino_a_cinque), std::vector<int>{1});
    QCOMPARE(fino_a_cinque->statistica->ritardo, 4);
  }

  void AStopAskedDuringTheSearchEndsIt() {
    const TabellaEstrazioni tab = SeiEstrazioni();
    std::atomic<bool> ferma = false;
    std::vector<double> quote;
    auto risultato = CercaStruttura(
        tab, SetteEVicino(),
        [&](double quota) {
          quote.push_back(quota);
          ferma = true;
        },
        ferma);
    QVERIFY(risultato.Riuscito());
    QVERIFY(risultato->interrotta);
    QVERIFY(risultato->trovate.elenco.empty());  // stopped before the first draw
    QVERIFY(!risultato->statistica);
    QCOMPARE(quote, std::vector<double>{0.0});  // the end of a search cut short is not shown as done

    // On a longer archive, stopped at the second notice: what the share of the draws searched by then
    // gave is kept.
    const TabellaEstrazioni lunga = test::ArchivioCasuale(1000, 20, 7);
    RichiestaRicerca tre;
    tre.struttura = {{Vertice(1, "A")}, {}, {"[A] = 3"}};
    ferma = false;
    auto tutte = CercaStruttura(lunga, tre, {}, ferma);
    int avvisi = 0;
    double cercate = 0;
    auto prime = CercaStruttura(
        lunga, tre,
        [&](double quota) {
          cercate = quota * lunga.EstrazioniArchivio();
          ferma = ++avvisi == 2;
        },
        ferma);
    QVERIFY(tutte.Riuscito() && prime.Riuscito());
    QVERIFY(prime->interrotta);
    std::vector<int> attese = Estrazioni(*tutte);
    std::erase_if(attese, [&](int estrazione) { return estrazione > std::lround(cercate); });
    QVERIFY(!attese.empty() && attese.size() < tutte->trovate.elenco.size());
    QCOMPARE(Estrazioni(*prime), attese);

    auto errata = SetteEVicino();
    errata.struttura.condizioni.push_back("[A] = = 1");
    auto rifiutata = CercaStruttura(tab, errata, {}, ferma);
    QVERIFY(!rifiutata.Riuscito());
    QVERIFY(rifiutata.Errore().testo.starts_with("Errore di sintassi"));
  }

  // A "fine" in a text would end its section of the file and lose what follows: refused when typed,
  // as are texts longer than the file keeps and characters it cannot write.
  void TextsTheFileCouldNotKeepAreRefusedWhenTyped() {
    StruttureModello modello;
    modello.Nuova(20);
    modello.AggiungiVertice(5, 1);
    for (const char* caption : {"fine", "xFiNe", "FINE", "中"}) {
      auto impostata = modello.ImpostaCaption(1, caption);
      QVERIFY2(!impostata.Riuscito(), caption);
      QVERIFY(impostata.Errore().testo.starts_with("L'etichetta del vertice"));
    }
    QVERIFY(modello.ImpostaCaption(1, "fine").Errore().testo.find("\"fine\" chiude la sezione") != std::string::npos);
    QCOMPARE(modello.Vertice(1)->Caption, std::string("A"));
    QVERIFY(modello.ImpostaCaption(1, "Fin").Riuscito());
    QVERIFY(modello.ImpostaCaption(1, "Città").Riuscito());
    QVERIFY(modello.ImpostaCaption(1, "€uro").Riuscito());

    QVERIFY(modello.AggiungiCondizione("[1] = 5").Riuscito());
    auto aggiunta = modello.AggiungiCondizione("[1] = [Fine]");
    QVERIFY(!aggiunta.Riuscito());
    QVERIFY(aggiunta.Errore().testo.find("fine") != std::string::npos);
    aggiunta = modello.AggiungiCondizione("[1] = 1 Or " + std::string(490, '1'));
    QVERIFY(!aggiunta.Riuscito());
    QVERIFY(aggiunta.Errore().testo.find("è lunga 501 caratteri") != std::string::npos);
    QVERIFY(!modello.ModificaCondizione(0, "[1] = 1 Or [SfInE] = 2").Riuscito());
    QCOMPARE(modello.Condizioni(), std::vector<std::string>{"[1] = 5"});

    const std::vector<figures::ClsVertice> vertici{Vertice(1, "A"), Vertice(2, "Fin")};
    auto errore = VerificaCondizione("[A] = 1 Or [FinE] = 2", vertici);
    QVERIFY(errore);
    QCOMPARE(errore->colonna, size_t{13});
    QVERIFY(!VerificaCondizione("[A] = 1 Or [Fin] = 2", vertici));
    F_InsCondizione dialogo(vertici, "[A] = [fine]");
    const QString messaggio = TestoDelMessaggio([&] { dialogo.accept(); });
    QVERIFY(messaggio.contains("\"fine\""));
    QVERIFY(messaggio.contains("(colonna 8)"));
    QVERIFY(dialogo.result() != QDialog::Accepted);
  }

  // In the window: the caption typed key by key is refused at the key that makes "fine", with the
  // message, and the field shows the caption kept.
  void TheWindowSaysWhyACaptionIsRefused() {
    test::CartellaTemporanea cartella;
    ContestoGui contesto(app::Configurazione{cartella.Percorso(), {}});
    F_EditorStrutture editor(contesto);
    auto* scena = qobject_cast<GrigliaScena*>(editor.findChild<QGraphicsView*>()->scene());
    QVERIFY(scena);
    emit scena->CellaCliccata(5, 3);
    auto* etichetta = editor.findChild<QLineEdit*>("etichetta");
    QVERIFY(etichetta && etichetta->isEnabled());
    QCOMPARE(etichetta->text(), QString("A"));
    etichetta->setCursorPosition(1);
    const QString messaggio = TestoDelMessaggio([&] { QTest::keyClicks(etichetta, "fine"); });
    QVERIFY(messaggio.startsWith("L'etichetta del vertice non può contenere la parola \"fine\""));
    QCOMPARE(etichetta->text(), QString("Afin"));
  }

  void TheEditorKeepsWithinTheLimits() {
    StruttureModello modello;
    modello.Nuova(50);
    for (int k = 0; k < static_cast<int>(figures::kMassimoVertici); ++k)
      QVERIFY(modello.AggiungiVertice(1 + k / 55, 1 + k % 55) != 0);
    QCOMPARE(modello.AggiungiVertice(12, 55), int16_t{0});
    QCOMPARE(modello.VerticeNonAmmesso(12).value_or(""), std::string("La struttura ha già 100 vertici, il massimo."));

    size_t linee = 0;
    for (int16_t a = 1; a <= 50 && linee < figures::kMassimoLinee; ++a)
      for (int16_t b = static_cast<int16_t>(a + 1); b <= 50 && linee < figures::kMassimoLinee; ++b, ++linee)
        QVERIFY(modello.Unisci(a, b));
    QVERIFY(!modello.Unisci(99, 100));
    QCOMPARE(modello.LineaNonAmmessa().value_or(""), std::string("La struttura ha già 1000 linee, il massimo."));

    for (size_t k = 0; k < figures::kMassimoCondizioni; ++k) QVERIFY(modello.AggiungiCondizione("[1] = 1").Riuscito());
    QVERIFY(modello.CondizioneNonAmmessa());
    QCOMPARE(modello.AggiungiCondizione("[1] = 2").Errore().testo,
             std::string("La struttura ha già 100 condizioni, il massimo."));

    // A structure loaded far above the grid's rows: a vertex below would stretch it too far.
    modello.Carica({{{.Index = 1, .Riga = -190, .Colonna = 1, .Caption = "A"}}, {}, {}}, 50);
    QVERIFY(modello.VerticeNonAmmesso(12));
    QCOMPARE(modello.AggiungiVertice(12, 1), int16_t{0});
    QVERIFY(modello.AggiungiVertice(-100, 1) != 0);
    QVERIFY(figures::DecodificaStruttura(figures::CodificaStruttura(modello.Struttura())));
  }

  // A caption or condition with "fine" read from an old file is not written again until corrected.
  void AnOldTextWithFineIsNotSavedAgain() {
    test::CartellaTemporanea cartella;
    StruttureModello modello;
    modello.Carica({{Vertice(1, "A", 1, 1), Vertice(2, "Fine", 1, 2)}, {}, {}}, 10);
    auto salvata = modello.Salva(cartella / "vecchia.dat");
    QVERIFY(!salvata.Riuscito());
    QVERIFY(salvata.Errore().testo.starts_with("L'etichetta del vertice 2 non può contenere la parola \"fine\""));
    QVERIFY(salvata.Errore().testo.ends_with("Correggerla prima di salvare."));
    QVERIFY(modello.ImpostaCaption(2, "B").Riuscito());
    modello.Carica({{Vertice(1, "A", 1, 1)}, {}, {"[A] = 1", "[A] = 2 Or FINE"}}, 10);
    QVERIFY(modello.Salva(cartella / "vecchia.dat").Errore().testo.starts_with("La condizione 2 non può"));
    QVERIFY(!std::filesystem::exists(cartella / "vecchia.dat"));
    QVERIFY(modello.ModificaCondizione(1, "[A] = 2").Riuscito());
    QVERIFY(modello.Salva(cartella / "vecchia.dat").Riuscito());
  }

  // Typing the archive's name in the Save dialog once replaced the archive with a structure.
  void SavingNeverReplacesAnArchiveOrAFileThatIsNoStructure() {
    test::CartellaTemporanea cartella;
    const auto base = cartella.Percorso();
    app::Configurazione configurazione{base, {}};
    QCOMPARE(CartellaStrutture(configurazione), base / "Strutture");
    configurazione.ini.Scrivi(app::kSezioneGenerale, "sCartellaStrutture", "Figure");
    QCOMPARE(CartellaStrutture(configurazione), base / "Figure");

    const figures::Struttura struttura{{Vertice(1, "A", 1, 1)}, {}, {}};
    std::ofstream(base / "testo.dat") << "appunti";
    std::filesystem::create_directory(base / "cartella.dat");
    QVERIFY(figures::SalvaStruttura(base / "vecchia.dat", struttura));
    auto ammessa = [&](const std::filesystem::path& file) { return DestinazioneAmmessa(file, configurazione); };

    // The archives, whether or not they exist yet.
    QVERIFY(ammessa(base / "BaseDati.dat").Errore().testo.find("è l'archivio delle estrazioni") != std::string::npos);
    std::ofstream(base / "BaseDati.dat") << std::string(478, 'x');
    QVERIFY(!ammessa(base / "BaseDati.dat").Riuscito());
    QVERIFY(!ammessa(base / "." / "basedati.dat").Riuscito());
    QCOMPARE(ammessa(base / "testo.dat").Errore().testo,
             "Il file " + (base / "testo.dat").string() +
                 " esiste e non è una struttura: non viene sostituito. Scegliere un altro nome.");
    QVERIFY(!ammessa(base / "cartella.dat").Riuscito());
    QVERIFY(ammessa(base / "vecchia.dat").Riuscito());
    // A structure beyond today's limits is still a structure file: a new one may take its place.
    figures::Struttura enorme;
    for (int16_t k = 1; k <= 150; ++k) enorme.vertici.push_back(Vertice(k, "", 1, 1));
    std::ofstream(base / "enorme.dat", std::ios::binary) << figures::CodificaStruttura(enorme);
    QVERIFY(!figures::CaricaStruttura(base / "enorme.dat").Riuscito());
    QVERIFY(ammessa(base / "enorme.dat").Riuscito());
    QVERIFY(ammessa(base / "Figure" / "BaseDati.dat").Riuscito());
    QCOMPARE(std::filesystem::file_size(base / "BaseDati.dat"), std::uintmax_t{478});
  }
};

}  // namespace lottolab::gui

QTEST_MAIN(lottolab::gui::EditorStruttureTest)
#include "EditorStruttureTest.moc"
