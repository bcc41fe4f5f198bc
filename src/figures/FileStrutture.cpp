#include "FileStrutture.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "Condizione.h"
#include "LimitiStrutture.h"
#include "archive/FileSicuri.h"
#include "text/Utf.h"

namespace lottolab::figures {

namespace fs = std::filesystem;

static_assert(kByteCondizione == kMassimiCaratteriCondizione, "a condition's record keeps every character compiled");

namespace {

constexpr std::string_view kMarcatoreVertici = "OFFSET_STRUCT";
constexpr std::string_view kMarcatoreLinee = "OFFSET_LINEE";
constexpr std::string_view kMarcatoreCondizioni = "OFFSET_COND";
constexpr std::string_view kFineSezione = "FINE";

void Scrivi16(std::string& byte, int16_t valore) {
  auto v = static_cast<uint16_t>(valore);
  byte += static_cast<char>(v & 0xFF);
  byte += static_cast<char>(v >> 8);
}

void Scrivi32(std::string& byte, int32_t valore) {
  auto v = static_cast<uint32_t>(valore);
  for (int i = 0; i < 4; ++i) byte += static_cast<char>((v >> (8 * i)) & 0xFF);
}

void ScriviBooleano(std::string& byte, bool valore) { Scrivi16(byte, valore ? -1 : 0); }

// Cutting after the conversion counts characters: each one is a single byte in Windows-1252.
void ScriviTesto(std::string& byte, std::string_view utf8, size_t larghezza) {
  std::string testo = text::Utf16ToWindows1252(text::Utf8ToUtf16(utf8));
  testo.resize(larghezza, ' ');
  byte += testo;
}

void ScriviVertice(std::string& byte, const ClsVertice& v) {
  Scrivi16(byte, v.Index);
  Scrivi32(byte, v.IdEstrazione);
  ScriviBooleano(byte, v.FulcroOrizz);
  ScriviBooleano(byte, v.FulcroVert);
  Scrivi16(byte, v.Riga);
  Scrivi16(byte, v.Colonna);
  Scrivi16(byte, v.Riservato1);
  Scrivi16(byte, v.Riservato2);
  Scrivi16(byte, v.VersoVert);
  Scrivi16(byte, v.VersoOrizz);
  ScriviTesto(byte, v.Caption, kCaratteriCaption);
  ScriviBooleano(byte, v.UsaPerChiusura);
}

std::string Codifica(const Struttura& struttura, std::span<const std::string_view> condizioni) {
  std::string byte(kMarcatoreVertici);
  for (const ClsVertice& vertice : struttura.vertici)
    if (vertice.Index != 0) ScriviVertice(byte, vertice);
  byte += kFineSezione;

  byte += kMarcatoreLinee;
  for (const ClsLinea& linea : struttura.linee) {
    Scrivi16(byte, linea.Numero);
    Scrivi16(byte, linea.Inizio);
    Scrivi16(byte, linea.Fine);
  }
  byte += kFineSezione;

  byte += kMarcatoreCondizioni;
  for (std::string_view condizione : condizioni) ScriviTesto(byte, condizione, kByteCondizione);
  byte += kFineSezione;
  return byte;
}

// Reads fields from a position on; bytes past the end of the file read as zeros.
class Lettore {
 public:
  Lettore(std::string_view byte, size_t posizione) : m_byte(byte), m_posizione(posizione) {}

  int16_t Leggi16() { return static_cast<int16_t>(LeggiSenzaSegno(2)); }
  int32_t Leggi32() { return static_cast<int32_t>(LeggiSenzaSegno(4)); }
  bool LeggiBooleano() { return Leggi16() != 0; }

  std::string LeggiTesto(size_t larghezza) {
    std::string testo;
    for (size_t i = 0; i < larghezza; ++i) testo += static_cast<char>(Byte());
    size_t primo = testo.find_first_not_of(' ');
    testo = primo == std::string::npos ? std::string() : testo.substr(primo, testo.find_last_not_of(' ') - primo + 1);
    return text::Utf16ToUtf8(text::Windows1252ToUtf16(testo));
  }

 private:
  unsigned char Byte() {
    unsigned char b = m_posizione < m_byte.size() ? static_cast<unsigned char>(m_byte[m_posizione]) : 0;
    ++m_posizione;
    return b;
  }

  uint32_t LeggiSenzaSegno(int byte) {
    uint32_t valore = 0;
    for (int i = 0; i < byte; ++i) valore |= static_cast<uint32_t>(Byte()) << (8 * i);
    return valore;
  }

