// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace parlexo::stress {

/// What one process does until it is killed or its time is over.
struct WorkerTask {
  std::string folder;   ///< the contacts folder
  std::string journal;  ///< path of its journal
  int number = 0;       ///< no two processes of a run have the same
  std::uint64_t seed = 0;
  std::int64_t until = 0;  ///< nanoseconds of the monotonic clock
};

/// Writes, updates and deletes contacts and members of one group as the program does: a contact before its
/// membership, and a deletion in the same order. Some keys are its own, some are those of all processes.
/// Reads everything now and then; every record must be whole. Returns when the time is over. The members have
/// a journal of their own, named by memberJournal().
void workOnContacts(const WorkerTask& task);
/// Starts the program over and over, as far as the address book is concerned: loads everything and cleans up
/// members without a contact. The journal is named by startJournal().
void workAsStartingProgram(const WorkerTask& task);
/// Adds members to a few groups, takes them out, deletes the groups' files and makes them anew.
void workOnGroups(const WorkerTask& task);

[[nodiscard]] std::string memberJournal(const std::string& journal);
[[nodiscard]] std::string startJournal(const std::string& journal);
[[nodiscard]] std::string contactsPath(const std::string& folder);
/// The file of the group that workOnContacts() fills.
[[nodiscard]] std::string membersPath(const std::string& folder);
/// The files that workOnGroups() makes and deletes.
[[nodiscard]] std::vector<std::string> groupPaths(const std::string& folder);

}  // namespace parlexo::stress
