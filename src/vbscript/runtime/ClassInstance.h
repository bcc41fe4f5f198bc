#pragma once

// Instances of classes declared in scripts. Members are numbered by the class, so a call site can
// cache the number; Class_Terminate runs the moment the last reference goes, as scripts expect.

#include <memory>
#include <vector>

#include "vbscript/runtime/Interpreter.h"
#include "vbscript/runtime/Procedure.h"
#include "vbscript/value/Object.h"

namespace vbs {

// Whether the engine that made an instance is still there to run its Class_Terminate.
struct EngineLink {
  Interpreter* interp = nullptr;
};

class ClassInstance final : public Object {
 public:
  ClassInstance(ClassInfo& info, std::shared_ptr<EngineLink> link);

  ClassInfo& info() const { return m_info; }
  Variant& field(size_t index) { return m_fields[index]; }

  std::u16string ClassName() const override;
  DispId FindMember(std::string_view name) override;
  const void* MemberLayout() const override { return &m_info; }
  Result<Variant> Invoke(DispId member, InvokeKind kind, std::span<Variant> args) override;

  // Invoke from inside the class (through Me), where Private members are visible too.
  Result<Variant> InvokeMember(DispId member, InvokeKind kind, std::span<Variant> args);

 private:
  void LastReleased() override;

  ClassInfo& m_info;
  std::shared_ptr<EngineLink> m_link;
  std::vector<Variant> m_fields;
};

// Reads or writes a value through a variable's contents: an array element (a(i)), or the default
// member of the object the variable holds (obj(i)). Shared by variables, fields and members.
Result<Variant> IndexValue(const Variant& holder, std::span<Variant> args, const Locale& locale);
Status AssignIndexed(Variant& holder, std::span<Variant> args, Variant value, bool is_set, const Locale& locale);

}  // namespace vbs
