// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QIODevice>
#include <QString>

#include "base/call_runner.h"

struct zip;
struct zip_file;

namespace parlexo {

/// A zip archive of XML parts, which are unpacked while they are read. The unpacked bytes are limited, and a
/// part ends early at a tag or text that is longer than in any genuine workbook.
class ZipArchive {
 public:
  /// `longest` is the maximum unpacked size of all parts together, in bytes. `cancel` must outlive the
  /// archive.
  ZipArchive(const QString& path, qint64 longest, const CancelFlag& cancel);
  ~ZipArchive();
  ZipArchive(const ZipArchive&) = delete;
  ZipArchive& operator=(const ZipArchive&) = delete;

  /// False if the file is not an archive or is damaged.
  [[nodiscard]] bool isOpen() const { return archive_ != nullptr; }
  /// Opens a part for sequential reading. Returns null if it is missing or can't be unpacked, for example
  /// because it is encrypted. The part must not outlive the archive.
  [[nodiscard]] std::unique_ptr<QIODevice> openPart(const QString& name);
  /// Whether the maximum unpacked size was exceeded; parts end early then.
  [[nodiscard]] bool isTooLarge() const { return left_ < 0; }

 private:
  class Part;

  zip* archive_;
  qint64 left_;
  const CancelFlag& cancel_;
};

}  // namespace parlexo
