// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/contacts_page.h"

#include <QMenu>
#include <QPlainTextEdit>
#include <QScopeGuard>

#include "addressbook/screens/add_contacts_menu.h"
#include "addressbook/screens/check_list_model.h"
#include "addressbook/screens/contact_details_dlg.h"
#include "addressbook/screens/folder_tree.h"
#include "addressbook/screens/group_details_dlg.h"
#include "addressbook/screens/select_contacts_dlg.h"
#include "tests/addressbook/disk_book.h"
#include "tests/support/file_bytes.h"
#include "tests/support/widgets.h"
#include "ui/row_list_view.h"

namespace parlexo::test {
namespace {

using Kind = ContactFolder::Kind;

/// The contacts page over an address book on disk.
struct ContactsPage : DiskBook {
  ContactsPage() {
    for (const char* name : {"Ann", "anton", "Bob", "4 You"}) addContact(name);
    EXPECT_TRUE(book_.saveContact({"Cid", {}, "N", "y", "+61255501234", {}, {"Perth", {}, {}, {}, {}, {}}}));
    EXPECT_TRUE(book_.createGroup("My Personal Contacts", {"Bob", "Ann"}));
    EXPECT_TRUE(book_.createGroup("Team", {"Ann", "Cid"}));
    page_ = std::make_unique<CContactsPage>(services());
    page_->resize(800, 400);
    showActive(*page_);
  }

  template <class Widget>
  [[nodiscard]] Widget& the(const char* name) const {
    return child<Widget>(*page_, name);
  }
  FolderTree& tree() { return the<FolderTree>("folderTree"); }
  RowListView& list() { return the<RowListView>("contactList"); }

  void choose(Kind kind, const QString& name = {}) { tree().select({kind, name}); }
  void press(const char* button) { click(*page_, button); }
  QStringList shown() { return list().isVisible() ? columnCells(list(), 0) : QStringList("no list"); }

  /// Runs `act` on the dialog that opens next.
  template <class Dialog>
  void inDialog(std::function<void(Dialog&)> act) {
    ++planned_;
    auto* waiting = new QTimer(page_.get());
    QObject::connect(waiting, &QTimer::timeout, page_.get(), [this, waiting, act = std::move(act)] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      waiting->stop();
      const auto rejection = qScopeGuard([dialog] {
        if (dialog->isVisible()) dialog->reject();
      });
      ++met_;
      ASSERT_TRUE(QTest::qWaitFor([dialog] {
        return QApplication::focusWidget() && QApplication::focusWidget()->window() == dialog;
      }));
      act(*dialog);
    });
    waiting->start(0);
  }

  /// Presses a key in `widget`.
  void press(QWidget& widget, Qt::Key key) {
    showActive(*page_);
    widget.setFocus(Qt::MouseFocusReason);
    QTest::keyClick(&widget, key);
  }

  void TearDown() override { EXPECT_EQ(met_, planned_) << "a dialog has not opened"; }

  std::unique_ptr<CContactsPage> page_;

