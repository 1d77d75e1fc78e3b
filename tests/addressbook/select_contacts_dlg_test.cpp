// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/select_contacts_dlg.h"

#include <QHeaderView>
#include <QListView>

#include "addressbook/screens/check_list_model.h"
#include "addressbook/screens/select_by_extra_dlg.h"
#include "tests/addressbook/sample_book.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

/// The contact selection dialog.
struct SelectContactsDlg : testing::Test {
  void open(const SampleBook& sample, SelectionMode mode, const QStringList& initial = {}) {
    ContactSelection::Contacts picked;
    for (const QString& name : initial) picked.push_back(sample.book().findContact(name));
    dialog_ = std::make_unique<CSelectContactsDlg>(sample.book(), mode, ContactSelection(picked), notifier_);
    showActive(*dialog_);
  }

  CheckListView& contacts() { return child<CheckListView>(*dialog_, "contactList"); }
  CheckListView& groups() { return child<CheckListView>(*dialog_, "groupList"); }

  static void clickCell(CheckListView& view, int row, int column, Qt::KeyboardModifiers keys = {}) {
    const QRect cell = view.visualRect(view.model()->index(row, column));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, {cell.left() + 10, cell.center().y()});
  }

  void press(const char* button) { click(*dialog_, button); }

  /// The names with a tick.
  QStringList ticked() {
    QStringList names;
    const QAbstractItemModel& model = *contacts().model();
    for (int row = 0; row < model.rowCount(); ++row) {
      if (model.index(row, 0).data(Qt::CheckStateRole).toInt() != Qt::Checked) continue;
      names << model.index(row, 1).data().toString();
    }
    return names;
  }

  /// Replaces the text of a search field by typing.
  QLineEdit& type(const char* fieldName, const QString& text) {
    auto& field = child<QLineEdit>(*dialog_, fieldName);
    field.clear();
    QTest::keyClicks(&field, text);
    return field;
  }

  QString countLine() { return child<QLabel>(*dialog_, "countLine").text(); }

  QStringList selected() const { return contactNames(dialog_->selection()); }
  FivePeople people_;
  RecordingNotifier notifier_;
  std::unique_ptr<CSelectContactsDlg> dialog_;
};

TEST_F(SelectContactsDlg, tickedContactsAreReturnedInTheOrderOfTheList) {
  open(people_, SelectionMode::All, {"Cid"});
  EXPECT_EQ(ticked(), QStringList("Cid"));
  clickCell(contacts(), 4, 0);
  clickCell(contacts(), 1, 0);
  clickCell(contacts(), 2, 0);
  EXPECT_EQ(ticked(), QStringList({"bob", "eva"}));
  clickCell(contacts(), 3, 1);
  EXPECT_EQ(ticked(), QStringList({"bob", "eva"})) << "a click on the name is no tick";
  QTest::keyClick(&contacts(), Qt::Key_Space);
  EXPECT_EQ(ticked(), QStringList({"bob", "Dan", "eva"})) << "but the space bar means that row then";
  press("selectButton");
  EXPECT_EQ(dialog_->result(), QDialog::Accepted);
  EXPECT_EQ(selected(), QStringList({"bob", "Dan", "eva"}));
}

TEST_F(SelectContactsDlg, contactsAndGroupsWithoutNameAreShownAndFound) {
  people_.addContact({}, "+1");
  people_.addGroup({});
  open(people_, SelectionMode::All, {});
  for (const char* search : {"contactSearch", "groupSearch"}) type(search, "no name");
  EXPECT_EQ(columnCells(contacts(), 1), QStringList("(no name)"));
  EXPECT_EQ(columnCells(groups(), 1), QStringList("(no name)"));
}

TEST_F(SelectContactsDlg, keyboardAloneTicksAndSelects) {
  open(people_, SelectionMode::All);
  EXPECT_TRUE(contacts().hasFocus());
  QTest::keyClick(&contacts(), Qt::Key_Space);
  EXPECT_EQ(ticked(), QStringList("Ann"));
  QTest::keyClick(&contacts(), Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&contacts(), Qt::Key_Space);
  EXPECT_EQ(ticked(), QStringList({"Ann", "bob"})) << "all selected rows follow the current one";
  QTest::keyClick(&contacts(), Qt::Key_Space);
  QTest::keyClick(&contacts(), Qt::Key_Return);
  EXPECT_EQ(dialog_->result(), QDialog::Accepted);
  EXPECT_EQ(selected(), QStringList());
}

