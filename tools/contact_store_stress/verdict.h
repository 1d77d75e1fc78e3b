// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "tools/contact_store_stress/journal.h"
#include "tools/contact_store_stress/stress_record.h"

namespace parlexo::stress {

/// What a run came to.
struct Verdict {
  std::size_t operations = 0;
  std::size_t acknowledged = 0;
  std::size_t interrupted = 0;  ///< begun, with no word of how they ended
  std::size_t records = 0;      ///< in the file, deleted ones included
  std::size_t missing = 0;  ///< keys whose acknowledged writes are gone, though nothing may have removed them
  std::size_t doubled = 0;  ///< records whose key an earlier one has too
  std::vector<std::string> problems;
};

/// Holds the database file against the journals of all processes. For every key the file must show the
/// outcome of an operation that no acknowledged one followed: nothing that was promised may be missing,
/// nothing undone, nothing torn, and no key there twice. A member may also be gone because a starting program
/// found no contact of that name: only if, by `contactJournals`, a deletion of the contact ended after the
/// member's last writing had begun, of which storing the contact is the first part.
[[nodiscard]] Verdict judge(Kind kind, const std::string& database, const std::vector<std::string>& journals,
                            const std::vector<std::string>& contactJournals = {});

/// Counts the starts of programs in these journals. One that failed or showed a message is a problem.
[[nodiscard]] Verdict judgeStarts(const std::vector<std::string>& journals);

/// Holds files that were deleted and made anew under fire against the journals. Then the store promises
/// less: records are whole, and a member whose adding was acknowledged is there unless something that could
/// take it away ended after that began. A key may be there twice, and then a deletion hides only one of them.
[[nodiscard]] Verdict judgeGroups(const std::vector<std::string>& databases,
                                  const std::vector<std::string>& journals);

}  // namespace parlexo::stress
