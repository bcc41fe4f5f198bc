#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "archive/ControlloArchivio.h"

namespace lottolab {
namespace {

using Byte = std::vector<unsigned char>;
using test::CartellaTemporanea;
using test::LeggiByte;
using test::ScriviByte;

// Three draws of March 2024 on Bari and Venezia.
Byte TreEstrazioni() {
  Byte byte(3 * kByteRecordArchivio);
  for (int k = 1; k <= 3; ++k) {
    Estrazione e;
    e.id_estr = k;
    e.data = {static_cast<int16_t>(k), static_cast<int16_t>(10 + k), 3, 2024};
    for (int p = 1; p <= kNumeriPerRuota; ++p) {
      e.ImpostaNumero(BA, p, 10 * k + p);
      e.ImpostaNumero(VE, p, 80 + p);
    }
    CodificaRecord(e, byte.data() + (k - 1) * kByteRecordArchivio);
  }
  return byte;
}

// Byte offsets inside record k (from 1) of the fields that the cases spoil.
size_t Record(int k) { return static_cast<size_t>(k - 1) * kByteRecordArchivio; }
size_t Giorno(int k) { return Record(k) + 6; }
size_t Anno(int k) { return Record(k) + 10; }
size_t NumeroBari(int k, int p) { return Record(k) + 12 + static_cast<size_t>(p - 1); }

struct Caso {
  const char* nome;
  std::function<void(Byte&)> guasta;
  int byte_sparsi;
  int primo_non_valido;  // 0 when the records are all draws
  const char* difetto;
};

void PrintTo(const Caso& caso, std::ostream* out) { *out << caso.nome; }

class Controllo : public testing::TestWithParam<Caso> {};

TEST_P(Controllo, NominaIByteSparsiEIlPrimoRecordGuasto) {
  const Caso& caso = GetParam();
  CartellaTemporanea cartella;
  ClsEstrazioni archivio(cartella / "BaseDati.dat");
  Byte byte = TreEstrazioni();
  caso.guasta(byte);
  ScriviByte(archivio.Archivio(), byte);

  auto caricate = archivio.CaricaEControlla();
  ASSERT_TRUE(caricate) << caricate.Errore().testo;
  const RapportoArchivio& rapporto = caricate->rapporto;
  EXPECT_EQ(rapporto.byte_sparsi, caso.byte_sparsi);
  EXPECT_EQ(rapporto.primo_non_valido, caso.primo_non_valido);
  EXPECT_EQ(rapporto.difetto, caso.difetto);
  EXPECT_EQ(rapporto.Integro(), caso.byte_sparsi == 0 && caso.primo_non_valido == 0);
  EXPECT_EQ(caricate->tabella.EstrazioniArchivio(), ContaRecordArchivio(byte.size())) << "the count rule stays";

  const std::vector<std::string> avvisi = rapporto.Avvisi();
  EXPECT_EQ(avvisi.size(), size_t{caso.byte_sparsi != 0} + size_t{caso.primo_non_valido != 0});
  for (const std::string& avviso : avvisi) EXPECT_NE(avviso.find(archivio.Archivio().string()), std::string::npos);
  if (caso.byte_sparsi != 0) {
    EXPECT_NE(avvisi.front().find(std::to_string(caso.byte_sparsi) + " byte oltre"), std::string::npos)
        << avvisi.front();
    EXPECT_NE(avvisi.front().find("lottolab ripara"), std::string::npos);
  }
  if (caso.primo_non_valido != 0) {
    EXPECT_NE(avvisi.back().find("il primo è il n. " + std::to_string(caso.primo_non_valido)), std::string::npos)
        << avvisi.back();
  }
}

INSTANTIATE_TEST_SUITE_P(
    CaricaEControlla, Controllo,
    testing::Values(Caso{"Integro", [](Byte&) {}, 0, 0, ""},
                    Caso{"TrentaquattroByteInPiu", [](Byte& b) { b.resize(b.size() + 34, 0x07); }, 34, 0, ""},
                    Caso{"TagliatoDiQuaranta", [](Byte& b) { b.resize(b.size() - 40); }, 27, 0, ""},
                    Caso{"NumeroZeroSuUnaRuotaEstratta", [](Byte& b) { b[NumeroBari(2, 3)] = 0; }, 0, 2,
                         "la ruota di Bari ha 4 numeri invece di 5"},
                    Caso{"NumeroNovantuno", [](Byte& b) { b[NumeroBari(2, 4)] = 91; }, 0, 2,
                         "il numero 91 sulla ruota di Bari è fuori dall'intervallo 1-90"},
                    Caso{"Numero255", [](Byte& b) { b[NumeroBari(3, 1)] = 255; }, 0, 3,
                         "il numero 255 sulla ruota di Bari è fuori dall'intervallo 1-90"},
                    Caso{"NumeroRipetuto", [](Byte& b) { b[NumeroBari(1, 5)] = b[NumeroBari(1, 2)]; }, 0, 1,
                         "il numero 12 è ripetuto sulla ruota di Bari"},
                    Caso{"SenzaBari", [](Byte& b) { std::fill_n(b.begin() + NumeroBari(2, 1), 5, 0); }, 0, 2,
                         "manca la ruota di Bari"},
                    Caso{"TrentunoFebbraio", [](Byte& b) { b[Giorno(2)] = 31, b[Giorno(2) + 2] = 2; }, 0, 2,
                         "la data 31/2/2024 non esiste"},
                    Caso{"Anno1799", [](Byte& b) { b[Anno(1)] = 1799 & 0xFF, b[Anno(1) + 1] = 1799 >> 8; }, 0, 1,
                         "la data 11/03/1799 è fuori dal periodo possibile (dal 1871 a domani)"},
                    Caso{"NelFuturo", [](Byte& b) { b[Anno(3)] = 9999 & 0xFF, b[Anno(3) + 1] = 9999 >> 8; }, 0, 3,
                         "la data 13/03/9999 è fuori dal periodo possibile (dal 1871 a domani)"},
                    Caso{"DateAllIndietro", [](Byte& b) { b[Giorno(3)] = 1; }, 0, 3,
                         "la data 01/03/2024 viene prima di quella dell'estrazione precedente (12/03/2024)"},
                    Caso{"IdEstrFuoriPosto", [](Byte& b) { b[Record(2)] = 7; }, 0, 2,
                         "il suo numero d'ordine (IdEstr) è 7 invece di 2"},
                    Caso{"ByteSparsiERecordGuasto", [](Byte& b) { b[NumeroBari(3, 1)] = 95, b.resize(b.size() + 10); },
                         10, 3, "il numero 95 sulla ruota di Bari è fuori dall'intervallo 1-90"}),
    [](const testing::TestParamInfo<Caso>& info) { return info.param.nome; });

TEST(CaricaEControlla, RifiutaUnFileCheNonEUnArchivio) {
  CartellaTemporanea cartella;
  ClsEstrazioni archivio(cartella / "BaseDati.dat");

  std::mt19937 caso(1);
  Byte casuali(100 * 1024);
  for (unsigned char& b : casuali) b = static_cast<unsigned char>(caso());
  ScriviByte(archivio.Archivio(), casuali);
  auto esito = archivio.CaricaEstrazioni();
  ASSERT_FALSE(esito);
  EXPECT_TRUE(esito.Errore().testo.starts_with("Il file " + archivio.Archivio().string() +
                                               " non è un archivio delle estrazioni: 1528 record su 1528"))
      << esito.Errore().testo;

  ScriviByte(archivio.Archivio(), Byte(20, 1));
  ASSERT_FALSE(archivio.CaricaEstrazioni());

  // Two bad draws of three is past the threshold; one of three is a damaged archive.
  Byte byte = TreEstrazioni();
  byte[NumeroBari(1, 1)] = 200;
  ScriviByte(archivio.Archivio(), byte);
  ASSERT_TRUE(archivio.CaricaEstrazioni());
  byte[NumeroBari(2, 1)] = 200;
  ScriviByte(archivio.Archivio(), byte);
  ASSERT_FALSE(archivio.CaricaEstrazioni());

  ScriviByte(archivio.Archivio(), {});
  auto vuoto = archivio.CaricaEControlla();
  ASSERT_TRUE(vuoto);
  EXPECT_TRUE(vuoto->rapporto.Avvisi().empty()) << "an empty archive is sound";
}

}  // namespace
}  // namespace lottolab
