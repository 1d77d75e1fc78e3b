// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/file_details.h"

#include <QFileInfo>
#include <QImageReader>

namespace parlexo {
namespace {

constexpr qint64 maxPictureFileSize = 16 << 20;  // bytes
constexpr qint64 maxPixels = 40'000'000;

// Excludes vector formats: a small file can take hours to render.
bool isPictureFormat(const QByteArray& format) {
  static const QList<QByteArray> formats = {"jpeg", "png", "gif", "bmp", "webp"};
  return formats.contains(format);
}

QSize scaledToFit(QSize size, QSize bounds) {
  if (size.width() <= bounds.width() && size.height() <= bounds.height()) return size;
  return size.scaled(bounds, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

bool isReadable(const FileFacts& facts) {
  return facts.state == FileFacts::State::Sendable || facts.state == FileFacts::State::TooLarge;
}

}  // namespace

FileDetails readFileDetails(const QString& path, const FileDetails::Request& request) {
  FileDetails details{.facts = fileFacts(path, request.limit), .thumbnail = {}};
  if (!isReadable(details.facts)) return details;
  if (request.countPages) details.facts.pages = pageCount(path);
  if (!request.thumbnailSize.isEmpty()) details.thumbnail = readThumbnail(path, request.thumbnailSize);
  return details;
}

QImage readThumbnail(const QString& path, QSize bounds) {
  const QFileInfo file(path);
  if (!file.isFile() || file.size() > maxPictureFileSize) return {};
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  if (!isPictureFormat(reader.format())) return {};
  const QSize size = reader.size();
  if (size.isEmpty() || qint64{size.width()} * size.height() > maxPixels) return {};
  const bool isRotated = reader.transformation() & QImageIOHandler::TransformationRotate90;
  reader.setScaledSize(scaledToFit(size, isRotated ? bounds.transposed() : bounds));
  return reader.read();
}

}  // namespace parlexo
