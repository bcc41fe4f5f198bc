#include "vbscript/runtime/Interpreter.h"

#include "text/AsciiCase.h"
#include "text/Utf.h"
#include "vbscript/builtins/Builtins.h"
#include "vbscript/runtime/ClassInstance.h"
#include "vbscript/runtime/ErrObject.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

Interpreter::Interpreter() : m_locale(ItalianLocale()), m_link(std::make_shared<EngineLink>()) {
  m_link->interp = this;
  m_err_object = MakeRef<ErrObject>(*this);
  RegisterStandardObjects(*this);
}

void Interpreter::RegisterObjectClass(std::string_view name, ObjectFactory factory) {
  m_object_classes[Fold(name)] = std::move(factory);
}

Result<Ref<Object>> Interpreter::CreateObject(std::u16string_view name) {
  auto it = m_object_classes.find(Fold(name));
  if (it != m_object_classes.end()) return it->second(*this);
  ScriptError error = MakeError(err::kCannotCreate);
  error.identifier = name;
  return error;
}

Interpreter::~Interpreter() {
  Clear();
  m_link->interp = nullptr;
}

std::string Interpreter::Fold(std::string_view name) { return text::LowerAscii(name); }

std::string Interpreter::Fold(std::u16string_view name) { return Fold(text::Utf16ToUtf8(name)); }

const GlobalEntry* Interpreter::FindGlobal(std::string_view folded, bool even_reserved) const {
  auto it = m_globals.find(std::string(folded));
  if (it == m_globals.end() || (!even_reserved && !it->second.Visible())) return nullptr;
  return &it->second;
}

const GlobalEntry* Interpreter::ResolveGlobal(std::string_view folded, bool even_reserved) {
  if (const GlobalEntry* entry = FindGlobal(folded, true)) {
    if (even_reserved || entry->Visible()) return entry;
    return nullptr;
  }
  for (size_t i = 0; i < m_named_objects.size(); ++i) {
    if (!m_named_objects[i].add_members) continue;
    DispId member = m_named_objects[i].object->FindMember(folded);
    if (member == kUnknownMember) continue;
    GlobalEntry entry;
    entry.kind = GlobalEntry::Kind::HostMember;
    entry.object = static_cast<uint32_t>(i);
    entry.member = member;
    ++m_generation;
    return &(m_globals[std::string(folded)] = entry);
  }
  return nullptr;
}

Variant* Interpreter::DeclareGlobal(const std::string& folded, GlobalEntry::Kind kind) {
  auto it = m_globals.find(folded);
  if (it != m_globals.end() &&
      (it->second.kind == GlobalEntry::Kind::Variable || it->second.kind == GlobalEntry::Kind::Constant)) {
    it->second.kind = kind;
    if (it->second.reserved) {
      it->second.reserved = false;
      ++m_generation;
    }
    return it->second.storage;
  }
  Variant* storage = &m_global_storage.emplace_back();
  GlobalEntry entry;
  entry.kind = kind;
  entry.storage = storage;
  m_globals[folded] = entry;
  ++m_generation;
  return storage;
}

Variant* Interpreter::ReserveGlobal(const std::string& folded) {
  auto it = m_globals.find(folded);
  if (it != m_globals.end() && it->second.kind == GlobalEntry::Kind::Variable) return it->second.storage;
  GlobalEntry entry;
  entry.storage = &m_global_storage.emplace_back();
  entry.reserved = true;
  m_globals[folded] = entry;
  ++m_generation;
  return entry.storage;
}

GlobalEntry* Interpreter::ReservedGlobal(const std::string& folded) {
  auto it = m_globals.find(folded);
  return it != m_globals.end() && it->second.reserved ? &it->second : nullptr;
}

void Interpreter::DeclareProcedure(const std::string& folded, std::unique_ptr<Procedure> procedure) {
  GlobalEntry entry;
  entry.kind = GlobalEntry::Kind::Procedure;
  entry.procedure = &Keep(std::move(procedure));
  m_globals[folded] = entry;
  ++m_generation;
}

void Interpreter::DeclareClass(const std::string& folded, std::unique_ptr<ClassInfo> info) {
  GlobalEntry entry;
  entry.kind = GlobalEntry::Kind::Class;
  entry.class_info = info.get();
  m_classes.push_back(std::move(info));
  m_globals[folded] = entry;
  ++m_generation;
}

void Interpreter::AddNamedObject(std::string name, Ref<Object> object, bool add_members) {
  GlobalEntry entry;
  entry.kind = GlobalEntry::Kind::NamedObject;
  entry.object = static_cast<uint32_t>(m_named_objects.size());
  m_globals[Fold(name)] = entry;
  m_named_objects.push_back(NamedObject{std::move(name), std::move(object), add_members});
  ++m_generation;
}