TEST_F(SelectContactsDlg, columnsShowFaxNumbersInFaxMode) {
  open(people_, SelectionMode::Fax);
  EXPECT_EQ(columnCells(contacts(), 2), QStringList("+61255501234"));
  open(people_, SelectionMode::Phone);
  EXPECT_EQ(columnCells(contacts(), 2), QStringList({"+61491570156", "+61491570157"}));
  const SampleBook empty;
  open(empty, SelectionMode::All);
  QTest::keyClick(&contacts(), Qt::Key_Space);
  press("selectButton");
  EXPECT_TRUE(selected().isEmpty()) << "a list without rows";
  dialog_.reset();
}

TEST_F(SelectContactsDlg, searchFiltersByNameShownNumberAndExtra) {
  people_.addContact("Fay", "+61491570158", "Y", "N", "+61255509999", {"Perth", "", "", "", "", "vip"});
  open(people_, SelectionMode::All);
  type("contactSearch", "5550");
  EXPECT_EQ(columnCells(contacts(), 1), QStringList()) << "a fax number that is not shown";
  type("contactSearch", "57015 VIP fay perth");
  EXPECT_EQ(columnCells(contacts(), 1), QStringList("Fay"));
  EXPECT_EQ(columnCells(groups(), 1), QStringList({"all", "Team"})) << "each search has its own list";
  open(people_, SelectionMode::Fax);
  type("contactSearch", "5550");
  EXPECT_EQ(columnCells(contacts(), 1), QStringList({"Cid", "Fay"}));
}

