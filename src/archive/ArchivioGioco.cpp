#include "ArchivioGioco.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <utility>

#include "DateEstrazione.h"
#include "FileSicuri.h"

namespace lottolab {

namespace fs = std::filesystem;

namespace {

constexpr size_t kByteIntestazione = 4 + 4 * 2 + 2;
constexpr std::string_view kFirmaGenerico = "LLFT";
// Ten times the largest archive there is (every five minutes for years) is still far below this.
constexpr size_t kLimiteArchivio = size_t{256} << 20;

void Scrivi16(unsigned char*& p, int16_t valore) {
  const auto bit = static_cast<uint16_t>(valore);
  *p++ = static_cast<unsigned char>(bit & 0xFF);
  *p++ = static_cast<unsigned char>(bit >> 8);
}

int16_t Leggi16(const unsigned char*& p) {
  const auto bit = static_cast<uint16_t>(p[0] | (p[1] << 8));
  p += 2;
  return static_cast<int16_t>(bit);
}

bool MisureGenericheValide(int numeri, int massimo) {
  return numeri >= 1 && numeri <= kMassimoNumeriGioco && massimo >= numeri && massimo <= kMassimoNumeroGenerico;
}

std::string Misure(const FormatoGioco& formato) {
  return fmt::format("{} numeri da 1 a {}", formato.numeri, formato.massimo);
}

bool StesseMisure(const FormatoGioco& uno, const FormatoGioco& altro) {
  return uno.numeri == altro.numeri && uno.massimo == altro.massimo;
}

std::string InizioRifiuto(const FormatoGioco& formato, const fs::path& file) {
  return fmt::format("Il file {} non è un {} valido: ", file.string(), NomeArchivioGioco(formato));
}

// The records that follow the first `testata` bytes of the file's `byte`, each checked against the
// one before; `inizio` opens every refusal.
Esito<TabellaGioco> LeggiRecord(const FormatoGioco& formato, std::string_view byte, size_t testata,
                                const std::string& inizio) {
  const size_t dimensione = ByteRecordGioco(formato);
  if ((byte.size() - testata) % dimensione != 0)
    return AvvisoEsclamativo(
        fmt::format("{}la sua lunghezza ({} byte) non è {}un multiplo dei {} byte di un record", inizio, byte.size(),
                    testata ? fmt::format("di {} byte di testata più ", testata) : "", dimensione));
  byte.remove_prefix(testata);
  std::vector<EstrazioneGioco> estrazioni;
  estrazioni.reserve(byte.size() / dimensione);
  for (size_t inizio_record = 0; inizio_record < byte.size(); inizio_record += dimensione) {
    EstrazioneGioco estrazione =
        DecodificaRecordGioco(formato, reinterpret_cast<const unsigned char*>(byte.data()) + inizio_record);
    const int k = static_cast<int>(estrazioni.size()) + 1;
    if (auto difetto =
            DifettoEstrazioneGioco(formato, estrazione, k, estrazioni.empty() ? nullptr : &estrazioni.back()))
      return AvvisoEsclamativo(fmt::format("{}il record {} {}", inizio, k, *difetto));
    estrazioni.push_back(estrazione);
  }
  return TabellaGioco(formato, std::move(estrazioni));
}

// A generic archive's bytes: its 8 bytes of K and M, then its records.
Esito<TabellaGioco> LeggiGenerico(std::string_view byte, const fs::path& file) {
  const std::string inizio = InizioRifiuto(Formato(Gioco::Generico), file);
  if (byte.size() < kByteTestataGenerico || !IsArchivioGenerico(byte))
    return AvvisoEsclamativo(
        fmt::format("{}non comincia con gli 8 byte \"{}\", numeri e massimo che lo aprono", inizio, kFirmaGenerico));
  const auto* p = reinterpret_cast<const unsigned char*>(byte.data()) + kFirmaGenerico.size();
  const int numeri = static_cast<uint16_t>(Leggi16(p));
  const int massimo = static_cast<uint16_t>(Leggi16(p));
  if (!MisureGenericheValide(numeri, massimo))
    return AvvisoEsclamativo(
        fmt::format("{}dice estrazioni di {} numeri da 1 a {} (al più {} numeri, da 1 a non più di {})", inizio, numeri,
                    massimo, kMassimoNumeriGioco, kMassimoNumeroGenerico));
  return LeggiRecord(FormatoGenerico(numeri, massimo), byte, kByteTestataGenerico, inizio);
}

// The archive of `file`, nothing when there is no such file; a generic archive in the format of its
// own first bytes, whatever `formato` says.
Esito<std::optional<TabellaGioco>> CaricaSeEsiste(const FormatoGioco& formato, const fs::path& file) {
  auto letto = LeggiFileRegolare(file, kLimiteArchivio);
  if (!letto) return letto.Errore();
  if (!letto->has_value()) return std::optional<TabellaGioco>();
  auto tabella = formato.gioco == Gioco::Generico ? LeggiGenerico(**letto, file)
                                                  : LeggiRecord(formato, **letto, 0, InizioRifiuto(formato, file));
  if (!tabella) return tabella.Errore();
  return std::optional<TabellaGioco>(std::move(tabella).Valore());
}

}  // namespace

std::string NomeArchivioGioco(const FormatoGioco& formato) {
  return formato.gioco == Gioco::Generico ? "archivio generico" : fmt::format("archivio del {}", formato.nome);
}

size_t ByteRecordGioco(const FormatoGioco& formato) {
  return kByteIntestazione + (formato.con_ora ? 2 : 0) +
         static_cast<size_t>(formato.numeri + formato.extra + formato.speciali);
}

void CodificaRecordGioco(const FormatoGioco& formato, const EstrazioneGioco& estrazione, unsigned char* p) {
  const auto id = static_cast<uint32_t>(estrazione.id_estr);
  for (int i = 0; i < 4; ++i) *p++ = static_cast<unsigned char>((id >> (8 * i)) & 0xFF);
  Scrivi16(p, estrazione.data.indice_annuale);
  Scrivi16(p, estrazione.data.giorno);
  Scrivi16(p, estrazione.data.mese);
  Scrivi16(p, estrazione.data.anno);
  Scrivi16(p, estrazione.concorso);
  if (formato.con_ora) Scrivi16(p, estrazione.minuti);
  p = std::copy_n(estrazione.numeri.begin(), formato.numeri, p);
  p = std::copy_n(estrazione.extra.begin(), formato.extra, p);
  std::copy_n(estrazione.speciali.begin(), formato.speciali, p);
}

EstrazioneGioco DecodificaRecordGioco(const FormatoGioco& formato, const unsigned char* p) {
  EstrazioneGioco estrazione;
  uint32_t id = 0;
  for (int i = 0; i < 4; ++i) id |= static_cast<uint32_t>(*p++) << (8 * i);
  estrazione.id_estr = static_cast<int32_t>(id);
  estrazione.data.indice_annuale = Leggi16(p);
  estrazione.data.giorno = Leggi16(p);
  estrazione.data.mese = Leggi16(p);
  estrazione.data.anno = Leggi16(p);
  estrazione.concorso = Leggi16(p);
  if (formato.con_ora) estrazione.minuti = Leggi16(p);
  std::copy_n(p, formato.numeri, estrazione.numeri.begin());
  p += formato.numeri;
  std::copy_n(p, formato.extra, estrazione.extra.begin());
  p += formato.extra;
  std::copy_n(p, formato.speciali, estrazione.speciali.begin());
  return estrazione;
}

std::optional<std::string> DifettoEstrazioneGioco(const FormatoGioco& formato, const EstrazioneGioco& estrazione, int k,
                                                  const EstrazioneGioco* precedente) {
  if (estrazione.id_estr != k) return fmt::format("ha IdEstr {} invece di {}", estrazione.id_estr, k);
  if (!DataValida(estrazione.data)) return std::string("ha una data che non esiste");
  if (formato.con_ora && (estrazione.minuti < 0 || estrazione.minuti >= 24 * 60))
    return fmt::format("ha un'ora fuori dal giorno ({} minuti)", estrazione.minuti);
  if (precedente) {
    const int ordine = ConfrontaDate(precedente->data, estrazione.data);
    if (ordine > 0 || (ordine == 0 && (!formato.con_ora || precedente->minuti >= estrazione.minuti)))
      return fmt::format("viene prima dell'estrazione che la precede ({})", FormattaData(precedente->data));
  }
  std::array<bool, 256> visto{};
  for (int i = 0; i < formato.numeri; ++i) {
    const int numero = estrazione.numeri[i];
    if (numero < 1 || numero > formato.massimo)
      return fmt::format("ha il numero {} fuori da 1..{} (posizione {})", numero, formato.massimo, i + 1);
    if (visto[numero]) return fmt::format("ha il numero {} due volte", numero);
    visto[numero] = true;
  }
  for (int i = 0; i < formato.extra; ++i) {
    const int numero = estrazione.extra[i];
    if (numero == 0) continue;
    if (numero > formato.massimo) return fmt::format("ha il numero Extra {} fuori da 1..{}", numero, formato.massimo);
    if (visto[numero]) return fmt::format("ha il numero Extra {} già tra i numeri estratti", numero);
    visto[numero] = true;
  }
  for (int i = 0; i < formato.speciali; ++i) {
    if (estrazione.speciali[i] > formato.massimo_speciale)
      return fmt::format("ha il numero speciale {} fuori da 0..{}", estrazione.speciali[i], formato.massimo_speciale);
  }
  return std::nullopt;
}

Esito<TabellaGioco> CaricaArchivioGioco(const FormatoGioco& formato, const fs::path& file) {
  auto letto = CaricaSeEsiste(formato, file);
  if (!letto) return letto.Errore();
  const bool generico = formato.gioco == Gioco::Generico;
  if (!letto->has_value()) {
    if (generico && formato.numeri == 0)
      return AvvisoEsclamativo(fmt::format(
          "Il file {} non esiste: un archivio generico nasce importando un testo di estrazioni", file.string()));
    return TabellaGioco(formato);
  }
  const FormatoGioco& del_file = (*letto)->formato();
  if (generico && formato.numeri != 0 && !StesseMisure(del_file, formato))
    return AvvisoEsclamativo(fmt::format("{}ha estrazioni di {}, non di {}", InizioRifiuto(formato, file),
                                         Misure(del_file), Misure(formato)));
  return *std::move(letto).Valore();
}

Esito<TabellaGioco> CaricaArchivioGenerico(const fs::path& file) {
  return CaricaArchivioGioco(Formato(Gioco::Generico), file);
}

bool IsArchivioGenerico(std::string_view primi_byte) { return primi_byte.starts_with(kFirmaGenerico); }

Esito<Fatto> SalvaArchivioGioco(const TabellaGioco& tabella, const fs::path& file) {
  const FormatoGioco& formato = tabella.formato();
  const bool generico = formato.gioco == Gioco::Generico;
  if (generico && !MisureGenericheValide(formato.numeri, formato.massimo))
    return AvvisoEsclamativo(
        fmt::format("Un archivio generico di {} non si può scrivere: al più {} numeri, da 1 a "
                    "non più di {}",
                    Misure(formato), kMassimoNumeriGioco, kMassimoNumeroGenerico));
  const size_t testata = generico ? kByteTestataGenerico : 0;
  const size_t dimensione = ByteRecordGioco(formato);
  std::string byte(testata + dimensione * tabella.Tutte().size(), '\0');
  auto* p = reinterpret_cast<unsigned char*>(byte.data());
  if (generico) {
    p = std::copy(kFirmaGenerico.begin(), kFirmaGenerico.end(), p);
    Scrivi16(p, static_cast<int16_t>(formato.numeri));
    Scrivi16(p, static_cast<int16_t>(formato.massimo));
  }
  for (const EstrazioneGioco& estrazione : tabella.Tutte()) {
    CodificaRecordGioco(formato, estrazione, p);
    p += dimensione;
  }
  return SostituisciFile(file, byte);
}

Esito<TabellaGioco> UnisciEstrazioni(const TabellaGioco& archivio, const std::vector<EstrazioneGioco>& nuove) {
  const FormatoGioco& formato = archivio.formato();
  auto chiave = [&](const EstrazioneGioco& e) {
    return std::pair<int, int>(GiornoAssoluto(e.data), formato.con_ora ? e.minuti : 0);
  };
  std::map<std::pair<int, int>, EstrazioneGioco> unite;
  for (const EstrazioneGioco& estrazione : archivio.Tutte()) unite.emplace(chiave(estrazione), estrazione);
  for (const EstrazioneGioco& nuova : nuove) {
    auto [posto, aggiunta] = unite.emplace(chiave(nuova), nuova);
    if (aggiunta) continue;
    const EstrazioneGioco& tenuta = posto->second;
    if (tenuta.numeri != nuova.numeri || tenuta.extra != nuova.extra || tenuta.speciali != nuova.speciali)
      return AvvisoEsclamativo(
          fmt::format("L'estrazione del {}{} nell'{} ha numeri diversi da quella che si vuole importare: l'archivio "
                      "non è stato cambiato",
                      FormattaData(nuova.data),
                      formato.con_ora ? fmt::format(" alle {:02}:{:02}", nuova.minuti / 60, nuova.minuti % 60) : "",
                      NomeArchivioGioco(formato)));
  }
  std::vector<EstrazioneGioco> estrazioni;
  estrazioni.reserve(unite.size());
  for (auto& [_, estrazione] : unite) {
    estrazione.id_estr = static_cast<int32_t>(estrazioni.size()) + 1;
    estrazioni.push_back(estrazione);
  }
  return TabellaGioco(formato, std::move(estrazioni));
}

Esito<int> ImportaEstrazioniGioco(const FormatoGioco& formato, const fs::path& file,
                                  const std::vector<EstrazioneGioco>& nuove) {
  auto blocco = BloccoScrittura::Acquisisci(file);
  if (!blocco) return blocco.Errore();
  auto letto = CaricaSeEsiste(formato, file);
  if (!letto) return letto.Errore();
  const TabellaGioco archivio = std::move(letto).Valore().value_or(TabellaGioco(formato));
  if (!StesseMisure(archivio.formato(), formato))
    return AvvisoEsclamativo(
        fmt::format("L'archivio generico {} ha estrazioni di {}, quelle da importare sono di {}: "
                    "l'archivio non è stato cambiato",
                    file.string(), Misure(archivio.formato()), Misure(formato)));
  auto unite = UnisciEstrazioni(archivio, nuove);
  if (!unite) return unite.Errore();
  const int aggiunte = unite->EstrazioniArchivio() - archivio.EstrazioniArchivio();
  if (aggiunte == 0) return 0;
  for (int k = 1; k <= unite->EstrazioniArchivio(); ++k)
    if (auto difetto = DifettoEstrazioneGioco(formato, (*unite)[k], k, k > 1 ? &(*unite)[k - 1] : nullptr))
      return AvvisoEsclamativo(fmt::format("L'estrazione del {} da importare {}: l'archivio non è stato cambiato",
                                           FormattaData((*unite)[k].data), *difetto));
  auto salvato = SalvaArchivioGioco(*unite, file);
  if (!salvato) return salvato.Errore();
  return aggiunte;
}

}  // namespace lottolab
