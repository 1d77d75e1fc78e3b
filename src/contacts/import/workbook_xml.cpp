// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/workbook_xml.h"

namespace parlexo {

namespace {
constexpr int deepestElement = 256;
}  // namespace

QXmlStreamReader::TokenType WorkbookXml::readNext() {
  QXmlStreamReader::readNext();
  if (isStartElement()) ++depth_;
  if (isEndElement()) --depth_;
  if (isDTD() || depth_ > deepestElement) raiseError();
  return tokenType();
}

bool WorkbookXml::readNextStartElement() {
  while (readNext() != Invalid && !isEndElement())
    if (isStartElement()) return true;
  return false;
}

void WorkbookXml::skipCurrentElement() {
  const int outside = depth_ - 1;
  while (depth_ > outside && readNext() != Invalid) continue;
}

QString WorkbookXml::readElementText() {
  QString text;
  const int outside = depth_ - 1;
  while (depth_ > outside && readNext() != Invalid)
    if (isCharacters()) text += this->text();
  return text;
}

}  // namespace parlexo
