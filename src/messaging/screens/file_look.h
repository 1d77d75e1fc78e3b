// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include "messaging/core/file_facts.h"

namespace parlexo {

/// What a page wants to know about a file.
struct FileLookWishes {
  qint64 limit = 0;  ///< bytes that may be sent
  bool pages = false;
  QSize picture;  ///< pixels that a small picture of the file may take; empty for none
};

/// What a page shows of a file.
struct FileLook {
  FileFacts facts;
  QImage picture;  ///< null where none was wished for and where the file holds none
};

/// Looks at the file, which may take its time on a network folder or for a large document. Can be called on
/// any thread.
[[nodiscard]] FileLook lookAtFile(const QString& path, const FileLookWishes& wishes);

/// The picture in the file, made no larger than `bounds` and turned upright; null when it is no JPEG, PNG,
/// GIF, BMP or WebP picture, is damaged, or is so large (16 MB, 40 million pixels) that decoding it would be
/// felt.
[[nodiscard]] QImage smallPicture(const QString& path, QSize bounds);

}  // namespace parlexo
