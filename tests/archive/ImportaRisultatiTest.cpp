#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <fmt/format.h>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>
#include <zip.h>

#include "DatiReali.h"
#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "archive/DateEstrazione.h"
#include "archive/ImportaRisultati.h"

namespace lottolab {
namespace {

namespace fs = std::filesystem;

using test::CartellaTemporanea;

void ScriviFile(const fs::path& file, std::string_view contenuto) {
  std::ofstream out(file, std::ios::binary);
  out.write(contenuto.data(), static_cast<std::streamsize>(contenuto.size()));
}

std::string LeggiFile(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

std::vector<Estrazione> Leggi(std::string_view testo, const TabellaEstrazioni& archivio = {}) {
  auto esito = LeggiNuoveEstrazioni(archivio, testo);
  EXPECT_TRUE(esito.Riuscito()) << (esito ? "" : esito.Errore().testo);
  return esito ? *esito : std::vector<Estrazione>{};
}

std::string Errore(std::string_view testo, const TabellaEstrazioni& archivio = {}) {
  auto esito = LeggiNuoveEstrazioni(archivio, testo);
  if (esito) return "(nessun errore)";
  EXPECT_EQ(esito.Errore().tipo, TipoAvviso::Esclamativo);
  return esito.Errore().testo;
}

std::vector<int> NumeriRuota(const Estrazione& e, int ruota) {
  std::vector<int> numeri;
  for (int p = 1; p <= kNumeriPerRuota; ++p) numeri.push_back(e.Numero(ruota, p));
  return numeri;
}

// Entries of a zip written with libzip, in the given order.
void ScriviZip(const fs::path& file, const std::vector<std::pair<std::string, std::string>>& voci) {
  int codice = 0;
  zip_t* archivio = zip_open(file.string().c_str(), ZIP_CREATE | ZIP_TRUNCATE, &codice);
  ASSERT_NE(archivio, nullptr) << "libzip error " << codice;
  for (const auto& [nome, contenuto] : voci) {
    zip_source_t* sorgente = zip_source_buffer(archivio, contenuto.data(), contenuto.size(), 0);
    ASSERT_NE(sorgente, nullptr);
    ASSERT_GE(zip_file_add(archivio, nome.c_str(), sorgente, ZIP_FL_ENC_UTF_8), 0) << zip_strerror(archivio);
  }
  ASSERT_EQ(zip_close(archivio), 0);
}

constexpr std::string_view kDueEstrazioni =
    "2024/01/02\tBA\t5\t90\t1\t33\t47\n"
    "2024/01/02\tRM\t10\t20\t30\t40\t50\n"
    "2024/01/02\tRN\t11\t21\t31\t41\t51\n"
    "2024/01/04\tBA\t7\t8\t9\t10\t11\n";

TEST(LeggiNuoveEstrazioni, BuildsOneDrawPerBariDateWithNumbersInDrawnOrder) {
  auto estrazioni = Leggi(kDueEstrazioni);
  ASSERT_EQ(estrazioni.size(), 2u);

  const Estrazione& prima = estrazioni[0];
  EXPECT_EQ(prima.id_estr, 1);
  EXPECT_EQ(prima.data, (GruppoData{1, 2, 1, 2024}));
  EXPECT_EQ(NumeriRuota(prima, BA), (std::vector<int>{5, 90, 1, 33, 47}));
  EXPECT_EQ(NumeriRuota(prima, RO), (std::vector<int>{10, 20, 30, 40, 50}));
  EXPECT_EQ(NumeriRuota(prima, NZ), (std::vector<int>{11, 21, 31, 41, 51}));
  EXPECT_EQ(NumeriRuota(prima, CA), (std::vector<int>{0, 0, 0, 0, 0}));

  EXPECT_EQ(estrazioni[1].id_estr, 2);
  EXPECT_EQ(estrazioni[1].data, (GruppoData{2, 4, 1, 2024}));
  EXPECT_FALSE(estrazioni[1].RuotaEstratta(RO));
}

TEST(LeggiNuoveEstrazioni, ToleratesBlanksCarriageReturnsAndTheTableCodes) {
  constexpr std::string_view kTollerato =
      "\xEF\xBB\xBF"
      "2024/01/02  BA 5  90\t1 33 47\r\n"
      "\r\n"
      "  2024/01/02\tro\t10\t20\t30\t40\t50  \r\n"
      "2024/01/02 NZ 11 21 31 41 51\r\n"
      "\t\n"
      "2024/01/04\tBA\t07\t8\t9\t10\t11";
  EXPECT_EQ(Leggi(kTollerato), Leggi(kDueEstrazioni));
  EXPECT_TRUE(Leggi("").empty());
}

TEST(LeggiNuoveEstrazioni, AnnualIndexRestartsEachYearAndContinuesTheArchive) {
  constexpr std::string_view kArchiviate =
      "2023/12/30\tBA\t1\t2\t3\t4\t5\n"
      "2024/02/27\tBA\t1\t2\t3\t4\t5\n"
      "2024/02/29\tBA\t1\t2\t3\t4\t5\n";
  TabellaEstrazioni archivio(Leggi(kArchiviate));
  ASSERT_EQ(archivio.EstrazioniArchivio(), 3);
  EXPECT_EQ(archivio[3].data.indice_annuale, 2);

  std::string aggiornato = std::string(kArchiviate) +
                           "2024/12/31\tBA\t1\t2\t3\t4\t5\n"
                           "2025/01/02\tBA\t1\t2\t3\t4\t5\n"
                           "2025/01/04\tBA\t1\t2\t3\t4\t5\n";
  auto nuove = Leggi(aggiornato, archivio);
  ASSERT_EQ(nuove.size(), 3u);
  EXPECT_EQ(nuove[0].id_estr, 4);
  EXPECT_EQ(nuove[0].data, (GruppoData{3, 31, 12, 2024}));
  EXPECT_EQ(nuove[1].id_estr, 5);
  EXPECT_EQ(nuove[1].data, (GruppoData{1, 2, 1, 2025}));
  EXPECT_EQ(nuove[2].data.indice_annuale, 2);
}

TEST(LeggiNuoveEstrazioni, WheelsDrawnOnAnotherDayJoinTheNearestDrawLackingThem) {
  // Roma two days early, Napoli one day late, as in 1962 and 1948.
  auto estrazioni = Leggi(
      "1962/06/02\tRM\t83\t5\t37\t11\t63\n"
      "1962/06/04\tBA\t73\t14\t75\t17\t9\n"
      "1962/06/04\tFI\t24\t60\t44\t51\t32\n"
      "1962/06/06\tNA\t63\t72\t76\t13\t77\n");
  ASSERT_EQ(estrazioni.size(), 1u);
  EXPECT_EQ(estrazioni[0].data, (GruppoData{1, 4, 6, 1962}));
  EXPECT_EQ(NumeriRuota(estrazioni[0], RO), (std::vector<int>{83, 5, 37, 11, 63}));
  EXPECT_EQ(NumeriRuota(estrazioni[0], NA), (std::vector<int>{63, 72, 76, 13, 77}));
  EXPECT_EQ(NumeriRuota(estrazioni[0], FI), (std::vector<int>{24, 60, 44, 51, 32}));

  // Genova on the 12th belongs to the 10th, which lacks it, not to the nearer 13th, which has its own.
  estrazioni = Leggi(
      "1962/12/10\tBA\t3\t18\t14\t4\t84\n"
      "1962/12/12\tGE\t72\t65\t20\t26\t55\n"
      "1962/12/13\tBA\t7\t1\t76\t21\t63\n"
      "1962/12/13\tGE\t44\t71\t21\t2\t35\n");
  ASSERT_EQ(estrazioni.size(), 2u);
  EXPECT_EQ(estrazioni[0].Numero(GE, 1), 72);
  EXPECT_EQ(estrazioni[1].Numero(GE, 1), 44);

  // When both neighbours lack the wheel, the nearer one takes it.
  estrazioni = Leggi(
      "2024/01/09\tBA\t1\t2\t3\t4\t5\n"
      "2024/01/11\tNA\t6\t7\t8\t9\t10\n"
      "2024/01/12\tBA\t1\t2\t3\t4\t5\n");
  ASSERT_EQ(estrazioni.size(), 2u);
  EXPECT_FALSE(estrazioni[0].RuotaEstratta(NA));
  EXPECT_EQ(estrazioni[1].Numero(NA, 1), 6);
  EXPECT_EQ(estrazioni[1].data.giorno, 12);
}

struct CasoErrore {
  const char* nome;
  const char* testo;
  const char* messaggio;
};

void PrintTo(const CasoErrore& caso, std::ostream* out) { *out << caso.nome; }

class ErroriDiLettura : public testing::TestWithParam<CasoErrore> {};

TEST_P(ErroriDiLettura, NameTheLineAndTheReason) { EXPECT_EQ(Errore(GetParam().testo), GetParam().messaggio); }

// Each text starts with a good line and a blank one, so the faulty line is line 3 unless noted.
#define BUONA "2024/01/02\tBA\t1\t2\t3\t4\t5\n\n"
INSTANTIATE_TEST_SUITE_P(
    LeggiNuoveEstrazioni, ErroriDiLettura,
    testing::Values(
        CasoErrore{"CampoMancante", BUONA "2024/01/02\tCA\t1\t2\t3\t4\n",
                   "Riga 3: attesi 7 campi (data, ruota e cinque numeri), trovati 6"},
        CasoErrore{"CampoInPiu", BUONA "2024/01/02\tCA\t1\t2\t3\t4\t5\t6\n",
                   "Riga 3: attesi 7 campi (data, ruota e cinque numeri), trovati 8"},
        CasoErrore{"MeseTredici", BUONA "2024/13/02\tCA\t1\t2\t3\t4\t5\n",
                   "Riga 3: data \"2024/13/02\" non valida, atteso il formato AAAA/MM/GG"},
        CasoErrore{"VentinoveFebbraioNonBisestile", BUONA "2023/02/29\tCA\t1\t2\t3\t4\t5\n",
                   "Riga 3: data \"2023/02/29\" non valida, atteso il formato AAAA/MM/GG"},
        CasoErrore{"PrimaDel1871", "1870/12/31\tBA\t1\t2\t3\t4\t5\n",
                   "Riga 1: la data 1870/12/31 è anteriore al 1871, anno della prima estrazione"},
        CasoErrore{"DataGiornoMeseAnno", "02/01/2024\tBA\t1\t2\t3\t4\t5\n",
                   "Riga 1: data \"02/01/2024\" non valida, atteso il formato AAAA/MM/GG"},
        CasoErrore{"RuotaSconosciuta", BUONA "2024/01/02\tXX\t1\t2\t3\t4\t5\n", "Riga 3: ruota \"XX\" sconosciuta"},
        CasoErrore{"TutteLeRuoteNonSonoUnaRuota", BUONA "2024/01/02\tTT\t1\t2\t3\t4\t5\n",
                   "Riga 3: ruota \"TT\" sconosciuta"},
        CasoErrore{"NumeroOltreNovanta", BUONA "2024/01/02\tCA\t1\t2\t95\t4\t5\n",
                   "Riga 3: numero 95 fuori dall'intervallo 1-90"},
        CasoErrore{"NumeroZero", BUONA "2024/01/02\tCA\t0\t2\t3\t4\t5\n",
                   "Riga 3: numero 0 fuori dall'intervallo 1-90"},
        CasoErrore{"NumeroNonIntero", BUONA "2024/01/02\tCA\t1\t2a\t3\t4\t5\n", "Riga 3: numero \"2a\" non valido"},
        CasoErrore{"NumeroNegativo", BUONA "2024/01/02\tCA\t1\t-2\t3\t4\t5\n", "Riga 3: numero \"-2\" non valido"},
        CasoErrore{"NumeroRipetuto", BUONA "2024/01/02\tCA\t17\t2\t3\t4\t17\n",
                   "Riga 3: numero 17 ripetuto sulla ruota di Cagliari"},
        CasoErrore{"RuotaRipetuta", BUONA "2024/01/02\tRO\t1\t2\t3\t4\t5\n2024/01/02\tRM\t1\t2\t3\t4\t5\n",
                   "Riga 4: la ruota di Roma compare più di una volta per il 02/01/2024"},
        CasoErrore{"DataAllIndietro", BUONA "2024/01/04\tBA\t1\t2\t3\t4\t5\n2024/01/03\tBA\t1\t2\t3\t4\t5\n",
                   "Riga 4: la data 03/01/2024 viene prima di quella delle righe precedenti (04/01/2024): "
                   "le date devono seguire in ordine crescente"},
        CasoErrore{"SenzaBariTroppoLontana", BUONA "2024/01/06\tCA\t1\t2\t3\t4\t5\n",
                   "Riga 3: il 06/01/2024 non ha la ruota di Bari e nessuna estrazione entro 3 giorni, prima o "
                   "dopo, è priva delle sue ruote per accoglierle"},
        CasoErrore{"SenzaBariConRuotaGiaEstratta",
                   "2024/01/02\tBA\t1\t2\t3\t4\t5\n2024/01/02\tCA\t1\t2\t3\t4\t5\n2024/01/03\tCA\t1\t2\t3\t4\t5\n",
                   "Riga 3: il 03/01/2024 non ha la ruota di Bari e nessuna estrazione entro 3 giorni, prima o "
                   "dopo, è priva delle sue ruote per accoglierle"},
        CasoErrore{"DueGiorniPerLaStessaRuotaMancante",
                   "2024/01/02\tBA\t1\t2\t3\t4\t5\n2024/01/03\tCA\t1\t2\t3\t4\t5\n2024/01/04\tCA\t1\t2\t3\t4\t5\n",
                   "Riga 3: il 04/01/2024 non ha la ruota di Bari e nessuna estrazione entro 3 giorni, prima o "
                   "dopo, è priva delle sue ruote per accoglierle"},
        CasoErrore{"SoloRuoteSenzaBari", "2024/01/02\tCA\t1\t2\t3\t4\t5\n",
                   "Riga 1: il 02/01/2024 non ha la ruota di Bari e nessuna estrazione entro 3 giorni, prima o "
                   "dopo, è priva delle sue ruote per accoglierle"}),
    [](const testing::TestParamInfo<CasoErrore>& info) { return info.param.nome; });
#undef BUONA

// The date `giorni` days after today, as the operator writes it.
std::string DataRisultati(int giorni) {
  const std::time_t quando = std::time(nullptr) + giorni * 86400;
  std::tm locale{};
  localtime_r(&quando, &locale);
  return fmt::format("{:04}/{:02}/{:02}", locale.tm_year + 1900, locale.tm_mon + 1, locale.tm_mday);
}

TEST(LeggiNuoveEstrazioni, RefusesDatesPastTomorrow) {
  const std::string oggi = FormattaData(DataOdierna());
  EXPECT_EQ(Leggi(DataRisultati(1) + "\tBA\t1\t2\t3\t4\t5\n").size(), 1u) << "a late-evening file may carry tomorrow";
  EXPECT_EQ(Errore(DataRisultati(0) + "\tBA\t1\t2\t3\t4\t5\n" + DataRisultati(2) + "\tBA\t1\t2\t3\t4\t5\n"),
            "Riga 2: la data " + DataRisultati(2) + " è nel futuro, oltre domani (oggi è il " + oggi +
                "): il file dei risultati non è attendibile");
  EXPECT_EQ(Errore("9999/12/31\tBA\t1\t2\t3\t4\t5\n"),
            "Riga 1: la data 9999/12/31 è nel futuro, oltre domani (oggi è il " + oggi +
                "): il file dei risultati non è attendibile");
}

TEST(LeggiNuoveEstrazioni, KeepsOnlyWhatTheArchiveLacksAndRefusesContradictions) {
  constexpr std::string_view kArchiviate =
      "2024/01/02\tBA\t1\t2\t3\t4\t5\n"
      "2024/01/02\tCA\t6\t7\t8\t9\t10\n"
      "2024/01/04\tBA\t11\t12\t13\t14\t15\n"
      "2024/01/06\tBA\t16\t17\t18\t19\t20\n";
  const TabellaEstrazioni archivio(Leggi(kArchiviate));

  EXPECT_TRUE(Leggi(kArchiviate, archivio).empty());
  // A file holding only the latest draws is as good as the whole history.
  auto nuove = Leggi("2024/01/06\tBA\t16\t17\t18\t19\t20\n2024/01/09\tBA\t21\t22\t23\t24\t25\n", archivio);
  ASSERT_EQ(nuove.size(), 1u);
  EXPECT_EQ(nuove[0].id_estr, 4);
  EXPECT_EQ(nuove[0].data, (GruppoData{4, 9, 1, 2024}));

  EXPECT_EQ(Errore("2024/01/02\tBA\t1\t2\t3\t4\t5\n"
                   "2024/01/02\tCA\t6\t7\t8\t10\t9\n",
                   archivio),
            "Riga 1: l'estrazione del 02/01/2024 è diversa da quella in archivio");
  EXPECT_EQ(Errore("2024/01/04\tBA\t11\t12\t13\t14\t15\n"
                   "2024/01/04\tFI\t11\t12\t13\t14\t15\n",
                   archivio),
            "Riga 1: l'estrazione del 04/01/2024 è diversa da quella in archivio");
  EXPECT_EQ(Errore("2024/01/04\tBA\t11\t12\t13\t14\t15\n"
                   "2024/01/05\tBA\t11\t12\t13\t14\t15\n"
                   "2024/01/09\tBA\t21\t22\t23\t24\t25\n",
                   archivio),
            "Riga 2: l'estrazione del 05/01/2024 non è in archivio, che arriva già al 06/01/2024");
  EXPECT_EQ(Errore("2023/12/30\tBA\t1\t2\t3\t4\t5\n", archivio),
            "Riga 1: l'estrazione del 30/12/2023 non è in archivio, che arriva già al 06/01/2024");
}

class ImportaRisultatiSuFile : public testing::Test {
 protected:
  CartellaTemporanea m_cartella;
  fs::path m_archivio = m_cartella / "basedati.dat";
  ClsEstrazioni m_file{m_archivio};
};

TEST_F(ImportaRisultatiSuFile, CreatesTheArchiveThenAppendsOnlyNewerDraws) {
  ScriviFile(m_cartella / "vecchio.txt", kDueEstrazioni);
  auto aggiunte = ImportaRisultati(m_file, m_cartella / "vecchio.txt");
  ASSERT_TRUE(aggiunte) << aggiunte.Errore().testo;
  EXPECT_EQ(*aggiunte, 2);
  EXPECT_EQ(fs::file_size(m_archivio), 2u * kByteRecordArchivio);

  aggiunte = ImportaRisultati(m_file, m_cartella / "vecchio.txt");
  ASSERT_TRUE(aggiunte);
  EXPECT_EQ(*aggiunte, 0);

  ScriviFile(m_cartella / "nuovo.txt", std::string(kDueEstrazioni) + "2024/01/06\tBA\t1\t2\t3\t4\t5\n");
  aggiunte = ImportaRisultati(m_file, m_cartella / "nuovo.txt");
  ASSERT_TRUE(aggiunte);
  EXPECT_EQ(*aggiunte, 1);

  auto tabella = m_file.CaricaEstrazioni();
  ASSERT_TRUE(tabella);
  ASSERT_EQ(tabella->EstrazioniArchivio(), 3);
  EXPECT_EQ((*tabella)[3].id_estr, 3);
  EXPECT_EQ((*tabella)[3].data, (GruppoData{3, 6, 1, 2024}));
  EXPECT_EQ(NumeriRuota((*tabella)[1], RO), (std::vector<int>{10, 20, 30, 40, 50}));
}

TEST_F(ImportaRisultatiSuFile, WritesNothingOnAnyError) {
  ScriviFile(m_cartella / "vecchio.txt", kDueEstrazioni);
  ASSERT_TRUE(ImportaRisultati(m_file, m_cartella / "vecchio.txt"));
  const std::string prima = LeggiFile(m_archivio);

  // The fault sits after a good new draw, which must not be written either.
  ScriviFile(m_cartella / "guasto.txt", std::string(kDueEstrazioni) +
                                            "2024/01/06\tBA\t1\t2\t3\t4\t5\n"
                                            "2024/01/09\tBA\t1\t2\t3\t4\t91\n");
  auto esito = ImportaRisultati(m_file, m_cartella / "guasto.txt");
  ASSERT_FALSE(esito);
  EXPECT_EQ(esito.Errore().testo, "Riga 6: numero 91 fuori dall'intervallo 1-90");
  EXPECT_EQ(LeggiFile(m_archivio), prima);

  esito = ImportaRisultati(m_file, m_cartella / "assente.txt");
  ASSERT_FALSE(esito);
  EXPECT_EQ(esito.Errore().tipo, TipoAvviso::Esclamativo);
  EXPECT_EQ(esito.Errore().testo,
            fmt::format("Non esiste il file dei risultati \n{}", (m_cartella / "assente.txt").string()));
  EXPECT_EQ(LeggiFile(m_archivio), prima);

  ClsEstrazioni nuovo(m_cartella / "nuovo.dat");
  ASSERT_FALSE(ImportaRisultati(nuovo, m_cartella / "guasto.txt"));
  EXPECT_FALSE(fs::exists(nuovo.Archivio()));
}

TEST_F(ImportaRisultatiSuFile, ReadsTheTextInsideAZip) {
  const TabellaEstrazioni vuoto;
  const fs::path zip = m_cartella / "risultati.zip";

  ScriviZip(zip, {{"leggimi.md", "non sono estrazioni"}, {"storico.TXT", std::string(kDueEstrazioni)}});
  auto estrazioni = LeggiNuoveEstrazioniDaFile(vuoto, zip);
  ASSERT_TRUE(estrazioni) << estrazioni.Errore().testo;
  EXPECT_EQ(*estrazioni, Leggi(kDueEstrazioni));

  // A zip is recognised by its content, whatever its name; its only entry is read whatever its own.
  const fs::path scaricato = m_cartella / "scaricato.bin";
  ScriviZip(scaricato, {{"estrazioni", std::string(kDueEstrazioni)}});
  estrazioni = LeggiNuoveEstrazioniDaFile(vuoto, scaricato);
  ASSERT_TRUE(estrazioni) << estrazioni.Errore().testo;
  EXPECT_EQ(estrazioni->size(), 2u);

  ScriviZip(zip, {{"a.md", "x"}, {"b.csv", "y"}});
  estrazioni = LeggiNuoveEstrazioniDaFile(vuoto, zip);
  ASSERT_FALSE(estrazioni);
  EXPECT_EQ(estrazioni.Errore().testo,
            fmt::format("Impossibile leggere l'archivio zip {}: non contiene un file di testo (.txt)", zip.string()));

  ScriviFile(zip, "PK\x03\x04 troncato");
  estrazioni = LeggiNuoveEstrazioniDaFile(vuoto, zip);
  ASSERT_FALSE(estrazioni);
  EXPECT_TRUE(estrazioni.Errore().testo.starts_with("Impossibile leggere l'archivio zip")) << estrazioni.Errore().testo;
}

uint32_t Crc32(std::string_view dati) {
  uint32_t crc = 0xFFFFFFFFu;
  for (unsigned char c : dati) {
    crc ^= c;
    for (int i = 0; i < 8; ++i) crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
  }
  return ~crc;
}

// A zip of one stored entry written byte by byte, so that its headers can claim sizes that its data
// does not have: `dichiarata` in both headers, `compressa` as the stored length.
std::string ZipAMano(std::string_view nome, std::string_view dati, uint32_t dichiarata, uint32_t compressa) {
  std::string zip;
  auto U16 = [&](uint32_t v) { zip += static_cast<char>(v & 0xFF), zip += static_cast<char>((v >> 8) & 0xFF); };
  auto U32 = [&](uint32_t v) { U16(v & 0xFFFF), U16(v >> 16); };
  const uint32_t crc = Crc32(dati);
  auto Comune = [&] {
    U16(20), U16(0), U16(0), U16(0), U16(0);  // version, flags, stored, time, date
    U32(crc), U32(compressa), U32(dichiarata), U16(static_cast<uint32_t>(nome.size())), U16(0);
  };
  U32(0x04034b50);
  Comune();
  zip += nome;
  zip += dati;
  const uint32_t directory = static_cast<uint32_t>(zip.size());
  U32(0x02014b50), U16(20);
  Comune();
  U16(0), U16(0), U16(0), U32(0), U32(0);  // comment, disk, attributes, offset of the local header
  zip += nome;
  const uint32_t lunghezza_directory = static_cast<uint32_t>(zip.size()) - directory;
  U32(0x06054b50), U16(0), U16(0), U16(1), U16(1), U32(lunghezza_directory), U32(directory), U16(0);
  return zip;
}

TEST_F(ImportaRisultatiSuFile, RefusesZipsThatLieAboutTheirSizes) {
  const TabellaEstrazioni vuoto;
  const fs::path zip = m_cartella / "risultati.zip";
  const std::string riga = "2024/01/02\tBA\t1\t2\t3\t4\t5\n";
  const std::string prefisso = fmt::format("Impossibile leggere l'archivio zip {}: ", zip.string());

  ScriviFile(zip, ZipAMano("lotto.txt", riga, static_cast<uint32_t>(riga.size()), static_cast<uint32_t>(riga.size())));
  auto esito = LeggiNuoveEstrazioniDaFile(vuoto, zip);
  ASSERT_TRUE(esito) << "the hand-made zip itself is sound: " << esito.Errore().testo;
  EXPECT_EQ(esito->size(), 1u);

  // Sizes far past the limit are refused before a byte is read; others when the data turn out
  // longer or shorter than claimed.
  struct Caso {
    uint32_t dichiarata, compressa;
    std::string messaggio;
  };
  for (const Caso& caso : {
           Caso{0xFFFFFFF0u, static_cast<uint32_t>(riga.size()),
                "lotto.txt dichiara 4294967280 byte, più del massimo di 64 MB per un file dei risultati"},
           Caso{100u << 20, static_cast<uint32_t>(riga.size()),
                "lotto.txt dichiara 104857600 byte, più del massimo di 64 MB per un file dei risultati"},
           Caso{1000, static_cast<uint32_t>(riga.size()), "l'archivio zip è incoerente (danneggiato o costruito male)"},
           Caso{10, static_cast<uint32_t>(riga.size()),
                "lotto.txt contiene più dei 10 byte dichiarati: lo zip è danneggiato"},
       }) {
    ScriviFile(zip, ZipAMano("lotto.txt", riga, caso.dichiarata, caso.compressa));
    esito = LeggiNuoveEstrazioniDaFile(vuoto, zip);
    ASSERT_FALSE(esito) << caso.dichiarata;
    EXPECT_EQ(esito.Errore().testo, prefisso + caso.messaggio);
  }
}

class ImportaRisultatiDatiReali : public ImportaRisultatiSuFile {
 protected:
  fs::path m_lotto = test::CartellaDatiReali() / "lotto.txt";
};

TEST_F(ImportaRisultatiDatiReali, ReadsEveryDrawSince1939) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  auto esito = LeggiNuoveEstrazioniDaFile(TabellaEstrazioni{}, m_lotto);
  ASSERT_TRUE(esito) << esito.Errore().testo;
  const TabellaEstrazioni tabella(*esito);
  ASSERT_EQ(tabella.EstrazioniArchivio(), 7318);
  EXPECT_EQ(tabella[1].data, (GruppoData{1, 7, 1, 1939}));
  EXPECT_EQ(tabella[7318].data, (GruppoData{87, 30, 5, 2026}));
  for (int k = 2; k <= tabella.EstrazioniArchivio(); ++k) {
    ASSERT_EQ(tabella[k].id_estr, k);
    ASSERT_LT(ConfrontaDate(tabella[k - 1].data, tabella[k].data), 0) << FormattaData(tabella[k].data);
  }

  // Draws held over two days keep the Bari date and gain the late or early wheel.
  const Estrazione& giugno_1962 = tabella[tabella.UltimaEstrazioneEntro(GruppoData{0, 4, 6, 1962})];
  EXPECT_EQ(giugno_1962.data.giorno, 4);
  EXPECT_EQ(NumeriRuota(giugno_1962, RO), (std::vector<int>{83, 5, 37, 11, 63}));
  EXPECT_EQ(NumeriRuota(giugno_1962, BA), (std::vector<int>{73, 14, 75, 17, 9}));
  const Estrazione& aprile_1948 = tabella[tabella.UltimaEstrazioneEntro(GruppoData{0, 1, 5, 1948})];
  EXPECT_EQ(aprile_1948.data, (GruppoData{aprile_1948.data.indice_annuale, 30, 4, 1948}));
  EXPECT_EQ(NumeriRuota(aprile_1948, NA), (std::vector<int>{63, 72, 76, 13, 77}));

  // Nazionale exists from 4 May 2005; Milano is missing on 7 September 1946.
  int prima_nazionale = 0;
  for (int k = 1; k <= tabella.EstrazioniArchivio() && !prima_nazionale; ++k)
    if (tabella[k].RuotaEstratta(NZ)) prima_nazionale = k;
  EXPECT_EQ(tabella.DataEstrazione(prima_nazionale).ValoreOppure(""), "04/05/2005");
  EXPECT_FALSE(tabella[tabella.UltimaEstrazioneEntro(GruppoData{0, 7, 9, 1946})].RuotaEstratta(MI));
}

TEST_F(ImportaRisultatiDatiReali, ImportingAgainOrInTwoStepsGivesTheSameArchive) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  auto aggiunte = ImportaRisultati(m_file, m_lotto);
  ASSERT_TRUE(aggiunte) << aggiunte.Errore().testo;
  EXPECT_EQ(*aggiunte, 7318);
  aggiunte = ImportaRisultati(m_file, m_lotto);
  ASSERT_TRUE(aggiunte);
  EXPECT_EQ(*aggiunte, 0);

  // A copy that stops at the end of 2024, then the whole file, inside a zip as it is downloaded.
  const std::string completo = LeggiFile(m_lotto);
  const size_t taglio = completo.find("2025/01/");
  ASSERT_NE(taglio, std::string::npos);
  ScriviFile(m_cartella / "fino_al_2024.txt", std::string_view(completo).substr(0, taglio));
  ScriviZip(m_cartella / "lotto.zip", {{"lotto.txt", completo}});

  ClsEstrazioni a_tappe(m_cartella / "a_tappe.dat");
  auto prima_parte = ImportaRisultati(a_tappe, m_cartella / "fino_al_2024.txt");
  ASSERT_TRUE(prima_parte) << prima_parte.Errore().testo;
  auto resto = ImportaRisultati(a_tappe, m_cartella / "lotto.zip");
  ASSERT_TRUE(resto) << resto.Errore().testo;
  EXPECT_EQ(*resto, 208 + 87);
  EXPECT_EQ(*prima_parte + *resto, 7318);
  EXPECT_EQ(LeggiFile(a_tappe.Archivio()), LeggiFile(m_archivio));
}

}  // namespace
}  // namespace lottolab
