#include "vbscript/value/Variant.h"

#include "vbscript/value/Object.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

Variant Variant::Object(Ref<vbs::Object> object) {
  Variant r(Subtype::Object);
  r.m_u.obj = object.Detach();
  return r;
}

Variant Variant::Array(Ref<SafeArray> array) {
  assert(array);
  Variant r(Subtype::Array);
  r.m_u.arr = array.Detach();
  return r;
}

VbString Variant::as_string() const {
  assert(is_string());
  VbString::AddRef(m_u.str);
  return VbString::Adopt(m_u.str);
}

Ref<vbs::Object> Variant::object_ref() const { return Ref<vbs::Object>(as_object()); }

void Variant::AddRefHeap() const {
  switch (m_subtype) {
    case Subtype::String: VbString::AddRef(m_u.str); break;
    case Subtype::Array: m_u.arr->AddRef(); break;
    case Subtype::Object:
      if (m_u.obj) m_u.obj->AddRef();
      break;
    default: break;
  }
}

void Variant::ReleaseHeap() {
  // The payload is cleared before the release: releasing an object can run script code
  // (Class_Terminate) that reaches this variable again.
  const Subtype subtype = m_subtype;
  const Payload payload = m_u;
  m_subtype = Subtype::Empty;
  m_u.i64 = 0;
  switch (subtype) {
    case Subtype::String: VbString::Release(payload.str); break;
    case Subtype::Array: payload.arr->Release(); break;
    case Subtype::Object:
      if (payload.obj) payload.obj->Release();
      break;
    default: break;
  }
}

int32_t Variant::VarType() const {
  switch (Deref().m_subtype) {
    case Subtype::Empty: return kVbEmpty;
    case Subtype::Null: return kVbNull;
    case Subtype::Integer: return kVbInteger;
    case Subtype::Long: return kVbLong;
    case Subtype::Single: return kVbSingle;
    case Subtype::Double: return kVbDouble;
    case Subtype::Currency: return kVbCurrency;
    case Subtype::Date: return kVbDate;
    case Subtype::Boolean: return kVbBoolean;
    case Subtype::Byte: return kVbByte;
    case Subtype::Error: return kVbError;
    case Subtype::String: return kVbString;
    case Subtype::Array: return kVbArray + kVbVariant;
    case Subtype::Object: return kVbObject;
    case Subtype::Reference: break;
  }
  assert(false && "a reference to a reference");
  return kVbEmpty;
}

std::u16string Variant::TypeName() const {
  const Variant& v = Deref();
  switch (v.m_subtype) {
    case Subtype::Empty: return u"Empty";
    case Subtype::Null: return u"Null";
    case Subtype::Integer: return u"Integer";
    case Subtype::Long: return u"Long";
    case Subtype::Single: return u"Single";
    case Subtype::Double: return u"Double";
    case Subtype::Currency: return u"Currency";
    case Subtype::Date: return u"Date";
    case Subtype::Boolean: return u"Boolean";
    case Subtype::Byte: return u"Byte";
    case Subtype::Error: return u"Error";
    case Subtype::String: return u"String";
    case Subtype::Array: return u"Variant()";
    case Subtype::Object: return v.m_u.obj ? v.m_u.obj->ClassName() : u"Nothing";
    case Subtype::Reference: break;
  }
  assert(false && "a reference to a reference");
  return u"Empty";
}

Status Variant::AppendInPlace(std::u16string_view text) {
  assert(is_string());
  VbString s = VbString::Adopt(m_u.str);
  Status status = s.Append(text);
  m_u.str = s.Detach();
  return status;
}

void Variant::ReplaceArray(Ref<SafeArray> array) {
  assert(array);
  const uint8_t flags = is_array() ? m_flags : 0;
  *this = Variant::Array(std::move(array));
  m_flags = flags;
}

}  // namespace vbs
