// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>
#include <vector>

#include <QString>

#include "messaging/core/status_log.h"

namespace parlexo {

/// The order in which the status page lists its entries.

/// The instant of a status date ("day/month/year hour:minute:second", local time; leading zeros are decimal
/// and may be missing; the system decides on daylight saving). 0 for a text that is no such date.
[[nodiscard]] std::time_t statusInstant(const QString& date);

/// The comparison of two rows: the seconds component, -59 to 59, of the first instant minus the second.
/// Whole minutes do not count, so this is neither chronological nor even an order: of three dates each can
/// come before the next in a circle.
[[nodiscard]] constexpr int compareStatusInstants(std::time_t first, std::time_t second) {
  return static_cast<int>((first - second) % 60);
}

/// Sorts by date with the comparison above, by a bottom-up merge sort. The standard algorithms may run out
/// of bounds when a comparison is not transitive; merging never looks outside its two runs and takes the
/// left one unless the right one compares as smaller, so that the result is the same everywhere.
void sortByStatusDate(std::vector<StatusEntry>& entries);

}  // namespace parlexo
