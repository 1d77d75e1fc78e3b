// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/contact_store_stress/journal.h"

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace parlexo::stress {

JournalWriter::JournalWriter(const std::string& path)
    : handle_(::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600)) {
  if (handle_ >= 0) return;
  std::perror(path.c_str());
  std::_Exit(2);
}

JournalWriter::~JournalWriter() {
  ::close(handle_);
}

void JournalWriter::begin(Action action, const std::string& key, const std::string& value) {
  line(std::string("begin\t") + static_cast<char>(action) + '\t' + std::to_string(nowNanoseconds()) + '\t' +
       key + '\t' + value);
}

void JournalWriter::end(bool success) {
  line(std::string(success ? "done\t" : "failed\t") + std::to_string(nowNanoseconds()));
}

void JournalWriter::endWithoutEffect() {
  line("nothing");
}

void JournalWriter::complain(const std::string& message) {
  line("complaint\t" + message);
}

void JournalWriter::line(const std::string& text) {
  const std::string whole = text + '\n';
  if (::write(handle_, whole.data(), whole.size()) == static_cast<ssize_t>(whole.size())) return;
  std::perror("journal");
  std::_Exit(2);
}

namespace {

std::vector<std::string> splitFields(const std::string& line) {
  std::vector<std::string> fields;
  std::istringstream stream(line);
  for (std::string field; std::getline(stream, field, '\t');) fields.push_back(field);
  return fields;
}

}  // namespace

Journal readJournal(const std::string& path) {
  Journal journal;
  std::ifstream file(path);
  std::string line;
  while (std::getline(file, line) && !file.eof()) {
    const std::vector<std::string> fields = splitFields(line);
    if (fields[0] == "begin") {
      Operation operation;
      operation.action = static_cast<Action>(fields[1][0]);
      operation.begun = std::stoll(fields[2]);
      operation.key = fields[3];
      if (fields.size() > 4) operation.value = fields[4];
      journal.operations.push_back(operation);
    } else if (fields[0] == "done") {
      journal.operations.back().ended = std::stoll(fields[1]);
      journal.operations.back().acknowledged = true;
    } else if (fields[0] == "nothing") {
      journal.operations.pop_back();
    } else if (fields[0] == "complaint") {
      journal.complaints.push_back(line);
    }
  }
  return journal;
}

std::string groupPrefix(const std::string& path) {
  return path.substr(path.rfind('/') + 1) + '|';
}

std::int64_t nowNanoseconds() {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

}  // namespace parlexo::stress
