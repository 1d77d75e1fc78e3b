// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/number_format.h"

#include <algorithm>
#include <cmath>

#include <QDateTime>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// The largest range in which a double represents every whole number.
constexpr double largestWhole = 9'007'199'254'740'992.0;
constexpr int typedDigits = 15;
constexpr double lastDay = 2'958'465;  // the end of the year 9999
constexpr double secondsPerDay = 86'400;

}  // namespace

QString numberText(double value) {
  if (!std::isfinite(value)) return {};
  if (value == std::floor(value) && std::abs(value) <= largestWhole)
    return QString::number(static_cast<qlonglong>(value));
  const QString text = QString::number(value, 'g', typedDigits);
  return text.contains(u'e') ? QString::number(value, 'f', 0) : text;
}

QString numberText(QStringView written) {
  const bool digitsAlone =
      std::all_of(written.begin(), written.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
  if (digitsAlone) return written.toString();
  bool isNumber = false;
  const double value = written.toDouble(&isNumber);
  return isNumber ? numberText(value) : written.toString();
}

bool isDateFormat(QStringView format) {
  bool quoted = false;
  bool bracketed = false;
  for (qsizetype i = 0; i < format.size(); ++i) {
    const QChar c = format[i].toLower();
    if (c == u'"') quoted = !quoted;
    if (quoted) continue;
    if (c == u'\\' || c == u'_' || c == u'*') ++i;
    if (c == u'[') bracketed = true;
    if (c == u']') bracketed = false;
    // Brackets contain colours and currencies.
    if (!bracketed && (c == u'y' || c == u'm' || c == u'd' || c == u'h' || c == u's')) return true;
  }
  return false;
}

QString dateText(double serial, bool since1904) {
  if (!(serial >= 0 && serial <= lastDay)) return numberText(serial);
  const QDate begin = since1904 ? QDate(1904, 1, 1) : QDate(1899, 12, 30);
  const double days = std::floor(serial);
  const int seconds = static_cast<int>(std::lround((serial - days) * secondsPerDay));
  const QDateTime moment =
      QDateTime(begin.addDays(static_cast<qint64>(days)), QTime(0, 0), Qt::UTC).addSecs(seconds);
  if (seconds == 0) return moment.toString(u"yyyy-MM-dd"_s);
  return moment.toString(days == 0 ? u"HH:mm:ss"_s : u"yyyy-MM-dd HH:mm:ss"_s);
}

bool isPossiblePhoneNumber(QStringView cell) {
  constexpr qsizetype fewestDigits = 6;
  qsizetype digits = 0;
  for (const QChar c : cell) {
    if (c.isLetter() || c == u',' || c == u';' || c == u'|' || c == u'\t') return false;
    if (c.isDigit()) ++digits;
  }
  return digits >= fewestDigits;
}

}  // namespace parlexo
