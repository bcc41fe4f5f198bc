#include "ImportaRisultati.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <fmt/format.h>
#include <fstream>
#include <memory>
#include <string>
#include <system_error>
#include <zip.h>

#include "DateEstrazione.h"
#include "FileSicuri.h"
#include "RigheDiTesto.h"
#include "ScritturaArchivio.h"
#include "text/AsciiCase.h"

namespace lottolab {

namespace fs = std::filesystem;

namespace {

// A draw held over two days leaves a date without Bari whose wheels belong to a draw at most this
// many days before or after it.
constexpr int kGiorniDistanzaMassima = 3;
constexpr int kCampiPerRiga = 2 + kNumeriPerRuota;
// The whole history is about 2 MB of text; anything much larger is not a results file.
constexpr size_t kLimiteRisultati = size_t{64} << 20;

// All the lines of one date: the draw itself when Bari is among them, else the part of a draw held
// over two days.
struct Giornata {
  GruppoData data;
  int riga = 0;        // the first line of the date, named in the messages about it
  uint16_t ruote = 0;  // bit r is set when wheel r has a line
  std::array<uint8_t, kNumeroRuote * kNumeriPerRuota> numeri{};

  bool HaRuota(int r) const { return (ruote >> r) & 1u; }
};

// Reads every line and gathers the lines of each date, checking each line on its own and the order
// of the dates.
Esito<std::vector<Giornata>> LeggiGiornate(std::string_view testo, const GruppoData& oggi) {
  std::vector<Giornata> giornate;
  // About a hundred bytes make one wheel line and roughly ten wheel lines make one date.
  giornate.reserve(testo.size() / 1000 + 1);
  if (testo.starts_with("\xEF\xBB\xBF")) testo.remove_prefix(3);

  int riga = 0;
  while (!testo.empty()) {
    ++riga;
    size_t a_capo = testo.find('\n');
    std::string_view linea = testo.substr(0, a_capo);
    testo.remove_prefix(a_capo == std::string_view::npos ? testo.size() : a_capo + 1);

    std::array<std::string_view, kCampiPerRiga> campi;
    int conteggio = 0;
    for (std::string_view campo = ProssimoCampo(linea); !campo.empty(); campo = ProssimoCampo(linea)) {
      if (conteggio < kCampiPerRiga) campi[conteggio] = campo;
      ++conteggio;
    }
    if (conteggio == 0) continue;
    if (conteggio != kCampiPerRiga) {
      return ErroreRiga(
          riga, fmt::format("attesi {} campi (data, ruota e cinque numeri), trovati {}", kCampiPerRiga, conteggio));
    }

    GruppoData data;
    if (!LeggiDataRisultati(campi[0], data)) {
      return ErroreRiga(riga, fmt::format("data \"{}\" non valida, atteso il formato AAAA/MM/GG", campi[0]));
    }
    if (!DataPossibile(data, oggi)) {
      if (data.anno < kPrimoAnnoLotto) {
        return ErroreRiga(
            riga, fmt::format("la data {} è anteriore al {}, anno della prima estrazione", campi[0], kPrimoAnnoLotto));
      }
      return ErroreRiga(riga, fmt::format("la data {} è nel futuro, oltre domani (oggi è il {}): il file dei "
                                          "risultati non è attendibile",
                                          campi[0], FormattaData(oggi)));
    }
    std::optional<int> ruota = RuotaDaSigla(campi[1]);
    if (!ruota || *ruota > kNumeroRuote) return ErroreRiga(riga, fmt::format("ruota \"{}\" sconosciuta", campi[1]));

    if (giornate.empty() || ConfrontaDate(giornate.back().data, data) != 0) {
      if (!giornate.empty() && ConfrontaDate(data, giornate.back().data) < 0) {
        return ErroreRiga(riga, fmt::format("la data {} viene prima di quella delle righe precedenti ({}): "
                                            "le date devono seguire in ordine crescente",
                                            FormattaData(data), FormattaData(giornate.back().data)));
      }
      giornate.push_back(Giornata{data, riga});
    }
    Giornata& giornata = giornate.back();
    if (giornata.HaRuota(*ruota)) {
      return ErroreRiga(riga, fmt::format("la ruota di {} compare più di una volta per il {}", NomeRuota(*ruota),
                                          FormattaData(data)));
    }

    uint8_t* numeri = giornata.numeri.data() + (*ruota - 1) * kNumeriPerRuota;
    for (int p = 0; p < kNumeriPerRuota; ++p) {
      std::string_view campo = campi[2 + p];
      int numero = 0;
      if (!LeggiIntero(campo, numero)) return ErroreRiga(riga, fmt::format("numero \"{}\" non valido", campo));
      if (numero < 1 || numero > kMassimoNumero) {
        return ErroreRiga(riga, fmt::format("numero {} fuori dall'intervallo 1-{}", numero, kMassimoNumero));
      }
      if (std::find(numeri, numeri + p, numero) != numeri + p) {
        return ErroreRiga(riga, fmt::format("numero {} ripetuto sulla ruota di {}", numero, NomeRuota(*ruota)));
      }
      numeri[p] = static_cast<uint8_t>(numero);
    }
    giornata.ruote |= static_cast<uint16_t>(1u << *ruota);
  }
  return giornate;
}

// Moves the wheels of every date without Bari into the draw they belong to: the nearest draw within
// three days, either side, that lacks all of them (the earlier one when two are as near). What
// remains are the draws, one per Bari date.
Esito<std::vector<Giornata>> UnisciEstrazioniSuDueGiorni(std::vector<Giornata> giornate) {
  for (size_t i = 0; i < giornate.size(); ++i) {
    const Giornata& parte = giornate[i];
    if (parte.HaRuota(BA)) continue;
    int giorno = GiornoAssoluto(parte.data);
    Giornata* scelta = nullptr;
    int distanza_scelta = kGiorniDistanzaMassima + 1;
    auto Valuta = [&](Giornata& candidata) {
      int distanza = std::abs(GiornoAssoluto(candidata.data) - giorno);
      if (candidata.HaRuota(BA) && (candidata.ruote & parte.ruote) == 0 && distanza < distanza_scelta) {
        scelta = &candidata;
        distanza_scelta = distanza;
      }
      return distanza <= kGiorniDistanzaMassima;
    };
    for (size_t j = i; j > 0; --j) {
      if (!Valuta(giornate[j - 1])) break;
    }
    for (size_t j = i + 1; j < giornate.size(); ++j) {
      if (!Valuta(giornate[j])) break;
    }
    if (!scelta) {
      return ErroreRiga(parte.riga, fmt::format("il {} non ha la ruota di Bari e nessuna estrazione entro {} giorni, "
                                                "prima o dopo, è priva delle sue ruote per accoglierle",
                                                FormattaData(parte.data), kGiorniDistanzaMassima));
    }
    for (int r = 1; r <= kNumeroRuote; ++r) {
      if (!parte.HaRuota(r)) continue;
      auto da = parte.numeri.begin() + (r - 1) * kNumeriPerRuota;
      std::copy(da, da + kNumeriPerRuota, scelta->numeri.begin() + (r - 1) * kNumeriPerRuota);
    }
    scelta->ruote |= parte.ruote;
  }
  std::erase_if(giornate, [](const Giornata& g) { return !g.HaRuota(BA); });
  return giornate;
}

// How many draws of the archive's last year it holds, so that new draws of that year go on counting.
int EstrazioniNellUltimoAnno(const TabellaEstrazioni& archivio) {
  int n = archivio.EstrazioniArchivio();
  int conteggio = 0;
  while (n - conteggio >= 1 && archivio[n - conteggio].data.anno == archivio[n].data.anno) ++conteggio;
  return conteggio;
}

// Leaves out the draws that the archive already holds, refusing those that contradict it, and numbers
// the others after the archive's last.
Esito<std::vector<Estrazione>> EstrazioniNuove(const TabellaEstrazioni& archivio,
                                               const std::vector<Giornata>& estrazioni) {
  const int archiviate = archivio.EstrazioniArchivio();
  int anno = archiviate > 0 ? archivio[archiviate].data.anno : 0;
  int indice_annuale = EstrazioniNellUltimoAnno(archivio);

  std::vector<Estrazione> nuove;
  for (const Giornata& estrazione : estrazioni) {
    if (archiviate > 0 && ConfrontaDate(estrazione.data, archivio[archiviate].data) <= 0) {
      int k = archivio.UltimaEstrazioneEntro(estrazione.data);
      if (k == 0 || ConfrontaDate(archivio[k].data, estrazione.data) != 0) {
        return ErroreRiga(estrazione.riga,
                          fmt::format("l'estrazione del {} non è in archivio, che arriva già al {}",
                                      FormattaData(estrazione.data), FormattaData(archivio[archiviate].data)));
      }
      if (archivio[k].numeri != estrazione.numeri) {
        return ErroreRiga(estrazione.riga, fmt::format("l'estrazione del {} è diversa da quella in archivio",
                                                       FormattaData(estrazione.data)));
      }
      continue;
    }
    if (estrazione.data.anno != anno) {
      anno = estrazione.data.anno;
      indice_annuale = 0;
    }
    Estrazione nuova;
    nuova.id_estr = archiviate + static_cast<int>(nuove.size()) + 1;
    nuova.data = estrazione.data;
    nuova.data.indice_annuale = static_cast<int16_t>(++indice_annuale);
    nuova.numeri = estrazione.numeri;
    nuove.push_back(nuova);
  }
  return nuove;
}

bool NomeDiTesto(std::string_view nome) {
  return nome.size() >= 4 && text::EqualsIgnoringAsciiCase(nome.substr(nome.size() - 4), ".txt");
}

struct ChiudiZip {
  void operator()(zip_t* archivio) const { zip_discard(archivio); }
};
struct ChiudiVoceZip {
  void operator()(zip_file_t* voce) const { zip_fclose(voce); }
};

// Italian words for the failures of libzip that a damaged or unusual zip can cause.
std::string MotivoZip(const zip_error_t* errore) {
  switch (zip_error_code_zip(errore)) {
    case ZIP_ER_NOZIP: return "non è un archivio zip";
    case ZIP_ER_INCONS: return "l'archivio zip è incoerente (danneggiato o costruito male)";
    case ZIP_ER_CRC: return "i dati non corrispondono al loro codice di controllo (CRC): lo zip è danneggiato";
    case ZIP_ER_ZLIB:
    case ZIP_ER_COMPRESSED_DATA: return "i dati compressi sono danneggiati";
    case ZIP_ER_COMPNOTSUPP: return "il metodo di compressione non è supportato";
    case ZIP_ER_ENCRNOTSUPP:
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD: return "il contenuto è cifrato";
    case ZIP_ER_MEMORY: return "memoria insufficiente";
    case ZIP_ER_EOF:
    case ZIP_ER_READ: return "l'archivio zip finisce prima del previsto";
    default:
      return fmt::format("errore {} della libreria zip ({})", zip_error_code_zip(errore),
                         zip_error_strerror(const_cast<zip_error_t*>(errore)));
  }
}

// The text inside a zip held in memory: its first ".txt" entry, or its only entry. The entry is
// read in chunks up to the size limit, whatever size the zip's directory claims for it, and must
// turn out exactly as long as claimed.
Esito<std::string> TestoDaZip(const std::string& contenuto, const fs::path& file) {
  auto Errore = [&](std::string_view motivo) {
    return AvvisoEsclamativo(fmt::format("Impossibile leggere l'archivio zip {}: {}", file.string(), motivo));
  };
  zip_error_t errore;
  zip_error_init(&errore);
  zip_source_t* sorgente = zip_source_buffer_create(contenuto.data(), contenuto.size(), 0, &errore);
  if (!sorgente) {
    std::string motivo = MotivoZip(&errore);
    zip_error_fini(&errore);
    return Errore(motivo);
  }
  std::unique_ptr<zip_t, ChiudiZip> archivio(zip_open_from_source(sorgente, ZIP_RDONLY, &errore));
  if (!archivio) {
    zip_source_free(sorgente);
    std::string motivo = MotivoZip(&errore);
    zip_error_fini(&errore);
    return Errore(motivo);
  }
  zip_error_fini(&errore);

  zip_int64_t voci = zip_get_num_entries(archivio.get(), 0);
  zip_int64_t scelta = voci == 1 ? 0 : -1;
  for (zip_int64_t i = 0; i < voci && scelta < 0; ++i) {
    const char* nome = zip_get_name(archivio.get(), static_cast<zip_uint64_t>(i), 0);
    if (nome && NomeDiTesto(nome)) scelta = i;
  }
  if (scelta < 0) return Errore("non contiene un file di testo (.txt)");

  zip_stat_t stato;
  zip_stat_init(&stato);
  if (zip_stat_index(archivio.get(), static_cast<zip_uint64_t>(scelta), 0, &stato) != 0)
    return Errore(MotivoZip(zip_get_error(archivio.get())));
  const std::string nome = stato.valid & ZIP_STAT_NAME ? stato.name : "?";
  if (!(stato.valid & ZIP_STAT_SIZE)) return Errore(fmt::format("la lunghezza di {} non è indicata", nome));
  if (stato.size > kLimiteRisultati) {
    return Errore(fmt::format("{} dichiara {} byte, più del massimo di {} MB per un file dei risultati", nome,
                              stato.size, kLimiteRisultati >> 20));
  }
  std::unique_ptr<zip_file_t, ChiudiVoceZip> voce(
      zip_fopen_index(archivio.get(), static_cast<zip_uint64_t>(scelta), 0));
  if (!voce) return Errore(MotivoZip(zip_get_error(archivio.get())));

  std::string testo;
  char blocco[1 << 16];
  for (;;) {
    const zip_int64_t letti = zip_fread(voce.get(), blocco, sizeof blocco);
    if (letti < 0) return Errore(MotivoZip(zip_file_get_error(voce.get())));
    if (letti == 0) break;
    if (testo.size() + static_cast<size_t>(letti) > stato.size)
      return Errore(fmt::format("{} contiene più dei {} byte dichiarati: lo zip è danneggiato", nome, stato.size));
    testo.append(blocco, static_cast<size_t>(letti));
  }
  if (testo.size() != stato.size) {
    return Errore(fmt::format("{} dichiara {} byte ma ne contiene solo {}: lo zip è danneggiato", nome, stato.size,
                              testo.size()));
  }
  return testo;
}

}  // namespace

Esito<std::vector<Estrazione>> LeggiNuoveEstrazioni(const TabellaEstrazioni& archivio, std::string_view testo) {
  auto giornate = LeggiGiornate(testo, DataOdierna());
  if (!giornate) return giornate.Errore();
  auto estrazioni = UnisciEstrazioniSuDueGiorni(std::move(giornate).Valore());
  if (!estrazioni) return estrazioni.Errore();
  return EstrazioniNuove(archivio, *estrazioni);
}

Esito<std::string> LeggiTestoRisultati(const fs::path& file) {
  auto letto = LeggiFileRegolare(file, kLimiteRisultati);
  if (!letto) return letto.Errore();
  if (!letto->has_value())
    return AvvisoEsclamativo(fmt::format("Non esiste il file dei risultati \n{}", file.string()));
  // A zip is known by its signature, not by its name: downloads are often saved under another one.
  if ((*letto)->starts_with("PK\x03\x04") || (*letto)->starts_with("PK\x05\x06")) return TestoDaZip(**letto, file);
  return std::move(letto).Valore().value();
}

Esito<std::vector<Estrazione>> LeggiNuoveEstrazioniDaFile(const TabellaEstrazioni& archivio, const fs::path& file) {
  auto testo = LeggiTestoRisultati(file);
  if (!testo) return testo.Errore();
  return LeggiNuoveEstrazioni(archivio, *testo);
}

Esito<int> ImportaRisultati(ClsEstrazioni& archivio_file, const fs::path& file) {
  // The lock is held from reading the archive to writing it: a second import waits, then sees the
  // draws of the first as already archived.
  auto scrittura = ScritturaArchivio::Apri(archivio_file.Archivio());
  if (!scrittura) return scrittura.Errore();
  auto nuove = LeggiNuoveEstrazioniDaFile(scrittura->Tabella(), file);
  if (!nuove) return nuove.Errore();
  if (nuove->empty()) return 0;
  if (auto scritto = scrittura->Accoda(*nuove); !scritto) return scritto.Errore();
  return static_cast<int>(nuove->size());
}

}  // namespace lottolab
