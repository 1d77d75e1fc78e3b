// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/status_order.h"

#include <algorithm>
#include <cstddef>

#include <QRegularExpression>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// The instant is worked out once per entry, not once per comparison.
struct Row {
  std::time_t instant;
  std::size_t entry;
};

void mergeRuns(const std::vector<Row>& from, std::vector<Row>& to, std::size_t begin, std::size_t width) {
  const std::size_t middle = std::min(begin + width, from.size());
  const std::size_t end = std::min(middle + width, from.size());
  std::size_t left = begin;
  std::size_t right = middle;
  for (std::size_t out = begin; out < end; ++out) {
    const bool takeRight =
        left == middle || (right < end && compareStatusInstants(from[left].instant, from[right].instant) > 0);
    to[out] = takeRight ? from[right++] : from[left++];
  }
}

void mergeSort(std::vector<Row>& rows) {
  std::vector<Row> merged(rows.size());
  for (std::size_t width = 1; width < rows.size(); width *= 2) {
    for (std::size_t begin = 0; begin < rows.size(); begin += 2 * width)
      mergeRuns(rows, merged, begin, width);
    rows.swap(merged);
  }
}

}  // namespace

std::time_t statusInstant(const QString& date) {
  static const QRegularExpression form(
      u"^\\s*([0-9]{1,4})/\\s*([0-9]{1,4})/"
      "\\s*([0-9]{1,4})\\s*([0-9]{1,4}):\\s*([0-9]{1,4}):\\s*([0-9]{1,4})"_s);
  const QRegularExpressionMatch match = form.match(date);
  if (!match.hasMatch()) return 0;
  std::tm fields{};
  fields.tm_mday = match.capturedView(1).toInt();
  fields.tm_mon = match.capturedView(2).toInt() - 1;
  fields.tm_year = match.capturedView(3).toInt() - 1900;
  fields.tm_hour = match.capturedView(4).toInt();
  fields.tm_min = match.capturedView(5).toInt();
  fields.tm_sec = match.capturedView(6).toInt();
  fields.tm_isdst = -1;
  return std::mktime(&fields);
}

void sortByStatusDate(std::vector<StatusEntry>& entries) {
  std::vector<Row> rows;
  rows.reserve(entries.size());
  for (std::size_t i = 0; i < entries.size(); ++i) rows.push_back({statusInstant(entries[i].date), i});
  mergeSort(rows);
  std::vector<StatusEntry> sorted;
  sorted.reserve(entries.size());
  for (const Row& row : rows) sorted.push_back(std::move(entries[row.entry]));
  entries = std::move(sorted);
}

}  // namespace parlexo
