// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/locator/locator_document.h"

#include <algorithm>

#include <QByteArrayList>

#include "base/code_page.h"
#include "connection/locator/proxy_text.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

bool isBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Removes `expected` from the start of `line`; a blank matches any number of blanks. Returns false if the
/// line starts with something else.
bool readCharacter(QByteArray& line, char expected) {
  if (expected == ' ') {
    line.remove(0, std::find_if_not(line.begin(), line.end(), isBlank) - line.begin());
    return true;
  }
  if (!line.startsWith(expected)) return false;
  line.remove(0, 1);
  return true;
}

/// Removes `text` and the value up to the next quote from the start of `line` and returns the value. nullopt
/// if the line starts with something else, the value is empty or its closing quote is missing.
std::optional<QByteArray> readValueAfter(QByteArray& line, const char* text) {
  for (; *text; ++text) {
    if (!readCharacter(line, *text)) return std::nullopt;
  }
  const qsizetype end = line.indexOf('"');
  if (end <= 0) return std::nullopt;
  const QByteArray value = line.left(end);
  line.remove(0, end);
  return value;
}

std::optional<GatewayLocation> parseServerLine(QByteArray line) {
  const auto host = readValueAfter(line, "<server ip=\"");
  const auto port = host ? readValueAfter(line, "\" port=\"") : std::nullopt;
  const auto size = port ? readValueAfter(line, "\" maxfilesize=\"") : std::nullopt;
  const auto sizeMobile = size ? readValueAfter(line, "\" maxfilesizemobile=\"") : std::nullopt;
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

/// Returns the lines without LF. The last line may end without one.
QByteArrayList splitLines(const QByteArray& document) {
  QByteArrayList lines = document.split('\n');
  if (lines.last().isEmpty()) lines.removeLast();
  return lines;
}

}  // namespace

std::optional<GatewayLocation> parseLocatorDocument(const QByteArray& document) {
  const QByteArrayList lines = splitLines(document);
  if (lines.size() < 2) return std::nullopt;
  auto location = parseServerLine(lines[1].trimmed());
  if (!location) return std::nullopt;
  const auto isVersion = [](const QByteArray& line) { return line.contains("<version product=\"client\""); };
  const auto versionLine = std::find_if(lines.begin() + 2, lines.end(), isVersion);
  if (versionLine == lines.end()) return std::nullopt;
  QByteArray line = versionLine->trimmed();
  const auto version = readValueAfter(line, "<version product=\"client\" version=\"");
  if (!version) return std::nullopt;
  location->latestClientVersion = fromCodePage(*version);
  return location;
}

}  // namespace parlexo
