// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "addressbook/core/import_row.h"
#include "contacts/import/sheet.h"

namespace parlexo {

class AddressBook;
class CsvWriter;
class Notifier;

/// The user's side of an import that is running.
class ImportUser {
 public:
  enum class Choice { Overwrite, Skip, Cancel };
  struct Answer {
    Choice choice = Choice::Cancel;
    bool forAll = false;  ///< Overwrite and Skip then hold for all contacts still to come
  };

  virtual ~ImportUser() = default;

  /// Told before every row; false ends the import there.
  [[nodiscard]] virtual bool goOn(int done, int total) = 0;
  /// Asked about a contact that the address book has already.
  [[nodiscard]] virtual Answer contactExists(const QString& name) = 0;

 protected:
  ImportUser() = default;
  ImportUser(const ImportUser&) = default;
  ImportUser& operator=(const ImportUser&) = default;
};

/// What became of an import.
struct ImportOutcome {
  enum class End {
    Complete,
    Cancelled,
    WriteFailed,  ///< a contact is not saved; the address book has shown why
    JoinFailed,   ///< a contact is saved, but is not in the plan's group; the address book has shown why
  };
  struct Refused {
    int row;  ///< of the sheet
    QString reason;
  };
  struct Remark {
    int row;  ///< of the sheet
    QString text;
  };

  End end = End::Complete;
  int lastRow = 0;  ///< of the sheet: where an import ended that is not complete
  int left = 0;     ///< rows that it has not dealt with
  int imported = 0;
  int updated = 0;
  int skipped = 0;
  QStringList names;  ///< of the contacts that were imported or updated
  std::vector<Refused> refused;
  std::vector<Remark> remarks;  ///< on rows that were imported, but not with all their values
};

/// Why the plan can't work, as the user is told: no column for the name or for a number. Empty when it can.
[[nodiscard]] QString planProblem(const ImportPlan& plan);

/// Takes the rows of `sheet` into `book` one after the other, each durably, and into the plan's group.
/// Blank rows count for nothing. What was imported stays, whatever ends the import; what could not be written
/// is not in memory either, so that the same import can be repeated.
[[nodiscard]] ImportOutcome importContacts(const Sheet& sheet, const ImportPlan& plan, AddressBook& book,
                                           ImportUser& user, Notifier& notifier);

/// "Importing contacts (3 / 10). Please wait..."
[[nodiscard]] QString importProgressText(int done, int total);

/// What the user is told at the end.
[[nodiscard]] QString summaryText(const ImportOutcome& outcome);

/// The refused rows as they stand in the sheet, below its headings, with the reason in a further column: to
/// be put right and imported again.
void writeRefusedRows(const Sheet& sheet, const ImportPlan& plan, const ImportOutcome& outcome,
                      CsvWriter& file);

}  // namespace parlexo