  std::string_view m_byte;
  size_t m_posizione;
};

ClsVertice LeggiVertice(Lettore& lettore) {
  ClsVertice v;
  v.Index = lettore.Leggi16();
  v.IdEstrazione = lettore.Leggi32();
  v.FulcroOrizz = lettore.LeggiBooleano();
  v.FulcroVert = lettore.LeggiBooleano();
  v.Riga = lettore.Leggi16();
  v.Colonna = lettore.Leggi16();
  v.Riservato1 = lettore.Leggi16();
  v.Riservato2 = lettore.Leggi16();
  v.VersoVert = lettore.Leggi16();
  v.VersoOrizz = lettore.Leggi16();
  v.Caption = lettore.LeggiTesto(kCaratteriCaption);
  v.UsaPerChiusura = lettore.LeggiBooleano();
  return v;
}

ClsLinea LeggiLinea(Lettore& lettore) {
  ClsLinea linea;
  linea.Numero = lettore.Leggi16();
  linea.Inizio = lettore.Leggi16();
  linea.Fine = lettore.Leggi16();
  return linea;
}

size_t TrovaFineSezione(std::string_view byte, size_t da) {
  if (da > byte.size()) return std::string_view::npos;
  const size_t trovata = PosizioneFine(byte.substr(da));
  return trovata == std::string_view::npos ? trovata : da + trovata;
}

// Halves go to the even count, as the conversion the files were always read with did.
size_t ArrotondaAlPari(size_t lunghezza, size_t lunghezza_record) {
  size_t quoziente = lunghezza / lunghezza_record;
  size_t doppio_resto = 2 * (lunghezza % lunghezza_record);
  if (doppio_resto > lunghezza_record || (doppio_resto == lunghezza_record && quoziente % 2 == 1)) ++quoziente;
  return quoziente;
}

struct Sezione {
  std::string_view marcatore;
  size_t lunghezza_record;
  std::string_view nome;  // for the messages
  size_t inizio = 0;      // behind the marker
  size_t record = 0;
};

// Each section's marker, then its "FINE" before the next section's marker: a file cut before a
// section's end, or one whose end is missing, is not read as a shorter structure. No marker ends with
// the start of "FINE", so searching from behind the marker finds what a search from the marker would.
std::optional<std::string> TrovaSezioni(std::string_view byte, std::array<Sezione, 3>& sezioni) {
  for (Sezione& sezione : sezioni) {
    const size_t trovato = byte.find(sezione.marcatore);
    if (trovato == std::string_view::npos)
      return fmt::format("manca la sezione {} ({})", sezione.nome, sezione.marcatore);
    sezione.inizio = trovato + sezione.marcatore.size();
  }
  for (Sezione& sezione : sezioni) {
    size_t limite = byte.size();
    for (const Sezione& altra : sezioni)
      if (altra.inizio > sezione.inizio) limite = std::min(limite, altra.inizio - altra.marcatore.size());
    const size_t fine = TrovaFineSezione(byte.substr(0, limite), sezione.inizio);
    if (fine == std::string_view::npos)
      return fmt::format("la sezione {} non ha la sua fine (FINE): il file è troncato o rovinato", sezione.nome);
    sezione.record = ArrotondaAlPari(fine - sezione.inizio, sezione.lunghezza_record);
  }
  return std::nullopt;
}

template <typename Record, typename Leggi>
std::vector<Record> LeggiSezione(std::string_view byte, const Sezione& sezione, Leggi leggi) {
  Lettore lettore(byte, sezione.inizio);
  std::vector<Record> record;
  for (size_t i = 0; i < sezione.record; ++i) record.push_back(leggi(lettore));
  return record;
}

Avviso FileNonValido(const fs::path& file, std::string_view motivo) {
  // Critical: the user named this file as a structure, so its failing to be one is not bad input.
  return Avviso{TipoAvviso::Critico, "", fmt::format("File {} non valido: {}", file.string(), motivo)};
}

std::string MotivoLettura(const GuastoFile& guasto) {
  switch (guasto.genere) {
    case GuastoFile::Genere::Assente: return "il file non esiste";
    case GuastoFile::Genere::NonOrdinario: return guasto.motivo + ", non un file ordinario";
    case GuastoFile::Genere::TroppoGrande: return guasto.motivo + ", troppo per una struttura";
    case GuastoFile::Genere::Sistema: break;
  }
  return "non si può leggere: " + guasto.motivo;
}

Avviso ErroreSalvataggio(const fs::path& file, std::string_view motivo) {
  // 75 is the number of a path/file access error, as users know it from their scripts.
  return AvvisoCritico("SalvaStruttura", 75,
                       fmt::format("Impossibile salvare la struttura nel file {}: {}", file.string(), motivo));
}

std::array<Sezione, 3> SezioniDelFile() {
  return {Sezione{kMarcatoreVertici, kByteVertice, "dei vertici"}, Sezione{kMarcatoreLinee, kByteLinea, "delle linee"},
          Sezione{kMarcatoreCondizioni, kByteCondizione, "delle condizioni"}};
}

}  // namespace

std::string CodificaStruttura(const Struttura& struttura) {
  std::vector<std::string_view> condizioni(struttura.condizioni.begin(), struttura.condizioni.end());
  return Codifica(struttura, condizioni);
}

std::string CodificaStrutturaConCondizione(const Struttura& struttura, std::string_view condizione) {
  return Codifica(struttura, std::span(&condizione, 1));
}

Esito<Struttura> DecodificaStruttura(std::string_view byte) {
  std::array<Sezione, 3> sezioni = SezioniDelFile();
  if (auto motivo = TrovaSezioni(byte, sezioni)) return AvvisoEsclamativo(std::move(*motivo));
  const auto& [vertici, linee, condizioni] = sezioni;
  // The file's size is bounded, and so are the records read before the limits are checked.
  Struttura struttura;
  struttura.vertici = LeggiSezione<ClsVertice>(byte, vertici, LeggiVertice);
  struttura.linee = LeggiSezione<ClsLinea>(byte, linee, LeggiLinea);
  struttura.condizioni =
      LeggiSezione<std::string>(byte, condizioni, [](Lettore& lettore) { return lettore.LeggiTesto(kByteCondizione); });
  if (auto motivo = LimiteSuperato(struttura)) return AvvisoEsclamativo(std::move(*motivo));
  return struttura;
}

namespace {

// Written only when the bytes read back as many records as were written: a "FINE" that a text, or
// numbers side by side, spell would otherwise cut a section of the new file.
Esito<Fatto> Scrivi(const fs::path& file, const std::string& byte, size_t vertici, size_t linee, size_t condizioni) {
  auto riletta = DecodificaStruttura(byte);
  if (!riletta || riletta->vertici.size() != vertici || riletta->linee.size() != linee ||
      riletta->condizioni.size() != condizioni)
    return ErroreSalvataggio(file, riletta
                                       ? "un'etichetta, una condizione o un numero della struttura forma la parola "
                                         "\"fine\", che nel file chiude la sezione: il file non si rileggerebbe intero"
                                       : riletta.Errore().testo);
  auto scritto = ScriviFileOrdinario(file, byte);
  if (!scritto) return ErroreSalvataggio(file, scritto.Errore().motivo);
  return Fatto{};
}

size_t VerticiScritti(const Struttura& struttura) {
  return static_cast<size_t>(std::count_if(struttura.vertici.begin(), struttura.vertici.end(),
                                           [](const ClsVertice& vertice) { return vertice.Index != 0; }));
}

}  // namespace

Esito<Fatto> SalvaStruttura(const fs::path& file, const Struttura& struttura) {
  return Scrivi(file, CodificaStruttura(struttura), VerticiScritti(struttura), struttura.linee.size(),
                struttura.condizioni.size());
}

Esito<Fatto> SalvaStrutturaConCondizione(const fs::path& file, const Struttura& struttura,
                                         std::string_view condizione) {
  return Scrivi(file, CodificaStrutturaConCondizione(struttura, condizione), VerticiScritti(struttura),
                struttura.linee.size(), 1);
}

Esito<Struttura> CaricaStruttura(const fs::path& file) {
  auto letto = LeggiFileOrdinario(file, kMassimoByteFile);
  if (!letto) return FileNonValido(file, MotivoLettura(letto.Errore()));
  auto struttura = DecodificaStruttura(*letto);
  if (!struttura) return FileNonValido(file, struttura.Errore().testo);
  return std::move(struttura).Valore();
}

bool FileDiStruttura(const fs::path& file) {
  auto letto = LeggiFileOrdinario(file, kMassimoByteFile);
  std::array<Sezione, 3> sezioni = SezioniDelFile();
  return letto && !TrovaSezioni(*letto, sezioni);
}

}  // namespace lottolab::figures