 private:
  int planned_ = 0;
  int met_ = 0;
};

TEST_F(ContactsPage, foldersShowContactsOrInformation) {
  EXPECT_EQ(shown(), QStringList({"Ann", "Bob"})) << "the personal contacts come first";
  const std::pair<ContactFolder, QStringList> cases[] = {
      {{Kind::Group, "Team"}, {"Ann", "Cid"}},
      {{Kind::Letter, "A"}, {"Ann", "anton"}},
      {{Kind::Letter, "Z"}, {}},
      {{Kind::Other, {}}, {"4 You"}},
      {{Kind::Root, {}}, {"no list"}},
      {{Kind::AllContacts, {}}, {"no list"}},
  };
  for (const auto& [folder, names] : cases) {
    tree().select(folder);
    EXPECT_EQ(shown(), names) << qPrintable(folder.name);
  }
  EXPECT_TRUE(the<QPlainTextEdit>("informationPanel").toPlainText().contains("READONLY"));
  choose(Kind::Group, "Team");
  EXPECT_EQ(columnCells(list(), 2), QStringList({"yes", "no"}));
  EXPECT_EQ(columnCells(list(), 3), QStringList({"no", "yes"}));
  EXPECT_EQ(columnCells(list(), 4), QStringList({"", "+61255501234"}));
}

TEST_F(ContactsPage, searchCoversAllContactsUntilAFolderIsSelected) {
  QTest::keyClick(page_.get(), Qt::Key_F, Qt::ControlModifier);
  auto& search = the<QLineEdit>("contactSearch");
  ASSERT_TRUE(search.hasFocus());
  search.setText("AN 9157");
  EXPECT_EQ(shown(), QStringList({"Ann", "anton"}));
  search.setText("perth 5550");
  EXPECT_EQ(shown(), QStringList("Cid"));
  EXPECT_EQ(the<QLabel>("countLine").text(), "1 contact found in the whole address book");
  QTest::keyClick(&search, Qt::Key_Down);
  EXPECT_EQ(list().selectedNames(), QStringList("Cid"));
  notifier_.answers = {MessageResult::Yes};
  press(list(), Qt::Key_Delete);
  EXPECT_FALSE(book_.findContact("Cid")) << "what is found belongs to no group";
  EXPECT_EQ(shown(), QStringList());
  press("editButton");
  EXPECT_EQ(notifier_.popLines().last(), "64 Can only get properties on \"Group\" folders.");
  choose(Kind::Group, "Team");
  EXPECT_EQ(search.text(), "");
  EXPECT_EQ(shown(), QStringList("Ann"));
}

TEST_F(ContactsPage, newContactIsAddedToTheSelectedGroup) {
  choose(Kind::Letter, "B");
  press("newContactButton");
  EXPECT_EQ(notifier_.popLines().size(), 1);
  choose(Kind::Group, "Team");
  inDialog<CContactDetailsDlg>([&](CContactDetailsDlg& dialog) {
    type(dialog, "nameEdit", QString::fromUtf8("  Bernd \u674E "));
    EXPECT_EQ(child<QLineEdit>(dialog, "nameEdit").text(), "  Bernd ? ");
    type(dialog, "phoneEdit", "0491");
    click(dialog, "okButton");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.focusWidget()->objectName(), "phoneEdit");
    type(dialog, "phoneEdit", "+61491570159");
    child<QCheckBox>(dialog, "smsBox").setChecked(true);
    click(dialog, "okButton");
  });
  press("newContactButton");
  EXPECT_EQ(notifier_.popLines().size(), 1);
  EXPECT_EQ(shown(), QStringList({"Ann", "Bernd ?", "Cid"}));
  EXPECT_EQ(list().selectedNames(), QStringList("Bernd ?"));
  reload();
  EXPECT_EQ(memberNames("Team"), QStringList({"Ann", "Bernd ?", "Cid"}));
  EXPECT_EQ(book_.findContact("Bernd ?")->supportsSms + book_.findContact("Bernd ?")->supportsMedia, "YN");
}

TEST_F(ContactsPage, cancelAfterAFailedOkChangesNothing) {
  list().selectNames({"Bob"});
  inDialog<CContactDetailsDlg>([&](CContactDetailsDlg& dialog) {
    EXPECT_TRUE(child<QLineEdit>(dialog, "nameEdit").isReadOnly());
    type(dialog, "phoneEdit", "nonsense");
    click(dialog, "okButton");
    click(dialog, "cancelButton");
  });
  press(list(), Qt::Key_Return);
  EXPECT_EQ(book_.findContact("Bob")->phone, "+61491570156");
  inDialog<CContactDetailsDlg>([&](CContactDetailsDlg& dialog) {
    type(dialog, "phoneEdit", "+61491570158");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  });
  press(list(), Qt::Key_Return);
  EXPECT_EQ(columnCells(list(), 1), QStringList({"+61491570156", "+61491570158"}));
  EXPECT_EQ(list().selectedNames(), QStringList("Bob"));
}

TEST_F(ContactsPage, cancelledContactAddsNothing) {
  QTimer::singleShot(0, page_.get(), [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_N); });
  inDialog<CContactDetailsDlg>([](CContactDetailsDlg& dialog) { dialog.reject(); });
  EXPECT_EQ(addOrImportContacts(services(), the<QAbstractButton>("newContactButton")), std::nullopt);
}

