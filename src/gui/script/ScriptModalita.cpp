#include "gui/script/ScriptModalita.h"

#include <QCryptographicHash>
#include <QSaveFile>

#include <fmt/format.h>
#include <map>
#include <sstream>

#include "script/LetturaFile.h"

namespace lottolab::gui {

namespace fs = std::filesystem;

namespace {

// Thousands of answers fit in far less: a larger file is no file of ours and is not read.
constexpr uintmax_t kMassimoFile = uintmax_t{4} << 20;
constexpr size_t kLunghezzaImpronta = 64;

constexpr std::string_view kProtetta = "protetta";
constexpr std::string_view kNormale = "normale";

fs::path FileDelleScelte(const fs::path& base) { return base / kFileModalita; }

// The answers of the file; lines that do not read as one are skipped.
std::map<std::string, script::Modalita> Scelte(const fs::path& base) {
  std::map<std::string, script::Modalita> scelte;
  std::error_code ec;
  if (!fs::exists(FileDelleScelte(base), ec)) return scelte;
  auto contenuto = script::LeggiFileRegolare(FileDelleScelte(base), kMassimoFile);
  if (!contenuto) return scelte;
  std::istringstream righe(std::move(contenuto).Valore());
  std::string impronta;
  std::string parola;
  while (righe >> impronta >> parola) {
    if (impronta.size() != kLunghezzaImpronta) continue;
    if (parola == kProtetta) scelte[impronta] = script::Modalita::Protetta;
    if (parola == kNormale) scelte[impronta] = script::Modalita::Normale;
  }
  return scelte;
}

}  // namespace

bool NellaCartella(const fs::path& file, const fs::path& cartella) {
  auto percorso = script::PercorsoRisolto(file);
  auto radice = script::PercorsoRisolto(cartella);
  if (!percorso || !radice) return false;
  const std::string p = percorso->string();
  const std::string r = radice->string();
  return p.starts_with(r.ends_with('/') ? r : r + "/");
}

std::string ImprontaScript(const QByteArray& contenuto) {
  return QCryptographicHash::hash(contenuto, QCryptographicHash::Sha256).toHex().toStdString();
}

std::optional<script::Modalita> ModalitaRicordata(const fs::path& base, const std::string& impronta) {
  const auto scelte = Scelte(base);
  auto trovata = scelte.find(impronta);
  if (trovata == scelte.end()) return std::nullopt;
  return trovata->second;
}

Esito<Fatto> RicordaModalita(const fs::path& base, const std::string& impronta, script::Modalita modalita) {
  auto scelte = Scelte(base);
  scelte[impronta] = modalita;
  std::string testo;
  for (const auto& [chiave, scelta] : scelte)
    testo += fmt::format("{} {}\n", chiave, scelta == script::Modalita::Protetta ? kProtetta : kNormale);
  const QString nome = QString::fromStdString(FileDelleScelte(base).string());
  QSaveFile file(nome);
  if (!file.open(QIODevice::WriteOnly) || file.write(testo.data(), static_cast<qint64>(testo.size())) < 0 ||
      !file.commit())
    return AvvisoEsclamativo(fmt::format("Impossibile ricordare la scelta nel file {}", nome.toStdString()));
  return Fatto{};
}

}  // namespace lottolab::gui
