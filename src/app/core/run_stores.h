// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo {

/// What a run reads from disk at its start and gives back at its end.
class RunStores {
 public:
  virtual ~RunStores() = default;

  /// Reads contacts and groups; shows its own failures. False when the program can't go on.
  [[nodiscard]] virtual bool loadContacts() = 0;
  /// Reads the log of sent messages; shows its own failures, none of which stops the program.
  virtual void loadStatusLog() = 0;
  /// Frees contacts and groups; their files are written already.
  virtual void releaseContacts() = 0;
  /// Writes the log of sent messages.
  virtual void saveStatusLog() = 0;

 protected:
  RunStores() = default;
  RunStores(const RunStores&) = default;
  RunStores& operator=(const RunStores&) = default;
};

}  // namespace parlexo
