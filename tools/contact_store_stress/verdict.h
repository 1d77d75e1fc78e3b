// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "tools/contact_store_stress/journal.h"
#include "tools/contact_store_stress/stress_record.h"

namespace parlexo::stress {

/// The result of a test.
struct Verdict {
  std::size_t operations = 0;
  std::size_t acknowledged = 0;
  std::size_t interrupted = 0;  ///< begun without a recorded end
  std::size_t records = 0;      ///< in the file, including deleted ones
  std::size_t missing =
      0;  ///< keys whose acknowledged writes are lost, although no operation can have removed them
  std::size_t doubled = 0;  ///< records with the key of an earlier one
  std::vector<std::string> problems;
};

/// Compares the database file with the journals of all processes. For every key, the file must contain the
/// result of an operation that may have been the last one. No acknowledged write may be lost or undone, no
/// record may be torn, and no key may occur twice. A member may also have been deleted by a starting program
/// that found no contact with its name: only if, according to `contactJournals`, a deletion of the contact
/// ended after the last write of the member had begun, which includes saving the contact.
[[nodiscard]] Verdict check(Kind kind, const std::string& database, const std::vector<std::string>& journals,
                            const std::vector<std::string>& contactJournals = {});

/// Counts the program starts in these journals. A start that failed or reported an error is a problem.
[[nodiscard]] Verdict checkStarts(const std::vector<std::string>& journals);

/// Compares files that were deleted and recreated during the test with the journals. The store guarantees
/// less in this case: records are complete, and an acknowledged member exists unless an operation that may
/// have removed it ended after the write began. A key may occur twice; a deletion then only affects one of
/// the records.
[[nodiscard]] Verdict checkGroups(const std::vector<std::string>& databases,
                                  const std::vector<std::string>& journals);

}  // namespace parlexo::stress
