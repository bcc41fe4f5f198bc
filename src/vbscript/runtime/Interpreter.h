#pragma once

// The running state of one engine: global names and their storage, compiled procedures and
// classes, the objects the host added, the Err state, the locale, and the frames of the procedures
// being run. There is no global interpreter state anywhere: two engines run side by side.
//
// The interpreter walks the compiled node tree (Nodes.h). Frames keep their slots on a segmented
// stack of Variants that never moves, so a ByRef argument can point into the caller's frame.

#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "vbscript/FileAccessPolicy.h"
#include "vbscript/runtime/Procedure.h"
#include "vbscript/runtime/RandomGenerator.h"
#include "vbscript/runtime/UiHandler.h"
#include "vbscript/value/ErrorCodes.h"
#include "vbscript/value/Locale.h"
#include "vbscript/value/Object.h"
#include "vbscript/value/Operators.h"
#include "vbscript/value/Source.h"
#include "vbscript/value/StackLimit.h"

namespace vbs {

class ClassInstance;
class ErrObject;
struct Builtin;

// The slots of one call on the engine's slot stack, and where the stack stood before them.
struct FrameSlots {
  Variant* slots = nullptr;
  uint32_t count = 0;
  uint32_t previous_offset = 0;
  size_t previous_segment = 0;
};

struct Frame {
  class Interpreter& interp;
  Variant* slots = nullptr;
  const Procedure* procedure = nullptr;  // null for global code
  ClassInstance* me = nullptr;           // the instance whose method runs, if any
  Frame* outer = nullptr;                // the procedure's frame, for code run by Execute/Eval in it
  bool resume_next = false;
  // Variables that code run by Execute creates in this call of a procedure, by folded name: the
  // procedure's own code does not name them, so they need no slot.
  std::unique_ptr<std::unordered_map<std::string, Variant>> dynamic;
};

// A unit of code as compiled: global code of AddCode/ExecuteGlobal/ExecuteStatement, or the code of
// an Execute or Eval.
struct CompiledProgram {
  BlockNode body;
  ExprNodePtr expression;  // Eval only
  uint32_t temp_count = 0;
};

struct GlobalEntry {
  enum class Kind : uint8_t { Variable, Constant, Procedure, Class, NamedObject, HostMember };
  Kind kind = Kind::Variable;
  Variant* storage = nullptr;       // Variable, Constant
  Procedure* procedure = nullptr;   // Procedure
  ClassInfo* class_info = nullptr;  // Class
  uint32_t object = 0;              // NamedObject, HostMember: index into named objects
  DispId member = kUnknownMember;   // HostMember
  // A variable that global code names without declaring it: its storage exists from compilation,
  // so that the code reaches it directly, but the name exists for the rest of the script only once
  // it holds a value, as a variable created by its first assignment does.
  bool reserved = false;

  bool Visible() const { return !reserved || !storage->is_empty(); }
};

struct NamedObject {
  std::string name;
  Ref<Object> object;
  bool add_members = false;
};

// The error that the Err object shows.
struct ErrState {
  int32_t number = 0;
  std::u16string description;
  std::u16string source;
  std::u16string help_file;
  int32_t help_context = 0;
};

class Interpreter {
 public:
  Interpreter();
  ~Interpreter();
  Interpreter(const Interpreter&) = delete;
  Interpreter& operator=(const Interpreter&) = delete;

  SourceTable& sources() { return m_sources; }
  // The current locale lives in the engine, and SetLocale overwrites it in place: the objects a
  // script made keep a reference to it, and so read and print the way the script last asked.
  const Locale& locale() const { return m_locale; }
  void SetLocale(const Locale& locale) { m_locale = locale; }
  CompareMode compare_mode() const { return CompareMode::Binary; }

  UiHandler* ui() const { return m_allow_ui ? m_ui : nullptr; }
  void SetUi(UiHandler* ui) { m_ui = ui; }
  void SetAllowUi(bool allow) { m_allow_ui = allow; }

