// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace parlexo::stress {

/// The task of a process, which runs until it is killed or its time is over.
struct WorkerTask {
  std::string folder;   ///< the contacts folder
  std::string journal;  ///< path of its journal
  int number = 0;       ///< unique among the processes of a test
  std::uint64_t seed = 0;
  std::int64_t until = 0;  ///< nanoseconds of the monotonic clock
};

/// Writes, updates and deletes contacts and members of one group like the program: a contact before its
/// membership, and deletions in the same order. Some keys are private to the process, others shared by all.
/// Occasionally reads all records, which must be complete. Returns when the time is over. Members have a
/// separate journal, see memberJournal().
void workOnContacts(const WorkerTask& task);
/// Repeats the start of the program: loads the address book, which deletes members without a contact. Writes
/// the journal named by startJournal().
void workAsStartingProgram(const WorkerTask& task);
/// Adds members to a few groups, removes them, and deletes and recreates the groups' files.
void workOnGroups(const WorkerTask& task);

[[nodiscard]] std::string memberJournal(const std::string& journal);
[[nodiscard]] std::string startJournal(const std::string& journal);
[[nodiscard]] std::string contactsPath(const std::string& folder);
/// The file of the group used by workOnContacts().
[[nodiscard]] std::string membersPath(const std::string& folder);
/// The files used by workOnGroups().
[[nodiscard]] std::vector<std::string> groupPaths(const std::string& folder);

}  // namespace parlexo::stress
