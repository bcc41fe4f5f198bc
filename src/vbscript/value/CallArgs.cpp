#include "vbscript/value/CallArgs.h"

#include "text/Utf.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/ErrorTable.h"

namespace vbs {

Failure CallArgs::Named(Failure error, size_t i) const {
  if (m_naming == ArgumentNaming::Plain) return error;
  std::u16string& description = error->description;
  if (description.empty()) description = std::u16string(ErrorText(error->number, m_locale.language));
  const std::string where = m_locale.language == Language::Italian ? " (argomento " : " (argument ";
  description += text::Utf8ToUtf16(where + std::to_string(i + 1) + ")");
  return error;
}

Result<int32_t> CallArgs::ConvertLong(size_t i) const {
  auto v = (*this)[i].to_long(m_locale);
  if (!v) return Named(std::move(v).error(), i);
  return *v;
}

Result<double> CallArgs::ConvertDouble(size_t i) const {
  auto v = (*this)[i].to_double(m_locale);
  if (!v) return Named(std::move(v).error(), i);
  return *v;
}

Result<int16_t> CallArgs::Integer(size_t i) const {
  if (const Variant& plain = (*this)[i];
      plain.is_whole() && plain.as_whole() >= INT16_MIN && plain.as_whole() <= INT16_MAX)
    return static_cast<int16_t>(plain.as_whole());
  auto v = (*this)[i].to_integer(m_locale);
  if (!v) return Named(std::move(v).error(), i);
  return *v;
}

Result<bool> CallArgs::Boolean(size_t i) const {
  auto v = (*this)[i].to_boolean(m_locale);
  if (!v) return Named(std::move(v).error(), i);
  return *v;
}

Result<VbString> CallArgs::Text(size_t i) const {
  auto v = (*this)[i].to_string(m_locale);
  if (!v) return Named(std::move(v).error(), i);
  return v;
}

Result<std::u16string> CallArgs::String(size_t i) const {
  VBS_TRY_ASSIGN(auto text, Text(i));
  return text.ToU16String();
}

Result<std::u16string> CallArgs::String(size_t i, std::u16string_view if_missing) const {
  return Has(i) ? String(i) : Result<std::u16string>(std::u16string(if_missing));
}

Result<CompareMode> CallArgs::Compare(size_t i) const {
  if (!Has(i)) return CompareMode::Binary;
  VBS_TRY_ASSIGN(auto mode, Long(i));
  if (mode == 0) return CompareMode::Binary;
  if (mode == 1) return CompareMode::Text;
  Result<CompareMode> invalid = MakeError(err::kInvalidCall);
  return Named(std::move(invalid).error(), i);
}

Result<Variant> CallArgs::Value(size_t i) const { return ValueOf((*this)[i]); }

}  // namespace vbs
