// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/import_source.h"

#include <utility>

#include <QTimer>

#include "base/progress.h"
#include "contacts/import/spread_sheet.h"

namespace parlexo {

namespace {

// Milliseconds; less than the delay of the runner's own progress box, whose text is about the gateway.
constexpr int boxDelay = 200;

/// Shows the progress box after a delay.
class LateBox {
 public:
  explicit LateBox(Progress& progress) : progress_(progress) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
      progress_.show(ImportSource::tr("Reading the file. Please wait..."));
      isShown_ = true;
    });
    timer_.start(boxDelay);
  }
  ~LateBox() {
    if (isShown_) progress_.hide();
  }
  LateBox(const LateBox&) = delete;
  LateBox& operator=(const LateBox&) = delete;

 private:
  Progress& progress_;
  QTimer timer_;
  bool isShown_ = false;
};

constexpr int previewRowsAndHeading = ImportSource::previewRows + 1;

}  // namespace

/// The results of opening a file. Shared with the task that reads it, because the source may abandon the
/// task.
struct ImportSource::Opening {
  std::shared_ptr<CSpreadSheet> workbook;
  DelimitedFormat format;
  SheetReading text;
  QString problem;

  void run(const QString& path, const ImportLimits& limits, const CancelFlag& cancel) {
    problem = fileProblem(path, limits);
    if (!problem.isEmpty()) return;
    if (CSpreadSheet::isWorkbook(path)) {
      workbook = std::make_shared<CSpreadSheet>();
      problem = workbook->read(path, limits, cancel);
    } else {
      format = detectFormat(path, limits, cancel);
      text = readDelimited(path, format, limits, cancel, previewRowsAndHeading);
      problem = text.problem;
      // The file only consists of a byte order mark.
      if (problem.isEmpty() && text.sheet.rowCount() == 0) problem = ImportSource::tr("The file is empty.");
    }
    if (cancel.isRaised()) problem = ImportSource::tr("The reading was cancelled.");
  }
};

ImportSource::ImportSource(CallRunner& runner, Progress& progress, const ImportLimits& limits)
    : runner_(runner), progress_(progress), limits_(limits) {}

void ImportSource::open(const QString& path) {
  path_ = path;
  sheetNumber_ = 0;
  workbook_.reset();
  text_ = {};
  const auto opening = std::make_shared<Opening>();
  run([opening, path, limits = limits_](const CancelFlag& cancel) { opening->run(path, limits, cancel); });
  if (!problem_.isEmpty()) return;
  problem_ = opening->problem;
  format_ = opening->format;
  text_ = std::move(opening->text.sheet);
  if (opening->workbook && !opening->workbook->sheets().empty()) workbook_ = opening->workbook;
}

void ImportSource::setFormat(const DelimitedFormat& format) {
  format_ = format;
  readText(previewRowsAndHeading);
}

void ImportSource::chooseSheet(int number) {
  sheetNumber_ = static_cast<std::size_t>(number);
}

QStringList ImportSource::sheetNames() const {
  QStringList names;
  if (workbook_)
    for (const CSpreadSheet::NamedSheet& sheet : workbook_->sheets()) names.append(sheet.name);
  return names;
}

QString ImportSource::remark() const {
  const bool lacksFormulas = workbook_ && workbook_->sheets()[sheetNumber_].lacksFormulas;
  return lacksFormulas ? unreadFormulasText() : QString();
}

const Sheet& ImportSource::preview() const {
  return workbook_ ? workbook_->sheets()[sheetNumber_].sheet : text_;
}

bool ImportSource::readAll() {
  if (!workbook_) readText(std::numeric_limits<int>::max());
  return problem_.isEmpty();
}

void ImportSource::readText(int maxRows) {
  const auto reading = std::make_shared<SheetReading>();
  run([reading, maxRows, path = path_, format = format_, limits = limits_](const CancelFlag& cancel) {
    reading->problem = fileProblem(path, limits);
    if (reading->problem.isEmpty()) *reading = readDelimited(path, format, limits, cancel, maxRows);
    if (cancel.isRaised()) reading->problem = ImportSource::tr("The reading was cancelled.");
  });
  if (!problem_.isEmpty()) return;
  problem_ = reading->problem;
  text_ = std::move(reading->sheet);
}

void ImportSource::run(const CallRunner::Task& reading) {
  problem_.clear();
  const LateBox box(progress_);
  if (!runner_.run(reading)) problem_ = tr("The file could not be read.");
}

}  // namespace parlexo
