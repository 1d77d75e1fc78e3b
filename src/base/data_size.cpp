// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/data_size.h"

#include <QCoreApplication>
#include <QLocale>

namespace parlexo {

namespace {

constexpr std::int64_t kilo = 1024;

QString inUnits(std::int64_t bytes, std::int64_t unit) {
  QString number = QString::number(static_cast<double>(bytes) / static_cast<double>(unit), 'f', 1);
  if (number.endsWith(QLatin1String(".0"))) number.chop(2);
  return number;
}

}  // namespace

QString dataSizeText(std::int64_t bytes) {
  if (bytes < kilo) return exactSizeText(bytes);
  if (bytes < kilo * kilo) return QCoreApplication::translate("DataSize", "%1 KB").arg(inUnits(bytes, kilo));
  return QCoreApplication::translate("DataSize", "%1 MB").arg(inUnits(bytes, kilo * kilo));
}

QString exactSizeText(std::int64_t bytes) {
  const QString number = QLocale(QLocale::English).toString(static_cast<qlonglong>(bytes));
  return (bytes == 1 ? QCoreApplication::translate("DataSize", "%1 byte")
                     : QCoreApplication::translate("DataSize", "%1 bytes"))
      .arg(number);
}

}  // namespace parlexo
