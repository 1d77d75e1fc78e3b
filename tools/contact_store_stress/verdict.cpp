#include "tools/contact_store_stress/verdict.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>

#include "contacts/contact_file_format.h"
#include "contacts/item_database.h"
#include "tools/contact_store_stress/worker.h"

namespace parlexo::stress {

namespace {

using History = std::map<std::string, std::vector<Operation>>;
// Key -> value, or nothing for a deleted record.
using Contents = std::map<std::string, std::optional<std::string>>;

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

Contents readContents(const std::string& path, Verdict& verdict) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(file)), {});
  if (bytes.size() % contactRecordSize != 0) verdict.problems.emplace_back("the file ends within a record");
  Contents contents;
  for (std::size_t at = 0; at + contactRecordSize <= bytes.size(); at += contactRecordSize) {
    ++verdict.records;
    const CheckedRecord record = checkRecord(&bytes[at]);
    if (!record.problem.empty()) verdict.problems.push_back(record.key + ": " + record.problem);
    if (contents.count(record.key) != 0) verdict.problems.push_back(record.key + ": is there twice");
    const bool inUse = bytes[at] == ItemDatabase::recordInUse;
    contents[record.key] = inUse ? std::optional(record.value) : std::nullopt;
  }
  return contents;
}

// Another process was told that its later operation was done, so this one can't be the last any more.
bool isSuperseded(const Operation& operation, const std::vector<Operation>& all) {
  return std::any_of(all.begin(), all.end(), [&](const Operation& other) {
    return other.acknowledged && other.begun > operation.ended;
  });
}

bool explains(const Operation& operation, const std::optional<std::string>& found) {
  if (operation.action == Action::Delete) return !found;
  return found == operation.value;
}

// True when one of the operations that may have been the last left what was found.
bool isExplained(const std::vector<Operation>& all, const std::optional<std::string>& found) {
  const bool anyAcknowledged =
      std::any_of(all.begin(), all.end(), [](const Operation& operation) { return operation.acknowledged; });
  if (!anyAcknowledged && !found) return true;
  return std::any_of(all.begin(), all.end(), [&](const Operation& operation) {
    return explains(operation, found) && !isSuperseded(operation, all);
  });
}

}  // namespace

Verdict judge(const std::string& database, const std::vector<std::string>& journals) {
  Verdict verdict;
  const History history = readHistory(journals, verdict);
  const Contents contents = readContents(database, verdict);
  for (const auto& [key, operations] : history) {
    const auto stored = contents.find(key);
    const std::optional<std::string> found = stored == contents.end() ? std::nullopt : stored->second;
    if (!isExplained(operations, found)) {
      verdict.problems.push_back(key + ": shows \"" + found.value_or("(deleted)") +
                                 "\", which no operation that may have been the last has left");
    }
  }
  for (const auto& [key, value] : contents) {
    if (history.count(key) == 0) verdict.problems.push_back(key + ": nobody wrote this");
  }
  return verdict;
}

}  // namespace parlexo::stress
