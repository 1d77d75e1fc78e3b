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
constexpr int deepestElement = 100;
constexpr char16_t entryStart[] = u"<Message";
constexpr char16_t receiptEnd[] = u"</Message>";

// The attributes in the order in which they are written, each with the text before its value.
struct WrittenField {
  QString StatusEntry::*value;
  const char* textBefore;
};
constexpr std::array writtenFields = {
    WrittenField{&StatusEntry::date, "<Message Date=\""}, WrittenField{&StatusEntry::type, "\" Type=\""},
    WrittenField{&StatusEntry::phone, "\" Phone=\""},     WrittenField{&StatusEntry::status, "\" Status=\""},
    WrittenField{&StatusEntry::receipt, "\">"},
};

// Limits the depth, as the parser keeps more than a hundred bytes for each open element. readElementText()
// would even call itself for each and overflow the stack.
QString readTextOfElement(QXmlStreamReader& xml) {
  QString text;
  for (int depth = 1; depth > 0 && !xml.hasError();) {
    xml.readNext();
    if (xml.isStartElement()) ++depth;
    if (xml.isEndElement()) --depth;
    if (xml.isCharacters() || xml.isEntityReference()) text += xml.text();
    if (depth > deepestElement) xml.raiseError(u"The elements are nested too deeply."_s);
  }
  return text;
}

StatusEntry entryOfElement(QXmlStreamReader& xml) {
  const QXmlStreamAttributes attributes = xml.attributes();
  StatusEntry entry;
  entry.date = attributes.value(QLatin1String("Date")).toString();
  entry.phone = attributes.value(QLatin1String("Phone")).toString();
  entry.type = attributes.value(QLatin1String("Type")).toString();
  entry.status = attributes.value(QLatin1String("Status")).toString();
  entry.receipt = readTextOfElement(xml);
  return entry;
}

// Reads to the very end even when enough elements were seen: a fault behind them is a fault of the document.
std::vector<StatusEntry> entriesOfRoot(QXmlStreamReader& xml, int mostElements) {
  std::vector<StatusEntry> entries;
  int children = 0;
  xml.readNextStartElement();
  while (xml.readNextStartElement()) {
    const bool isEntry = children < mostElements && xml.name() == entryElement;
    ++children;
    if (isEntry)
      entries.push_back(entryOfElement(xml));
    else
      readTextOfElement(xml);
  }
  while (!xml.atEnd()) xml.readNext();
  return entries;
}

QString faultOf(const QXmlStreamReader& xml) {
  return u"%1 (line %2, column %3)"_s.arg(xml.errorString(), QString::number(xml.lineNumber()),
                                          QString::number(xml.columnNumber()));
}

struct DecodedText {
  QString text;  ///< without control characters but for the line feeds
  bool isExact;  ///< whether every byte could be decoded
};

// UTF-8 unless a byte-order mark or the first character says otherwise.
DecodedText decodedText(const QByteArray& bytes) {
  QStringDecoder decode(QStringConverter::encodingForData(bytes, u'<').value_or(QStringConverter::Utf8));
  const QString decoded = decode(bytes);
  QString text;
  text.reserve(decoded.size() + 1);
  for (const QStringView line : qTokenize(decoded, u'\n'))
    text += withoutControlCharacters(line.toString()) + u'\n';
  text.chop(1);
  return {text, !decode.hasError()};
}

// Where the text before each field's value begins and ends. Each is searched from the left but the last one:
// a status may contain "\">", a receipt does not.
std::optional<StatusEntry> entryOfOwnLine(QStringView line) {
  if (!line.endsWith(receiptEnd)) return std::nullopt;
  line.chop(static_cast<qsizetype>(std::size(receiptEnd)) - 1);
  StatusEntry entry;
  QString* previous = nullptr;
  for (const auto& [value, textBefore] : writtenFields) {
    const QLatin1String before(textBefore);
    const bool isLast = value == &StatusEntry::receipt;
    const qsizetype found = isLast ? line.lastIndexOf(before) : line.indexOf(before);
    if (found < 0 || (!previous && found > 0)) return std::nullopt;
    if (previous) *previous = line.first(found).toString();
    line = line.sliced(found + before.size());
    previous = &(entry.*value);
  }
  *previous = line.toString();
  return entry;
}

std::optional<StatusEntry> entryOfXmlLine(QStringView line) {
  QXmlStreamReader xml(line.toString());
  if (!xml.readNextStartElement() || xml.name() != entryElement) return std::nullopt;
  StatusEntry entry = entryOfElement(xml);
  while (!xml.atEnd()) xml.readNext();
  if (xml.hasError()) return std::nullopt;
  return entry;
}

// As XML where that works, so that an entry reads as it would in a document without a fault.
std::vector<StatusEntry> entriesOfReadableLines(const QString& text, int mostElements) {
  std::vector<StatusEntry> entries;
  for (const QStringView whole : qTokenize(text, u'\n')) {
    if (entries.size() == static_cast<std::size_t>(mostElements)) break;
    const QStringView line = whole.trimmed();
    if (!line.startsWith(entryStart)) continue;
    std::optional<StatusEntry> entry = entryOfXmlLine(line);
    if (!entry) entry = entryOfOwnLine(line);
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

StatusDocument readStatusDocument(const QByteArray& text, int mostElements) {
  QXmlStreamReader asItIs(text);
  StatusDocument document{entriesOfRoot(asItIs, mostElements), {}};
  if (!asItIs.hasError()) return document;
  const auto [decoded, isExact] = decodedText(text);
  QXmlStreamReader cleaned(decoded);
  document.entries = entriesOfRoot(cleaned, mostElements);
  if (isExact && !cleaned.hasError()) return document;
  document.entries = entriesOfReadableLines(decoded, mostElements);
  document.fault = faultOf(isExact ? cleaned : asItIs);
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
    std::optional<StatusEntry> entry = entryOfOwnLine(line);
    if (!entry) return std::nullopt;
    entries.push_back(std::move(*entry));
  }
  return entries;
}

}  // namespace parlexo
