#include "contacts/import/zip_archive.h"

#include <zip.h>

#include <QFile>

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
    return archive_.isTooLarge() ? -1 : count;
  }
  qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

 private:
  ZipArchive& archive_;
  zip_file* file_;
};

ZipArchive::ZipArchive(const QString& path, qint64 longest, const CancelFlag& cancel)
    : archive_(zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, nullptr)),
      left_(longest),
      cancel_(cancel) {}

ZipArchive::~ZipArchive() {
  if (archive_) zip_discard(archive_);
}

std::unique_ptr<QIODevice> ZipArchive::openPart(const QString& name) {
  zip_file* file = zip_fopen(archive_, name.toUtf8().constData(), ZIP_FL_NOCASE);
  return file ? std::make_unique<Part>(*this, file) : nullptr;
}

}  // namespace parlexo
