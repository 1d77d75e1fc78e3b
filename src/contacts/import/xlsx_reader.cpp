// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/xlsx_reader.h"

#include <algorithm>
#include <memory>

#include <QDir>

#include "contacts/import/number_format.h"
#include "contacts/import/workbook_xml.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// Beyond any limit, and safe from overflow.
constexpr int farAway = 100'000'000;
// The maximum of relations and sheets; a workbook has a few dozen.
constexpr std::size_t mostEntries = 10'000;

QString partFolder(const QString& part) {
  return part.left(part.lastIndexOf(u'/') + 1);
}

/// Parses a reference such as B12 to row and column, counted from 0, or -1 if missing. Ignores other
/// characters.
std::pair<int, int> parsePlace(QStringView reference) {
  int column = 0;
  int row = 0;
  for (const QChar c : reference) {
    if (c >= u'A' && c <= u'Z' && column < farAway) column = column * 26 + (c.unicode() - u'A' + 1);
    if (c >= u'0' && c <= u'9' && row < farAway) row = row * 10 + (c.unicode() - u'0');
  }
  return {row - 1, column - 1};
}

/// Returns the text of the current element with its runs joined, without the phonetic guides of East Asian
/// texts.
QString joinedText(WorkbookXml& xml) {
  QString text;
  while (xml.readNextStartElement()) {
    if (xml.name() == u"t")
      text += xml.readElementText();
    else if (xml.name() == u"r")
      text += joinedText(xml);
    else
      xml.skipCurrentElement();
  }
  return text;
}

// Only some producers use a prefix for the attribute.
QString attribute(const WorkbookXml& xml, QStringView name) {
  for (const QXmlStreamAttribute& candidate : xml.attributes())
    if (candidate.name() == name) return candidate.value().toString();
  return {};
}

/// Formats 14 to 22 and 45 to 47 are built-in date and time formats, which are not defined in the file.
bool isBuiltInDateFormat(int id) {
  return (id >= 14 && id <= 22) || (id >= 45 && id <= 47);
}

}  // namespace

bool XlsxReader::read() {
  QString workbook = u"xl/workbook.xml"_s;
  for (const Relation& relation : readRelations(QString()))
    if (relation.type == u"officeDocument") workbook = relation.part;
  if (!readWorkbook(workbook)) return false;
  const std::vector<Relation> relations = readRelations(workbook);
  for (const Relation& relation : relations) {
    if (relation.type == u"sharedStrings" && !readTexts(relation.part)) return false;
    if (relation.type == u"styles" && !readStyles(relation.part)) return false;
  }
  for (const SheetEntry& entry : sheets_) {
    const auto sheet = std::find_if(relations.begin(), relations.end(),
                                    [&](const Relation& relation) { return relation.id == entry.relation; });
    // A sheet may also be a chart.
    if (sheet == relations.end() || sheet->type != u"worksheet") continue;
    if (!builder_.isOpen() || !readSheet(entry, sheet->part)) return false;
  }
  return true;
}

std::vector<XlsxReader::Relation> XlsxReader::readRelations(const QString& ofPart) {
  const QString folder = partFolder(ofPart);
  const std::unique_ptr<QIODevice> part =
      archive_.openPart(folder + u"_rels/"_s + ofPart.sliced(folder.size()) + u".rels"_s);
  std::vector<Relation> relations;
  if (!part) return relations;
  WorkbookXml xml(part.get());
  while (!xml.atEnd() && relations.size() < mostEntries) {
    if (!xml.readNextStartElement() || xml.name() != u"Relationship") continue;
    const QString target = attribute(xml, u"Target");
    const QString type = attribute(xml, u"Type");
    relations.push_back({attribute(xml, u"Id"), type.sliced(type.lastIndexOf(u'/') + 1),
                         target.startsWith(u'/') ? target.sliced(1) : QDir::cleanPath(folder + target)});
  }
  return relations;
}

