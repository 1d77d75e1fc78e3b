#include <poppler/cpp/poppler-document.h>
#include <poppler/cpp/poppler-global.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <sstream>

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include "messaging/core/page_count.h"

#include <tiffio.hxx>

namespace parlexo {
namespace {

constexpr qint64 largestDocument = 64 << 20;  // bytes
constexpr qsizetype pdfMarkRange = 1024;      // where readers look for the mark of a PDF

struct TiffCloser {
  void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using Tiff = std::unique_ptr<TIFF, TiffCloser>;

// Both libraries would tell the terminal what is wrong with a file.
void silenceLibraries() {
  static const bool silenced = [] {
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
    poppler::set_debug_error_function([](const std::string&, void*) {}, nullptr);
    return true;
  }();
  (void)silenced;
}

QByteArray readDocument(const QString& path) {
  QFile file(path);
  const bool isDocument = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
  return isDocument && file.size() <= largestDocument ? file.read(largestDocument) : QByteArray();
}

bool isReduced(TIFF* tiff) {
  std::uint32_t type = 0;
  return TIFFGetField(tiff, TIFFTAG_SUBFILETYPE, &type) == 1 && (type & FILETYPE_REDUCEDIMAGE) != 0;
}

std::optional<int> tiffPages(const QByteArray& document) {
  std::istringstream stream(document.toStdString());
  const Tiff tiff(TIFFStreamOpen("document", &stream));
  if (!tiff) return std::nullopt;
  int pages = 0;
  for (;;) {
    if (!isReduced(tiff.get())) ++pages;
    if (TIFFLastDirectory(tiff.get())) return pages;
    if (!TIFFReadDirectory(tiff.get())) return std::nullopt;
  }
}

std::optional<int> pdfPages(const QByteArray& document) {
  const std::unique_ptr<poppler::document> pdf(
      poppler::document::load_from_raw_data(document.data(), static_cast<int>(document.size())));
  if (!pdf || pdf->is_locked() || pdf->pages() <= 0) return std::nullopt;
  return pdf->pages();
}

bool isTiff(const QByteArray& document) {
  return document.startsWith("II*") || document.startsWith("MM") || document.startsWith("II+");
}

}  // namespace

std::optional<int> pageCount(const QString& path) {
  const QByteArray document = readDocument(path);
  silenceLibraries();
  if (isTiff(document)) return tiffPages(document);
  if (document.left(pdfMarkRange).contains("%PDF-")) return pdfPages(document);
  return std::nullopt;
}

}  // namespace parlexo
