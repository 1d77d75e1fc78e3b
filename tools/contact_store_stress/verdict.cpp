// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/contact_store_stress/verdict.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>

#include "contacts/item_database.h"

namespace parlexo::stress {

namespace {

using History = std::map<std::string, std::vector<Operation>>;
// The values of all records with one key, in the order of the file; nullopt for a deleted record.
struct Stored {
  std::vector<std::optional<std::string>> values;

  [[nodiscard]] bool isInUse() const {
    return std::any_of(values.begin(), values.end(), [](const auto& value) { return value.has_value(); });
  }
};
using Contents = std::map<std::string, Stored>;

History readHistory(const std::vector<std::string>& journals, Verdict& verdict) {
  History history;
  for (const std::string& path : journals) {
    Journal journal = readJournal(path);
    for (const std::string& complaint : journal.complaints)
      verdict.problems.push_back(path + ": " + complaint);
    for (Operation& operation : journal.operations) {
      ++verdict.operations;
      ++(operation.acknowledged ? verdict.acknowledged : verdict.interrupted);
      history[operation.key].push_back(std::move(operation));
    }
  }
  return history;
}

Contents readContents(Kind kind, const std::string& path, Verdict& verdict) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(file)), {});
  const auto recordSize = static_cast<std::size_t>(recordWidth(kind));
  if (bytes.size() % recordSize != 0) verdict.problems.push_back(path + " ends within a record");
  Contents contents;
  for (std::size_t at = 0; at + recordSize <= bytes.size(); at += recordSize) {
    ++verdict.records;
    const CheckedRecord record = checkRecord(kind, &bytes[at]);
    if (!record.problem.empty()) verdict.problems.push_back(record.key + ": " + record.problem);
    auto& stored = contents[record.key];
    stored.values.push_back(bytes[at] == ItemDatabase::recordInUse ? std::optional(record.value)
                                                                   : std::nullopt);
    if (stored.values.size() > 1) ++verdict.doubled;
  }
  return contents;
}

// An acknowledged operation began later, so this one can't have been the last.
bool isSuperseded(const Operation& operation, const std::vector<Operation>& all) {
  return std::any_of(all.begin(), all.end(), [&](const Operation& other) {
    return other.acknowledged && other.begun > operation.ended;
  });
}

bool explains(const Operation& operation, const std::optional<std::string>& found) {
  if (operation.action == Action::Delete) return !found;
  return found == operation.value;
}

// Returns whether an operation that may have been the last produced the value found.
bool isExplained(const std::vector<Operation>& all, const std::optional<std::string>& found) {
  const bool anyAcknowledged =
      std::any_of(all.begin(), all.end(), [](const Operation& operation) { return operation.acknowledged; });
  if (!anyAcknowledged && !found) return true;
  return std::any_of(all.begin(), all.end(), [&](const Operation& operation) {
    return explains(operation, found) && !isSuperseded(operation, all);
  });
}

// Returns whether an acknowledged write is lost that no later operation may have removed.
bool isMissing(const std::vector<Operation>& all, const std::vector<Operation>& removals) {
  const auto mayUndo = [](const Operation& add) {
    return
        [&add](const Operation& other) { return other.action != Action::Write && other.ended > add.begun; };
  };
  return std::any_of(all.begin(), all.end(), [&](const Operation& add) {
    return add.action == Action::Write && add.acknowledged &&
           std::none_of(all.begin(), all.end(), mayUndo(add)) &&
           std::none_of(removals.begin(), removals.end(), mayUndo(add));
  });
}

}  // namespace

Verdict check(Kind kind, const std::string& database, const std::vector<std::string>& journals,
              const std::vector<std::string>& contactJournals) {
  Verdict verdict;
  const History history = readHistory(journals, verdict);
  Verdict ignored;
  const History contactHistory = readHistory(contactJournals, ignored);
  const Contents contents = readContents(kind, database, verdict);
  for (const auto& [key, operations] : history) {
    const auto stored = contents.find(key);
    const std::optional<std::string> found =
        stored == contents.end() ? std::nullopt : stored->second.values.back();
    const auto contact = contactHistory.find(key);
    const bool isMissed =
        !found &&
        isMissing(operations, contact == contactHistory.end() ? std::vector<Operation>() : contact->second);
    const bool mayBeOrphan = !found && !isMissed && contact != contactHistory.end();
    if (isExplained(operations, found) || mayBeOrphan) continue;
    if (isMissed) ++verdict.missing;
    verdict.problems.push_back(key + ": shows \"" + found.value_or("(deleted)") +
                               "\", which no operation that may have been the last produced");
  }
  for (const auto& [key, stored] : contents) {
    if (stored.values.size() > 1) verdict.problems.push_back(key + ": occurs twice");
    if (history.count(key) == 0) verdict.problems.push_back(key + ": was never written");
  }
  return verdict;
}

Verdict checkStarts(const std::vector<std::string>& journals) {
  Verdict verdict;
  readHistory(journals, verdict);
  return verdict;
}

Verdict checkGroups(const std::vector<std::string>& databases, const std::vector<std::string>& journals) {
  Verdict verdict;
  const History history = readHistory(journals, verdict);
  for (const std::string& database : databases) {
    const std::string prefix = groupPrefix(database);
    const Contents contents = readContents(Kind::Members, database, verdict);
    const auto removed = history.find(prefix);
    const auto removals = removed == history.end() ? std::vector<Operation>() : removed->second;
    for (const auto& [key, operations] : history) {
      if (key.rfind(prefix, 0) != 0) continue;
      const auto stored = contents.find(key.substr(prefix.size()));
      const bool isThere = stored != contents.end() && stored->second.isInUse();
      if (isThere || !isMissing(operations, removals)) continue;
      ++verdict.missing;
      verdict.problems.push_back(key + ": is missing");
    }
    for (const auto& [key, stored] : contents)
      if (history.count(prefix + key) == 0) verdict.problems.push_back(key + ": was never written");
  }
  return verdict;
}

}  // namespace parlexo::stress
