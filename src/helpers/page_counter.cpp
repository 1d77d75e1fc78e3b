// SPDX-License-Identifier: GPL-3.0-or-later
// The program parlexo-page-counter: counts the pages of the document on its standard input. A document may be
// damaged or made to do harm, so that whatever reading it leads to happens in a process of its own.
//   tiff   the pages of a TIFF, without the reduced pictures of them
//   pdf    those of a PDF that opens without a password
// Exit code 0 with the number on the standard output, 1 without one, 2 when the question is not understood.

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

constexpr int answered = 0;
constexpr int noAnswer = 1;
constexpr int notUnderstood = 2;

constexpr std::size_t mostMemory = 512u << 20;  // bytes
constexpr unsigned mostSeconds = 10;

struct TiffCloser {
  void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using Tiff = std::unique_ptr<TIFF, TiffCloser>;

struct PdfCloser {
  void operator()(qpdf_data pdf) const {
    qpdf_get_error(pdf);  // an error that nobody has asked for would be printed
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

/// 0 when the document can't be read to its end.
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

/// 0 when the document can't be read. The library's warnings, which a repaired document brings, don't count.
std::size_t pdfPages(const std::string& document) {
  const Pdf pdf(qpdf_init());
  qpdf_set_suppress_warnings(pdf.get(), QPDF_TRUE);
  const QPDF_ERROR_CODE outcome =
      qpdf_read_memory(pdf.get(), "document", document.data(), document.size(), nullptr);
  const int pages = (outcome & QPDF_ERRORS) != 0 ? 0 : qpdf_get_num_pages(pdf.get());
  return static_cast<std::size_t>(std::max(pages, 0));
}

int tellPages(std::size_t pages) {
  if (pages == 0) return noAnswer;
  std::printf("%zu\n", pages);
  return answered;
}

int answer(std::string_view kind) {
  if (kind == "tiff") return tellPages(tiffPages(readDocument()));
  if (kind == "pdf") return tellPages(pdfPages(readDocument()));
  return notUnderstood;
}

}  // namespace

int main(int argc, char** argv) {
  parlexo::confineHelper(mostMemory, mostSeconds);
  try {
    return argc == 2 ? answer(argv[1]) : notUnderstood;
  } catch (const std::exception&) {
    return noAnswer;
  }
}
