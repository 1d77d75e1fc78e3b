// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/file_facts.h"

#include <QFileInfo>

#include "base/code_page.h"
#include "base/data_size.h"

namespace parlexo {

using namespace Qt::StringLiterals;

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
  return u", will be sent as \"%1\""_s.arg(throughCodePage(name));
}

QString pagesText(const std::optional<int>& pages) {
  if (!pages) return {};
  return *pages == 1 ? u", 1 page"_s : u", %1 pages"_s.arg(*pages);
}

}  // namespace

FileFacts fileFacts(const QString& path, qint64 limit) {
  const QFileInfo file(path);
  return {file.fileName(), stateOf(file, limit), file.size(), limit, {}};
}

QString FileFacts::text() const {
  switch (state) {
    case State::Missing:
      return u"There is no such file."_s;
    case State::NoFile:
      return u"This is a folder or a device, not a file."_s;
    case State::Unwritable:
      return name + u": can't be sent, as that needs the right to read and to write it"_s;
    case State::Empty:
      return name + u": empty"_s;
    case State::TooLarge:
      return name + u": %1%2, but at most %3 can be sent"_s.arg(exactSizeText(size), pagesText(pages),
                                                                exactSizeText(limit));
    case State::Sendable:
      return name + u": %1 of at most %2%3"_s.arg(dataSizeText(size), dataSizeText(limit), pagesText(pages)) +
             sentNameText(name);
  }
  Q_UNREACHABLE();
}

}  // namespace parlexo
