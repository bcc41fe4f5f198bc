#include "vbscript/objects/Dictionary.h"

#include <algorithm>
#include <bit>

#include "text/Utf.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

namespace {

constexpr size_t kMinSlots = 16;

enum class KeyKind : uint8_t { Empty, Null, Number, String, Object, Array };

KeyKind KindOf(const Variant& key) {
  switch (key.subtype()) {
    case Subtype::Empty: return KeyKind::Empty;
    case Subtype::Null: return KeyKind::Null;
    case Subtype::String: return KeyKind::String;
    case Subtype::Object: return KeyKind::Object;
    case Subtype::Array: return KeyKind::Array;
    default: return KeyKind::Number;
  }
}

// The value of a numeric key; -0 and 0 are one key.
double NumberOf(const Variant& key) {
  double value = 0;
  switch (key.subtype()) {
    case Subtype::Integer: value = key.as_integer(); break;
    case Subtype::Long: value = key.as_long(); break;
    case Subtype::Single: value = key.as_single(); break;
    case Subtype::Double: value = key.as_double(); break;
    case Subtype::Currency: value = static_cast<double>(key.as_currency()) / kCurrencyScale; break;
    case Subtype::Date: value = key.as_date(); break;
    case Subtype::Boolean: value = key.as_boolean() ? -1 : 0; break;
    case Subtype::Byte: value = key.as_byte(); break;
    case Subtype::Error: value = key.as_error(); break;
    default: break;
  }
  return value == 0 ? 0.0 : value;
}

uint64_t Mix(uint64_t x) {
  x ^= x >> 30;
  x *= 0xBF58476D1CE4E5B9ull;
  x ^= x >> 27;
  x *= 0x94D049BB133111EBull;
  return x ^ (x >> 31);
}

// The hash of a number; Integer and Long, the usual keys, reach it with no switch. It is the hash
// of the same number as a Double, so that 1 and 1.0 stay one key.
uint64_t HashNumber(double value) { return Mix(std::bit_cast<uint64_t>(value) ^ 3); }

uint64_t HashText(std::u16string_view text, CompareMode mode) {
  uint64_t h = 0xCBF29CE484222325ull;
  for (char16_t c : text) {
    h ^= mode == CompareMode::Text ? text::FoldCase(c) : c;
    h *= 0x100000001B3ull;
  }
  return Mix(h);
}

}  // namespace

class DictionaryEnumerator final : public Enumerator {
 public:
  explicit DictionaryEnumerator(Ref<Dictionary> dictionary) : m_dictionary(std::move(dictionary)) {
    ++m_dictionary->m_walkers;
  }
  ~DictionaryEnumerator() override { --m_dictionary->m_walkers; }

  Result<bool> Next(Variant& out) override {
    const auto& entries = m_dictionary->m_entries;
    while (m_next < entries.size() && !entries[m_next].live) ++m_next;
    if (m_next >= entries.size()) return false;
    out = entries[m_next++].key;
    return true;
  }

 private:
  Ref<Dictionary> m_dictionary;
  size_t m_next = 0;
};

Dictionary::Dictionary(const Locale& locale) : HostObject(locale) {}

std::span<const Dictionary::Member> Dictionary::Members() {
  static const Member kMembers[] = {
      {"Item", 1, 1, &Dictionary::GetItem, &Dictionary::PutItem,
       "Key: the item stored under the key; reading a missing key adds it with Empty", true},
      {"Add", 2, 2, &Dictionary::AddMember, nullptr, "Key, Item: adds a pair; error 457 when the key is there"},
      {"Exists", 1, 1, &Dictionary::Exists, nullptr, "Key: whether the key is there"},
      {"Key", 1, 1, nullptr, &Dictionary::PutKey, "Key = NewKey: renames a key, keeping its place"},
      {"Keys", 0, 0, &Dictionary::Keys, nullptr, "a 0-based array of the keys, in order"},
      {"Items", 0, 0, &Dictionary::Items, nullptr, "a 0-based array of the items, in order"},
      {"Remove", 1, 1, &Dictionary::Remove, nullptr, "Key: removes the pair; error 32811 when missing"},
      {"RemoveAll", 0, 0, &Dictionary::RemoveAll, nullptr, "removes every pair"},
      {"Count", 0, 0, &Dictionary::Count, nullptr, "the number of pairs"},
      {"CompareMode", 0, 0, &Dictionary::GetCompareMode, &Dictionary::PutCompareMode,
       "0 binary, 1 text (ignoring case); changeable only while empty"},
      {"HashVal", 1, 1, &Dictionary::HashVal, nullptr, "Key: the key's hash, 0-1200"},
  };
  return kMembers;
}

