#include <algorithm>

#include "vbscript/builtins/Builtins.h"
#include "vbscript/runtime/ErrObject.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

namespace {

Result<Variant> ErrFunction(Frame& frame, CallArgs&) {
  return Variant::Object(Ref<Object>(&frame.interp.err_object()));
}

Result<Variant> ArrayFunction(Frame&, CallArgs& args) {
  std::vector<Variant> values;
  values.reserve(args.size());
  for (size_t i = 0; i < args.size(); ++i) values.push_back(args[i]);
  VBS_TRY_ASSIGN(auto array, SafeArray::FromValues(values));
  return Variant::Array(array);
}

Result<Variant> Bound(const CallArgs& args, bool upper) {
  const Variant& value = args[0];
  if (value.is_null()) return MakeError(err::kTypeMismatch);
  if (!value.is_array()) return MakeError(err::kTypeMismatch);
  int32_t dimension = 1;
  if (args.size() > 1) {
    VBS_TRY_ASSIGN(auto d, args.Long(1));
    dimension = d;
  }
  VBS_TRY_ASSIGN(auto bound, upper ? value.as_array()->UBound(dimension) : value.as_array()->LBound(dimension));
  return Variant::Long(bound);
}

Result<Variant> UBoundFunction(Frame&, CallArgs& args) { return Bound(args, true); }
Result<Variant> LBoundFunction(Frame&, CallArgs& args) { return Bound(args, false); }

Result<Variant> IsArrayFunction(Frame&, CallArgs& args) { return Variant::Boolean(args[0].is_array()); }
Result<Variant> IsNullFunction(Frame&, CallArgs& args) { return Variant::Boolean(args[0].is_null()); }
Result<Variant> IsEmptyFunction(Frame&, CallArgs& args) { return Variant::Boolean(args[0].is_empty()); }
Result<Variant> IsObjectFunction(Frame&, CallArgs& args) { return Variant::Boolean(args[0].is_object()); }

Result<Variant> IsNumericFunction(Frame&, CallArgs& args) {
  const Variant& given = args[0];
  // An object answers through its default value.
  Variant value;
  if (given.is_object()) {
    auto plain = ValueOf(given);
    if (!plain) return Variant::Boolean(false);
    value = std::move(*plain);
  }
  const Variant& v = given.is_object() ? value : given;
  if (v.is_number() || v.is_boolean() || v.is_empty()) return Variant::Boolean(true);
  if (v.is_string()) return Variant::Boolean(ParseNumber(v.as_string_view(), args.locale()).has_value());
  return Variant::Boolean(false);
}

Result<Variant> VarTypeFunction(Frame&, CallArgs& args) {
  return Variant::Integer(static_cast<int16_t>(args[0].VarType()));
}
Result<Variant> TypeNameFunction(Frame&, CallArgs& args) { return Variant::String(args[0].TypeName()); }

template <Subtype target>
Result<Variant> Convert(Frame&, CallArgs& args) {
  return ConvertTo(args[0], target, args.locale());
}

Result<Variant> CreateObjectFunction(Frame& frame, CallArgs& args) {
  VBS_TRY_ASSIGN(auto name, args.String(0));
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
