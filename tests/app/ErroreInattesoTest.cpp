#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <stdexcept>

#include "app/ErroreInatteso.h"

namespace lottolab::app {
namespace {

template <typename Eccezione>
std::string Descrivi(Eccezione eccezione) {
  try {
    throw eccezione;
  } catch (...) {
    return DescriviEccezioneCorrente();
  }
}

// Whatever escapes to an entry point becomes one Italian line that names the path, cut to a
// readable length however long the path was.
TEST(ErroreInatteso, UnaRigaInItalianoPerOgniEccezione) {
  const std::string lungo(5000, 'a');
  const auto errore_di_sistema = [](int numero) { return std::error_code(numero, std::generic_category()); };
  struct Caso {
    std::string descrizione;
    std::string attesa;
  };
  for (const Caso& caso : {
           Caso{Descrivi(std::filesystem::filesystem_error("x", "/base/" + lungo, errore_di_sistema(ENAMETOOLONG))),
                "errore inatteso: nome del file troppo lungo (/base/aaaa"},
           Caso{Descrivi(std::filesystem::filesystem_error("x", "/base", errore_di_sistema(EACCES))),
                "errore inatteso: permesso negato (/base)"},
           Caso{Descrivi(std::filesystem::filesystem_error("x", "/a", "/b", errore_di_sistema(EXDEV))),
                "errore inatteso: i due percorsi sono su dischi diversi (/a) (/b)"},
           Caso{Descrivi(std::system_error(errore_di_sistema(ENOSPC))), "errore inatteso: spazio su disco esaurito"},
           Caso{Descrivi(std::bad_alloc()), "errore inatteso: memoria insufficiente"},
           Caso{Descrivi(std::length_error("vector")), "errore inatteso: dati troppo grandi"},
           Caso{Descrivi(std::runtime_error("riga uno\nriga due")), "errore inatteso: riga uno riga due"},
           Caso{Descrivi(42), "errore inatteso: eccezione sconosciuta"},
       }) {
    EXPECT_TRUE(caso.descrizione.starts_with(caso.attesa)) << caso.descrizione;
    EXPECT_EQ(caso.descrizione.find('\n'), std::string::npos);
    EXPECT_LT(caso.descrizione.size(), 300u);
  }
  EXPECT_NE(Descrivi(std::filesystem::filesystem_error("x", "/base/" + lungo, errore_di_sistema(ENAMETOOLONG)))
                .find("(5006 caratteri)"),
            std::string::npos);
}

TEST(ErroreInatteso, IlPercorsoSiTagliaSenzaSpezzareUnCarattere) {
  std::string lungo;
  for (int i = 0; i < 200; ++i) lungo += "è";
  std::string corto = PercorsoPerMessaggio(lungo);
  EXPECT_LT(corto.size(), 150u);
  // "è" is two bytes, 0xC3 then a continuation byte: each must keep its partner.
  for (size_t i = 0; i < corto.size(); ++i) {
    const bool guida = static_cast<unsigned char>(corto[i]) == 0xC3;
    const bool seguito = i + 1 < corto.size() && (static_cast<unsigned char>(corto[i + 1]) & 0xC0) == 0x80;
    EXPECT_EQ(guida, seguito) << corto;
  }
  EXPECT_EQ(PercorsoPerMessaggio("/breve"), "/breve");
}

}  // namespace
}  // namespace lottolab::app
