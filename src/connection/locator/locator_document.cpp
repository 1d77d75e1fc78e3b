// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/locator/locator_document.h"

#include <algorithm>

#include <QByteArrayList>

#include "base/code_page.h"
#include "connection/locator/leading_number.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

/// Reads a line from left to right against the expected text, the way a scanning pattern does.
class LineScanner {
 public:
  explicit LineScanner(const QByteArray& line) : rest_(line) {}

  /// Passes over `text`, whose blanks stand for any number of blanks, and returns the quoted value that
  /// follows it; nothing when other text stands there, the value is empty or its closing quote is missing.
  std::optional<QByteArray> valueAfter(const char* text) {
    for (; *text; ++text) {
      if (!passOver(*text)) return std::nullopt;
    }
    const qsizetype end = rest_.indexOf('"');
    if (end <= 0) return std::nullopt;
    const QByteArray value = rest_.left(end);
    rest_.remove(0, end);
    return value;
  }

 private:
  bool passOver(char expected) {
    if (expected == ' ') {
      const auto blank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
      rest_.remove(0, std::find_if_not(rest_.begin(), rest_.end(), blank) - rest_.begin());
      return true;
    }
    if (!rest_.startsWith(expected)) return false;
    rest_.remove(0, 1);
    return true;
  }

  QByteArray rest_;
};

std::optional<GatewayLocation> parseServerLine(const QByteArray& line) {
  LineScanner scanner(line);
  const auto host = scanner.valueAfter("<server ip=\"");
  const auto port = host ? scanner.valueAfter("\" port=\"") : std::nullopt;
  const auto size = port ? scanner.valueAfter("\" maxfilesize=\"") : std::nullopt;
  const auto sizeMobile = size ? scanner.valueAfter("\" maxfilesizemobile=\"") : std::nullopt;
  if (!sizeMobile) return std::nullopt;
  GatewayLocation location;
  location.host = fromCodePage(*host);
  location.port = leadingNumber(*port);
  location.maxFileSize = leadingNumber(*size);
  location.maxFileSizeMobile = leadingNumber(*sizeMobile);
  location.endpoint =
      u"http://%1:%2/ccx/onlineCommunication"_s.arg(location.host, QString::number(location.port));
  return location;
}

/// The lines of the document without their ends; a last line without an end counts, nothing after one
/// doesn't.
QByteArrayList linesOf(const QByteArray& document) {
  QByteArrayList lines = document.split('\n');
  if (lines.last().isEmpty()) lines.removeLast();
  return lines;
}

}  // namespace

std::optional<GatewayLocation> parseLocatorDocument(const QByteArray& document) {
  const QByteArrayList lines = linesOf(document);
  if (lines.size() < 2) return std::nullopt;
  auto location = parseServerLine(lines[1].trimmed());
  if (!location) return std::nullopt;
  const auto names = [](const QByteArray& line) { return line.contains("<version product=\"client\""); };
  const auto line = std::find_if(lines.begin() + 2, lines.end(), names);
  if (line == lines.end()) return std::nullopt;
  const auto version = LineScanner(line->trimmed()).valueAfter("<version product=\"client\" version=\"");
  if (!version) return std::nullopt;
  location->latestClientVersion = fromCodePage(*version);
  return location;
}

}  // namespace parlexo