TEST_F(ContactsPage, groupIsCreatedChangedAndDeleted) {
  inDialog<CGroupDetailsDlg>([&](CGroupDetailsDlg& dialog) {
    click(dialog, "okButton");
    type(dialog, "groupNameEdit", "Choir-1");
    click(dialog, "okButton");
    EXPECT_TRUE(dialog.isVisible()) << "the name would not stay";
    EXPECT_EQ(child<QLabel>(dialog, "groupNameWarning").text(),
              "After a restart this name would read \"Choir%\".");
    auto& suggested = child<QAbstractButton>(dialog, "useSuggestedNameLink");
    EXPECT_EQ(suggested.text(), "Use \"Choir 1\"");
    QTest::keyClick(&suggested, Qt::Key_Space);
    EXPECT_EQ(child<QLineEdit>(dialog, "groupNameEdit").text(), "Choir 1");
    inDialog<CSelectContactsDlg>([](CSelectContactsDlg& selection) {
      auto& contacts = child<CheckListView>(selection, "contactList");
      contacts.model()->setData(contacts.model()->index(1, 0), Qt::Checked, Qt::CheckStateRole);
      click(selection, "selectButton");
    });
    click(dialog, "selectButton");
    inDialog<CContactDetailsDlg>([](CContactDetailsDlg& contact) {
      type(contact, "nameEdit", "Dan");
      type(contact, "faxEdit", "+1");
      click(contact, "okButton");
    });
    click(dialog, "newContactButton");
    EXPECT_FALSE(book_.findContact("Dan")) << "nothing is written before OK";
    EXPECT_EQ(columnCells(child<RowListView>(dialog, "memberList"), 0), QStringList({"Ann", "Dan"}));
    click(dialog, "okButton");
  });
  press("newGroupButton");
  EXPECT_EQ(notifier_.popLines(), QStringList("16 Group name cannot be blank"));
  EXPECT_EQ(tree().selected(), (ContactFolder{Kind::Group, "Choir 1"}));
  EXPECT_EQ(shown(), QStringList({"Ann", "Dan"}));

  notifier_.answers = {MessageResult::Yes, MessageResult::Yes};
  inDialog<CGroupDetailsDlg>([&](CGroupDetailsDlg& dialog) {
    EXPECT_TRUE(child<QLineEdit>(dialog, "groupNameEdit").isReadOnly());
    auto& members = child<RowListView>(dialog, "memberList");
    members.selectNames({"Ann"});
    click(dialog, "removeButton");
    members.selectNames({"Dan"});
    inDialog<CContactDetailsDlg>([](CContactDetailsDlg& contact) {
      type(contact, "faxEdit", "+2");
      click(contact, "okButton");
    });
    click(dialog, "propertiesButton");
    EXPECT_EQ(book_.findContact("Dan")->fax, "+1");
    click(dialog, "okButton");
  });
  press("detailsButton");
  EXPECT_EQ(notifier_.popLines(),
            QStringList("36 Are you sure you want to remove this contact from the group?"));
  EXPECT_EQ(shown(), QStringList("Dan"));
  EXPECT_EQ(columnCells(list(), 4), QStringList("+2"));
  list().selectNames({"Dan"});
  press(tree(), Qt::Key_Delete);
  EXPECT_FALSE(book_.findGroup("Choir 1")) << "in the tree the key means the folder";
  EXPECT_TRUE(book_.findContact("Dan"));
  EXPECT_EQ(tree().selected(), ContactFolder());
}