TEST_F(SelectContactsDlg, searchKeepsTicksAndLimitsNewOnes) {
  open(people_, SelectionMode::All, {"Cid"});
  EXPECT_EQ(countLine(), "1 of 5 contacts selected");
  QLineEdit& field = type("contactSearch", "an");
  EXPECT_EQ(countLine(), "1 of 5 contacts selected, 1 hidden by the search");
  clickCell(contacts(), 1, 0);
  EXPECT_EQ(ticked(), QStringList("Dan"));
  type("groupSearch", "team");
  const QSignalSpy changes(contacts().model(), &QAbstractItemModel::dataChanged);
  clickCell(groups(), 0, 0);
  EXPECT_EQ(changes.count(), 1) << "however many members it has";
  EXPECT_EQ(ticked(), QStringList({"Ann", "Dan"}));
  EXPECT_EQ(countLine(), "4 of 5 contacts selected, 2 hidden by the search");
  field.clear();
  EXPECT_EQ(ticked(), QStringList({"Ann", "Cid", "Dan", "eva"}));
  EXPECT_EQ(countLine(), "4 of 5 contacts selected");
  type("contactSearch", "bob");
  press("clearAllButton");
  EXPECT_EQ(countLine(), "0 of 5 contacts selected") << "clearing reaches hidden rows too";
  EXPECT_EQ(groups().model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
  press("selectButton");
  EXPECT_TRUE(selected().isEmpty());
}

TEST_F(SelectContactsDlg, searchWorksByKeyboard) {
  open(people_, SelectionMode::All);
  QTest::keyClick(&contacts(), Qt::Key_O, Qt::AltModifier);
  auto* field = dialog_->findChild<QLineEdit*>("contactSearch");
  ASSERT_TRUE(field->hasFocus());
  QTest::keyClicks(field, "an");
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_TRUE(contacts().hasFocus()) << "Enter goes on to the list and does not close the dialog";
  QTest::keyClick(&contacts(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&contacts(), Qt::Key_Space);
  EXPECT_EQ(ticked(), QStringList({"Ann", "Dan"}));
  field->setFocus();
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_TRUE(dialog_->isVisible());
  EXPECT_EQ(contacts().model()->rowCount(), 5);
  QTest::keyClick(field, Qt::Key_Down);
  QTest::keyClick(&contacts(), Qt::Key_Down);
  QTest::keyClick(&contacts(), Qt::Key_Space);
  EXPECT_EQ(ticked(), QStringList({"Ann", "bob", "Dan"})) << "rows selected under the search are forgotten";
  field->setFocus();
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_FALSE(dialog_->isVisible());
  EXPECT_TRUE(selected().isEmpty());
}

TEST_F(SelectContactsDlg, hasNamesForScreenReaders) {
  open(people_, SelectionMode::All);
  EXPECT_EQ(groups().accessibleName(), "Groups:");
  EXPECT_EQ(contacts().accessibleName(), "Contacts:");
  EXPECT_EQ(contacts().model()->index(1, 0).data(Qt::AccessibleTextRole).toString(), "bob");
}

/// Selection by extra fields, alone and from the contact selection dialog.
struct SelectByExtraDlg : SelectContactsDlg {
  SelectByExtraDlg() {
    people_.addContact("Fay", "+61491570158", "Y", "N", {}, {"Perth", "Sales", "", "", "", ""});
    people_.addContact("Gus", "", "N", "N", {}, {"Perth", "Sales", "", "", "", ""});
    people_.addContact("Hal", "+61491570159", "Y", "N", {}, {"Hobart", "", "", "", "", ""});
  }

  static void clickValue(QDialog& dialog, const char* listName, const QString& value) {
    auto* box = dialog.findChild<QListView*>(listName);
    const auto found =
        box->model()->match(box->model()->index(0, 0), Qt::DisplayRole, value, 1, Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty());
    QTest::mouseClick(box->viewport(), Qt::LeftButton, {}, box->visualRect(found.front()).center());
  }
};

TEST_F(SelectByExtraDlg, anEmptyChoiceIsRefused) {
  CSelectByExtraDlg dialog(people_.book(), notifier_);
  showActive(dialog);
  click(dialog, "selectButton");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(notifier_.popLines(),
            QStringList("48 You have not selected one or more Extra properties you would like to "
                        "filter your Contacts on."));
  // A second click removes a value from the choice.
  clickValue(dialog, "extra1List", "Perth");
  clickValue(dialog, "extra1List", "Perth");
  click(dialog, "selectButton");
  EXPECT_EQ(notifier_.shown.size(), 1);
  EXPECT_TRUE(dialog.contacts().empty());
}

TEST_F(SelectByExtraDlg, searchKeepsTheChoice) {
  CSelectByExtraDlg dialog(people_.book(), notifier_);
  showActive(dialog);
  auto& values = *dialog.findChild<QListView*>("extra1List");
  auto& field = *dialog.findChild<QLineEdit*>("extra1Search");
  auto& count = *dialog.findChild<QLabel*>("countLine");
  EXPECT_EQ(count.text(), "0 values selected");
  clickValue(dialog, "extra1List", "Perth");
  EXPECT_EQ(count.text(), "1 value selected, 2 contacts match");
  QTest::keyClicks(&field, "hob");
  EXPECT_EQ(columnCells(values, 0), QStringList("Hobart"));
  clickValue(dialog, "extra1List", "Hobart");
  EXPECT_EQ(count.text(), "2 values selected, 3 contacts match");
  field.clear();
  EXPECT_EQ(values.selectionModel()->selectedIndexes().size(), 2);
  clickValue(dialog, "extra1List", "Perth");
  EXPECT_EQ(count.text(), "1 value selected, 1 contact matches");
  QTest::keyClicks(&field, "perth");
  click(dialog, "selectButton");
  ASSERT_EQ(dialog.contacts().size(), 1U);
  EXPECT_EQ(dialog.contacts().front()->name, "Hal");
}

TEST_F(SelectByExtraDlg, eligibleContactsAreTicked) {
  open(people_, SelectionMode::Sms, {"Ann"});
  bool wasOpen = false;
  QTimer::singleShot(0, dialog_.get(), [&] {
    auto* extra = dialog_->findChild<CSelectByExtraDlg*>();
    ASSERT_NE(extra, nullptr);
    wasOpen = extra->isModal();
    clickValue(*extra, "extra1List", "Perth");
    clickValue(*extra, "extra1List", "Hobart");
    clickValue(*extra, "extra2List", "Sales");
    click(*extra, "selectButton");
  });
  press("selectByExtraButton");
  EXPECT_TRUE(wasOpen);
  EXPECT_EQ(ticked(), QStringList({"Ann", "Fay"}));
}

}  // namespace
}  // namespace parlexo::test
