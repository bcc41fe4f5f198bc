#pragma once

// The dialogs a script's library opens (ScegliNumeri, ScegliRuota, ScegliFile, ...), declared once
// for every host that runs scripts: the desktop shows real dialogs, the command line answers from a
// file, a test answers in the user's stead. The library reaches the user only through here, so the
// script host stays headless.

#include <optional>
#include <string>
#include <vector>

namespace lottolab::script {

class DialoghiLibreria {
 public:
  virtual ~DialoghiLibreria() = default;

  // Each gives nothing when the user cancels; a host that asks nobody keeps these defaults, which
  // take the answer the dialog proposes.

  // Items of `voci`, by position from 0: one, or any number of them when `multipla`. The default is
  // the first item.
  virtual std::optional<std::vector<int>> ScegliVoci(const std::string& /*titolo*/,
                                                     const std::vector<std::string>& voci, bool /*multipla*/) {
    return voci.empty() ? std::vector<int>{} : std::vector<int>{0};
  }
  // Up to `quanti` whole numbers from 1 to `massimo`; the default is `proposti`.
  virtual std::optional<std::vector<int>> ScegliNumeri(const std::string& /*titolo*/, int /*quanti*/, int /*massimo*/,
                                                       const std::vector<int>& proposti) {
    return proposti;
  }
  // An amount for each of `voci` (the stakes of a bet, one per sorte); the default is `proposti`.
  virtual std::optional<std::vector<double>> ScegliImporti(const std::string& /*titolo*/,
                                                           const std::vector<std::string>& /*voci*/,
                                                           const std::vector<double>& proposti) {
    return proposti;
  }
  // A file, or a folder when `cartella`; the default is `proposto`.
  virtual std::optional<std::string> ScegliPercorso(const std::string& /*titolo*/, const std::string& proposto,
                                                    bool /*cartella*/) {
    return proposto;
  }
};

}  // namespace lottolab::script
