// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>
#include <vector>

#include <QString>

#include "messaging/core/status_log.h"

namespace parlexo {

/// The order of the entries on the status page.

/// Converts a status date ("day/month/year hour:minute:second" in local time; leading zeros are optional) to
/// an instant. The system resolves daylight saving time. Returns 0 if the text is not a date.
[[nodiscard]] std::time_t statusInstant(const QString& date);

/// Compares two rows: the seconds component, -59 to 59, of the difference of their instants. Ignores whole
/// minutes, so the order is neither chronological nor transitive.
[[nodiscard]] constexpr int compareStatusInstants(std::time_t first, std::time_t second) {
  return static_cast<int>((first - second) % 60);
}

/// Sorts by date with compareStatusInstants(), using a bottom-up merge sort. The standard algorithms may
/// access memory out of bounds if a comparison is not transitive. Merging stays within its two runs and
/// prefers the left one unless the right one is smaller, so the result is the same on all platforms.
void sortByStatusDate(std::vector<StatusEntry>& entries);

}  // namespace parlexo
