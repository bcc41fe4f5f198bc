#include "gui/script/ScriptRecenti.h"

#include <algorithm>

#include <fmt/format.h>

namespace lottolab::gui {

namespace {

constexpr std::string_view kSezioneScriptRecenti = "SCRIPT_RECENTI";

std::string Chiave(int posizione) { return fmt::format("File{}", posizione); }

}  // namespace

std::vector<std::string> LeggiScriptRecenti(const app::FileIni& ini) {
  std::vector<std::string> file;
  for (int posizione = 1; posizione <= kMassimoScriptRecenti; ++posizione) {
    // A hand-edited file may leave holes: the list closes them up.
    std::string valore = ini.Leggi(kSezioneScriptRecenti, Chiave(posizione), "");
    if (!valore.empty() && std::find(file.begin(), file.end(), valore) == file.end()) file.push_back(std::move(valore));
  }
  return file;
}

void AggiungiScriptRecente(app::FileIni& ini, const std::string& file) {
  std::vector<std::string> elenco = LeggiScriptRecenti(ini);
  std::erase(elenco, file);
  elenco.insert(elenco.begin(), file);
  if (elenco.size() > static_cast<size_t>(kMassimoScriptRecenti)) elenco.resize(kMassimoScriptRecenti);
  for (int posizione = 1; posizione <= kMassimoScriptRecenti; ++posizione) {
    const size_t indice = static_cast<size_t>(posizione - 1);
    if (indice < elenco.size())
      ini.Scrivi(kSezioneScriptRecenti, Chiave(posizione), elenco[indice]);
    else if (ini.Leggi(kSezioneScriptRecenti, Chiave(posizione)))
      // A key past the list, left by a hand edit, is emptied so the file lists what the menu shows.
      ini.Scrivi(kSezioneScriptRecenti, Chiave(posizione), "");
  }
}

}  // namespace lottolab::gui
