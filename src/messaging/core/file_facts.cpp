// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/file_facts.h"

#include <chrono>

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include "base/code_page.h"
#include "base/data_size.h"
#include "base/program.h"
#include "base/timeouts.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxDocumentSize = 64 << 20;  // bytes
constexpr qint64 pdfHeaderRange = 1024;       // bytes in which PDF readers accept the header
constexpr std::chrono::milliseconds pageCountTimeout = timeouts::pageCount;

FileFacts::State fileState(const QFileInfo& file, qint64 limit) {
  using State = FileFacts::State;
  if (!file.exists()) return State::Missing;
  if (!file.isFile()) return State::NoFile;
  if (!file.isReadable() || !file.isWritable()) return State::Unwritable;
  if (file.size() > limit) return State::TooLarge;
  return file.size() == 0 ? State::Empty : State::Sendable;
}

QString withPages(const QString& text, const std::optional<int>& pages) {
  if (!pages) return text;
  return *pages == 1 ? FileFacts::tr("%1, 1 page").arg(text)
                     : FileFacts::tr("%1, %2 pages").arg(text, QString::number(*pages));
}

// The file name is part of the request, which is encoded in the code page.
QString withSentName(const QString& text, const QString& name) {
  if (fitsCodePage(name)) return text;
  return FileFacts::tr("%1, will be sent as \"%2\"").arg(text, throughCodePage(name));
}

/// The page counter's name for the format of a document that begins with `start`; empty if unsupported.
QString documentFormat(const QByteArray& start) {
  for (const char* signature : {"II*", "II+", "MM"}) {
    if (start.startsWith(signature)) return u"tiff"_s;
  }
  return start.contains("%PDF-") ? u"pdf"_s : QString();
}

QString readDocumentFormat(const QString& path) {
  QFile file(path);
  const bool isDocument = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
  return isDocument && file.size() <= maxDocumentSize ? documentFormat(file.read(pdfHeaderRange)) : QString();
}

std::optional<int> readPageCount(QProcess& counter) {
  if (!counter.waitForFinished(static_cast<int>(pageCountTimeout.count()))) {
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

QString FileFacts::text() const {
  switch (state) {
    case State::Missing:
      return tr("There is no such file.");
    case State::NoFile:
      return tr("This is a folder or a device, not a file.");
    case State::Unwritable:
      return tr("%1: can't be sent, as that needs the right to read and to write it").arg(name);
    case State::Empty:
      return tr("%1: empty").arg(name);
    case State::TooLarge:
      return tr("%1: %2, but at most %3 can be sent")
          .arg(name, withPages(exactSizeText(size), pages), exactSizeText(limit));
    case State::Sendable: {
      const QString sizes = tr("%1: %2 of at most %3").arg(name, dataSizeText(size), dataSizeText(limit));
      return withSentName(withPages(sizes, pages), name);
    }
  }
  Q_UNREACHABLE();
}

FileFacts fileFacts(const QString& path, qint64 limit) {
  const QFileInfo file(path);
  return {.name = file.fileName(),
          .state = fileState(file, limit),
          .size = file.size(),
          .limit = limit,
          .pages = {}};
}

std::optional<int> pageCount(const QString& path) {
  const QString format = readDocumentFormat(path);
  const QString program = helperProgram(u"parlexo-page-counter"_s);
  if (format.isEmpty() || program.isEmpty()) return std::nullopt;
  QProcess counter;
  counter.setStandardInputFile(path);
  counter.setStandardErrorFile(QProcess::nullDevice());
  counter.start(program, {format}, QIODevice::ReadOnly);
  return readPageCount(counter);
}

}  // namespace parlexo
