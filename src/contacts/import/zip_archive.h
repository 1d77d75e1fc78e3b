// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QIODevice>
#include <QString>

#include "base/call_runner.h"

struct zip;
struct zip_file;

namespace parlexo {

/// A zip archive of XML that is read part by part and never unpacked as a whole. What comes out of it is
/// counted, so that a small file can't turn into an endless one, and a part ends early that has a tag or a
/// text of a length that no workbook has.
class ZipArchive {
 public:
  /// `longest` is the most that all parts together may give, in bytes.
  ZipArchive(const QString& path, qint64 longest, const CancelFlag& cancel);
  ~ZipArchive();
  ZipArchive(const ZipArchive&) = delete;
  ZipArchive& operator=(const ZipArchive&) = delete;

  /// False when the file is no archive, or a damaged one.
  [[nodiscard]] bool isOpen() const { return archive_ != nullptr; }
  /// Opens the part for reading, sequentially; null when there is none of that name or it can't be unpacked,
  /// as when it is encrypted. The part must not outlive the archive.
  [[nodiscard]] std::unique_ptr<QIODevice> openPart(const QString& name);
  /// Whether more came out than is allowed; parts then seem to end early.
  [[nodiscard]] bool isTooLarge() const { return left_ < 0; }

 private:
  class Part;

  zip* archive_;
  qint64 left_;
  const CancelFlag& cancel_;
};

}  // namespace parlexo
