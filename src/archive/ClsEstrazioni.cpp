#include "ClsEstrazioni.h"

#include <cerrno>
#include <cmath>
#include <cstring>
#include <fmt/format.h>
#include <fstream>
#include <system_error>

namespace lottolab {

namespace fs = std::filesystem;

namespace {

void ScriviLE(unsigned char* p, uint32_t valore, int byte) {
  for (int i = 0; i < byte; ++i) p[i] = static_cast<unsigned char>(valore >> (8 * i));
}

uint32_t LeggiLE(const unsigned char* p, int byte) {
  uint32_t valore = 0;
  for (int i = 0; i < byte; ++i) valore |= static_cast<uint32_t>(p[i]) << (8 * i);
  return valore;
}

Avviso ErroreFile(const char* procedura, const fs::path& percorso) {
  // 75 is the number of a path/file access error, as users know it from their scripts.
  return AvvisoCritico(procedura, 75,
                       fmt::format("Errore di accesso al file {}: {}", percorso.string(), std::strerror(errno)));
}

int ContaRecord(uintmax_t lunghezza) {
  return static_cast<int>(std::lround(static_cast<double>(lunghezza) / kByteRecordArchivio));
}

}  // namespace

void CodificaRecord(const Estrazione& e, unsigned char* d) {
  ScriviLE(d + 0, static_cast<uint32_t>(e.id_estr), 4);
  ScriviLE(d + 4, static_cast<uint16_t>(e.data.indice_annuale), 2);
  ScriviLE(d + 6, static_cast<uint16_t>(e.data.giorno), 2);
  ScriviLE(d + 8, static_cast<uint16_t>(e.data.mese), 2);
  ScriviLE(d + 10, static_cast<uint16_t>(e.data.anno), 2);
  std::memcpy(d + 12, e.numeri.data(), e.numeri.size());
}

Estrazione DecodificaRecord(const unsigned char* s, size_t lunghezza) {
  // A record cut short by the end of the file reads as zeros where bytes are missing.
  unsigned char completo[kByteRecordArchivio] = {};
  std::memcpy(completo, s, std::min<size_t>(lunghezza, kByteRecordArchivio));
  Estrazione e;
  e.id_estr = static_cast<int32_t>(LeggiLE(completo + 0, 4));
  e.data.indice_annuale = static_cast<int16_t>(LeggiLE(completo + 4, 2));
  e.data.giorno = static_cast<int16_t>(LeggiLE(completo + 6, 2));
  e.data.mese = static_cast<int16_t>(LeggiLE(completo + 8, 2));
  e.data.anno = static_cast<int16_t>(LeggiLE(completo + 10, 2));
  std::memcpy(e.numeri.data(), completo + 12, e.numeri.size());
  return e;
}

Esito<int> ClsEstrazioni::GetNumeroEstrazioni(const fs::path& percorso) const {
  const fs::path& file = percorso.empty() ? m_archivio : percorso;
  std::error_code ec;
  if (!fs::exists(file, ec)) return 0;
  uintmax_t lunghezza = fs::file_size(file, ec);
  if (ec) {
    return AvvisoCritico("Mod_AggiornaEstrazioni.GetNumeroEstrazioni", 75,
                         fmt::format("Errore di accesso al file {}: {}", file.string(), ec.message()));
  }
  return ContaRecord(lunghezza);
}

Esito<TabellaEstrazioni> ClsEstrazioni::CaricaEstrazioni() const {
  std::error_code ec;
  if (!fs::exists(m_archivio, ec)) {
    return AvvisoEsclamativo(
        fmt::format("Non esiste il file relativo alla base dati originale \n{}", m_archivio.string()));
  }
  std::ifstream in(m_archivio, std::ios::binary);
  if (!in) return ErroreFile("ClsEstrazioni.CaricaEstrazioni", m_archivio);
  std::vector<unsigned char> contenuto(fs::file_size(m_archivio, ec));
  in.read(reinterpret_cast<char*>(contenuto.data()), static_cast<std::streamsize>(contenuto.size()));
  if (!in) return ErroreFile("ClsEstrazioni.CaricaEstrazioni", m_archivio);

  int conteggio = ContaRecord(contenuto.size());
  std::vector<Estrazione> estrazioni(conteggio);
  for (int k = 0; k < conteggio; ++k) {
    size_t inizio = static_cast<size_t>(k) * kByteRecordArchivio;
    estrazioni[k] = DecodificaRecord(contenuto.data() + inizio, contenuto.size() - inizio);
  }
  return TabellaEstrazioni(std::move(estrazioni));
}

Esito<Fatto> ClsEstrazioni::LeggiEstrazione(int k, Estrazione& record) const {
  std::error_code ec;
  if (k < 1 || !fs::exists(m_archivio, ec)) return Fatto{};
  uintmax_t posizione = static_cast<uintmax_t>(k - 1) * kByteRecordArchivio;
  uintmax_t lunghezza = fs::file_size(m_archivio, ec);
  if (ec || posizione >= lunghezza) return Fatto{};
  std::ifstream in(m_archivio, std::ios::binary);
  unsigned char buffer[kByteRecordArchivio] = {};
  in.seekg(static_cast<std::streamoff>(posizione));
  in.read(reinterpret_cast<char*>(buffer), kByteRecordArchivio);
  if (in.bad()) return ErroreFile("ClsEstrazioni.LeggiEstrazione", m_archivio);
  record = DecodificaRecord(buffer, static_cast<size_t>(in.gcount()));
  return Fatto{};
}

Esito<bool> ClsEstrazioni::ScriviEstrazione(const Estrazione& estrazione, int k) {
  constexpr const char* kProcedura = "ClsEstrazioni.ScriviEstrazione";
  if (k < 0) return false;
  auto conteggio = GetNumeroEstrazioni();
  if (!conteggio) return conteggio.Errore();
  int n = *conteggio;
  if (k > n + 1) {
    return AvvisoEsclamativo(
        "Id estrazione non consecutivo. \nL'id della nuova estrazione che si sta scrivendo deve essere "
        "compreso tra 1 e il NumeroEstrazioniArchiviate + 1 !");
  }
  unsigned char buffer[kByteRecordArchivio];
  CodificaRecord(estrazione, buffer);

  std::error_code ec;
  bool sovrascrivi = k >= 1 && k <= n;
  std::fstream file(m_archivio, std::ios::binary | std::ios::in | std::ios::out |
                                    (fs::exists(m_archivio, ec) ? std::ios::openmode{} : std::ios::trunc));
  if (!file) return ErroreFile(kProcedura, m_archivio);
  if (sovrascrivi)
    file.seekp(static_cast<std::streamoff>(k - 1) * kByteRecordArchivio);
  else
    file.seekp(0, std::ios::end);
  file.write(reinterpret_cast<const char*>(buffer), kByteRecordArchivio);
  file.flush();
  if (!file) return ErroreFile(kProcedura, m_archivio);
  return true;
}

Esito<Fatto> ClsEstrazioni::SalvaFileEstrazioni(const std::vector<Estrazione>& estrazioni) {
  constexpr const char* kProcedura = "Mod_AggiornaEstrazioni.SalvaFileEstrazioni";
  std::vector<unsigned char> nuovi;
  nuovi.reserve(estrazioni.size() * kByteRecordArchivio);
  for (const Estrazione& e : estrazioni) {
    if (!e.Presente()) continue;
    size_t fine = nuovi.size();
    nuovi.resize(fine + kByteRecordArchivio);
    CodificaRecord(e, nuovi.data() + fine);
  }
  if (nuovi.empty()) return Fatto{};
  std::ofstream file(m_archivio, std::ios::binary | std::ios::app);
  if (!file) return ErroreFile(kProcedura, m_archivio);
  file.write(reinterpret_cast<const char*>(nuovi.data()), static_cast<std::streamsize>(nuovi.size()));
  file.flush();
  if (!file) return ErroreFile(kProcedura, m_archivio);
  return Fatto{};
}

}  // namespace lottolab
