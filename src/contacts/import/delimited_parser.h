// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringView>

#include "contacts/import/sheet.h"

namespace parlexo {

/// Parses delimited text (RFC 4180) incrementally into a sheet. Rows may end with CR, LF or CRLF in any
/// combination. Malformed text ends parsing with a message.
class DelimitedParser {
  Q_DECLARE_TR_FUNCTIONS(DelimitedParser)

 public:
  /// Stops after `maxRows` rows. `sheet` must be empty. `limits` and `sheet` must outlive the parser.
  DelimitedParser(QChar delimiter, const ImportLimits& limits, int maxRows, Sheet& sheet);

  /// Increments the line number for a line that is not passed to feed().
  void skipLine() { ++line_; }
  /// Parses the next piece of the text. Returns false after the last wanted row or an error.
  [[nodiscard]] bool feed(QStringView piece);
  /// Ends the text. The last row does not need a line break.
  void finish();

  /// The message for the user; empty if no error has occurred.
  [[nodiscard]] const QString& problem() const { return problem_; }

 private:
  enum class State { CellStart, Plain, Quoted, AfterQuote, Done };

  void parse(QChar character);
  void parseOutsideQuotes(QChar character);
  void parseQuoted(QChar character);
  void parseAfterQuote(QChar character);
  void appendText(QChar character);
  void endCell();
  void endRow();
  void fail(const QString& problem, int line);

  QChar delimiter_;
  const ImportLimits& limits_;
  int maxRows_;
  Sheet& sheet_;
  State state_ = State::CellStart;
  int line_ = 1;
  int quoteLine_ = 1;
  bool afterReturn_ = false;
  QString problem_;
};

}  // namespace parlexo
