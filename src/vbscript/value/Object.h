#pragma once

// Everything a script can hold with Set: instances of script classes, the host's objects, and the
// engine's own (Err, Dictionary, ...). Members are found by name once and then called by number,
// so a call site can cache the number and never look the name up again.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "vbscript/value/RefCounted.h"
#include "vbscript/value/Result.h"
#include "vbscript/value/Variant.h"

namespace vbs {

using DispId = int32_t;
inline constexpr DispId kUnknownMember = -1;
// The member used when the object itself is called or read as a value: obj(1), x = obj.
inline constexpr DispId kDefaultMember = 0;

enum class InvokeKind {
  Method,  // a call: obj.m a, b (also a property read with arguments)
  Get,     // a read: x = obj.p, obj.p(i)
  Let,     // obj.p = v: the value comes as the last argument
  Set,     // Set obj.p = o: the value comes as the last argument
};

// Iteration state of For Each over an object.
class Enumerator : public RefCounted {
 public:
  // The next element into `out`; false once there are no more.
  virtual Result<bool> Next(Variant& out) = 0;
};

class Object : public RefCounted {
 public:
  // The name TypeName() gives for the object.
  virtual std::u16string ClassName() const = 0;
  // The member's number, or kUnknownMember. Names match without regard to case.
  virtual DispId FindMember(std::string_view name) = 0;
  // Calls the member. An argument may be a reference to the caller's variable (Variant::IsRef),
  // through which the member can write back.
  virtual Result<Variant> Invoke(DispId member, InvokeKind kind, std::span<Variant> args) = 0;
  // obj(key) for an object whose default member keeps its values in place (Dictionary's Item):
  // the place of the value under `key`, made as a read or write of the member would make it, so
  // that obj(key) and obj(key) = v need no call. Null when the object keeps no such place and the
  // member must be invoked. The place is valid until the object next changes: read or write it at
  // once, and let an overwritten value die only after the write.
  virtual Result<Variant*> DefaultItemPlace(const Variant& /*key*/) { return static_cast<Variant*>(nullptr); }
  // The same place when the value under `key` is there already, for a read that must change
  // nothing; null otherwise, and the member is then invoked as usual.
  virtual const Variant* PresentDefaultItem(const Variant& /*key*/) { return nullptr; }
  // A member's form for calls whose arguments are all whole numbers (Integer or Long values, read
  // where they lie, with no argument list built): it writes the value into `out` and returns
  // true, or returns false having changed nothing, and the call then goes through Invoke, which
  // also reports any failure. Null when the member has no such form.
  using WholeNumberCall = bool (*)(Object& self, std::span<const int32_t> args, Variant& out);
  virtual WholeNumberCall WholeNumberForm(DispId /*member*/) { return nullptr; }
  // For Each over the object; error 451 when the object is not a collection.
  virtual Result<Ref<Enumerator>> Enumerate();
  // Identifies how this object numbers its members: objects that return the same non-null key
  // give the same number for the same name, so a call site may cache it. Null: do not cache.
  virtual const void* MemberLayout() const { return nullptr; }
};

}  // namespace vbs