Result<Ref<Enumerator>> Dictionary::Enumerate() {
  return Ref<Enumerator>(MakeRef<DictionaryEnumerator>(Ref<Dictionary>(this)));
}

// ---- Keys and the index ----

Result<uint64_t> Dictionary::HashOf(const Variant& key) const {
  if (key.is_whole()) return HashNumber(key.as_whole());
  switch (KindOf(key)) {
    case KeyKind::Empty: return Mix(1);
    case KeyKind::Null: return Mix(2);
    case KeyKind::Number: return HashNumber(NumberOf(key));
    case KeyKind::String: return HashText(key.as_string_view(), m_mode);
    case KeyKind::Object: return Mix(reinterpret_cast<uintptr_t>(key.as_object()) ^ 4);
    case KeyKind::Array: break;
  }
  return MakeError(err::kInvalidCall);
}

bool Dictionary::SameKey(const Variant& a, const Variant& b) const {
  const KeyKind kind = KindOf(a);
  if (kind != KindOf(b)) return false;
  switch (kind) {
    case KeyKind::Number: return NumberOf(a) == NumberOf(b);
    case KeyKind::String:
      return m_mode == CompareMode::Text ? text::EqualsIgnoringCase(a.as_string_view(), b.as_string_view())
                                         : a.as_string_view() == b.as_string_view();
    case KeyKind::Object: return a.as_object() == b.as_object();
    default: return true;
  }
}

uint32_t Dictionary::Lookup(const Variant& key, uint64_t hash, size_t& slot) const {
  if (m_slots.empty()) {
    slot = 0;
    return kMissing;
  }
  const size_t mask = m_slots.size() - 1;
  const auto low = static_cast<uint32_t>(hash);
  for (size_t i = hash & mask;; i = (i + 1) & mask) {
    const Slot& held = m_slots[i];
    if (held.entry == 0) {
      slot = i;
      return kMissing;
    }
    if (held.hash != low) continue;
    const Entry& entry = m_entries[held.entry - 1];
    const bool same = key.is_whole() && entry.key.is_whole() ? key.as_whole() == entry.key.as_whole()
                                                             : entry.hash == hash && SameKey(entry.key, key);
    if (same) {
      slot = i;
      return held.entry - 1;
    }
  }
}

void Dictionary::Rebuild(size_t capacity) {
  m_slots.assign(capacity, Slot{});
  const size_t mask = capacity - 1;
  for (size_t e = 0; e < m_entries.size(); ++e) {
    if (!m_entries[e].live) continue;
    size_t i = m_entries[e].hash & mask;
    while (m_slots[i].entry != 0) i = (i + 1) & mask;
    m_slots[i] = Slot{static_cast<uint32_t>(e + 1), static_cast<uint32_t>(m_entries[e].hash)};
  }
}

void Dictionary::Append(Variant key, Variant item, uint64_t hash, size_t slot) {
  if ((m_live + 1) * 2 > m_slots.size()) {
    Rebuild(std::max(kMinSlots, m_slots.size() * 2));
    (void)Lookup(key, hash, slot);
  }
  m_entries.push_back(Entry{std::move(key), std::move(item), hash, true});
  m_slots[slot] = Slot{static_cast<uint32_t>(m_entries.size()), static_cast<uint32_t>(hash)};
  ++m_live;
}

