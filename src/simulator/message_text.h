// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace parlexo::simulator {

/// A text message as it came over the wire and as a person reads it.
struct MessageText {
  QString readable;
  bool unicode = false;
  int units = 0;  ///< SMS characters: an escaped character of the standard set counts two
  int parts = 1;  ///< SMS that it takes
};

/// Reads `raw`: "%%UNICODE%%" followed by whole groups of four hexadecimal digits is UTF-16, anything else is
/// text of the code page.
[[nodiscard]] MessageText readMessageText(const QByteArray& raw);

/// Most SMS that one message may take.
inline constexpr int mostParts = 5;

/// `text` for a log: lines joined by "⏎", other control characters as "\x1B".
[[nodiscard]] QString forLog(const QString& text);

}  // namespace parlexo::simulator
