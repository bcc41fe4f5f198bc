#include "HostObject.h"

#include "text/Utf.h"
#include "vbscript/runtime/Interpreter.h"

namespace vbs {

namespace {

// The position of a bad argument goes into the description so that the script's author can find it.
ScriptError AtArgument(ScriptError error, size_t i, Language language) {
  if (error.description.empty()) error.description = std::u16string(ErrorText(error.number, language));
  std::string where = language == Language::Italian ? " (argomento " : " (argument ";
  error.description += text::Utf8ToUtf16(where + std::to_string(i + 1) + ")");
  return error;
}

}  // namespace

bool CallArgs::Has(size_t i) const {
  if (i >= m_args.size()) return false;
  const Variant& v = m_args[i].Deref();
  return !(v.is_error() && v.as_error() == err::kParamNotFound);
}

Result<Variant> CallArgs::Value(size_t i) const { return ValueOf(m_args[i].Deref()); }

// Whole numbers and Doubles, what host functions get nearly always, are read with no conversion.
Result<int32_t> CallArgs::Long(size_t i) const {
  if ((*this)[i].is_whole()) return (*this)[i].as_whole();
  auto v = (*this)[i].to_long(m_locale);
  if (!v) return AtArgument(std::move(v).error(), i, m_locale.language);
  return *v;
}

Result<int32_t> CallArgs::Long(size_t i, int32_t if_missing) const {
  return Has(i) ? Long(i) : Result<int32_t>(if_missing);
}

Result<int16_t> CallArgs::Integer(size_t i) const {
  if (const Variant& plain = (*this)[i];
      plain.is_whole() && plain.as_whole() >= INT16_MIN && plain.as_whole() <= INT16_MAX)
    return static_cast<int16_t>(plain.as_whole());
  auto v = (*this)[i].to_integer(m_locale);
  if (!v) return AtArgument(std::move(v).error(), i, m_locale.language);
  return *v;
}

Result<double> CallArgs::Double(size_t i) const {
  if (const Variant& plain = (*this)[i]; plain.is_whole() || plain.is_double())
    return plain.is_double() ? plain.as_double() : plain.as_whole();
  auto v = (*this)[i].to_double(m_locale);
  if (!v) return AtArgument(std::move(v).error(), i, m_locale.language);
  return *v;
}

Result<double> CallArgs::Double(size_t i, double if_missing) const {
  return Has(i) ? Double(i) : Result<double>(if_missing);
}

Result<bool> CallArgs::Boolean(size_t i) const {
  auto v = (*this)[i].to_boolean(m_locale);
  if (!v) return AtArgument(std::move(v).error(), i, m_locale.language);
  return *v;
}

Result<bool> CallArgs::Boolean(size_t i, bool if_missing) const {
  return Has(i) ? Boolean(i) : Result<bool>(if_missing);
}

Result<std::u16string> CallArgs::String(size_t i) const {
  auto v = (*this)[i].to_string(m_locale);
  if (!v) return AtArgument(std::move(v).error(), i, m_locale.language);
  return v->ToU16String();
}

Result<std::u16string> CallArgs::String(size_t i, std::u16string_view if_missing) const {
  return Has(i) ? String(i) : Result<std::u16string>(std::u16string(if_missing));
}

}  // namespace vbs
