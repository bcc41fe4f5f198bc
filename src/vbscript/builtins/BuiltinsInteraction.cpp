// Talking to the user and to the host: MsgBox and InputBox through the host's UiHandler, the
// engine's identity (ScriptEngine and its version), the locale (GetLocale, SetLocale) and RGB.
//
// When the host forbids user interface (the script control's AllowUI set to False) or gives no
// handler, MsgBox and InputBox fail with error 70, "Permission denied", as Windows' script control
// does when its site refuses to show them: a script that asks a question nobody can answer stops
// instead of going on with an invented answer.

#include <algorithm>
#include <string>

#include "text/Utf.h"
#include "vbscript/builtins/Builtins.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/Coercion.h"

namespace vbs {

namespace {

// A text argument that may be omitted or Null (both give "").
Result<std::u16string> OptionalText(const CallArgs& args, size_t i) {
  if (!args.Has(i) || args[i].is_null()) return std::u16string();
  return args.String(i);
}

// MsgBox(prompt [, buttons [, title [, helpfile, context]]]): the button pressed (vbOK ... vbNo).
Result<Variant> MsgBoxFunction(Frame& frame, CallArgs& args) {
  VBS_TRY_ASSIGN(auto prompt, OptionalText(args, 0));
  VBS_TRY_ASSIGN(auto buttons, args.Long(1, 0));
  VBS_TRY_ASSIGN(auto title, OptionalText(args, 2));
  UiHandler* ui = frame.interp.ui();
  if (!ui) return MakeError(err::kPermissionDenied);
  return Variant::Integer(static_cast<int16_t>(ui->MessageBox(prompt, buttons, title)));
}

// InputBox(prompt [, title [, default [, xpos, ypos [, helpfile, context]]]]): the text typed, or
// Empty when the user cancels (so that IsEmpty tells a cancel from an empty answer).
Result<Variant> InputBoxFunction(Frame& frame, CallArgs& args) {
  VBS_TRY_ASSIGN(auto prompt, OptionalText(args, 0));
  VBS_TRY_ASSIGN(auto title, OptionalText(args, 1));
  VBS_TRY_ASSIGN(auto default_text, OptionalText(args, 2));
  UiHandler* ui = frame.interp.ui();
  if (!ui) return MakeError(err::kPermissionDenied);
  auto answer = ui->InputBox(prompt, title, default_text);
  if (!answer) return Variant();
  return Variant::String(*answer);
}

Result<Variant> ScriptEngineFunction(Frame&, CallArgs&) { return Variant::String(u"VBScript"); }
Result<Variant> MajorVersionFunction(Frame&, CallArgs&) { return Variant::Long(5); }
Result<Variant> MinorVersionFunction(Frame&, CallArgs&) { return Variant::Long(8); }
// The build of the engine that Windows 10 and 11 ship (5.812.10240.16384).
Result<Variant> BuildVersionFunction(Frame&, CallArgs&) { return Variant::Long(16384); }

Result<Variant> GetLocaleFunction(Frame& frame, CallArgs&) {
  return Variant::Long(static_cast<int32_t>(frame.interp.locale().lcid));
}

// The locale a SetLocale argument names: an LCID (0 for the system's, Italian), or a language tag
// such as "it-it" or "en-us"; error 5 for one the engine does not know.
Result<const Locale*> LocaleNamed(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto plain, args.Value(i));
  if (plain.is_string() && !ParseNumber(plain.as_string_view(), args.locale())) {
    const std::u16string_view name = plain.as_string_view();
    for (std::u16string_view tag : {u"it-it", u"it"})
      if (text::EqualsIgnoringCase(name, tag)) return &ItalianLocale();
    for (std::u16string_view tag : {u"en-us", u"en"})
      if (text::EqualsIgnoringCase(name, tag)) return &EnglishLocale();
    return MakeError(err::kInvalidCall);
  }
  VBS_TRY_ASSIGN(auto lcid, plain.to_long(args.locale()));
  if (lcid == 0) return &ItalianLocale();
  return LocaleFromLcid(lcid);
}

// SetLocale([lcid]): switches how numbers and dates read and print; returns the previous LCID.
// Without an argument, the system's locale.
Result<Variant> SetLocaleFunction(Frame& frame, CallArgs& args) {
  const Locale* locale = &ItalianLocale();
  if (args.Has(0)) {
    VBS_TRY_ASSIGN(auto named, LocaleNamed(args, 0));
    locale = named;
  }
  const auto previous = static_cast<int32_t>(frame.interp.locale().lcid);
  frame.interp.SetLocale(*locale);
  return Variant::Long(previous);
}

// RGB(red, green, blue): the colour as a Long, red in the low byte; components above 255 count
// as 255, negative ones are error 5.
Result<Variant> RgbFunction(Frame&, CallArgs& args) {
  int32_t colour = 0;
  for (size_t i = 0; i < 3; ++i) {
    VBS_TRY_ASSIGN(auto n, args.Long(i));
    if (n < 0) return MakeError(err::kInvalidCall);
    colour |= std::min(n, 255) << (8 * i);
  }
  return Variant::Long(colour);
}

const Builtin kInteraction[] = {
    {"MsgBox", 1, 5, &MsgBoxFunction, "MsgBox(prompt [, buttons [, title]]): shows a message; the button pressed"},
    {"InputBox", 1, 7, &InputBoxFunction, "InputBox(prompt [, title [, default]]): asks for text; Empty on cancel"},
    {"ScriptEngine", 0, 0, &ScriptEngineFunction, "ScriptEngine: \"VBScript\""},
    {"ScriptEngineMajorVersion", 0, 0, &MajorVersionFunction, "ScriptEngineMajorVersion: 5"},
    {"ScriptEngineMinorVersion", 0, 0, &MinorVersionFunction, "ScriptEngineMinorVersion: 8"},
    {"ScriptEngineBuildVersion", 0, 0, &BuildVersionFunction, "ScriptEngineBuildVersion: the build number"},
    {"GetLocale", 0, 0, &GetLocaleFunction, "GetLocale: the LCID of the current locale (1040 Italian, 1033 English)"},
    {"SetLocale", 0, 1, &SetLocaleFunction, "SetLocale([lcid or tag]): changes the locale; the previous LCID"},
    {"RGB", 3, 3, &RgbFunction, "RGB(red, green, blue): a colour as a Long"},
};

}  // namespace

std::span<const Builtin> InteractionBuiltins() { return kInteraction; }

}  // namespace vbs
