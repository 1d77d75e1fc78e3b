// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "addressbook/core/import_row.h"
#include "contacts/import/sheet.h"

namespace parlexo {

class AddressBook;
class CsvWriter;
class Notifier;

/// Callbacks of a running import to the user interface.
class ImportUser {
 public:
  enum class Choice { Overwrite, Skip, Cancel };
  struct Answer {
    Choice choice = Choice::Cancel;
    bool forAll = false;  ///< Overwrite or Skip also applies to all following contacts
  };

  virtual ~ImportUser() = default;

  /// Called before every row with the number of rows so far. Returns false to cancel the import.
  [[nodiscard]] virtual bool reportProgress(int done, int total) = 0;
  /// Asks what to do with a contact that already exists.
  [[nodiscard]] virtual Answer contactExists(const QString& name) = 0;

 protected:
  ImportUser() = default;
  ImportUser(const ImportUser&) = default;
  ImportUser& operator=(const ImportUser&) = default;
};

/// The result of an import.
struct ImportOutcome {
  Q_DECLARE_TR_FUNCTIONS(ImportOutcome)

 public:
  enum class End {
    Complete,
    Cancelled,
    WriteFailed,  ///< a contact could not be saved
    JoinFailed,   ///< a contact was saved, but could not be added to the plan's group
  };
  struct RowNote {
    int row;  ///< of the sheet
    QString text;
  };

  End end = End::Complete;
  int lastRow = 0;    ///< of the sheet; where an incomplete import ended
  int remaining = 0;  ///< rows that were not processed
  int imported = 0;
  int updated = 0;
  int skipped = 0;
  QStringList names;             ///< of the contacts that were imported or updated
  std::vector<RowNote> refused;  ///< rows that could not be imported, with the reason
  std::vector<RowNote> remarks;  ///< on rows that were imported without some of their values
};

/// Returns a message for the user if the plan lacks a column for the name or for a number, otherwise an empty
/// string.
[[nodiscard]] QString planProblem(const ImportPlan& plan);

/// Imports the rows of `sheet` into `book` and the plan's group, saving each contact at once. Ignores blank
/// rows. Shows a write error through `notifier` and ends the import there. Contacts imported before remain. A
/// contact that could not be written is removed from memory too, so the import can be repeated.
[[nodiscard]] ImportOutcome importContacts(const Sheet& sheet, const ImportPlan& plan, AddressBook& book,
                                           ImportUser& user, Notifier& notifier);

/// "Importing contacts (3 / 10). Please wait..."
[[nodiscard]] QString importProgressText(int done, int total);

/// Returns the closing message.
[[nodiscard]] QString summaryText(const ImportOutcome& outcome);

/// Writes the refused rows unchanged, below the sheet's headings, with the reason in an additional column.
/// The user can correct and import the file.
void writeRefusedRows(const Sheet& sheet, const ImportPlan& plan, const ImportOutcome& outcome,
                      CsvWriter& file);

}  // namespace parlexo
