#pragma once

// Binding C++ objects to scripts by table. A host class lists its members once, one row each:
//
//   {"EstrattoRitardo", 2, 5, &Libreria::EstrattoRitardo, nullptr, "Ruota, Numero[, Inizio, Fine]"},
//
// and derives from HostObject<Self>, which finds members by name (ignoring case) and checks the
// number of arguments before calling. A member function receives the arguments as CallArgs, whose
// getters convert with the language's rules and report a failure naming the argument's position.

#include <algorithm>
#include <span>
#include <string_view>

#include "text/AsciiCase.h"
#include "vbscript/value/AllocationFailure.h"
#include "vbscript/value/CallArgs.h"
#include "vbscript/value/Locale.h"
#include "vbscript/value/Object.h"

namespace vbs {

// Member numbers start at 1; the row flagged as default also answers kDefaultMember.
template <typename Self>
class HostObject : public Object {
 public:
  using Getter = Result<Variant> (Self::*)(CallArgs& args);
  using Putter = Result<Variant> (Self::*)(CallArgs& args, Variant value);

  struct Member {
    std::string_view name;
    uint8_t min_args;
    uint8_t max_args;
    Getter get;  // a call or a read; null for a write-only property
    Putter put;  // Let and Set (the value apart); null for a method or read-only property
    std::string_view description;
    bool is_default = false;
  };

  explicit HostObject(const Locale& locale) : m_locale(&locale) {}

  DispId FindMember(std::string_view name) override {
    const auto members = Self::Members();
    for (size_t i = 0; i < members.size(); ++i) {
      if (text::EqualsIgnoringAsciiCase(name, members[i].name)) return static_cast<DispId>(i + 1);
    }
    return kUnknownMember;
  }

  const void* MemberLayout() const override { return Self::Members().data(); }

  Result<Variant> Invoke(DispId member, InvokeKind kind, std::span<Variant> args) override {
    return TrapAllocationFailure([&] { return InvokeMember(member, kind, args); });
  }

 protected:
  const Locale& locale() const { return *m_locale; }

 private:
  Result<Variant> InvokeMember(DispId member, InvokeKind kind, std::span<Variant> args) {
    const auto members = Self::Members();
    if (member == kDefaultMember) {
      auto it = std::find_if(members.begin(), members.end(), [](const Member& m) { return m.is_default; });
      if (it == members.end()) return MakeError(err::kNoMember);
      member = static_cast<DispId>(it - members.begin() + 1);
    }
    if (member < 1 || static_cast<size_t>(member) > members.size()) return MakeError(err::kNoMember);
    const Member& m = members[member - 1];
    Self& self = static_cast<Self&>(*this);
    if (kind == InvokeKind::Let || kind == InvokeKind::Set) {
      if (!m.put || args.empty()) return MakeError(m.get ? err::kIllegalMemberAssignment : err::kNoMember);
      Variant value = args.back().Deref();
      auto rest = args.first(args.size() - 1);
      if (rest.size() < m.min_args || rest.size() > m.max_args) return MakeError(err::kWrongArgs);
      CallArgs call(rest, *m_locale);
      return (self.*m.put)(call, std::move(value));
    }
    if (!m.get) return MakeError(err::kNoMember);
    if (m.max_args == 0 && !args.empty()) {
      // folder.SubFolders("x"): the arguments go to the default member of what the property gives.
      CallArgs none({}, *m_locale);
      auto result = (self.*m.get)(none);
      if (!result) return result;
      if (!result->is_object() || !result->as_object()) return MakeError(err::kWrongArgs);
      return result->as_object()->Invoke(kDefaultMember, InvokeKind::Get, args);
    }
    if (args.size() < m.min_args || args.size() > m.max_args) return MakeError(err::kWrongArgs);
    CallArgs call(args, *m_locale);
    return (self.*m.get)(call);
  }

  const Locale* m_locale;
};

}  // namespace vbs
