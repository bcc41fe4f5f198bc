#include <algorithm>

#include "vbscript/builtins/Builtins.h"
#include "vbscript/runtime/ErrObject.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

namespace {

using Args = std::span<Variant>;

const Locale& LocaleOf(Frame& frame) { return frame.interp.locale(); }

Result<Variant> ErrFunction(Frame& frame, Args) { return Variant::Object(Ref<Object>(&frame.interp.err_object())); }

Result<Variant> ArrayFunction(Frame&, Args args) {
  std::vector<Variant> values;
  values.reserve(args.size());
  for (Variant& arg : args) values.push_back(arg.Deref());
  VBS_TRY_ASSIGN(auto array, SafeArray::FromValues(values));
  return Variant::Array(array);
}

Result<Variant> Bound(Frame& frame, Args args, bool upper) {
  const Variant& value = args[0].Deref();
  if (value.is_null()) return MakeError(err::kTypeMismatch);
  if (!value.is_array()) return MakeError(err::kTypeMismatch);
  int32_t dimension = 1;
  if (args.size() > 1) {
    VBS_TRY_ASSIGN(auto d, args[1].Deref().to_long(LocaleOf(frame)));
    dimension = d;
  }
  VBS_TRY_ASSIGN(auto bound, upper ? value.as_array()->UBound(dimension) : value.as_array()->LBound(dimension));
  return Variant::Long(bound);
}

Result<Variant> UBoundFunction(Frame& frame, Args args) { return Bound(frame, args, true); }
Result<Variant> LBoundFunction(Frame& frame, Args args) { return Bound(frame, args, false); }

Result<Variant> IsArrayFunction(Frame&, Args args) { return Variant::Boolean(args[0].Deref().is_array()); }
Result<Variant> IsNullFunction(Frame&, Args args) { return Variant::Boolean(args[0].Deref().is_null()); }
Result<Variant> IsEmptyFunction(Frame&, Args args) { return Variant::Boolean(args[0].Deref().is_empty()); }
Result<Variant> IsObjectFunction(Frame&, Args args) { return Variant::Boolean(args[0].Deref().is_object()); }

Result<Variant> IsNumericFunction(Frame& frame, Args args) {
  const Variant& given = args[0].Deref();
  // An object answers through its default value.
  Variant value;
  if (given.is_object()) {
    auto plain = ValueOf(given);
    if (!plain) return Variant::Boolean(false);
    value = std::move(*plain);
  }
  const Variant& v = given.is_object() ? value : given;
  if (v.is_number() || v.is_boolean() || v.is_empty()) return Variant::Boolean(true);
  if (v.is_string()) return Variant::Boolean(ParseNumber(v.as_string_view(), LocaleOf(frame)).has_value());
  return Variant::Boolean(false);
}

Result<Variant> VarTypeFunction(Frame&, Args args) {
  return Variant::Integer(static_cast<int16_t>(args[0].Deref().VarType()));
}
Result<Variant> TypeNameFunction(Frame&, Args args) { return Variant::String(args[0].Deref().TypeName()); }

template <Subtype target>
Result<Variant> Convert(Frame& frame, Args args) {
  return ConvertTo(args[0].Deref(), target, LocaleOf(frame));
}

Result<std::u16string> TextOf(Frame& frame, const Variant& value) {
  VBS_TRY_ASSIGN(auto text, value.Deref().to_string(LocaleOf(frame)));
  return text.ToU16String();
}

Result<Variant> CreateObjectFunction(Frame& frame, Args args) {
  VBS_TRY_ASSIGN(auto name, TextOf(frame, args[0]));
  VBS_TRY_ASSIGN(auto object, frame.interp.CreateObject(name));
  return Variant::Object(object);
}

const Builtin kCore[] = {
    {"Err", 0, 0, &ErrFunction, "the Err object"},
    {"Array", 0, 255, &ArrayFunction, "a 0-based array of the arguments"},
    {"UBound", 1, 2, &UBoundFunction, "upper bound of an array dimension"},
    {"LBound", 1, 2, &LBoundFunction, "lower bound of an array dimension"},
    {"IsArray", 1, 1, &IsArrayFunction, "whether the value is an array"},
    {"IsNull", 1, 1, &IsNullFunction, "whether the value is Null"},
    {"IsEmpty", 1, 1, &IsEmptyFunction, "whether the value is Empty"},
    {"IsObject", 1, 1, &IsObjectFunction, "whether the value is an object or Nothing"},
    {"IsNumeric", 1, 1, &IsNumericFunction, "whether the value reads as a number"},
    {"VarType", 1, 1, &VarTypeFunction, "the subtype code"},
    {"TypeName", 1, 1, &TypeNameFunction, "the subtype name"},
    {"CBool", 1, 1, &Convert<Subtype::Boolean>, "to Boolean"},
    {"CByte", 1, 1, &Convert<Subtype::Byte>, "to Byte", false, false, true},
    {"CInt", 1, 1, &Convert<Subtype::Integer>, "to Integer", false, false, true},
    {"CLng", 1, 1, &Convert<Subtype::Long>, "to Long", false, false, true},
    {"CSng", 1, 1, &Convert<Subtype::Single>, "to Single", false, false, true},
    {"CDbl", 1, 1, &Convert<Subtype::Double>, "to Double", false, false, true},
    {"CCur", 1, 1, &Convert<Subtype::Currency>, "to Currency", false, false, true},
    {"CDate", 1, 1, &Convert<Subtype::Date>, "to Date", false, false, true},
    {"CStr", 1, 1, &Convert<Subtype::String>, "to String"},
    {"CreateObject", 1, 2, &CreateObjectFunction, "an object of a registered class"},
};

}  // namespace

std::span<const Builtin> CoreBuiltins() { return kCore; }

}  // namespace vbs
