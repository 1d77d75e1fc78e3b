// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/file_look.h"

#include <QFileInfo>
#include <QImageReader>

#include "messaging/core/page_count.h"

namespace parlexo {
namespace {

constexpr qint64 largestPictureFile = 16 << 20;  // bytes
constexpr qint64 mostPixels = 40'000'000;

// Formats that describe drawings are left out: a few bytes of them can keep a program busy for hours.
bool isPictureFormat(const QByteArray& format) {
  static const QList<QByteArray> formats = {"jpeg", "png", "gif", "bmp", "webp"};
  return formats.contains(format);
}

QSize fittedInto(QSize size, QSize bounds) {
  if (size.width() <= bounds.width() && size.height() <= bounds.height()) return size;
  return size.scaled(bounds, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

bool isReadable(const FileFacts& facts) {
  return facts.state == FileFacts::State::Sendable || facts.state == FileFacts::State::TooLarge;
}

}  // namespace

FileLook lookAtFile(const QString& path, const FileLookWishes& wishes) {
  FileLook look{fileFacts(path, wishes.limit), {}};
  if (!isReadable(look.facts)) return look;
  if (wishes.pages) look.facts.pages = pageCount(path);
  if (!wishes.picture.isEmpty()) look.picture = smallPicture(path, wishes.picture);
  return look;
}

QImage smallPicture(const QString& path, QSize bounds) {
  const QFileInfo file(path);
  if (!file.isFile() || file.size() > largestPictureFile) return {};
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  if (!isPictureFormat(reader.format())) return {};
  const QSize size = reader.size();
  if (size.isEmpty() || qint64{size.width()} * size.height() > mostPixels) return {};
  const bool isTurned = reader.transformation() & QImageIOHandler::TransformationRotate90;
  reader.setScaledSize(fittedInto(size, isTurned ? bounds.transposed() : bounds));
  return reader.read();
}

}  // namespace parlexo
