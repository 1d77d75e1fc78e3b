// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/ods_reader.h"

#include <algorithm>
#include <limits>
#include <memory>

#include "contacts/import/number_format.h"
#include "contacts/import/workbook_xml.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QStringView odsAttribute(const WorkbookXml& xml, QStringView name) {
  for (const QXmlStreamAttribute& candidate : xml.attributes())
    if (candidate.name() == name) return candidate.value();
  return {};
}

int repeatCount(const WorkbookXml& xml, QStringView name) {
  return std::max(1, odsAttribute(xml, name).toInt());
}

/// Adds without overflow; positions are far beyond the last cell of any sheet then.
void advance(int& position, int count) {
  position = std::min(position, std::numeric_limits<int>::max() / 2);
  position += std::min(count, std::numeric_limits<int>::max() / 2);
}

/// Returns the text of the current paragraph or span.
QString paragraphText(WorkbookXml& xml) {
  constexpr int longestBlank = 1000;
  QString text;
  while (!xml.atEnd() && xml.readNext() != WorkbookXml::EndElement) {
    if (xml.isCharacters()) text += xml.text();
    if (!xml.isStartElement()) continue;
    if (xml.name() == u"s") text += QString(std::min(repeatCount(xml, u"c"), longestBlank), u' ');
    if (xml.name() == u"tab" || xml.name() == u"line-break") text += u' ';
    if (xml.name() == u"annotation" || xml.name() == u"note")
      xml.skipCurrentElement();
    else
      text += paragraphText(xml);
  }
  return text;
}

/// Returns the displayed text of the current cell, without notes.
QString shownText(WorkbookXml& xml) {
  QString text;
  while (xml.readNextStartElement()) {
    if (xml.name() != u"p") {
      xml.skipCurrentElement();
      continue;
    }
    if (!text.isEmpty()) text += u'\n';
    text += paragraphText(xml);
  }
  return text;
}

/// Returns the value of the current cell unless it is a text; null otherwise.
QString valueText(const WorkbookXml& xml) {
  const QStringView type = odsAttribute(xml, u"value-type");
  if (type == u"float" || type == u"percentage" || type == u"currency")
    return numberText(odsAttribute(xml, u"value"));
  if (type == u"date") return odsAttribute(xml, u"date-value").toString().replace(u'T', u' ');
  if (type == u"boolean") return odsAttribute(xml, u"boolean-value").toString().toUpper();
  return {};
}

}  // namespace

bool OdsReader::read() {
  const std::unique_ptr<QIODevice> part = archive_.openPart(u"content.xml"_s);
  if (!part) return false;
  WorkbookXml xml(part.get());
  while (!xml.atEnd() && builder_.isOpen()) {
    if (xml.readNext() != WorkbookXml::StartElement) continue;
    if (xml.name() == u"style") readStyle(xml);
    if (xml.name() == u"table") readTable(xml);
  }
  return !xml.hasError();
}

// Table styles precede the tables.
void OdsReader::readStyle(WorkbookXml& xml) {
  constexpr std::size_t mostStyles = 10'000;
  const QString name = odsAttribute(xml, u"name").toString();
  while (xml.readNextStartElement()) {
    if (xml.name() == u"table-properties" && odsAttribute(xml, u"display") == u"false" &&
        hiddenStyles_.size() < mostStyles)
      hiddenStyles_.insert(name);
    xml.skipCurrentElement();
  }
}

// Rows may be nested in groups and header groups.
void OdsReader::readTable(WorkbookXml& xml) {
  const bool isHidden = hiddenStyles_.count(odsAttribute(xml, u"style-name").toString()) != 0;
  sheet_ = builder_.addSheet(odsAttribute(xml, u"name").toString(), isHidden);
  row_ = 0;
  while (!xml.atEnd() && builder_.isOpen()) {
    xml.readNext();
    if (xml.isStartElement() && xml.name() == u"table-row") readRow(xml);
    if (xml.isEndElement() && xml.name() == u"table") return;
  }
}

void OdsReader::readRow(WorkbookXml& xml) {
  const int repeats = repeatCount(xml, u"number-rows-repeated");
  column_ = 0;
  while (builder_.isOpen() && xml.readNextStartElement()) {
    if (xml.name() == u"table-cell" || xml.name() == u"covered-table-cell")
      readCell(xml, repeats);
    else
      xml.skipCurrentElement();
  }
  advance(row_, repeats);
}

void OdsReader::readCell(WorkbookXml& xml, int repeats) {
  const int columns = repeatCount(xml, u"number-columns-repeated");
  QString text = valueText(xml);
  const QString shown = shownText(xml);
  if (text.isEmpty()) text = shown;
  if (!text.isEmpty()) {
    const std::size_t number = builder_.addText(text);
    for (int row = 0; row < repeats && builder_.isOpen(); ++row)
      for (int column = 0; column < columns && builder_.isOpen(); ++column)
        builder_.setText(sheet_, row_ + row, column_ + column, number);
  }
  advance(column_, columns);
}

}  // namespace parlexo