const Builtin* Interpreter::FindBuiltin(std::string_view folded) const { return FindBuiltinFunction(folded); }

CompiledProgram& Interpreter::Keep(std::unique_ptr<CompiledProgram> program) {
  m_programs.push_back(std::move(program));
  return *m_programs.back();
}

Procedure& Interpreter::Keep(std::unique_ptr<Procedure> procedure) {
  m_procedures.push_back(std::move(procedure));
  return *m_procedures.back();
}

void Interpreter::SetErr(const ScriptError& error) {
  m_err.number = error.number;
  m_err.help_file = error.help_file;
  m_err.help_context = error.help_context;
  m_err.description =
      error.description.empty() ? std::u16string(ErrorText(error.number, m_locale.language)) : error.description;
  if (!error.source.empty()) {
    m_err.source = error.source;
  } else if (IsCompileError(error.number)) {
    m_err.source = m_locale.language == Language::Italian ? u"Errore di compilazione di Microsoft VBScript"
                                                          : u"Microsoft VBScript compilation error";
  } else {
    m_err.source = m_locale.language == Language::Italian ? u"Errore di run-time di Microsoft VBScript"
                                                          : u"Microsoft VBScript runtime error";
  }
}

bool Interpreter::DeadlinePassed() const { return std::chrono::steady_clock::now() >= *m_deadline; }

ScriptError Interpreter::InterruptError() const {
  ScriptError error = MakeError(err::kAborted);
  bool italian = m_locale.language == Language::Italian;
  error.description =
      m_abort.load(std::memory_order_relaxed)
          ? (italian ? u"Esecuzione dello script interrotta" : u"Script execution stopped")
          : (italian ? u"Tempo massimo di esecuzione dello script superato" : u"Script execution time-out expired");
  return error;
}

Result<FrameSlots> Interpreter::OpenFrameSlowly(uint32_t count) {
  if (m_depth == 0) m_stack_limit = StackLimit();
  if (m_depth >= kMaxCallDepth || StackBelow(m_stack_limit)) return MakeError(err::kOutOfStack);
  if (m_segments.empty() || m_offset + count > kSegmentSlots) return OpenFrameInNewSegment(count);
  FrameSlots frame{&m_segments[m_segment][m_offset], count, m_offset, m_segment};
  m_offset += count;
  ++m_depth;
  return frame;
}

Result<FrameSlots> Interpreter::OpenFrameInNewSegment(uint32_t count) {
  if (count > kSegmentSlots) return MakeError(err::kOutOfStack);
  const size_t next = m_segments.empty() ? 0 : m_segment + 1;
  if (next == m_segments.size()) {
    if (m_segments.size() >= kMaxSegments) return MakeError(err::kOutOfStack);
    m_segments.push_back(std::make_unique<Variant[]>(kSegmentSlots));
  }
  FrameSlots frame{m_segments[next].get(), count, m_offset, m_segment};
  m_segment = next;
  m_offset = count;
  ++m_depth;
  return frame;
}

void Interpreter::CloseFrame(const FrameSlots& frame) {
  // Clearing may run Class_Terminate, which opens frames above this one: the stack is rewound after.
  for (uint32_t i = 0; i < frame.count; ++i) frame.slots[i] = Variant();
  m_segment = frame.previous_segment;
  m_offset = frame.previous_offset;
  --m_depth;
}

void Interpreter::RewindStack(const StackMark& mark) {
  while (m_segment > mark.segment || (m_segment == mark.segment && m_offset > mark.offset)) {
    const uint32_t bottom = m_segment == mark.segment ? mark.offset : 0;
    for (uint32_t i = bottom; i < m_offset; ++i) m_segments[m_segment][i] = Variant();
    if (m_segment == mark.segment) {
      m_offset = mark.offset;
    } else {
      --m_segment;
      m_offset = kSegmentSlots;
    }
  }
  m_depth = mark.depth;
}

