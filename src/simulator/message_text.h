// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace parlexo::simulator {

/// A decoded text message.
struct MessageText {
  QString readable;
  bool unicode = false;
  int units = 0;  ///< number of SMS characters; escaped characters of the standard alphabet count as two
  int parts = 1;  ///< number of SMS
};

/// Decodes `raw`: "%%UNICODE%%" followed by complete groups of four hexadecimal digits is UTF-16, everything
/// else is text in the code page.
[[nodiscard]] MessageText parseMessageText(const QByteArray& raw);

/// Maximum number of SMS of one message.
inline constexpr int maxParts = 5;

/// Escapes untrusted `text` for a log line: line breaks become "⏎", other control characters "\x1b".
[[nodiscard]] QString escapeForLog(const QString& text);

}  // namespace parlexo::simulator
