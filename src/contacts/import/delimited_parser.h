// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include "contacts/import/import_limits.h"
#include "contacts/import/sheet.h"

namespace parlexo {

/// Reads delimited text as RFC 4180 describes it, piece by piece, into a sheet. Rows end with CR, LF or both,
/// in any mixture. What is broken ends the reading with a message.
class DelimitedParser {
 public:
  /// Stops by itself after `maxRows` rows. `sheet` must be empty and outlive the parser.
  DelimitedParser(QChar delimiter, const ImportLimits& limits, int maxRows, Sheet& sheet);

  /// Counts a line that was not fed.
  void skipLine() { ++line_; }
  /// Takes the next piece of the text. False when no more is wanted: all rows are there or a fault was found.
  [[nodiscard]] bool feed(QStringView piece);
  /// Ends the text, whose last row need not end with a line break.
  void finish();

  /// What is wrong with the text, as the user is told; empty while nothing is.
  [[nodiscard]] const QString& problem() const { return problem_; }

 private:
  enum class State { CellStart, Plain, Quoted, AfterQuote, Done };

  void take(QChar character);
  void takeOutsideQuotes(QChar character);
  void takeQuoted(QChar character);
  void takeAfterQuote(QChar character);
  void takeText(QChar character);
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
