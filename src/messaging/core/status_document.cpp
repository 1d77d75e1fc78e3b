// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/status_document.h"

#include <array>
#include <cstddef>
#include <utility>

#include <QStringDecoder>
#include <QStringTokenizer>
#include <QXmlStreamReader>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t entryElement[] = u"Message";
constexpr char rootStart[] = "<Status>";
constexpr char rootEnd[] = "</Status>";
constexpr int maxDepth = 100;
constexpr char16_t entryStart[] = u"<Message";
constexpr char16_t receiptEnd[] = u"</Message>";

// The fields in the order in which they are written, each with the text before its value.
using WrittenField = std::pair<QString StatusEntry::*, const char*>;
constexpr std::array writtenFields = {
    WrittenField{&StatusEntry::date, "<Message Date=\""}, WrittenField{&StatusEntry::type, "\" Type=\""},
    WrittenField{&StatusEntry::phone, "\" Phone=\""},     WrittenField{&StatusEntry::status, "\" Status=\""},
    WrittenField{&StatusEntry::receipt, "\">"},
};

// Limits the depth, because the parser allocates more than a hundred bytes per open element. The recursive
// QXmlStreamReader::readElementText() could even overflow the stack.
QString readElementContent(QXmlStreamReader& xml) {
  QString text;
  for (int depth = 1; depth > 0 && !xml.hasError();) {
    xml.readNext();
    if (xml.isStartElement()) ++depth;
    if (xml.isEndElement()) --depth;
    if (xml.isCharacters() || xml.isEntityReference()) text += xml.text();
    if (depth > maxDepth) xml.raiseError(StatusDocument::tr("The elements are nested too deeply."));
  }
  return text;
}

StatusEntry readEntry(QXmlStreamReader& xml) {
  const QXmlStreamAttributes attributes = xml.attributes();
  StatusEntry entry;
  entry.date = attributes.value(QLatin1String("Date")).toString();
  entry.phone = attributes.value(QLatin1String("Phone")).toString();
  entry.type = attributes.value(QLatin1String("Type")).toString();
  entry.status = attributes.value(QLatin1String("Status")).toString();
  entry.receipt = readElementContent(xml);
  return entry;
}

// Reads to the end even after `maxElements`, to find errors in the rest of the document.
std::vector<StatusEntry> readEntries(QXmlStreamReader& xml, int maxElements) {
  std::vector<StatusEntry> entries;
  int children = 0;
  xml.readNextStartElement();
  while (xml.readNextStartElement()) {
    const bool isEntry = children < maxElements && xml.name() == entryElement;
    ++children;
    if (isEntry)
      entries.push_back(readEntry(xml));
    else
      readElementContent(xml);
  }
  while (!xml.atEnd()) xml.readNext();
  return entries;
}

QString errorText(const QXmlStreamReader& xml) {
  return StatusDocument::tr("%1 (line %2, column %3)")
      .arg(xml.errorString(), QString::number(xml.lineNumber()), QString::number(xml.columnNumber()));
}

// Decodes UTF-8, or the encoding indicated by a byte-order mark or the first character, and removes control
// characters except line feeds. The flag is true if every byte could be decoded.
std::pair<QString, bool> decodeText(const QByteArray& bytes) {
  QStringDecoder decode(QStringConverter::encodingForData(bytes, u'<').value_or(QStringConverter::Utf8));
  const QString decoded = decode(bytes);
  QString text;
  text.reserve(decoded.size() + 1);
  for (const QStringView line : qTokenize(decoded, u'\n'))
    text += withoutControlCharacters(line.toString()) + u'\n';
  text.chop(1);
  return {text, !decode.hasError()};
}

// Finds the text before each field from the left, except the last: a status may contain "\">", a receipt may
// not.
std::optional<StatusEntry> parseWrittenLine(QStringView line) {
  if (!line.endsWith(receiptEnd)) return std::nullopt;
  line.chop(static_cast<qsizetype>(std::size(receiptEnd)) - 1);
  StatusEntry entry;
  QString* previous = nullptr;
  for (const auto& [value, textBefore] : writtenFields) {
    const QLatin1String before(textBefore);
    const bool isLast = value == &StatusEntry::receipt;
    const qsizetype position = isLast ? line.lastIndexOf(before) : line.indexOf(before);
    if (position < 0 || (!previous && position > 0)) return std::nullopt;
    if (previous) *previous = line.first(position).toString();
    line = line.sliced(position + before.size());
    previous = &(entry.*value);
  }
  *previous = line.toString();
  return entry;
}

std::optional<StatusEntry> parseXmlLine(QStringView line) {
  QXmlStreamReader xml(line.toString());
  if (!xml.readNextStartElement() || xml.name() != entryElement) return std::nullopt;
  StatusEntry entry = readEntry(xml);
  while (!xml.atEnd()) xml.readNext();
  if (xml.hasError()) return std::nullopt;
  return entry;
}

// Parses each line as XML if possible, which yields the same entry as a well-formed document.
std::vector<StatusEntry> parseReadableLines(const QString& text, int maxElements) {
  std::vector<StatusEntry> entries;
  for (const QStringView whole : qTokenize(text, u'\n')) {
    if (entries.size() == static_cast<std::size_t>(maxElements)) break;
    const QStringView line = whole.trimmed();
    if (!line.startsWith(entryStart)) continue;
    std::optional<StatusEntry> entry = parseXmlLine(line);
    if (!entry) entry = parseWrittenLine(line);
    if (entry) entries.push_back(std::move(*entry));
  }
  return entries;
}

}  // namespace

QByteArray writeStatusDocument(const std::vector<StatusEntry>& entries) {
  QByteArray text = QByteArray(rootStart) + '\n';
  for (const StatusEntry& entry : entries) {
    for (const auto& [value, textBefore] : writtenFields) {
      text += textBefore;
      text += (entry.*value).toUtf8();
    }
    text += "</Message>\n";
  }
  return text + rootEnd;
}

StatusDocument readStatusDocument(const QByteArray& text, int maxElements) {
  QXmlStreamReader original(text);
  StatusDocument document{readEntries(original, maxElements), {}};
  if (!original.hasError()) return document;
  const auto [decoded, isExact] = decodeText(text);
  QXmlStreamReader cleaned(decoded);
  document.entries = readEntries(cleaned, maxElements);
  if (isExact && !cleaned.hasError()) return document;
  document.entries = parseReadableLines(decoded, maxElements);
  document.error = errorText(isExact ? cleaned : original);
  return document;
}

std::optional<std::vector<StatusEntry>> readOwnStatusDocument(const QByteArray& text) {
  QStringDecoder decode(QStringConverter::Utf8);
  const QString decoded = decode(text);
  const QList<QStringView> lines = QStringView(decoded).split(u'\n');
  if (decode.hasError() || lines.size() < 2) return std::nullopt;
  if (lines.front() != QLatin1String(rootStart) || lines.back() != QLatin1String(rootEnd))
    return std::nullopt;
  std::vector<StatusEntry> entries;
  entries.reserve(static_cast<std::size_t>(lines.size()));
  for (const QStringView line : lines.sliced(1, lines.size() - 2)) {
    std::optional<StatusEntry> entry = parseWrittenLine(line);
    if (!entry) return std::nullopt;
    entries.push_back(std::move(*entry));
  }
  return entries;
}

}  // namespace parlexo
