#pragma once

// Scripting.Dictionary: keys and items kept in the order they were added. The entries live in one
// vector and an open-addressing index maps a key's hash to its entry, so Add, Item, Exists and
// Remove take constant time and a million keys build in a fraction of a second. Remove leaves a
// hole in the vector; holes are squeezed out once they outnumber the entries and no For Each is
// walking the dictionary, which keeps removal O(1) amortised and enumeration stable.
//
// Keys compare as on Windows: numbers by value whatever their subtype (Integer 1, Long 1 and
// Double 1.0 are one key; Boolean, Date, Currency and Byte count as numbers), strings by code unit
// or, with CompareMode vbTextCompare, ignoring case; a number never equals a string ("1" is not 1);
// objects by identity; Empty and Null are one key each. An array cannot be a key (error 5).

#include <cstdint>
#include <vector>

#include "vbscript/HostObject.h"
#include "vbscript/value/Operators.h"

namespace vbs {

class Dictionary final : public HostObject<Dictionary> {
 public:
  explicit Dictionary(const Locale& locale);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"Dictionary"; }
  // For Each gives the keys in order; keys added meanwhile are visited, removed ones skipped.
  Result<Ref<Enumerator>> Enumerate() override;
  // The item under `key`, added with Empty when missing, as Item reads it; error 5 for an array.
  Result<Variant*> DefaultItemPlace(const Variant& key) override;
  const Variant* PresentDefaultItem(const Variant& key) override;

  // Adds a pair; error 457 when the key is there already, 5 when the key is an array.
  [[nodiscard]] Status Add(const Variant& key, Variant item);
  // The item stored under `key`, or null when there is none; error 5 for an array key.
  Result<const Variant*> Find(const Variant& key) const;
  size_t size() const { return m_live; }

 private:
  friend class DictionaryEnumerator;
  static constexpr uint32_t kMissing = UINT32_MAX;

  struct Entry {
    Variant key;
    Variant item;
    uint64_t hash = 0;
    bool live = true;
  };
  // An index slot holds the low half of its key's hash, so probing past other keys reads the
  // index alone and touches an entry only when the hashes agree.
  struct Slot {
    uint32_t entry = 0;  // entry number + 1; 0 is an empty slot
    uint32_t hash = 0;
  };

  Result<Variant> AddMember(CallArgs& args);
  Result<Variant> Exists(CallArgs& args);
  Result<Variant> GetItem(CallArgs& args);
  Result<Variant> PutItem(CallArgs& args, Variant value);
  Result<Variant> PutKey(CallArgs& args, Variant value);
  Result<Variant> Keys(CallArgs& args);
  Result<Variant> Items(CallArgs& args);
  Result<Variant> Remove(CallArgs& args);
  Result<Variant> RemoveAll(CallArgs& args);
  Result<Variant> Count(CallArgs& args);
  Result<Variant> GetCompareMode(CallArgs& args);
  Result<Variant> PutCompareMode(CallArgs& args, Variant value);
  Result<Variant> HashVal(CallArgs& args);

  // The key's hash; error 5 for an array.
  Result<uint64_t> HashOf(const Variant& key) const;
  bool SameKey(const Variant& a, const Variant& b) const;
  // The entry holding `key` (hash already computed), or kMissing; `slot` gets its index slot or
  // the empty slot where it would go.
  uint32_t Lookup(const Variant& key, uint64_t hash, size_t& slot) const;
  // PresentDefaultItem for keys that are no whole number: hashed by the general rules.
  [[gnu::noinline]] const Variant* PresentItemOfAnyKey(const Variant& key) const;
  // The entry found last, when it holds the whole number `key`: d(k) = d(k) + 1 looks one key up
  // twice running. Keys are unique, so no change to the dictionary can fool it.
  Entry* LastFound(const Variant& key) {
    if (m_last_found >= m_entries.size()) return nullptr;
    Entry& last = m_entries[m_last_found];
    return last.live && last.key.is_whole() && last.key.as_whole() == key.as_whole() ? &last : nullptr;
  }
  void Append(Variant key, Variant item, uint64_t hash, size_t slot);
  void Erase(uint32_t entry, size_t slot);
  void Rebuild(size_t capacity);
  void CompactIfSparse();

  std::vector<Entry> m_entries;
  std::vector<Slot> m_slots;
  size_t m_live = 0;
  CompareMode m_mode = CompareMode::Binary;
  int32_t m_mode_value = 0;
  uint32_t m_walkers = 0;            // enumerators alive: compaction waits for them
  uint32_t m_last_found = kMissing;  // the entry a read of d(k) found last
};

}  // namespace vbs
