#include "ClsEstrazioni.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fmt/format.h>
#include <fstream>
#include <iterator>
#include <system_error>

#include "FileSicuri.h"
#include "ScritturaArchivio.h"

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

Avviso ErroreFile(const char* procedura, const fs::path& percorso, int numero) {
  // 75 is the number of a path/file access error, as users know it from their scripts.
  return AvvisoCritico(procedura, 75,
                       fmt::format("Errore di accesso al file {}: {}", percorso.string(), DescrizioneErrore(numero)));
}

}  // namespace

int ContaRecordArchivio(uintmax_t lunghezza) {
  return static_cast<int>((lunghezza + kByteRecordArchivio / 2) / kByteRecordArchivio);
}

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
  if (auto regolare = ControllaFileRegolare(file); !regolare) return regolare.Errore();
  std::error_code ec;
  if (!fs::exists(file, ec) && !ec) return 0;
  const uintmax_t lunghezza = ec ? 0 : fs::file_size(file, ec);
  if (ec) return ErroreFile("Mod_AggiornaEstrazioni.GetNumeroEstrazioni", file, ec.value());
  return ContaRecordArchivio(lunghezza);
}

Esito<EstrazioniCaricate> ClsEstrazioni::CaricaEControlla() const {
  auto letto = LeggiArchivio(m_archivio);
  if (!letto) return letto.Errore();
  if (!letto->esiste) {
    return AvvisoEsclamativo(
        fmt::format("Non esiste il file relativo alla base dati originale \n{}", m_archivio.string()));
  }
  if (letto->rapporto.NonEUnArchivio()) return letto->rapporto.Rifiuto();
  return EstrazioniCaricate{std::move(letto->tabella), std::move(letto->rapporto)};
}

Esito<TabellaEstrazioni> ClsEstrazioni::CaricaEstrazioni() const {
  auto caricate = CaricaEControlla();
  if (!caricate) return caricate.Errore();
  return std::move(caricate).Valore().tabella;
}

Esito<Fatto> ClsEstrazioni::LeggiEstrazione(int k, Estrazione& record) const {
  if (k < 1) return Fatto{};
  if (auto regolare = ControllaFileRegolare(m_archivio); !regolare) return regolare.Errore();
  std::error_code ec;
  if (!fs::exists(m_archivio, ec) && !ec) return Fatto{};
  const uintmax_t posizione = static_cast<uintmax_t>(k - 1) * kByteRecordArchivio;
  const uintmax_t lunghezza = ec ? 0 : fs::file_size(m_archivio, ec);
  if (ec) return ErroreFile("ClsEstrazioni.LeggiEstrazione", m_archivio, ec.value());
  if (posizione >= lunghezza) return Fatto{};
  std::ifstream in(m_archivio, std::ios::binary);
  unsigned char buffer[kByteRecordArchivio] = {};
  in.seekg(static_cast<std::streamoff>(posizione));
  in.read(reinterpret_cast<char*>(buffer), kByteRecordArchivio);
  if (in.bad()) return ErroreFile("ClsEstrazioni.LeggiEstrazione", m_archivio, errno);
  record = DecodificaRecord(buffer, static_cast<size_t>(in.gcount()));
  return Fatto{};
}

Esito<bool> ClsEstrazioni::ScriviEstrazione(const Estrazione& estrazione, int k) {
  if (k < 0) return false;
  auto scrittura = ScritturaArchivio::Apri(m_archivio);
  if (!scrittura) return scrittura.Errore();
  const int n = scrittura->Conteggio();
  if (k > n + 1) {
    return AvvisoEsclamativo(
        "Id estrazione non consecutivo. \nL'id della nuova estrazione che si sta scrivendo deve essere "
        "compreso tra 1 e il NumeroEstrazioniArchiviate + 1 !");
  }
  auto scritto = k >= 1 && k <= n ? scrittura->Sovrascrivi(k, estrazione) : scrittura->Accoda({estrazione});
  if (!scritto) return scritto.Errore();
  return true;
}

Esito<Fatto> ClsEstrazioni::SalvaFileEstrazioni(const std::vector<Estrazione>& estrazioni) {
  std::vector<Estrazione> presenti;
  std::copy_if(estrazioni.begin(), estrazioni.end(), std::back_inserter(presenti),
               [](const Estrazione& e) { return e.Presente(); });
  if (presenti.empty()) return Fatto{};
  auto scrittura = ScritturaArchivio::Apri(m_archivio);
  if (!scrittura) return scrittura.Errore();
  return scrittura->Accoda(presenti);
}

}  // namespace lottolab
