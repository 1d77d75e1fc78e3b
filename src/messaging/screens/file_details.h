// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include "messaging/core/file_facts.h"

namespace parlexo {

/// The details of a file that a page shows.
struct FileDetails {
  /// Selects the details to read besides the facts.
  struct Request {
    qint64 limit = 0;  ///< maximum size of the file in bytes
    bool countPages = false;
    QSize thumbnailSize;  ///< maximum size of the thumbnail in pixels; empty for none
  };

  FileFacts facts;
  QImage thumbnail;  ///< null if not requested or the file contains no picture
};

/// Reads the details of the file at `path`. Blocks, possibly long on a network folder or for a large
/// document. Thread-safe.
[[nodiscard]] FileDetails readFileDetails(const QString& path, const FileDetails::Request& request);

/// Reads the picture in the file, scaled down to fit `bounds` and rotated upright. Returns null if the file
/// is not an intact JPEG, PNG, GIF, BMP or WebP picture, or is too large (16 MB, 40 million pixels) to be
/// decoded quickly.
[[nodiscard]] QImage readThumbnail(const QString& path, QSize bounds);

}  // namespace parlexo
