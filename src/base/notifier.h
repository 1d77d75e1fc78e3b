// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// Style of a message: one of the button values joined with one of the icon values by "|". The numbers
/// are those of the Windows message box, so that a style can be handed on to it unchanged.
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

/// What the user answered; the numbers are those of the Windows message box.
enum class MessageResult { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// Shows the messages of the program. Every text that the user has to confirm goes through here, so that
/// flows can be tested without a window and every message looks alike.
class Notifier {
 public:
  virtual ~Notifier() = default;

  /// Shows `text` and waits for the answer. `style` is made of message_style values. A
  /// `suppressibleNumber` other than 0 is the message's number under which the user may have said "don't
  /// show again": the message is then not shown, and the result is No when the button bits are 1, 2 or 3
  /// and Ok otherwise (a plain yes/no question included).
  virtual MessageResult show(const QString& text, unsigned style, int suppressibleNumber = 0) = 0;

  void error(const QString& text) { show(text, message_style::stop); }
  void warning(const QString& text) { show(text, message_style::exclamation); }
  void information(const QString& text) { show(text, message_style::information); }
  /// Asks a yes/no question; true for yes.
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
