#pragma once

// The collection object the library hands to scripts (GetNewCollection, and the functions that
// return groups of objects): items in order, numbered from 1, each optionally under a text key.
// Keys ignore case. Item, Add, Remove and Count behave as the collections users know from their
// other scripting hosts: a missing index or key is error 5, a key given twice error 457; For Each
// walks the items.
//
// Access by key is a hash lookup; removing by key or index shifts the items that follow, which is
// linear, as the numbering from 1 requires.

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "vbscript/HostObject.h"

namespace lottolab::script {

class Collezione final : public vbs::HostObject<Collezione> {
 public:
  explicit Collezione(const vbs::Locale& locale) : HostObject(locale) {}
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"Collection"; }
  vbs::Result<vbs::Ref<vbs::Enumerator>> Enumerate() override;

  size_t size() const { return m_voci.size(); }
  const vbs::Variant& operator[](size_t i) const { return m_voci[i]->valore; }
  // Adds at the end, under `chiave` when it is not empty; error 457 when the key is taken.
  [[nodiscard]] vbs::Status Aggiungi(vbs::Variant valore, const std::u16string& chiave);
  // The 0-based place that `indice` names: a number from 1 or a key. Error 5 when there is none.
  vbs::Result<size_t> Posto(const vbs::Variant& indice) const;
  // Puts the items in the order `ordine` gives (a permutation of the places), keys kept.
  void Riordina(const std::vector<size_t>& ordine);

 private:
  struct Voce {
    vbs::Variant valore;
    std::u16string chiave;  // folded; empty when the item has none
  };

  vbs::Result<vbs::Variant> Item(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Add(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Remove(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Count(vbs::CallArgs& args);

  std::vector<std::shared_ptr<Voce>> m_voci;
  std::unordered_map<std::u16string, std::shared_ptr<Voce>> m_per_chiave;
};

}  // namespace lottolab::script
