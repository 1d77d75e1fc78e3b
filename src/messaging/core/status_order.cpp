// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/status_order.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include <QRegularExpression>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// An entry's instant, computed once rather than in every comparison, and its index.
using Row = std::pair<std::time_t, std::size_t>;

void mergeRuns(const std::vector<Row>& from, std::vector<Row>& to, std::size_t begin, std::size_t width) {
  const std::size_t middle = std::min(begin + width, from.size());
  const std::size_t end = std::min(middle + width, from.size());
  std::size_t left = begin;
  std::size_t right = middle;
  for (std::size_t out = begin; out < end; ++out) {
    const bool isRightNext =
        left == middle || (right < end && compareStatusInstants(from[left].first, from[right].first) > 0);
    to[out] = isRightNext ? from[right++] : from[left++];
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
  for (std::size_t i = 0; i < entries.size(); ++i) rows.emplace_back(statusInstant(entries[i].date), i);
  mergeSort(rows);
  std::vector<StatusEntry> sorted;
  sorted.reserve(entries.size());
  for (const auto& [instant, index] : rows) sorted.push_back(std::move(entries[index]));
  entries = std::move(sorted);
}

}  // namespace parlexo