// Empties an index slot, moving later entries of the same probe run back so that lookups never
// stop early at the hole.
void Dictionary::Erase(uint32_t entry, size_t slot) {
  const size_t mask = m_slots.size() - 1;
  size_t hole = slot;
  for (size_t j = (slot + 1) & mask; m_slots[j].entry != 0; j = (j + 1) & mask) {
    const size_t home = m_slots[j].hash & mask;
    const bool stays = hole <= j ? (hole < home && home <= j) : (hole < home || home <= j);
    if (!stays) {
      m_slots[hole] = m_slots[j];
      hole = j;
    }
  }
  m_slots[hole] = Slot{};
  if (entry != kMissing) {
    m_entries[entry].live = false;
    --m_live;
  }
}

void Dictionary::CompactIfSparse() {
  const size_t holes = m_entries.size() - m_live;
  if (m_walkers != 0 || holes < 32 || holes <= m_live) return;
  std::erase_if(m_entries, [](const Entry& entry) { return !entry.live; });
  Rebuild(m_slots.size());
}

// ---- Interface for C++ ----

Status Dictionary::Add(const Variant& key, Variant item) {
  const Variant& plain = key.Deref();
  VBS_TRY_ASSIGN(auto hash, HashOf(plain));
  size_t slot = 0;
  if (Lookup(plain, hash, slot) != kMissing) return MakeError(err::kKeyExists);
  Append(plain, std::move(item), hash, slot);
  return Ok();
}

Result<const Variant*> Dictionary::Find(const Variant& key) const {
  const Variant& plain = key.Deref();
  VBS_TRY_ASSIGN(auto hash, HashOf(plain));
  size_t slot = 0;
  const uint32_t entry = Lookup(plain, hash, slot);
  return entry == kMissing ? nullptr : &m_entries[entry].item;
}

// ---- Members ----

Result<Variant> Dictionary::AddMember(CallArgs& args) {
  VBS_TRY(Add(args[0], args[1]));
  return Variant();
}

Result<Variant> Dictionary::Exists(CallArgs& args) {
  VBS_TRY_ASSIGN(auto item, Find(args[0]));
  return Variant::Boolean(item != nullptr);
}

Result<Variant*> Dictionary::DefaultItemPlace(const Variant& key) {
  const Variant& plain = key.Deref();
  uint64_t hash = 0;
  if (plain.is_whole()) {
    if (Entry* last = LastFound(plain)) return &last->item;
    hash = HashNumber(plain.as_whole());
  } else {
    VBS_TRY_ASSIGN(auto general, HashOf(plain));
    hash = general;
  }
  size_t slot = 0;
  const uint32_t entry = Lookup(plain, hash, slot);
  if (entry != kMissing) {
    m_last_found = entry;
    return &m_entries[entry].item;
  }
  VBS_TRY(TrapAllocationFailure([&]() -> Status {
    Append(plain, Variant(), hash, slot);
    return Ok();
  }));
  m_last_found = static_cast<uint32_t>(m_entries.size() - 1);
  return &m_entries.back().item;
}

const Variant* Dictionary::PresentDefaultItem(const Variant& key) {
  const Variant& plain = key.Deref();
  if (!plain.is_whole()) return PresentItemOfAnyKey(plain);
  if (Entry* last = LastFound(plain)) return &last->item;
  size_t slot = 0;
  const uint32_t entry = Lookup(plain, HashNumber(plain.as_whole()), slot);
  if (entry == kMissing) return nullptr;
  m_last_found = entry;
  return &m_entries[entry].item;
}

const Variant* Dictionary::PresentItemOfAnyKey(const Variant& key) const {
  auto found = Find(key);
  return found ? *found : nullptr;
}

Result<Variant> Dictionary::GetItem(CallArgs& args) {
  VBS_TRY_ASSIGN(auto item, DefaultItemPlace(args[0]));
  return *item;
}

