#include "vbscript/runtime/ClassInstance.h"

#include <array>

#include "text/Utf.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

namespace {

// The subscripts of one element access, kept on the stack: indexing runs in the innermost loops of
// scripts and must not allocate. VBScript arrays have at most 60 dimensions.
class Subscripts {
 public:
  Status Read(std::span<Variant> args, const Locale& locale) {
    if (args.size() > m_values.size()) return MakeError(err::kSubscript);
    for (size_t i = 0; i < args.size(); ++i) {
      const Variant& arg = args[i].Deref();
      if (arg.is_integer()) {
        m_values[i] = arg.as_integer();
      } else if (arg.is_long()) {
        m_values[i] = arg.as_long();
      } else {
        VBS_TRY_ASSIGN(auto&& index, arg.to_long(locale));
        m_values[i] = index;
      }
    }
    m_count = args.size();
    return Ok();
  }
  std::span<const int32_t> span() const { return {m_values.data(), m_count}; }

 private:
  std::array<int32_t, 64> m_values{};
  size_t m_count = 0;
};

}  // namespace

ClassInstance::ClassInstance(ClassInfo& info, std::shared_ptr<EngineLink> link)
    : m_info(info), m_link(std::move(link)), m_fields(info.fields.size()) {
  for (size_t i = 0; i < info.fields.size(); ++i) {
    const ClassField& field = info.fields[i];
    if (!field.is_array) continue;
    std::vector<ArrayBound> bounds;
    for (int32_t upper : field.bounds) bounds.push_back({0, upper});
    if (bounds.empty()) {
      m_fields[i] = Variant::Array(SafeArray::CreateUndimensioned());
    } else if (auto array = SafeArray::Create(bounds)) {
      m_fields[i] = Variant::Array(*array);
      m_fields[i].MarkFixedArray();
    }
  }
}

std::u16string ClassInstance::ClassName() const { return text::Utf8ToUtf16(m_info.name); }

DispId ClassInstance::FindMember(std::string_view name) {
  auto it = m_info.member_ids.find(Interpreter::Fold(name));
  if (it == m_info.member_ids.end() || !m_info.members[it->second - 1].is_public) return kUnknownMember;
  return it->second;
}

Result<Variant> ClassInstance::Invoke(DispId member, InvokeKind kind, std::span<Variant> args) {
  if (member != kDefaultMember && (member < 1 || !m_info.members[member - 1].is_public))
    return MakeError(err::kNoMember);
  return InvokeMember(member, kind, args);
}

Result<Variant> ClassInstance::InvokeMember(DispId member, InvokeKind kind, std::span<Variant> args) {
  if (member == kDefaultMember) {
    if (m_info.default_member < 0) return MakeError(err::kNoMember);
    member = m_info.default_member;
  }
  if (member < 1 || static_cast<size_t>(member) > m_info.members.size()) return MakeError(err::kNoMember);
  const ClassMember& m = m_info.members[member - 1];
  Interpreter* interp = m_link->interp;
  if (!interp) return MakeError(err::kNoMember);
  Ref<ClassInstance> keep(this);

  if (m.field >= 0) {
    Variant& field = m_fields[m.field];
    if (kind == InvokeKind::Let || kind == InvokeKind::Set) {
      Variant value = std::move(args.back().Deref());
      auto indices = args.first(args.size() - 1);
      if (!indices.empty()) {
        VBS_TRY(AssignIndexed(field, indices, std::move(value), kind == InvokeKind::Set, interp->locale()));
        return Variant();
      }
      if (kind == InvokeKind::Set) {
        if (!value.is_object()) return MakeError(err::kObjectRequired);
        field = std::move(value);
        return Variant();
      }
      VBS_TRY_ASSIGN(auto&& plain, ValueOf(value));
      field = std::move(plain);
      return Variant();
    }
    if (args.empty()) return field;
    return IndexValue(field, args, interp->locale());
  }

  switch (kind) {
    case InvokeKind::Let:
      if (m.letter) return interp->Call(*m.letter, this, args);
      if (m.setter) return MakeError(err::kIllegalAssignment);
      break;
    case InvokeKind::Set:
      if (m.setter) return interp->Call(*m.setter, this, args);
      if (m.letter) return MakeError(err::kIllegalAssignment);
      break;
    case InvokeKind::Method:
    case InvokeKind::Get:
      if (m.method) return interp->Call(*m.method, this, args);
      if (m.getter) return interp->Call(*m.getter, this, args);
      break;
  }
  return MakeError(err::kNoMember);
}

void ClassInstance::LastReleased() {
  Interpreter* interp = m_link->interp;
  if (interp && m_info.terminate) {
    // Keep the instance alive while its Class_Terminate runs; errors there have nowhere to go.
    AddRef();
    (void)interp->Call(*m_info.terminate, this, {});
    if (RefCount() > 1) {
      Release();
      return;
    }
  }
  delete this;
}

Result<Variant> IndexValue(const Variant& holder, std::span<Variant> args, const Locale& locale) {
  const Variant& value = holder.Deref();
  if (value.is_array()) {
    Subscripts indices;
    VBS_TRY(indices.Read(args, locale));
    return ReadElement(value, indices.span());
  }
  if (value.is_object()) {
    if (!value.as_object()) return MakeError(err::kObjectNotSet);
    return value.as_object()->Invoke(kDefaultMember, InvokeKind::Get, args);
  }
  return MakeError(err::kTypeMismatch);
}

Status AssignIndexed(Variant& holder, std::span<Variant> args, Variant value, bool is_set, const Locale& locale) {
  Variant& target = holder.Deref();
  if (target.is_array()) {
    Subscripts indices;
    VBS_TRY(indices.Read(args, locale));
    if (is_set && !value.is_object()) return MakeError(err::kObjectRequired);
    if (!is_set) {
      VBS_TRY_ASSIGN(auto&& plain, ValueOf(value));
      value = std::move(plain);
    }
    return WriteElement(target, indices.span(), std::move(value));
  }
  if (target.is_object()) {
    if (!target.as_object()) return MakeError(err::kObjectNotSet);
    if (!is_set) {
      VBS_TRY_ASSIGN(auto&& plain, ValueOf(value));
      value = std::move(plain);
    }
    std::vector<Variant> all(args.begin(), args.end());
    all.push_back(std::move(value));
    VBS_TRY(target.as_object()->Invoke(kDefaultMember, is_set ? InvokeKind::Set : InvokeKind::Let, all));
    return Ok();
  }
  return MakeError(err::kTypeMismatch);
}

}  // namespace vbs
