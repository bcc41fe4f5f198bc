#pragma once

// What a user's script may do with files, in the two modes of a run.
//
// Normal: the script may do what the user may, except change or remove lottolab.ini and the
// archives (or a folder holding them), which a script never needs to write.
//
// Protected, for scripts that come from someone else: it reads only inside the base folder, writes
// and deletes only inside the output folders (scriptOutput/ of the base folder, and the folder of a
// page the user named), never touches lottolab.ini or the archives, and hands no file to another
// program. Downloads are writes and uploads are reads of the files they name; a protected script
// sends nothing over the network.
//
// Every path is resolved before it is judged: links are followed and "." and ".." taken out, so a
// name that goes through a link, or climbs out with "..", is judged by where it really leads.

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "vbscript/FileAccessPolicy.h"

namespace lottolab::script {

enum class Modalita { Normale, Protetta };

struct RegoleAccesso {
  Modalita modalita = Modalita::Normale;
  std::filesystem::path cartella_base;                     // what a protected script may read
  std::vector<std::filesystem::path> cartelle_scrivibili;  // where a protected script may write
  std::vector<std::filesystem::path> sola_lettura;         // the INI and the archives
};

// `percorso` made absolute with every link followed and "." and ".." taken out; the part that does
// not exist yet is kept as written. Nothing for a loop of links.
std::optional<std::filesystem::path> PercorsoRisolto(const std::filesystem::path& percorso);

class AccessoFile final : public vbs::FileAccessPolicy {
 public:
  explicit AccessoFile(RegoleAccesso regole);

  // A refusal is error 70, "Permesso negato", naming the function, the path and the reason.
  vbs::Status Check(vbs::FileAccess accesso, const std::filesystem::path& percorso,
                    std::string_view funzione) const override;

  Modalita modalita() const { return m_modalita; }

 private:
  Modalita m_modalita;
  std::filesystem::path m_base;
  std::vector<std::filesystem::path> m_scrivibili;
  std::vector<std::filesystem::path> m_sola_lettura;
};

}  // namespace lottolab::script
