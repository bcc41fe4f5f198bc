#pragma once

// Compiled procedures and classes: what the compiler produces for Sub, Function, Property and Class
// declarations, and what calls run.

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "vbscript/runtime/Nodes.h"
#include "vbscript/syntax/Ast.h"

namespace vbs {

struct ClassInfo;
struct GlobalEntry;

// A procedure's frame holds, in order: the return value (slot 0), the parameters, the declared and
// implicit locals, and the compiler's temporaries (For limits, With objects).
struct Procedure {
  std::string name;
  ast::ProcedureKind kind = ast::ProcedureKind::Sub;
  bool is_public = true;
  SourcePos pos;
  uint32_t param_count = 0;
  std::vector<uint8_t> param_by_val;  // one byte each: read on every call
  uint32_t slot_count = 1;
  // Folded names of the named slots (return value, parameters, locals), for code that Execute and
  // Eval compile inside the procedure.
  std::vector<std::string> slot_names;
  // Slots that must start as arrays (`Dim a(3)` inside the procedure) and their upper bounds.
  std::vector<std::pair<uint32_t, std::vector<int32_t>>> fixed_arrays;
  // Slots declared `Dim a()`: they start as arrays without dimensions.
  std::vector<uint32_t> dynamic_arrays;
  // Names the procedure uses without declaring them. Each call binds such a slot to the global of
  // that name when one exists as the call starts; otherwise the slot is a variable of the call.
  struct ImplicitName {
    std::string folded;
    uint32_t slot;
  };
  std::vector<ImplicitName> implicit_names;
  // The globals last found for implicit_names, valid while the engine's globals stay as they were
  // at `bound_generation`: calls in a loop bind without looking names up.
  mutable std::vector<const GlobalEntry*> bound_globals;
  mutable uint64_t bound_generation = ~uint64_t{0};
  BlockNode body;
  ClassInfo* owner = nullptr;

  static constexpr uint32_t kResultSlot = 0;
  static constexpr uint32_t kFirstParamSlot = 1;
};

// A member of a script class as callers outside see it: a field, or the procedures of one name
// (a Sub or Function, or up to three Property procedures).
struct ClassMember {
  std::string name;
  bool is_public = true;
  int32_t field = -1;           // index into the instance's fields, or -1
  Procedure* method = nullptr;  // Sub or Function
  Procedure* getter = nullptr;
  Procedure* letter = nullptr;
  Procedure* setter = nullptr;
};

struct ClassField {
  std::string name;
  bool is_array = false;
  std::vector<int32_t> bounds;  // for `Dim a(3)`; empty with is_array for `Dim a()`
};

struct ClassInfo {
  std::string name;
  std::vector<ClassField> fields;
  // DispId d >= 1 is members[d - 1]; kDefaultMember names `default_member`.
  std::vector<ClassMember> members;
  std::unordered_map<std::string, int32_t> member_ids;  // folded name -> DispId
  int32_t default_member = -1;
  Procedure* initialize = nullptr;
  Procedure* terminate = nullptr;
  std::vector<std::unique_ptr<Procedure>> procedures;
};

}  // namespace vbs
