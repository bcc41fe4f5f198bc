#pragma once

// The one interface of MsgBox and InputBox: the engine asks through it and every host answers
// through it, the desktop with real dialogs, the command line from the terminal, a test in the
// user's stead. It stands apart from the interpreter so that a host's dialogs can implement it
// without seeing the engine's insides.

#include <optional>
#include <string>
#include <string_view>

namespace vbs {

// What message boxes and input boxes turn into: the host shows them, or there is no user at all.
class UiHandler {
 public:
  virtual ~UiHandler() = default;
  // Returns the button pressed, as MsgBox's result codes (1 OK, 2 Cancel, 6 Yes, 7 No, ...).
  virtual int MessageBox(std::u16string_view prompt, int buttons, std::u16string_view title) = 0;
  // The text typed, or nullopt when the user cancelled.
  virtual std::optional<std::u16string> InputBox(std::u16string_view prompt, std::u16string_view title,
                                                 std::u16string_view default_text) = 0;
};

// The button a host with nobody to ask takes for MsgBox: the first of the group that `buttons`
// shows (OK, Abort, Yes or Retry).
inline int FirstButton(int buttons) {
  constexpr int kFirst[] = {1, 1, 3, 6, 6, 4};  // OK, OK and Cancel, Abort, Yes, Yes, Retry
  const int group = buttons & 0x7;
  return group < 6 ? kFirst[group] : 1;
}

}  // namespace vbs
