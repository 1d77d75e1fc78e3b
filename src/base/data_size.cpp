// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/data_size.h"

#include <QLocale>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t kilo = 1024;

QString inUnits(std::int64_t bytes, std::int64_t unit, const QString& name) {
  QString number = QString::number(static_cast<double>(bytes) / static_cast<double>(unit), 'f', 1);
  if (number.endsWith(QLatin1String(".0"))) number.chop(2);
  return number + u' ' + name;
}

}  // namespace

QString dataSizeText(std::int64_t bytes) {
  if (bytes < kilo) return exactSizeText(bytes);
  if (bytes < kilo * kilo) return inUnits(bytes, kilo, u"KB"_s);
  return inUnits(bytes, kilo * kilo, u"MB"_s);
}

QString exactSizeText(std::int64_t bytes) {
  const QString number = QLocale(QLocale::English).toString(static_cast<qlonglong>(bytes));
  return number + (bytes == 1 ? u" byte"_s : u" bytes"_s);
}

}  // namespace parlexo
