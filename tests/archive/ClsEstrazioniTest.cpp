#include <gtest/gtest.h>

#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "archive/ImportaRisultati.h"

namespace lottolab {
namespace {

using test::CartellaTemporanea;
using test::LeggiByte;
using test::ScriviByte;

// Draw `id` of 12/03/2024, Bari from `bari_primo` on (no Bari when 0), Nazionale 86..90.
Estrazione Draw(int id, int bari_primo) {
  Estrazione e;
  e.id_estr = id;
  e.data = {static_cast<int16_t>(id), 12, 3, 2024};
  for (int p = 1; p <= kNumeriPerRuota && bari_primo != 0; ++p) e.ImpostaNumero(BA, p, (bari_primo + p - 2) % 90 + 1);
  for (int p = 1; p <= kNumeriPerRuota; ++p) e.ImpostaNumero(NZ, p, 85 + p);
  return e;
}

TEST(RecordSuDisco, CampiLittleEndianSenzaRiempimento) {
  Estrazione e;
  e.id_estr = 0x01020304;
  e.data = {-2, 31, 12, 2026};
  e.ImpostaNumero(BA, 1, 53);
  e.ImpostaNumero(BA, 5, 7);
  e.ImpostaNumero(NZ, 5, 90);
  unsigned char b[kByteRecordArchivio];
  CodificaRecord(e, b);

  const unsigned char attesi_intestazione[12] = {0x04, 0x03, 0x02, 0x01, 0xFE, 0xFF, 31, 0, 12, 0, 0xEA, 0x07};
  EXPECT_TRUE(std::equal(std::begin(attesi_intestazione), std::end(attesi_intestazione), b));
  EXPECT_EQ(b[12], 53);
  EXPECT_EQ(b[16], 7);
  EXPECT_EQ(b[12 + 54], 90);
  EXPECT_EQ(DecodificaRecord(b), e);
}

TEST(GetNumeroEstrazioni, QuozienteArrotondatoDellaLunghezza) {
  CartellaTemporanea cartella;
  ClsEstrazioni archivio(cartella / "BaseDati.dat");
  EXPECT_EQ(*archivio.GetNumeroEstrazioni(), 0) << "a missing archive holds no draws";

  struct Caso {
    size_t byte;
    int estrazioni;
  };
  for (Caso caso :
       {Caso{0, 0}, Caso{67, 1}, Caso{100 * 67 + 40, 101}, Caso{100 * 67 + 20, 100}, Caso{33, 0}, Caso{34, 1}}) {
    ScriviByte(archivio.Archivio(), std::vector<unsigned char>(caso.byte, 1));
    EXPECT_EQ(*archivio.GetNumeroEstrazioni(), caso.estrazioni) << caso.byte << " bytes";
    EXPECT_EQ(*ClsEstrazioni(cartella / "altro.dat").GetNumeroEstrazioni(archivio.Archivio()), caso.estrazioni);
  }
}

TEST(CaricaEstrazioni, LeggeTuttoERecordTroncatoComeZeriConUnAvviso) {
  CartellaTemporanea cartella;
  ClsEstrazioni archivio(cartella / "BaseDati.dat");

  auto mancante = archivio.CaricaEstrazioni();
  ASSERT_FALSE(mancante);
  EXPECT_EQ(mancante.Errore().tipo, TipoAvviso::Esclamativo);
  EXPECT_EQ(mancante.Errore().testo,
            "Non esiste il file relativo alla base dati originale \n" + archivio.Archivio().string());

  ASSERT_TRUE(archivio.SalvaFileEstrazioni({Draw(1, 11), Draw(2, 22)}));
  auto byte = LeggiByte(archivio.Archivio());
  byte.resize(byte.size() + 40, 0);
  byte[2 * 67 + 12] = 33;  // the stray bytes reach Bari's first number
  ScriviByte(archivio.Archivio(), byte);

  auto tabella = archivio.CaricaEstrazioni();
  ASSERT_TRUE(tabella);
  ASSERT_EQ(tabella->EstrazioniArchivio(), 3);
  EXPECT_EQ(tabella->Tutte()[0], Draw(1, 11));
  EXPECT_EQ(tabella->Tutte()[1], Draw(2, 22));
  EXPECT_EQ((*tabella)[3].Numero(BA, 1), 33);
  EXPECT_EQ((*tabella)[3].Numero(NZ, 5), 0);

  auto caricate = archivio.CaricaEControlla();
  ASSERT_TRUE(caricate);
  EXPECT_EQ(caricate->rapporto.byte_sparsi, 40);
  EXPECT_EQ(caricate->rapporto.record_non_validi, 0) << "the partial record is told by the stray bytes alone";
  EXPECT_EQ(caricate->rapporto.Avvisi().size(), 1u);
}

TEST(LeggiEstrazione, LasciaIntattoIlRecordFuoriDalFile) {
  CartellaTemporanea cartella;
  ClsEstrazioni archivio(cartella / "BaseDati.dat");
  Estrazione record = Draw(9, 9);
  ASSERT_TRUE(archivio.LeggiEstrazione(1, record));
  EXPECT_EQ(record, Draw(9, 9)) << "missing file";

  ASSERT_TRUE(archivio.SalvaFileEstrazioni({Draw(1, 11), Draw(2, 22)}));
  ASSERT_TRUE(archivio.LeggiEstrazione(2, record));
  EXPECT_EQ(record, Draw(2, 22));
  ASSERT_TRUE(archivio.LeggiEstrazione(3, record));
  EXPECT_EQ(record, Draw(2, 22)) << "past the end";
}

TEST(ScriviEstrazione, AccodaSovrascriveORifiuta) {
  CartellaTemporanea cartella;
  ClsEstrazioni archivio(cartella / "BaseDati.dat");

  EXPECT_TRUE(*archivio.ScriviEstrazione(Draw(1, 11), 1)) << "k = 1 on a missing file appends";
  EXPECT_TRUE(*archivio.ScriviEstrazione(Draw(2, 22), 0)) << "k = 0 appends";
  EXPECT_TRUE(*archivio.ScriviEstrazione(Draw(3, 33), 3)) << "k = count + 1 appends";
  EXPECT_TRUE(*archivio.ScriviEstrazione(Draw(2, 44), 2)) << "1 <= k <= count overwrites";
  EXPECT_FALSE(*archivio.ScriviEstrazione(Draw(9, 99), -1)) << "k < 0 writes nothing, silently";

  auto oltre = archivio.ScriviEstrazione(Draw(5, 55), 5);
  ASSERT_FALSE(oltre);
  EXPECT_EQ(oltre.Errore().testo,
            "Id estrazione non consecutivo. \nL'id della nuova estrazione che si sta scrivendo deve essere compreso "
            "tra 1 e il NumeroEstrazioniArchiviate + 1 !");

  auto tabella = archivio.CaricaEstrazioni();
  ASSERT_TRUE(tabella);
  ASSERT_EQ(tabella->EstrazioniArchivio(), 3);
  EXPECT_EQ((*tabella)[1], Draw(1, 11));
  EXPECT_EQ((*tabella)[2], Draw(2, 44));
  EXPECT_EQ((*tabella)[3], Draw(3, 33));
  EXPECT_EQ(LeggiByte(archivio.Archivio()).size(), 3u * 67);
}

TEST(SalvaFileEstrazioni, AccodaSoloIRecordConUnaEstrazione) {
  CartellaTemporanea cartella;
  ClsEstrazioni archivio(cartella / "BaseDati.dat");
  ASSERT_TRUE(archivio.SalvaFileEstrazioni({Draw(1, 11)}));
  auto prima = LeggiByte(archivio.Archivio());

  ASSERT_TRUE(archivio.SalvaFileEstrazioni({Draw(2, 0), Draw(3, 0)}));
  EXPECT_EQ(LeggiByte(archivio.Archivio()), prima) << "records without Bari leave the file unchanged";

  ASSERT_TRUE(archivio.SalvaFileEstrazioni({Draw(2, 0), Draw(2, 22), Draw(3, 33)}));
  auto tabella = archivio.CaricaEstrazioni();
  ASSERT_EQ(tabella->EstrazioniArchivio(), 3);
  EXPECT_EQ((*tabella)[1], Draw(1, 11));
  EXPECT_EQ((*tabella)[3], Draw(3, 33));
}

TEST(Scritture, RifiutanoUnArchivioDallaLunghezzaNonIntera) {
  CartellaTemporanea cartella;
  ClsEstrazioni archivio(cartella / "BaseDati.dat");
  ASSERT_TRUE(archivio.SalvaFileEstrazioni({Draw(1, 11), Draw(2, 22)}));
  auto byte = LeggiByte(archivio.Archivio());
  byte.resize(byte.size() - 40);
  ScriviByte(archivio.Archivio(), byte);
  std::ofstream(cartella / "risultati.txt") << "2024/03/13\tBA\t1\t2\t3\t4\t5\n";

  const std::string atteso =
      "L'archivio " + archivio.Archivio().string() +
      " ha 27 byte oltre l'ultima estrazione intera (la sua lunghezza non è un multiplo di 67): "
      "non vi si aggiunge nulla, perché ogni estrazione aggiunta sarebbe letta spostata. Per "
      "ripararlo: lottolab ripara, che ne fa prima una copia e poi toglie l'estrazione incompleta.";
  auto salvato = archivio.SalvaFileEstrazioni({Draw(2, 33)});
  ASSERT_FALSE(salvato);
  EXPECT_EQ(salvato.Errore().testo, atteso);
  auto scritto = archivio.ScriviEstrazione(Draw(1, 44), 1);
  ASSERT_FALSE(scritto);
  EXPECT_EQ(scritto.Errore().testo, atteso);
  auto importato = ImportaRisultati(archivio, cartella / "risultati.txt");
  ASSERT_FALSE(importato);
  EXPECT_EQ(importato.Errore().testo, atteso);
  EXPECT_EQ(LeggiByte(archivio.Archivio()), byte);
}

TEST(Scritture, TengonoIPermessiERifiutanoUnArchivioDiSolaLettura) {
  CartellaTemporanea cartella;
  ClsEstrazioni archivio(cartella / "BaseDati.dat");
  ASSERT_TRUE(archivio.SalvaFileEstrazioni({Draw(1, 11)}));
  ASSERT_EQ(chmod(archivio.Archivio().c_str(), 0640), 0);
  ASSERT_TRUE(archivio.ScriviEstrazione(Draw(2, 22), 2));
  struct stat stato {};
  ASSERT_EQ(stat(archivio.Archivio().c_str(), &stato), 0);
  EXPECT_EQ(stato.st_mode & 0777, 0640u);

  if (geteuid() == 0) GTEST_SKIP() << "root may write a read-only file";
  ASSERT_EQ(chmod(archivio.Archivio().c_str(), 0440), 0);
  auto scritto = archivio.ScriviEstrazione(Draw(3, 33), 3);
  ASSERT_FALSE(scritto);
  EXPECT_EQ(scritto.Errore().testo,
            "L'archivio " + archivio.Archivio().string() + " è di sola lettura: non vi si può scrivere.");
}

// Paths that are not regular files, given as the archive or as the results file: every entry point
// answers with a message, at once.
TEST(PercorsiCheNonSonoFile, DannoUnMessaggioSenzaBloccarsi) {
  CartellaTemporanea cartella;
  const auto fifo = cartella / "fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  std::ofstream(cartella / "risultati.txt") << "2024/03/13\tBA\t1\t2\t3\t4\t5\n";
  struct Caso {
    std::filesystem::path percorso;
    std::string tipo;
  };
  for (const Caso& caso :
       {Caso{cartella.Percorso(), "è una cartella"}, Caso{"/dev/zero", "è una periferica"}, Caso{fifo, "è una pipe"}}) {
    const std::string atteso = caso.percorso.string() + " " + caso.tipo + ": serve un file ordinario";
    ClsEstrazioni archivio(caso.percorso);
    auto caricato = archivio.CaricaEstrazioni();
    ASSERT_FALSE(caricato);
    EXPECT_EQ(caricato.Errore().testo, atteso);
    auto importato = ImportaRisultati(archivio, cartella / "risultati.txt");
    ASSERT_FALSE(importato);
    EXPECT_EQ(importato.Errore().testo, atteso);
    EXPECT_FALSE(archivio.GetNumeroEstrazioni());
    Estrazione record;
    EXPECT_FALSE(archivio.LeggiEstrazione(1, record));

    ClsEstrazioni vero(cartella / "BaseDati.dat");
    auto risultati = ImportaRisultati(vero, caso.percorso);
    ASSERT_FALSE(risultati);
    EXPECT_EQ(risultati.Errore().testo, atteso);
  }

  ClsEstrazioni lunghissimo(cartella / std::string(5000, 'a'));
  auto caricato = lunghissimo.CaricaEstrazioni();
  ASSERT_FALSE(caricato);
  EXPECT_TRUE(caricato.Errore().testo.ends_with("nome del file troppo lungo")) << caricato.Errore().testo;
  EXPECT_FALSE(ImportaRisultati(lunghissimo, cartella / "risultati.txt"));
}

}  // namespace
}  // namespace lottolab
