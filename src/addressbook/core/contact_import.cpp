// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/contact_import.h"

#include <optional>

#include <QStringList>

#include "base/csv_writer.h"
#include "base/message_texts.h"
#include "contacts/address_book.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

int contactRows(const Sheet& sheet, const ImportPlan& plan) {
  int count = 0;
  for (int row = plan.firstRow(); row < sheet.rowCount(); ++row)
    if (!sheet.isBlank(row)) ++count;
  return count;
}

class Import {
 public:
  Import(const Sheet& sheet, const ImportPlan& plan, AddressBook& book, ImportUser& user, Notifier& notifier)
      : sheet_(sheet),
        plan_(plan),
        book_(book),
        user_(user),
        notifier_(notifier),
        joins_(book.findGroup(plan.group) != nullptr) {}

  ImportOutcome run() {
    const int total = contactRows(sheet_, plan_);
    for (int row = plan_.firstRow(); row < sheet_.rowCount() && !hasEnded(); ++row) {
      if (sheet_.isBlank(row)) continue;
      outcome_.lastRow = row;
      if (user_.reportProgress(done(), total))
        importRow(row);
      else
        outcome_.end = ImportOutcome::End::Cancelled;
    }
    outcome_.remaining = total - done();
    return outcome_;
  }

 private:
  [[nodiscard]] bool hasEnded() const { return outcome_.end != ImportOutcome::End::Complete; }

  [[nodiscard]] int done() const {
    return outcome_.imported + outcome_.updated + outcome_.skipped +
           static_cast<int>(outcome_.refused.size());
  }

  void importRow(int row) {
    const ImportRow read = readImportRow(sheet_, row, plan_);
    const int stored = outcome_.imported + outcome_.updated;
    if (!read.refusal.isEmpty())
      outcome_.refused.push_back({row, read.refusal});
    else if (const ContactRecord* existing = book_.findContact(read.contact.name))
      importExisting(*existing, read);
    else
      store(newContact(read, plan_), outcome_.imported);
    if (!read.remark.isEmpty() && outcome_.imported + outcome_.updated > stored)
      outcome_.remarks.push_back({row, read.remark});
  }

  void importExisting(const ContactRecord& existing, const ImportRow& read) {
    switch (choiceFor(existing.name)) {
      case ImportUser::Choice::Overwrite:
        store(overwritten(existing, read, plan_), outcome_.updated);
        break;
      case ImportUser::Choice::Skip:
        ++outcome_.skipped;
        break;
      case ImportUser::Choice::Cancel:
        outcome_.end = ImportOutcome::End::Cancelled;
        break;
    }
  }

  ImportUser::Choice choiceFor(const QString& name) {
    if (choiceForAll_) return *choiceForAll_;
    const ImportUser::Answer answer = user_.contactExists(name);
    if (answer.forAll) choiceForAll_ = answer.choice;
    return answer.choice;
  }

  // The first failed write ends the import: the following ones would fail too, each with a message.
  void store(const ContactRecord& contact, int& counter) {
    if (!save(contact)) {
      outcome_.end = ImportOutcome::End::WriteFailed;
      return;
    }
    ++counter;
    outcome_.names.append(contact.name);
    if (!join(contact.name)) outcome_.end = ImportOutcome::End::JoinFailed;
  }

  // Undoes the change in memory if it could not be written. A second import that skips existing contacts
  // would otherwise never write this one.
  bool save(const ContactRecord& contact) {
    const ContactRecord* existing = book_.findContact(contact.name);
    const std::optional<ContactRecord> before = existing ? std::optional(*existing) : std::nullopt;
    if (report(book_.saveContact(contact))) return true;
    if (before)
      book_.insertContact(*before);
    else
      book_.eraseContact(contact.name);
    return false;
  }

  bool join(const QString& name) {
    if (!joins_) return true;
    const GroupFile* group = book_.findGroup(plan_.group);
    if (!group || group->contains(name) || report(book_.addMember(plan_.group, name))) return true;
    book_.eraseMember(plan_.group, name);
    return false;
  }

  bool report(const StoreResult& result) {
    for (const StoreError& error : result.errors()) showError(error, notifier_);
    return static_cast<bool>(result);
  }

