// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/zip_archive.h"

#include <zip.h>

#include <QByteArrayView>

namespace parlexo {

class ZipArchive::Part final : public QIODevice {
 public:
  Part(ZipArchive& archive, zip_file* file) : archive_(archive), file_(file) {
    setOpenMode(QIODevice::ReadOnly);
  }
  ~Part() override { zip_fclose(file_); }
  Part(const Part&) = delete;
  Part& operator=(const Part&) = delete;

  [[nodiscard]] bool isSequential() const override { return true; }

 protected:
  qint64 readData(char* data, qint64 size) override {
    if (archive_.isTooLarge() || archive_.cancel_.isRaised()) return -1;
    const zip_int64_t count = zip_fread(file_, data, static_cast<zip_uint64_t>(size));
    if (count <= 0) return -1;
    archive_.left_ -= count;
    return archive_.isTooLarge() || !accepts({data, static_cast<qsizetype>(count)}) ? -1 : count;
  }
  qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

 private:
  // Enough for a cell with every character escaped. The attributes of a longer tag, each compared with all
  // others, could occupy the XML reader for hours.
  static constexpr qsizetype longestStretch = 1 << 18;

  [[nodiscard]] bool accepts(QByteArrayView bytes) {
    for (const char c : bytes) {
      stretch_ = c == '<' ? 0 : stretch_ + 1;
      if (stretch_ > longestStretch) return false;
    }
    return true;
  }

  ZipArchive& archive_;
  zip_file* file_;
  qsizetype stretch_ = 0;
};

ZipArchive::ZipArchive(const QString& path, qint64 longest, const CancelFlag& cancel)
    : archive_(zip_open(path.toUtf8().constData(), ZIP_RDONLY, nullptr)), left_(longest), cancel_(cancel) {}

ZipArchive::~ZipArchive() {
  if (archive_) zip_discard(archive_);
}

std::unique_ptr<QIODevice> ZipArchive::openPart(const QString& name) {
  zip_file* file = zip_fopen(archive_, name.toUtf8().constData(), ZIP_FL_NOCASE);
  return file ? std::make_unique<Part>(*this, file) : nullptr;
}

}  // namespace parlexo
