// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QString>

namespace parlexo {

class Notifier;

/// A file operation of the address book that failed.
struct StoreError {
  Q_DECLARE_TR_FUNCTIONS(StoreError)

 public:
  enum class Operation {
    CreatePersonalGroup,
    ReadFile,
    SaveContact,
    SaveMember,
    DeleteRecord,
    CreateGroup,
    RemoveGroup,
  };

  Operation operation;
  QString details = {};  ///< the database's message, as in "[createDb:1 - Can't create the database!]"
  QString path = {};     ///< the file; only set by CreatePersonalGroup

  /// Returns the text for the user, with the details.
  [[nodiscard]] QString message() const;
};

/// The outcome of an operation that writes one or more files: its errors in the order in which they occurred.
/// True when there are none.
class [[nodiscard]] StoreResult {
 public:
  StoreResult() = default;
  explicit StoreResult(StoreError error) { errors_.push_back(std::move(error)); }

  [[nodiscard]] explicit operator bool() const { return errors_.empty(); }
  [[nodiscard]] const std::vector<StoreError>& errors() const { return errors_; }
  void append(const StoreResult& other) {
    errors_.insert(errors_.end(), other.errors_.begin(), other.errors_.end());
  }

 private:
  std::vector<StoreError> errors_;
};

/// Shows one message box, and returns when the user has closed it.
void showError(const StoreError& error, Notifier& notifier);

}  // namespace parlexo
