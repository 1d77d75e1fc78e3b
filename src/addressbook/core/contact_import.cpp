#include "addressbook/core/contact_import.h"

#include <optional>

#include <QStringList>

#include "base/csv_writer.h"
#include "base/message_texts.h"
#include "contacts/address_book.h"

namespace parlexo {

namespace {

int firstRow(const ImportPlan& plan) {
  return plan.hasHeadings ? 1 : 0;
}

int contactRows(const Sheet& sheet, const ImportPlan& plan) {
  int count = 0;
  for (int row = firstRow(plan); row < sheet.rowCount(); ++row)
    if (!sheet.isBlank(row)) ++count;
  return count;
}

/// One import under way.
class Import {
 public:
  Import(const Sheet& sheet, const ImportPlan& plan, AddressBook& book, ImportUser& user)
      : sheet_(sheet), plan_(plan), book_(book), user_(user), joins_(book.findGroup(plan.group) != nullptr) {}

  ImportOutcome run() {
    const int total = contactRows(sheet_, plan_);
    int done = 0;
    for (int row = firstRow(plan_); row < sheet_.rowCount(); ++row) {
      if (sheet_.isBlank(row)) continue;
      if (!user_.goOn(done, total)) outcome_.end = ImportOutcome::End::Cancelled;
      if (outcome_.end == ImportOutcome::End::Complete) take(row);
      if (outcome_.end != ImportOutcome::End::Complete) break;
      ++done;
    }
    return outcome_;
  }

 private:
  void take(int row) {
    const ImportRow read = readImportRow(sheet_, row, plan_);
    if (!read.refusal.isEmpty())
      outcome_.refused.push_back({row, read.refusal});
    else if (const ContactRecord* existing = book_.findContact(read.contact.name))
      takeExisting(*existing, read);
    else
      store(newContact(read, plan_), outcome_.imported);
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

  // A disk that fails once would fail, with a message, for each of thousands.
  void store(const ContactRecord& contact, int& counter) {
    if (!book_.saveContact(contact) || !join(contact.name)) {
      outcome_.end = ImportOutcome::End::WriteFailed;
      return;
    }
    ++counter;
    outcome_.names.append(contact.name);
  }

  bool join(const QString& name) {
    if (!joins_) return true;
    const GroupFile* group = book_.findGroup(plan_.group);
    return !group || group->contains(name) || book_.addMember(plan_.group, name);
  }

  const Sheet& sheet_;
  const ImportPlan& plan_;
  AddressBook& book_;
  ImportUser& user_;
  bool joins_;
  std::optional<ImportUser::Choice> choiceForAll_;
  ImportOutcome outcome_;
};

QString beginningOf(ImportOutcome::End end) {
  switch (end) {
    case ImportOutcome::End::Complete:
      return QStringLiteral("The import is complete.");
    case ImportOutcome::End::Cancelled:
      return QStringLiteral("The import was cancelled. What was imported before stays.");
    case ImportOutcome::End::WriteFailed:
      return QStringLiteral("The import was stopped, as a contact could not be saved.");
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
  if (!plan.maps(ImportField::Name) && !plan.maps(ImportField::Surname))
    return QStringLiteral("Choose the column that holds the names.");
  if (!plan.maps(ImportField::Phone) && !plan.maps(ImportField::Fax))
    return QStringLiteral("Choose the column that holds the phone numbers.");
  return {};
}

ImportOutcome importContacts(const Sheet& sheet, const ImportPlan& plan, AddressBook& book,
                             ImportUser& user) {
  return Import(sheet, plan, book, user).run();
}

QString importProgressText(int done, int total) {
  return withNumber(withNumber(QStringLiteral("Importing contacts (%i / %i). Please wait..."), done), total);
}

QString summaryText(const ImportOutcome& outcome) {
  return QStringLiteral("%1\n\nImported: %L2\nUpdated: %L3\nSkipped: %L4\nRefused: %L5")
      .arg(beginningOf(outcome.end))
      .arg(outcome.imported)
      .arg(outcome.updated)
      .arg(outcome.skipped)
      .arg(outcome.refused.size());
}

void writeRefusedRows(const Sheet& sheet, const ImportPlan& plan, const ImportOutcome& outcome,
                      CsvWriter& file) {
  const QString reasonHeading = QStringLiteral("Reason");
  if (plan.hasHeadings && sheet.rowCount() > 0) file.addRow(cellsOf(sheet, 0) << reasonHeading);
  for (const ImportOutcome::Refused& refused : outcome.refused)
    file.addRow(cellsOf(sheet, refused.row) << refused.reason);
}

}  // namespace parlexo
