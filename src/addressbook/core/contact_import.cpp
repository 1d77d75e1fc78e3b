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

/// One import under way.
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
      if (user_.goOn(done(), total))
        take(row);
      else
        outcome_.end = ImportOutcome::End::Cancelled;
    }
    outcome_.left = total - done();
    return outcome_;
  }

 private:
  [[nodiscard]] bool hasEnded() const { return outcome_.end != ImportOutcome::End::Complete; }

  [[nodiscard]] int done() const {
    return outcome_.imported + outcome_.updated + outcome_.skipped +
           static_cast<int>(outcome_.refused.size());
  }

  void take(int row) {
    const ImportRow read = readImportRow(sheet_, row, plan_);
    const int stored = outcome_.imported + outcome_.updated;
    if (!read.refusal.isEmpty())
      outcome_.refused.push_back({row, read.refusal});
    else if (const ContactRecord* existing = book_.findContact(read.contact.name))
      takeExisting(*existing, read);
    else
      store(newContact(read, plan_), outcome_.imported);
    if (!read.remark.isEmpty() && outcome_.imported + outcome_.updated > stored)
      outcome_.remarks.push_back({row, read.remark});
  }

  void takeExisting(const ContactRecord& existing, const ImportRow& read) {
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

QString beginningOf(const ImportOutcome& outcome) {
  const int row = outcome.lastRow + 1;
  switch (outcome.end) {
    case ImportOutcome::End::Complete:
      return u"The import is complete."_s;
    case ImportOutcome::End::Cancelled:
      return u"The import was cancelled. What was imported before stays."_s;
    case ImportOutcome::End::WriteFailed:
      return u"The import was stopped at row %L1, as its contact could not be saved."_s.arg(row);
    case ImportOutcome::End::JoinFailed:
      return u"The import was stopped at row %L1, as its contact could not be put into the group."_s.arg(row);
  }
  Q_UNREACHABLE();
}

QString endingOf(const ImportOutcome& outcome) {
  QString left = u"\nNot dealt with: %L1"_s.arg(outcome.left);
  const QString again =
      u"\n\nOnce the contacts folder can be written again, import the file anew. No contact is doubled by "
      "that"_s;
  switch (outcome.end) {
    case ImportOutcome::End::Complete:
      return {};
    case ImportOutcome::End::Cancelled:
      return left;
    case ImportOutcome::End::WriteFailed:
      return left + again + u'.';
    case ImportOutcome::End::JoinFailed:
      return left + again + u", and one that is overwritten joins the group."_s;
  }
  Q_UNREACHABLE();
}

QStringList cellsOf(const Sheet& sheet, int row) {
  QStringList cells;
  for (int column = 0; column < sheet.columnCount(); ++column)
    cells.append(sheet.cell(row, column).toString());
  return cells;
}

}  // namespace

QString planProblem(const ImportPlan& plan) {
  if (!plan.maps(ImportField::Name) && !plan.maps(ImportField::FirstName) && !plan.maps(ImportField::Surname))
    return u"Choose the column that holds the names."_s;
  if (!plan.maps(ImportField::Phone) && !plan.maps(ImportField::Fax))
    return u"Choose the column that holds the phone numbers."_s;
  return {};
}

ImportOutcome importContacts(const Sheet& sheet, const ImportPlan& plan, AddressBook& book, ImportUser& user,
                             Notifier& notifier) {
  return Import(sheet, plan, book, user, notifier).run();
}

QString importProgressText(int done, int total) {
  return withNumber(withNumber(u"Importing contacts (%i / %i). Please wait..."_s, done), total);
}

QString summaryText(const ImportOutcome& outcome) {
  return u"%1\n\nImported: %L2\nUpdated: %L3\nSkipped: %L4\nRefused: %L5"_s.arg(beginningOf(outcome))
             .arg(outcome.imported)
             .arg(outcome.updated)
             .arg(outcome.skipped)
             .arg(outcome.refused.size()) +
         (outcome.remarks.empty() ? QString() : u"\nImported in part: %L1"_s.arg(outcome.remarks.size())) +
         endingOf(outcome);
}

void writeRefusedRows(const Sheet& sheet, const ImportPlan& plan, const ImportOutcome& outcome,
                      CsvWriter& file) {
  const QString reasonHeading = u"Reason"_s;
  if (plan.headingRow && sheet.rowCount() > *plan.headingRow)
    file.addRow(cellsOf(sheet, *plan.headingRow) << reasonHeading);
  for (const ImportOutcome::Refused& refused : outcome.refused)
    file.addRow(cellsOf(sheet, refused.row) << refused.reason);
}

}  // namespace parlexo
