// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// The style of a message: one button value and at most one icon value, combined with "|". The values are
/// those of the Windows message box.
namespace message_style {
inline constexpr unsigned ok = 0x0;
inline constexpr unsigned okCancel = 0x1;
inline constexpr unsigned abortRetryIgnore = 0x2;
inline constexpr unsigned yesNoCancel = 0x3;
inline constexpr unsigned yesNo = 0x4;
inline constexpr unsigned buttonBits = 0xF;
inline constexpr unsigned stop = 0x10;
inline constexpr unsigned question = 0x20;
inline constexpr unsigned exclamation = 0x30;
inline constexpr unsigned information = 0x40;
inline constexpr unsigned iconBits = 0xF0;
}  // namespace message_style

/// The button that the user pressed. The values are those of the Windows message box.
enum class MessageResult { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// Shows messages that the user has to confirm. All of them go through this interface, so flows can be tested
/// without a window and all messages look alike.
class Notifier {
 public:
  virtual ~Notifier() = default;

  /// Shows `text` and blocks until the user answers. `style` combines message_style values. A
  /// `suppressibleNumber` other than 0 offers "don't show again" for the message with that number. A
  /// suppressed message is not shown; the result is then No if the button bits are 1, 2 or 3, otherwise Ok
  /// (also for a plain yes/no question).
  virtual MessageResult show(const QString& text, unsigned style, int suppressibleNumber = 0) = 0;

  void error(const QString& text) { show(text, message_style::stop); }
  void warning(const QString& text) { show(text, message_style::exclamation); }
  void information(const QString& text) { show(text, message_style::information); }
  /// Asks a yes/no question. Returns true for yes.
  [[nodiscard]] bool confirm(const QString& text) {
    return show(text, message_style::yesNo | message_style::question) == MessageResult::Yes;
  }

 protected:
  Notifier() = default;
  Notifier(const Notifier&) = default;
  Notifier& operator=(const Notifier&) = default;
};

/// The result of a message that is not shown because the user has suppressed it: No if the button bits are
/// 1, 2 or 3, otherwise Ok (also for a plain yes/no question).
[[nodiscard]] constexpr MessageResult suppressedResult(unsigned style) {
  const unsigned buttons = style & message_style::buttonBits;
  const bool hasAlternative = buttons == message_style::okCancel ||
                              buttons == message_style::abortRetryIgnore ||
                              buttons == message_style::yesNoCancel;
  return hasAlternative ? MessageResult::No : MessageResult::Ok;
}

/// The result when the user closes a message with Escape or the close button.
[[nodiscard]] constexpr MessageResult closeResult(unsigned style) {
  const unsigned buttons = style & message_style::buttonBits;
  if (buttons == message_style::yesNoCancel) return MessageResult::Cancel;
  return buttons == message_style::yesNo ? MessageResult::No : MessageResult::Ok;
}

}  // namespace parlexo
