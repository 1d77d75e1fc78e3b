// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QXmlStreamReader>

namespace parlexo {

/// An XML reader for the parts of a workbook. It gives up, with an error, on what nests deeper than any
/// workbook does or declares a document type: such a file was made to fill the memory or the stack.
class WorkbookXml : public QXmlStreamReader {
 public:
  using QXmlStreamReader::QXmlStreamReader;

  TokenType readNext();
  bool readNextStartElement();
  void skipCurrentElement();
  /// All text up to the end of the current element, that of its children too.
  [[nodiscard]] QString readElementText();

 private:
  int depth_ = 0;
};

}  // namespace parlexo
