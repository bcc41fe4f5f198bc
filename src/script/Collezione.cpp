#include "Collezione.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "text/Utf.h"

namespace lottolab::script {

namespace {

using vbs::CallArgs;
using vbs::Result;
using vbs::Variant;

std::u16string Piegata(std::u16string_view chiave) {
  std::u16string piegata(chiave);
  for (char16_t& c : piegata) c = text::FoldCase(c);
  return piegata;
}

// Items added or removed while For Each walks are seen as they stand when it gets there.
class EnumeratoreCollezione final : public vbs::Enumerator {
 public:
  explicit EnumeratoreCollezione(vbs::Ref<Collezione> collezione) : m_collezione(std::move(collezione)) {}

  Result<bool> Next(Variant& out) override {
    if (m_prossimo >= m_collezione->size()) return false;
    out = (*m_collezione)[m_prossimo++];
    return true;
  }

 private:
  vbs::Ref<Collezione> m_collezione;
  size_t m_prossimo = 0;
};

}  // namespace

std::span<const Collezione::Member> Collezione::Members() {
  static const Member kMembri[] = {
      {"Item", 1, 1, &Collezione::Item, nullptr, "Indice: l'elemento al posto Indice (da 1) o con la chiave Indice",
       true},
      {"Add", 1, 4, &Collezione::Add, nullptr,
       "Elemento, [Chiave], [Prima], [Dopo]: aggiunge l'elemento in fondo, o prima o dopo quello indicato"},
      {"Remove", 1, 1, &Collezione::Remove, nullptr, "Indice: toglie l'elemento al posto o con la chiave Indice"},
      {"Count", 0, 0, &Collezione::Count, nullptr, "il numero di elementi"},
  };
  return kMembri;
}

Result<vbs::Ref<vbs::Enumerator>> Collezione::Enumerate() {
  return vbs::Ref<vbs::Enumerator>(vbs::MakeRef<EnumeratoreCollezione>(vbs::Ref<Collezione>(this)));
}

vbs::Status Collezione::Aggiungi(Variant valore, const std::u16string& chiave) {
  auto voce = std::make_shared<Voce>(Voce{std::move(valore), Piegata(chiave)});
  if (!voce->chiave.empty() && !m_per_chiave.emplace(voce->chiave, voce).second)
    return vbs::MakeError(vbs::err::kKeyExists);
  m_voci.push_back(std::move(voce));
  return vbs::Ok();
}

Result<size_t> Collezione::Posto(const Variant& indice) const {
  const Variant& valore = indice.Deref();
  if (valore.is_string()) {
    auto it = m_per_chiave.find(Piegata(valore.as_string().view()));
    if (it == m_per_chiave.end()) return vbs::MakeError(vbs::err::kInvalidCall);
    return static_cast<size_t>(std::find(m_voci.begin(), m_voci.end(), it->second) - m_voci.begin());
  }
  VBS_TRY_ASSIGN(auto numero, valore.to_double(locale()));
  const double posto = std::nearbyint(numero);
  if (!(posto >= 1 && posto <= static_cast<double>(m_voci.size()))) return vbs::MakeError(vbs::err::kInvalidCall);
  return static_cast<size_t>(posto) - 1;
}

void Collezione::Riordina(const std::vector<size_t>& ordine) {
  std::vector<std::shared_ptr<Voce>> riordinate;
  riordinate.reserve(ordine.size());
  for (size_t posto : ordine) riordinate.push_back(m_voci[posto]);
  m_voci = std::move(riordinate);
}

Result<Variant> Collezione::Item(CallArgs& args) {
  VBS_TRY_ASSIGN(auto posto, Posto(args[0]));
  return m_voci[posto]->valore;
}

Result<Variant> Collezione::Add(CallArgs& args) {
  std::u16string chiave;
  if (args.Has(1)) {
    VBS_TRY_ASSIGN(auto testo, args.String(1));
    chiave = std::move(testo);
  }
  if (args.Has(2) && args.Has(3)) return vbs::MakeError(vbs::err::kInvalidCall);
  std::optional<size_t> dove;
  if (args.Has(2) || args.Has(3)) {
    const bool dopo = args.Has(3);
    VBS_TRY_ASSIGN(auto posto, Posto(args[dopo ? 3 : 2]));
    dove = posto + (dopo ? 1 : 0);
  }
  if (auto aggiunta = Aggiungi(args[0], chiave); !aggiunta) return std::move(aggiunta).error();
  if (dove) std::rotate(m_voci.begin() + static_cast<std::ptrdiff_t>(*dove), m_voci.end() - 1, m_voci.end());
  return Variant();
}

Result<Variant> Collezione::Remove(CallArgs& args) {
  VBS_TRY_ASSIGN(auto posto, Posto(args[0]));
  if (!m_voci[posto]->chiave.empty()) m_per_chiave.erase(m_voci[posto]->chiave);
  m_voci.erase(m_voci.begin() + static_cast<std::ptrdiff_t>(posto));
  return Variant();
}

Result<Variant> Collezione::Count(CallArgs&) { return Variant::Long(static_cast<int32_t>(m_voci.size())); }

}  // namespace lottolab::script