namespace {

// Out of line, as the helpers below: a call of a procedure with none of these stays small.
[[gnu::noinline]] Status InitialiseArrays(const Procedure& procedure, Variant* slots) {
  for (const auto& [slot, uppers] : procedure.fixed_arrays) {
    std::vector<ArrayBound> bounds;
    for (int32_t upper : uppers) bounds.push_back({0, upper});
    VBS_TRY_ASSIGN(auto&& array, SafeArray::Create(bounds));
    slots[slot] = Variant::Array(array);
    slots[slot].MarkFixedArray();
  }
  for (uint32_t slot : procedure.dynamic_arrays) slots[slot] = Variant::Array(SafeArray::CreateUndimensioned());
  return Ok();
}

// A name the procedure does not declare means the global of that name when there is one as the call
// starts: its slot refers to the global, as a ByRef parameter refers to the caller's variable.
[[gnu::noinline]] void BindImplicitNames(Interpreter& interp, const Procedure& procedure, Variant* slots) {
  if (procedure.bound_generation != interp.generation()) {
    procedure.bound_globals.clear();
    for (const Procedure::ImplicitName& name : procedure.implicit_names) {
      const GlobalEntry* global = interp.FindGlobal(name.folded, true);
      procedure.bound_globals.push_back(global && global->kind == GlobalEntry::Kind::Variable ? global : nullptr);
    }
    procedure.bound_generation = interp.generation();
  }
  for (size_t i = 0; i < procedure.implicit_names.size(); ++i) {
    const GlobalEntry* global = procedure.bound_globals[i];
    if (global && global->Visible()) slots[procedure.implicit_names[i].slot] = Variant::Reference(global->storage);
  }
}

// Out of line, so that the call path keeps a single, inlined CloseFrame.
[[gnu::noinline]] ScriptError AbandonFrame(Interpreter& interp, const FrameSlots& slots, ScriptError error) {
  interp.CloseFrame(slots);
  return error;
}

}  // namespace

Result<Variant> Interpreter::Call(const Procedure& procedure, ClassInstance* me, std::span<Variant> args) {
  if (args.size() != procedure.param_count) return MakeError(err::kWrongArgs);
  VBS_TRY_ASSIGN(auto&& frame, OpenFrame(procedure.slot_count));
  for (uint32_t i = 0; i < procedure.param_count; ++i) {
    Variant& arg = args[i];
    Variant& param = frame.slots[Procedure::kFirstParamSlot + i];
    if (arg.IsRef() && !procedure.param_by_val[i])
      param = arg;
    else
      param = arg.Deref();
  }
  return RunFrame(procedure, me, frame);
}

Result<Variant> Interpreter::RunFrame(const Procedure& procedure, ClassInstance* me, const FrameSlots& slots) {
  if (!procedure.fixed_arrays.empty() || !procedure.dynamic_arrays.empty()) [[unlikely]] {
    if (auto arrays = InitialiseArrays(procedure, slots.slots); !arrays) [[unlikely]]
      return AbandonFrame(*this, slots, std::move(arrays).error());
  }
  if (!procedure.implicit_names.empty()) [[unlikely]]
    BindImplicitNames(*this, procedure, slots.slots);
  Frame frame{*this, slots.slots, &procedure, me, nullptr, false, nullptr};
  auto flow = procedure.body.Exec(frame);
  Result<Variant> result =
      flow ? Result<Variant>(std::move(slots.slots[Procedure::kResultSlot])) : Result<Variant>(std::move(flow).error());
  CloseFrame(slots);
  return result;
}

void Interpreter::RebindImplicitNames(Frame& frame) {
  if (!frame.procedure) return;
  for (const Procedure::ImplicitName& name : frame.procedure->implicit_names) {
    Variant& slot = frame.slots[name.slot];
    if (slot.IsRef() || !slot.is_empty()) continue;
    const GlobalEntry* global = FindGlobal(name.folded);
    if (global && global->kind == GlobalEntry::Kind::Variable) slot = Variant::Reference(global->storage);
  }
}

Result<Ref<ClassInstance>> Interpreter::NewInstance(ClassInfo& info) {
  auto instance = MakeRef<ClassInstance>(info, m_link);
  if (info.initialize) {
    VBS_TRY(Call(*info.initialize, instance.get(), {}));
  }
  return instance;
}

Status Interpreter::RunProgram(const CompiledProgram& program, Frame* outer, bool resume_next) {
  VBS_TRY_ASSIGN(auto&& slots, OpenFrame(program.temp_count));
  Frame frame{*this,       slots.slots, outer ? outer->procedure : nullptr, outer ? outer->me : nullptr, outer,
              resume_next, nullptr};
  auto flow = program.body.Exec(frame);
  CloseFrame(slots);
  if (!flow) return std::move(flow).error();
  return Ok();
}

Result<Variant> Interpreter::EvalProgram(const CompiledProgram& program, Frame* outer) {
  VBS_TRY_ASSIGN(auto&& slots, OpenFrame(program.temp_count));
  Frame frame{*this, slots.slots, outer ? outer->procedure : nullptr, outer ? outer->me : nullptr, outer,
              false, nullptr};
  auto value = program.expression->Eval(frame);
  CloseFrame(slots);
  return value;
}

void Interpreter::Clear() {
  // Values first, while every procedure that Class_Terminate may need is still there.
  for (Variant& v : m_global_storage) v = Variant();
  for (NamedObject& named : m_named_objects) named.object = nullptr;
  m_globals.clear();
  m_global_storage.clear();
  m_named_objects.clear();
  m_classes.clear();
  m_procedures.clear();
  m_programs.clear();
  m_err = ErrState{};
  m_random = RandomGenerator();
  ++m_generation;
}

}  // namespace vbs
