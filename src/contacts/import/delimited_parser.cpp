// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/delimited_parser.h"

#include <algorithm>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {
constexpr QChar quote = u'"';
constexpr QChar carriageReturn = u'\r';
constexpr QChar lineFeed = u'\n';
}  // namespace

DelimitedParser::DelimitedParser(QChar delimiter, const ImportLimits& limits, int maxRows, Sheet& sheet)
    : delimiter_(delimiter), limits_(limits), maxRows_(maxRows), sheet_(sheet) {}

bool DelimitedParser::feed(QStringView piece) {
  for (const QChar character : piece) {
    if (state_ == State::Done) return false;
    take(character);
  }
  return state_ != State::Done;
}

void DelimitedParser::finish() {
  if (state_ == State::Quoted)
    fail(u"the quotation mark that opens a cell there is never closed."_s, quoteLine_);
  else if (state_ != State::Done && (state_ != State::CellStart || sheet_.openRowCells() > 0))
    endRow();
}

void DelimitedParser::take(QChar character) {
  if (character.isNull()) {
    fail(u"there is a zero character. The file is no text, or its encoding is another one."_s, line_);
    return;
  }
  const bool endsPair = afterReturn_ && character == lineFeed;
  afterReturn_ = character == carriageReturn;
  if (!endsPair && (character == carriageReturn || character == lineFeed)) ++line_;
  switch (state_) {
    case State::CellStart:
    case State::Plain:
      if (!endsPair) takeOutsideQuotes(character);
      break;
    case State::Quoted:
      takeQuoted(character);
      break;
    case State::AfterQuote:
      takeAfterQuote(character);
      break;
    case State::Done:
      break;
  }
}

void DelimitedParser::takeOutsideQuotes(QChar character) {
  if (character == delimiter_) {
    endCell();
  } else if (character == carriageReturn || character == lineFeed) {
    endRow();
  } else if (character == quote && state_ == State::CellStart) {
    state_ = State::Quoted;
    quoteLine_ = line_;
  } else {
    state_ = State::Plain;
    takeText(character);
  }
}

void DelimitedParser::takeQuoted(QChar character) {
  if (character == quote)
    state_ = State::AfterQuote;
  else
    takeText(character);
}

void DelimitedParser::takeAfterQuote(QChar character) {
  if (character == quote) {
    state_ = State::Quoted;
    takeText(character);
  } else if (character == delimiter_) {
    endCell();
  } else if (character == carriageReturn || character == lineFeed) {
    endRow();
  } else if (character != u' ') {
    fail(u"a quotation mark inside a quoted cell is not doubled."_s, line_);
  }
}

void DelimitedParser::takeText(QChar character) {
  sheet_.append(character);
  if (sheet_.openCellLength() > limits_.cellLength)
    fail(u"a cell has more than %L1 characters. Perhaps a quotation mark is not closed."_s.arg(
             limits_.cellLength),
         state_ == State::Quoted ? quoteLine_ : line_);
  else if (sheet_.textLength() > limits_.textLength)
    fail(u"the file has too much text."_s, line_);
}

void DelimitedParser::endCell() {
  sheet_.endCell();
  state_ = State::CellStart;
  if (sheet_.openRowCells() >= limits_.columns)
    fail(u"there are more than %L1 columns."_s.arg(limits_.columns), line_);
}

void DelimitedParser::endRow() {
  sheet_.endCell();
  sheet_.endRow();
  state_ = State::CellStart;
  if (sheet_.rowCount() >= std::min(maxRows_, limits_.rows + 1)) state_ = State::Done;
  if (sheet_.rowCount() > limits_.rows) fail(u"there are more than %L1 rows."_s.arg(limits_.rows), line_);
}

void DelimitedParser::fail(const QString& problem, int line) {
  state_ = State::Done;
  problem_ = u"Line %1: "_s.arg(line) + problem;
}

}  // namespace parlexo
