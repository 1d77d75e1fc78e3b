#include "messaging/core/file_facts.h"

#include <QFileInfo>

#include "base/code_page.h"
#include "base/data_size.h"

namespace parlexo {
namespace {

FileFacts::State stateOf(const QFileInfo& file, qint64 limit) {
  using State = FileFacts::State;
  if (!file.exists()) return State::Missing;
  if (!file.isFile()) return State::NoFile;
  if (!file.isReadable() || !file.isWritable()) return State::Unwritable;
  if (file.size() > limit) return State::TooLarge;
  return file.size() == 0 ? State::Empty : State::Sendable;
}

// The name travels with the file.
QString sentNameText(const QString& name) {
  if (fitsCodePage(name)) return {};
  return QStringLiteral(", will be sent as \"%1\"").arg(throughCodePage(name));
}

QString pagesText(const std::optional<int>& pages) {
  if (!pages) return {};
  return *pages == 1 ? QStringLiteral(", 1 page") : QStringLiteral(", %1 pages").arg(*pages);
}

}  // namespace

FileFacts fileFacts(const QString& path, qint64 limit) {
  const QFileInfo file(path);
  return {file.fileName(), stateOf(file, limit), file.size(), limit, {}};
}

QString FileFacts::text() const {
  switch (state) {
    case State::Missing:
      return QStringLiteral("There is no such file.");
    case State::NoFile:
      return QStringLiteral("This is a folder or a device, not a file.");
    case State::Unwritable:
      return name + QStringLiteral(": can't be sent, as that needs the right to read and to write it");
    case State::Empty:
      return name + QStringLiteral(": empty");
    case State::TooLarge:
      return name + QStringLiteral(": %1%2, but at most %3 can be sent")
                        .arg(exactSizeText(size), pagesText(pages), exactSizeText(limit));
    case State::Sendable:
      return name +
             QStringLiteral(": %1 of at most %2%3")
                 .arg(dataSizeText(size), dataSizeText(limit), pagesText(pages)) +
             sentNameText(name);
  }
  Q_UNREACHABLE();
}

}  // namespace parlexo