bool XlsxReader::readWorkbook(const QString& partName) {
  const std::unique_ptr<QIODevice> part = archive_.openPart(partName);
  if (!part) return false;
  WorkbookXml xml(part.get());
  while (!xml.atEnd() && sheets_.size() < mostEntries) {
    if (xml.readNext() != WorkbookXml::StartElement) continue;
    const QString state = attribute(xml, u"state");
    if (xml.name() == u"sheet")
      sheets_.push_back(
          {attribute(xml, u"name"), attribute(xml, u"id"), state == u"hidden" || state == u"veryHidden"});
    if (xml.name() == u"workbookPr") {
      const QString value = attribute(xml, u"date1904");
      since1904_ = value == u"1" || value == u"true";
    }
  }
  return !xml.hasError();
}

bool XlsxReader::readTexts(const QString& partName) {
  const std::unique_ptr<QIODevice> part = archive_.openPart(partName);
  if (!part) return false;
  WorkbookXml xml(part.get());
  while (!xml.atEnd() && builder_.isOpen()) {
    if (xml.readNext() != WorkbookXml::StartElement || xml.name() != u"si") continue;
    const std::size_t number = builder_.addText(joinedText(xml));
    if (textCount_++ == 0) firstText_ = number;
  }
  return !xml.hasError();
}

bool XlsxReader::readStyles(const QString& partName) {
  const std::unique_ptr<QIODevice> part = archive_.openPart(partName);
  if (!part) return false;
  WorkbookXml xml(part.get());
  std::set<int> dateFormats;
  bool inCells = false;
  while (!xml.atEnd()) {
    const auto token = xml.readNext();
    if (xml.name() == u"cellXfs") inCells = token == WorkbookXml::StartElement;
    if (token != WorkbookXml::StartElement) continue;
    const int format = attribute(xml, u"numFmtId").toInt();
    if (xml.name() == u"numFmt" && isDateFormat(attribute(xml, u"formatCode"))) dateFormats.insert(format);
    if (xml.name() == u"xf" && inCells)
      dateStyles_.push_back(isBuiltInDateFormat(format) || dateFormats.count(format) != 0);
  }
  return !xml.hasError();
}

bool XlsxReader::readSheet(const SheetEntry& entry, const QString& partName) {
  const std::unique_ptr<QIODevice> part = archive_.openPart(partName);
  if (!part) return false;
  const std::size_t sheet = builder_.addSheet(entry.name, entry.isHidden);
  WorkbookXml xml(part.get());
  // References are optional: rows and cells are consecutive without them.
  Place place{-1, -1};
  while (!xml.atEnd() && builder_.isOpen()) {
    if (xml.readNext() != WorkbookXml::StartElement) continue;
    if (xml.name() == u"row") {
      const int row = parsePlace(attribute(xml, u"r")).first;
      place = {row >= 0 ? row : place.row + 1, -1};
    } else if (xml.name() == u"c") {
      const auto [row, column] = parsePlace(attribute(xml, u"r"));
      place = {row >= 0 ? row : place.row, column >= 0 ? column : place.column + 1};
      readCell(xml, sheet, place);
    }
  }
  return !xml.hasError();
}

void XlsxReader::readCell(WorkbookXml& xml, std::size_t sheet, Place place) {
  const QString type = attribute(xml, u"t");
  const std::size_t style = attribute(xml, u"s").toUInt();
  QString value;
  while (xml.readNextStartElement()) {
    if (xml.name() == u"v")
      value = xml.readElementText();
    else if (xml.name() == u"is")
      value = joinedText(xml);
    else
      xml.skipCurrentElement();
  }
  if (value.isEmpty()) return;
  if (type == u"s") {
    if (const std::size_t number = value.toUInt(); number < textCount_)
      builder_.setText(sheet, place.row, place.column, firstText_ + number);
  } else if (type == u"b") {
    builder_.setCell(sheet, place.row, place.column, value == u"1" ? u"TRUE"_s : u"FALSE"_s);
  } else if (type.isEmpty() || type == u"n") {
    setNumber(sheet, place, value, style);
  } else {
    builder_.setCell(sheet, place.row, place.column, value);
  }
}

void XlsxReader::setNumber(std::size_t sheet, Place place, const QString& written, std::size_t style) {
  const bool isDate = style < dateStyles_.size() && dateStyles_[style];
  builder_.setCell(sheet, place.row, place.column,
                   isDate ? dateText(written.toDouble(), since1904_) : numberText(written));
}

}  // namespace parlexo
