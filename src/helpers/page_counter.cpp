// SPDX-License-Identifier: GPL-3.0-or-later
// The program parlexo-page-counter: counts the pages of the document on standard input. It runs in a separate
// process, because a damaged or malicious document may crash the libraries that read it.
//   parlexo-page-counter tiff   counts the pages of a TIFF, without thumbnails
//   parlexo-page-counter pdf    counts the pages of a PDF that opens without a password
// Exit code 0 with the number on standard output, 1 on failure, 2 for wrong usage.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <qpdf/qpdf-c.h>

#include "helpers/helper_process.h"

#include <tiffio.hxx>

namespace {

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;

constexpr std::size_t maxMemory = 512u << 20;  // bytes
constexpr unsigned maxSeconds = 10;

struct TiffCloser {
  void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using Tiff = std::unique_ptr<TIFF, TiffCloser>;

struct PdfCloser {
  void operator()(qpdf_data pdf) const {
    qpdf_get_error(pdf);  // errors that were not retrieved would be printed
    qpdf_cleanup(&pdf);
  }
};
using Pdf = std::unique_ptr<std::remove_pointer_t<qpdf_data>, PdfCloser>;

std::string readDocument() {
  std::string document;
  std::array<char, 1 << 16> piece{};
  while (const std::size_t length = std::fread(piece.data(), 1, piece.size(), stdin)) {
    document.append(piece.data(), length);
  }
  return document;
}

bool isReduced(TIFF* tiff) {
  std::uint32_t type = 0;
  return TIFFGetField(tiff, TIFFTAG_SUBFILETYPE, &type) == 1 && (type & FILETYPE_REDUCEDIMAGE) != 0;
}

/// Returns 0 if the document can't be read completely.
std::size_t tiffPages(std::string document) {
  TIFFSetErrorHandler(nullptr);
  TIFFSetWarningHandler(nullptr);
  std::istringstream stream(std::move(document));
  const Tiff tiff(TIFFStreamOpen("document", &stream));
  if (!tiff) return 0;
  std::size_t pages = 0;
  for (;;) {
    if (!isReduced(tiff.get())) ++pages;
    if (TIFFLastDirectory(tiff.get())) return pages;
    if (!TIFFReadDirectory(tiff.get())) return 0;
  }
}

/// Returns 0 if the document can't be read. Warnings, as for a repaired document, are ignored.
std::size_t pdfPages(const std::string& document) {
  const Pdf pdf(qpdf_init());
  qpdf_set_suppress_warnings(pdf.get(), QPDF_TRUE);
  const QPDF_ERROR_CODE outcome =
      qpdf_read_memory(pdf.get(), "document", document.data(), document.size(), nullptr);
  const int pages = (outcome & QPDF_ERRORS) != 0 ? 0 : qpdf_get_num_pages(pdf.get());
  return static_cast<std::size_t>(std::max(pages, 0));
}

int printPageCount(std::size_t pages) {
  if (pages == 0) return failure;
  std::printf("%zu\n", pages);
  return success;
}

int run(std::string_view format) {
  if (format == "tiff") return printPageCount(tiffPages(readDocument()));
  if (format == "pdf") return printPageCount(pdfPages(readDocument()));
  return wrongUsage;
}

}  // namespace

int main(int argc, char** argv) {
  parlexo::sandboxProcess(maxMemory, maxSeconds);
  try {
    return argc == 2 ? run(argv[1]) : wrongUsage;
  } catch (const std::exception&) {
    return failure;
  }
}