  const Sheet& sheet_;
  const ImportPlan& plan_;
  AddressBook& book_;
  ImportUser& user_;
  Notifier& notifier_;
  bool joins_;
  std::optional<ImportUser::Choice> choiceForAll_;
  ImportOutcome outcome_;
};

QString outcomeText(const ImportOutcome& outcome) {
  const int row = outcome.lastRow + 1;
  switch (outcome.end) {
    case ImportOutcome::End::Complete:
      return ImportOutcome::tr("The import is complete.");
    case ImportOutcome::End::Cancelled:
      return ImportOutcome::tr("The import was cancelled. Contacts imported before are kept.");
    case ImportOutcome::End::WriteFailed:
      return ImportOutcome::tr("The import was stopped at row %L1, as its contact could not be saved.")
          .arg(row);
    case ImportOutcome::End::JoinFailed:
      return ImportOutcome::tr(
                 "The import was stopped at row %L1, as its contact could not be added to the group.")
          .arg(row);
  }
  Q_UNREACHABLE();
}

// The last lines of the summary of an import that is not complete.
QString remainderText(const ImportOutcome& outcome) {
  QString remaining = u'\n' + ImportOutcome::tr("Not imported: %L1").arg(outcome.remaining);
  switch (outcome.end) {
    case ImportOutcome::End::Complete:
      return {};
    case ImportOutcome::End::Cancelled:
      return remaining;
    case ImportOutcome::End::WriteFailed:
      return remaining + u"\n\n"_s +
             ImportOutcome::tr(
                 "Once the contacts folder can be written to again, you can repeat the import. "
                 "Existing contacts are not duplicated.");
    case ImportOutcome::End::JoinFailed:
      return remaining + u"\n\n"_s +
             ImportOutcome::tr(
                 "Once the contacts folder can be written to again, you can repeat the import. "
                 "Existing contacts are not duplicated, and those that you overwrite are added "
                 "to the group.");
  }
  Q_UNREACHABLE();
}

QStringList rowCells(const Sheet& sheet, int row) {
  QStringList cells;
  for (int column = 0; column < sheet.columnCount(); ++column)
    cells.append(sheet.cell(row, column).toString());
  return cells;
}

}  // namespace

QString planProblem(const ImportPlan& plan) {
  if (!plan.maps(ImportField::Name) && !plan.maps(ImportField::FirstName) && !plan.maps(ImportField::Surname))
    return ImportOutcome::tr("Choose the column that holds the names.");
  if (!plan.maps(ImportField::Phone) && !plan.maps(ImportField::Fax))
    return ImportOutcome::tr("Choose the column that holds the phone numbers.");
  return {};
}

ImportOutcome importContacts(const Sheet& sheet, const ImportPlan& plan, AddressBook& book, ImportUser& user,
                             Notifier& notifier) {
  return Import(sheet, plan, book, user, notifier).run();
}

QString importProgressText(int done, int total) {
  return withNumber(withNumber(ImportOutcome::tr("Importing contacts (%i / %i). Please wait..."), done),
                    total);
}

QString summaryText(const ImportOutcome& outcome) {
  return ImportOutcome::tr("%1\n\nImported: %L2\nUpdated: %L3\nSkipped: %L4\nRefused: %L5")
             .arg(outcomeText(outcome))
             .arg(outcome.imported)
             .arg(outcome.updated)
             .arg(outcome.skipped)
             .arg(outcome.refused.size()) +
         (outcome.remarks.empty()
              ? QString()
              : u'\n' + ImportOutcome::tr("Imported in part: %L1").arg(outcome.remarks.size())) +
         remainderText(outcome);
}

void writeRefusedRows(const Sheet& sheet, const ImportPlan& plan, const ImportOutcome& outcome,
                      CsvWriter& file) {
  const QString reasonHeading = ImportOutcome::tr("Reason");
  if (plan.headingRow && sheet.rowCount() > *plan.headingRow)
    file.addRow(rowCells(sheet, *plan.headingRow) << reasonHeading);
  for (const ImportOutcome::RowNote& refused : outcome.refused)
    file.addRow(rowCells(sheet, refused.row) << refused.text);
}

}  // namespace parlexo
