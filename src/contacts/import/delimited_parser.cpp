// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/delimited_parser.h"

#include <algorithm>

namespace parlexo {

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
    parse(character);
  }
  return state_ != State::Done;
}

void DelimitedParser::finish() {
  if (state_ == State::Quoted)
    fail(tr("the quotation mark that opens a cell there is never closed."), quoteLine_);
  else if (state_ != State::Done && (state_ != State::CellStart || sheet_.openRowCells() > 0))
    endRow();
}

void DelimitedParser::parse(QChar character) {
  if (character.isNull()) {
    fail(tr("there is a zero character. The file is no text, or its encoding is another one."), line_);
    return;
  }
  const bool endsPair = afterReturn_ && character == lineFeed;
  afterReturn_ = character == carriageReturn;
  if (!endsPair && (character == carriageReturn || character == lineFeed)) ++line_;
  switch (state_) {
    case State::CellStart:
    case State::Plain:
      if (!endsPair) parseOutsideQuotes(character);
      break;
    case State::Quoted:
      parseQuoted(character);
      break;
    case State::AfterQuote:
      parseAfterQuote(character);
      break;
    case State::Done:
      break;
  }
}

void DelimitedParser::parseOutsideQuotes(QChar character) {
  if (character == delimiter_) {
    endCell();
  } else if (character == carriageReturn || character == lineFeed) {
    endRow();
  } else if (character == quote && state_ == State::CellStart) {
    state_ = State::Quoted;
    quoteLine_ = line_;
  } else {
    state_ = State::Plain;
    appendText(character);
  }
}

void DelimitedParser::parseQuoted(QChar character) {
  if (character == quote)
    state_ = State::AfterQuote;
  else
    appendText(character);
}

void DelimitedParser::parseAfterQuote(QChar character) {
  if (character == quote) {
    state_ = State::Quoted;
    appendText(character);
  } else if (character == delimiter_) {
    endCell();
  } else if (character == carriageReturn || character == lineFeed) {
    endRow();
  } else if (character != u' ') {
    fail(tr("a quotation mark inside a quoted cell is not doubled."), line_);
  }
}

void DelimitedParser::appendText(QChar character) {
  sheet_.append(character);
  if (sheet_.openCellLength() > limits_.cellLength)
    fail(tr("a cell has more than %L1 characters. Perhaps a quotation mark is not closed.")
             .arg(limits_.cellLength),
         state_ == State::Quoted ? quoteLine_ : line_);
  else if (sheet_.textLength() > limits_.textLength)
    fail(tr("the file has too much text."), line_);
}

void DelimitedParser::endCell() {
  sheet_.endCell();
  state_ = State::CellStart;
  if (sheet_.openRowCells() >= limits_.columns)
    fail(tr("there are more than %L1 columns.").arg(limits_.columns), line_);
}

void DelimitedParser::endRow() {
  sheet_.endCell();
  sheet_.endRow();
  state_ = State::CellStart;
  if (sheet_.rowCount() >= std::min(maxRows_, limits_.rows + 1)) state_ = State::Done;
  if (sheet_.rowCount() > limits_.rows) fail(tr("there are more than %L1 rows.").arg(limits_.rows), line_);
}

void DelimitedParser::fail(const QString& problem, int line) {
  state_ = State::Done;
  problem_ = tr("Line %1: %2").arg(line).arg(problem);
}

}  // namespace parlexo