  // ---- Global names ----
  // Folds a name for lookup: the language ignores case.
  static std::string Fold(std::string_view name);
  // The same for a name that a script handed over as a string (CreateObject, GetRef).
  static std::string Fold(std::u16string_view name);
  // The global of that name; a reserved one only when it holds a value, or when asked for.
  const GlobalEntry* FindGlobal(std::string_view folded, bool even_reserved = false) const;
  // FindGlobal, then the members of the objects added with their members as global names; a member
  // found there is remembered as a global name.
  const GlobalEntry* ResolveGlobal(std::string_view folded, bool even_reserved = false);
  // Declares a global variable (or returns the existing one's storage).
  Variant* DeclareGlobal(const std::string& folded, GlobalEntry::Kind kind = GlobalEntry::Kind::Variable);
  // The storage of a variable that global code names undeclared (GlobalEntry::reserved).
  Variant* ReserveGlobal(const std::string& folded);
  // That global while it is still reserved; null otherwise.
  GlobalEntry* ReservedGlobal(const std::string& folded);
  void DeclareProcedure(const std::string& folded, std::unique_ptr<Procedure> procedure);
  void DeclareClass(const std::string& folded, std::unique_ptr<ClassInfo> info);
  void AddNamedObject(std::string name, Ref<Object> object, bool add_members);
  const std::vector<NamedObject>& named_objects() const { return m_named_objects; }
  // Changes whenever a global name is added, so that late-bound names know when to look again.
  uint64_t generation() const { return m_generation; }
  const Builtin* FindBuiltin(std::string_view folded) const;

  // ---- Objects made by CreateObject ----
  using ObjectFactory = std::function<Result<Ref<Object>>(Interpreter&)>;
  // Registers a class under its name ("Scripting.Dictionary"); names match without regard to case.
  void RegisterObjectClass(std::string_view name, ObjectFactory factory);
  // A new object of a registered class; error 429 naming the class otherwise.
  Result<Ref<Object>> CreateObject(std::u16string_view name);

  // ---- Running ----
  // Runs global code (its temporaries get a frame of their own).
  Status RunProgram(const CompiledProgram& program, Frame* outer = nullptr, bool resume_next = false);
  Result<Variant> EvalProgram(const CompiledProgram& program, Frame* outer = nullptr);
  // Calls a script procedure; `args` may hold references for ByRef parameters.
  Result<Variant> Call(const Procedure& procedure, ClassInstance* me, std::span<Variant> args);
  // A call in two steps, for callers that put the arguments straight into the parameter slots:
  // OpenFrame takes the frame (error 28 when the stack is exhausted), RunFrame runs the body in it
  // and gives the frame back.
  // Inline: every call of a procedure opens a frame, and nearly always in the current segment.
  [[gnu::always_inline]] Result<FrameSlots> OpenFrame(uint32_t count) {
    if (m_depth == 0 || m_depth >= kMaxCallDepth || StackBelow(m_stack_limit) || m_offset + count > kSegmentSlots)
        [[unlikely]]
      return OpenFrameSlowly(count);
    FrameSlots frame{&m_segments[m_segment][m_offset], count, m_offset, m_segment};
    m_offset += count;
    ++m_depth;
    return frame;
  }
  Result<Variant> RunFrame(const Procedure& procedure, ClassInstance* me, const FrameSlots& frame);
  // Binds the frame's slots of names its procedure uses undeclared to the globals that exist now
  // (ExecuteGlobal may create some during a call); a slot the call already uses as its own stays.
  void RebindImplicitNames(Frame& frame);
  Result<Ref<ClassInstance>> NewInstance(ClassInfo& info);
  // Keeps the host's compiled code alive as long as the engine.
  CompiledProgram& Keep(std::unique_ptr<CompiledProgram> program);
  Procedure& Keep(std::unique_ptr<Procedure> procedure);

  // The generator of Rnd and Randomize.
  RandomGenerator& random() { return m_random; }

  ErrState& err() { return m_err; }
  ErrObject& err_object() { return *m_err_object; }
  // Records a caught error in Err, filling in the standard description and source.
  void SetErr(const ScriptError& error);

