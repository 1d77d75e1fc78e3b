// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/page_count.h"

#include <chrono>

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include "base/program.h"
#include "base/timeouts.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestDocument = 64 << 20;  // bytes
constexpr qint64 pdfMarkRange = 1024;         // where readers look for the mark of a PDF
constexpr std::chrono::milliseconds patience = timeouts::pageCount;

/// What the page counter calls the kind of document that begins with `start`; empty for what it doesn't know.
QString documentKind(const QByteArray& start) {
  for (const char* mark : {"II*", "II+", "MM"}) {
    if (start.startsWith(mark)) return u"tiff"_s;
  }
  return start.contains("%PDF-") ? u"pdf"_s : QString();
}

QString documentKindAt(const QString& path) {
  QFile file(path);
  const bool isDocument = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
  return isDocument && file.size() <= largestDocument ? documentKind(file.read(pdfMarkRange)) : QString();
}

std::optional<int> answerOf(QProcess& counter) {
  if (!counter.waitForFinished(static_cast<int>(patience.count()))) {
    counter.kill();
    counter.waitForFinished();
    return std::nullopt;
  }
  bool isNumber = false;
  const int pages = counter.readAllStandardOutput().trimmed().toInt(&isNumber);
  const bool succeeded = counter.exitStatus() == QProcess::NormalExit && counter.exitCode() == 0;
  return succeeded && isNumber ? std::optional(pages) : std::nullopt;
}

}  // namespace

std::optional<int> pageCount(const QString& path) {
  const QString kind = documentKindAt(path);
  const QString program = helperProgram(u"parlexo-page-counter"_s);
  if (kind.isEmpty() || program.isEmpty()) return std::nullopt;
  QProcess counter;
  counter.setStandardInputFile(path);
  counter.setStandardErrorFile(QProcess::nullDevice());
  counter.start(program, {kind}, QIODevice::ReadOnly);
  return answerOf(counter);
}

}  // namespace parlexo