Result<Variant> Dictionary::PutItem(CallArgs& args, Variant value) {
  const Variant& key = args[0];
  VBS_TRY_ASSIGN(auto hash, HashOf(key));
  size_t slot = 0;
  const uint32_t entry = Lookup(key, hash, slot);
  if (entry == kMissing) {
    Append(key, std::move(value), hash, slot);
    return Variant();
  }
  // The old item dies when `value` does, after the dictionary is consistent again: its
  // Class_Terminate may use the dictionary.
  std::swap(m_entries[entry].item, value);
  return Variant();
}

Result<Variant> Dictionary::PutKey(CallArgs& args, Variant value) {
  const Variant& old_key = args[0];
  VBS_TRY_ASSIGN(auto old_hash, HashOf(old_key));
  VBS_TRY_ASSIGN(auto new_hash, HashOf(value));
  size_t old_slot = 0;
  const uint32_t entry = Lookup(old_key, old_hash, old_slot);
  if (entry == kMissing) return MakeError(err::kElementNotFound);
  size_t new_slot = 0;
  const uint32_t clash = Lookup(value, new_hash, new_slot);
  if (clash == entry) {
    std::swap(m_entries[entry].key, value);
    return Variant();
  }
  if (clash != kMissing) return MakeError(err::kKeyExists);
  Erase(kMissing, old_slot);
  (void)Lookup(value, new_hash, new_slot);
  std::swap(m_entries[entry].key, value);
  m_entries[entry].hash = new_hash;
  m_slots[new_slot] = Slot{entry + 1, static_cast<uint32_t>(new_hash)};
  return Variant();
}

Result<Variant> Dictionary::Keys(CallArgs&) {
  std::vector<Variant> keys;
  keys.reserve(m_live);
  for (const Entry& entry : m_entries)
    if (entry.live) keys.push_back(entry.key);
  VBS_TRY_ASSIGN(auto array, SafeArray::FromValues(keys));
  return Variant::Array(array);
}

Result<Variant> Dictionary::Items(CallArgs&) {
  std::vector<Variant> items;
  items.reserve(m_live);
  for (const Entry& entry : m_entries)
    if (entry.live) items.push_back(entry.item);
  VBS_TRY_ASSIGN(auto array, SafeArray::FromValues(items));
  return Variant::Array(array);
}

Result<Variant> Dictionary::Remove(CallArgs& args) {
  const Variant& key = args[0];
  VBS_TRY_ASSIGN(auto hash, HashOf(key));
  size_t slot = 0;
  const uint32_t entry = Lookup(key, hash, slot);
  if (entry == kMissing) return MakeError(err::kElementNotFound);
  Entry removed = std::move(m_entries[entry]);
  Erase(entry, slot);
  CompactIfSparse();
  return Variant();
}

Result<Variant> Dictionary::RemoveAll(CallArgs&) {
  std::vector<Entry> removed;
  removed.swap(m_entries);
  m_slots.clear();
  m_live = 0;
  return Variant();
}

Result<Variant> Dictionary::Count(CallArgs&) { return Variant::Long(static_cast<int32_t>(m_live)); }

Result<Variant> Dictionary::GetCompareMode(CallArgs&) { return Variant::Long(m_mode_value); }

Result<Variant> Dictionary::PutCompareMode(CallArgs&, Variant value) {
  VBS_TRY_ASSIGN(auto mode, value.to_long(locale()));
  if (mode < 0 || mode > 2 || m_live != 0) return MakeError(err::kInvalidCall);
  m_mode_value = mode;
  m_mode = mode == 0 ? CompareMode::Binary : CompareMode::Text;
  return Variant();
}

Result<Variant> Dictionary::HashVal(CallArgs& args) {
  VBS_TRY_ASSIGN(auto hash, HashOf(args[0]));
  return Variant::Long(static_cast<int32_t>(hash % 1201));
}

}  // namespace vbs