TEST_F(ContactsPage, contactsAndGroupsWithoutNameCanBeEdited) {
  addContact({});
  EXPECT_TRUE(book_.createGroup({}, QStringList({QString(), "Ann"})));
  page_->refresh();
  choose(Kind::Group, {});
  EXPECT_EQ(tree().currentItem()->text(0), "(no name)");
  EXPECT_EQ(shown(), QStringList({"(no name)", "Ann"}));
  list().selectNames(QStringList(QString()));
  inDialog<CContactDetailsDlg>([](CContactDetailsDlg& dialog) {
    type(dialog, "nameEdit", "Zed");
    click(dialog, "okButton");
  });
  press("editButton");
  EXPECT_EQ(shown(), QStringList({"Ann", "Zed"}));
  addContact({});
  EXPECT_TRUE(book_.addMember({}, {}));
  page_->refresh();
  list().clearSelection();
  inDialog<CGroupDetailsDlg>([this](CGroupDetailsDlg& dialog) {
    auto& members = child<RowListView>(dialog, "memberList");
    members.selectNames(QStringList(QString()));
    inDialog<CContactDetailsDlg>([](CContactDetailsDlg& contact) {
      type(contact, "nameEdit", "Abe");
      click(contact, "okButton");
    });
    click(dialog, "propertiesButton");
    click(dialog, "okButton");
  });
  press("editButton");
  EXPECT_EQ(shown(), QStringList({"Abe", "Ann", "Zed"}));
  EXPECT_FALSE(book_.findContact({}));
  addContact({});
  page_->refresh();
  choose(Kind::Other);
  the<QLineEdit>("contactSearch").setText("(no");
  EXPECT_EQ(shown(), QStringList("(no name)"));
  list().selectAll();
  notifier_.answers = {MessageResult::Yes, MessageResult::Yes};
  press("deleteButton");
  choose(Kind::Group, {});
  list().clearSelection();
  press("deleteButton");
  reload();
  EXPECT_FALSE(book_.findContact({}) || book_.findGroup({}));
  EXPECT_TRUE(book_.findContact("Abe") && book_.findContact("Zed"));
}

TEST_F(ContactsPage, deletionDependsOnTheFolder) {
  notifier_.answers = {MessageResult::Yes, MessageResult::Yes};
  choose(Kind::Group, "Team");
  list().selectAll();
  press("deleteButton");
  EXPECT_EQ(shown(), QStringList());
  EXPECT_TRUE(book_.findContact("Ann"));
  choose(Kind::Letter, "A");
  list().selectNames({"Ann"});
  the<QMenu>("contactsMenu").actions().last()->trigger();
  EXPECT_EQ(shown(), QStringList("anton"));
  EXPECT_FALSE(list().selectionModel()->hasSelection()) << "a further Delete hits nobody by accident";
  reload();
  EXPECT_EQ(memberNames("My Personal Contacts"), QStringList("Bob"));
}

TEST_F(ContactsPage, exportsTheShownOrAllContacts) {
  QString suggested;
  QString path = folder_.filePath("out.csv");
  page_->setPathAsker([&](QWidget*, const QString& name) {
    suggested = name;
    return path;
  });
  const auto exportedRows = [&](const ContactFolder& folder, const QString& search) {
    tree().select(folder);
    the<QLineEdit>("contactSearch").setText(search);
    press("exportButton");
    return readBytes(path).count("\r\n") - 1;
  };
  EXPECT_EQ(exportedRows({Kind::Group, "Team"}, {}), 2);
  EXPECT_EQ(suggested, "Team");
  EXPECT_EQ(exportedRows({Kind::Letter, "B"}, {}), 1);
  EXPECT_EQ(exportedRows({Kind::Root, {}}, {}), 5);
  EXPECT_EQ(suggested, "All Contacts");
  EXPECT_EQ(exportedRows({Kind::Root, {}}, "an"), 2);
  path = folder_.filePath("none/out.csv");
  press("exportButton");
  EXPECT_EQ(notifier_.popLines().size(), 1);
}

TEST_F(ContactsPage, refreshAndShowReloadTheBookAndKeepTheSelection) {
  list().selectNames({"Bob"});
  addContact("Abe");
  EXPECT_TRUE(book_.addMember("My Personal Contacts", "Abe"));
  EXPECT_TRUE(book_.createGroup("Zoo"));
  page_->refresh();
  EXPECT_EQ(shown(), QStringList({"Abe", "Ann", "Bob"}));
  EXPECT_EQ(list().selectedNames(), QStringList("Bob"));
  EXPECT_EQ(list().currentIndex().row(), 2);
  page_->hide();
  addContact("Abel");
  EXPECT_TRUE(book_.addMember("My Personal Contacts", "Abel"));
  page_->show();
  EXPECT_EQ(shown(), QStringList({"Abe", "Abel", "Ann", "Bob"}));
  choose(Kind::Group, "Zoo");
  EXPECT_EQ(shown(), QStringList());
}

}  // namespace
}  // namespace parlexo::test
