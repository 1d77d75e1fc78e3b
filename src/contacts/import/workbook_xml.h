// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QXmlStreamReader>

namespace parlexo {

/// An XML reader for the parts of a workbook. Raises an error for document types and for elements nested
/// deeper than in any genuine workbook, which could exhaust the memory or the stack.
class WorkbookXml : public QXmlStreamReader {
 public:
  using QXmlStreamReader::QXmlStreamReader;

  TokenType readNext();
  bool readNextStartElement();
  void skipCurrentElement();
  /// Returns the text of the current element and its children.
  [[nodiscard]] QString readElementText();

 private:
  int depth_ = 0;
};

}  // namespace parlexo