  // ---- Files ----
  // What the host lets scripts do with files (FileAccessPolicy.h); none allows everything.
  void SetFileAccessPolicy(std::shared_ptr<const FileAccessPolicy> policy) { m_file_policy = std::move(policy); }
  const std::shared_ptr<const FileAccessPolicy>& file_policy() const { return m_file_policy; }

  // ---- Interruption ----
  // From any thread: the running script ends with an error at its next statement.
  void RequestAbort() { m_abort.store(true, std::memory_order_relaxed); }
  void ClearAbort() { m_abort.store(false, std::memory_order_relaxed); }
  void SetDeadline(std::optional<std::chrono::steady_clock::time_point> deadline) { m_deadline = deadline; }
  // True when an abort was requested or the time-out passed; looked at before every statement.
  [[gnu::always_inline]] bool InterruptDue() {
    return m_abort.load(std::memory_order_relaxed) || (m_deadline && ++m_ticks % 1024 == 0 && DeadlinePassed());
  }
  // The error that ends the script once InterruptDue has said so.
  ScriptError InterruptError() const;
  Status CheckInterrupt() {
    if (InterruptDue()) [[unlikely]]
      return InterruptError();
    return Ok();
  }

  // Empties a frame's slots and gives them back; frames close in the reverse order of opening.
  void CloseFrame(const FrameSlots& frame);
  // Where the slot stack stands, and the way back there for a host call that a C++ exception
  // unwound, leaving frames open.
  struct StackMark {
    size_t segment = 0;
    uint32_t offset = 0;
    uint32_t depth = 0;
  };
  StackMark MarkStack() const { return {m_segment, m_offset, m_depth}; }
  void RewindStack(const StackMark& mark);

  // Clears globals and objects (running Class_Terminate where due) and forgets all code.
  void Clear();

 private:
  bool DeadlinePassed() const;
  // The first frame of a run, the depth and stack limits, and a frame that needs a new segment.
  [[gnu::noinline]] Result<FrameSlots> OpenFrameSlowly(uint32_t count);
  Result<FrameSlots> OpenFrameInNewSegment(uint32_t count);

  static constexpr size_t kSegmentSlots = 1 << 16;
  static constexpr size_t kMaxSegments = 256;
  // Deep recursion ends with "Out of stack space" well before the thread's real stack runs out.
  static constexpr uint32_t kMaxCallDepth = 10000;

  SourceTable m_sources;
  Locale m_locale;
  UiHandler* m_ui = nullptr;
  bool m_allow_ui = true;

  std::unordered_map<std::string, GlobalEntry> m_globals;
  std::deque<Variant> m_global_storage;
  std::vector<std::unique_ptr<Procedure>> m_procedures;
  std::vector<std::unique_ptr<ClassInfo>> m_classes;
  std::vector<std::unique_ptr<CompiledProgram>> m_programs;
  std::vector<NamedObject> m_named_objects;
  std::unordered_map<std::string, ObjectFactory> m_object_classes;
  uint64_t m_generation = 0;

  ErrState m_err;
  Ref<ErrObject> m_err_object;
  RandomGenerator m_random;
  std::shared_ptr<struct EngineLink> m_link;
  std::shared_ptr<const FileAccessPolicy> m_file_policy;

  std::atomic<bool> m_abort{false};
  std::optional<std::chrono::steady_clock::time_point> m_deadline;
  uint32_t m_ticks = 0;

  // The slot stack: fixed-size segments, so slots never move while referenced.
  std::vector<std::unique_ptr<Variant[]>> m_segments;
  size_t m_segment = 0;
  uint32_t m_offset = 0;
  uint32_t m_depth = 0;
  const char* m_stack_limit = nullptr;
};

// Registers the objects every engine offers to CreateObject (Scripting.Dictionary, ...).
void RegisterStandardObjects(Interpreter& interp);

inline bool BlockNode::InterruptDue(Frame& frame) { return frame.interp.InterruptDue(); }

}  // namespace vbs
