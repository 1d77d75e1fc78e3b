// SPDX-License-Identifier: GPL-3.0-or-later

#include <QRegularExpression>

#include "addressbook/core/contact_export.h"
#include "addressbook/core/contact_form.h"
#include "addressbook/core/contact_index.h"
#include "addressbook/core/contact_selection.h"
#include "addressbook/core/contacts_flow.h"
#include "addressbook/core/group_draft.h"
#include "addressbook/core/import_row.h"
#include "contacts/import/delimited_file.h"
#include "tests/addressbook/disk_book.h"
#include "tests/addressbook/sample_book.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

using Kind = ContactFolder::Kind;

ContactRecord typedContact(const QString& name, const QString& phone, const QString& fax = {},
                           const QString& email = {}) {
  return {name, phone, "Y", "N", fax, email, {}};
}

ContactForm newContactForm() {
  return {{}, [](const QString& name) { return name == "Ann"; }};
}

TEST(ContactForm, reportsTheFirstProblem) {
  const QString badPhone =
      "Invalid Phone Number. Ensure that the phone number is in an International format.";
  const QString digits30(30, u'1');
  const Cases<ContactRecord, QString> cases = {
      {typedContact("  ", "x", "x", "x"), "No contact name was given."},
      {typedContact("Bob", "x", "x", "x"), "Invalid Email Address"},
      {typedContact("Bob", "x", "x"), badPhone},
      {typedContact("Bob", "+1", "x"), "Invalid Fax Number"},
      {typedContact("Bob", ""), "You must provide a valid phone number or valid fax number. "},
      {typedContact("Ann", "+1"), "A contact with this name already exists"},
      {typedContact("ann", "+1"), ""},
      {typedContact("Bob", "", "+1"), ""},
      {typedContact("Bob", "+" + digits30), ""},
      {typedContact("Bob", "+" + digits30 + "1"), badPhone},
      {typedContact("Bob", "+61 491 570 156"), badPhone},
      {typedContact("Bob", "+"), badPhone},
      {typedContact("Bob", QString::fromUtf8("+٦١")), badPhone},
      {typedContact("Bob", "+1", "", "bob@mail.parlexo-a.co"), ""},
      {typedContact("Bob", "+1", "", "b b@parlexo.co"), ""},
      {typedContact("Bob", "+1", "", "bob@parlexo.store"), "Invalid Email Address"},
      {typedContact("Bob", "+1", "", "bob@a@parlexo.co"), "Invalid Email Address"},
      {typedContact("Bob", "+1", "", QString::fromUtf8("bob@bücher.de")), "Invalid Email Address"},
  };
  for (const auto& [typed, problem] : cases) {
    const auto found = newContactForm().apply(typed);
    EXPECT_EQ(found ? found->text : QString(), problem)
        << qPrintable(typed.name + ' ' + typed.phone + ' ' + typed.email);
  }
}

TEST(ContactForm, trimsInputAndSetsTheFlagsOfValidContacts) {
  ContactForm form = newContactForm();
  ContactRecord typed{"  Bob ", " 12 ", "Y", "Y", " +3\t", " b@c.de ", {" x ", "", "", "", "", " y"}};
  EXPECT_EQ(form.apply(typed)->field, ContactProblem::Field::Phone);
  EXPECT_EQ(form.contact().name, "Bob");
  EXPECT_EQ(form.contact().phone, "12");
  EXPECT_EQ(form.contact().fax, "+3");
  EXPECT_EQ(form.contact().email, "b@c.de");
  EXPECT_EQ(form.contact().extra[0] + form.contact().extra[5], "xy");
  EXPECT_EQ(form.contact().supportsSms, "");
  typed.phone = "+12";
  typed.supportsMedia = "N";
  EXPECT_FALSE(form.apply(typed));
  EXPECT_EQ(form.contact().supportsSms + form.contact().supportsMedia, "YN");
}

TEST(ContactForm, existingContactKeepsItsName) {
  ContactForm form({"Ann", "+1", "y", "no", {}, {}, {}}, [](const QString&) { return true; });
  EXPECT_FALSE(form.isNew());
  EXPECT_TRUE(form.supportsSms());
  EXPECT_FALSE(form.supportsMedia());
  EXPECT_FALSE(form.apply(typedContact("Another", "+2")));
  EXPECT_EQ(form.contact().name, "Ann");
  EXPECT_EQ(form.contact().phone, "+2");
}

TEST(ContactText, hasOnlyCharactersOfTheCodePage) {
  EXPECT_EQ(asContactText(QString::fromUtf8("Zoë € 李\t\U0001F600\n") + QChar(0) + "x"),
            QString::fromUtf8("Zoë € ??x"));
}

TEST(ContactIndex, everyContactIsInOneReadOnlyFolder) {
  SampleBook sample;
  for (const char* name : {"ann", "Bob", "Álva", "4 You", "bea", "+Plus", "Zed", "øre", " Ann"})
    sample.addContact(QString::fromUtf8(name));
  sample.addGroup("Few", {"Zed", "ann", "Bob"});
  ContactIndex index(sample.book());
  index.read();
  EXPECT_EQ(contactNames(index.contactsIn({Kind::Letter, "A"})), QStringList("ann"));
  EXPECT_EQ(contactNames(index.contactsIn({Kind::Letter, "B"})), QStringList({"bea", "Bob"}));
  EXPECT_EQ(contactNames(index.contactsIn({Kind::Letter, "C"})), QStringList());
  EXPECT_EQ(contactNames(index.contactsIn({Kind::Other, {}})),
            QStringList({" Ann", "+Plus", "4 You", QString::fromUtf8("Álva"), QString::fromUtf8("øre")}));
  EXPECT_EQ(contactNames(index.contactsIn({Kind::Group, "Few"})), QStringList({"ann", "Bob", "Zed"}));
  EXPECT_EQ(contactNames(index.contactsIn({Kind::Group, "None"})), QStringList());
  EXPECT_EQ(index.contactsIn({Kind::AllContacts, {}}).size(), 9U);
}

TEST(GroupDraft, rejectsBlankAndExistingNames) {
  FivePeople sample;
  const Cases<const char*, const char*> cases = {
      {"  ", "Group name cannot be blank"},
      {"Team", "A group with this name already exists."},
      {" tEAM ", "A group with this name already exists."},
      {"All Contacts", "A group with this name already exists."},
      {" Teams ", ""},
  };
  for (const auto& [typed, problem] : cases) EXPECT_EQ(GroupDraft(sample.book(), {}).setName(typed), problem);
  GroupDraft existing(sample.book(), "Team");
  EXPECT_EQ(existing.setName("other"), "");
  EXPECT_EQ(existing.name(), "Team");
  GroupDraft created(sample.book(), {});
  EXPECT_EQ(created.setName(" Teams "), "");
  EXPECT_EQ(created.changes().group, "Teams");
}

TEST(GroupDraft, suggestsNamesThatRoundTrip) {
  const SampleBook sample;
  const Cases<const char*, const char*, const char*> cases = {
      {" Under-12s ", "Under%2s", "Under 12s"},
      {"Team-A", "Team<", "Team A"},
      {"x--9-B", "x-.>", "x 9 B"},
      {"-1", "%", "1"},
  };
  const GroupDraft draft(sample.book(), {});
  for (const auto& [typed, afterRestart, suggestion] : cases) {
    const auto unstable = draft.unstableName(typed);
    ASSERT_TRUE(unstable) << typed;
    EXPECT_EQ(unstable->afterRestart, afterRestart);
    EXPECT_EQ(unstable->suggestion, suggestion);
    EXPECT_FALSE(draft.unstableName(unstable->suggestion));
    EXPECT_EQ(unstable->place, unstable->afterRestart.indexOf(QRegularExpression("[%<.>]")));
  }
  for (const char* stable : {"Team-C", "A-0", "12-", "a.b/c:d", "%-<", "--", " - x"})
    EXPECT_FALSE(draft.unstableName(stable)) << stable;
  EXPECT_FALSE(GroupDraft(sample.book(), "Team-A").unstableName("Team-A")) << "an existing group";
}

TEST(GroupDraft, changesAreADifferenceAndDoNotModifyTheBook) {
  FivePeople sample;
  const quint64 revision = sample.book().revision();
  GroupDraft draft(sample.book(), "Team");
  EXPECT_EQ(contactNames(draft.members()), QStringList({"Ann", "Cid", "eva"}));
  draft.remove({"Cid"});
  draft.setSelection(ContactSelection({sample.book().findContact("eva"), sample.book().findContact("bob")}));
  draft.put(typedContact("New", "+1"));
  draft.put(typedContact("Passing", "+2"));
  draft.put(typedContact("eva", "+3"));
  EXPECT_TRUE(draft.isContactNameTaken("New"));
  draft.remove({"Passing"});
  draft.setSelection(draft.selection());
  EXPECT_EQ(contactNames(draft.members()), QStringList({"bob", "eva", "New"}));
  EXPECT_EQ(draft.members()[1]->phone, "+3") << "the changed values are shown";
  const GroupChanges changes = draft.changes();
  EXPECT_FALSE(changes.isNew);
  EXPECT_EQ(changes.added, QStringList({"bob", "New"}));
  EXPECT_EQ(changes.removed, QStringList({"Ann", "Cid"}));
  ASSERT_EQ(changes.contacts.size(), 2U);
  EXPECT_EQ(changes.contacts[0].name + changes.contacts[1].name, "evaNew");
  EXPECT_EQ(sample.book().revision(), revision);
}

TEST(ContactExport, isReadBackByTheImportUnchanged) {
  SampleBook sample;
  sample.addContact(QString::fromUtf8("Zo\u00eb; \"Z\", O'Neill"), "+61491570156", "Y", "N", "",
                    {"=1+1", "a;b", "-", "@x", "1,5", "tab"});
  sample.addContact("+Plus", "", "N", "Y", "+61255501234", {"001", "", "", "", "", "'"});
  sample.addContact("Smith (42)", "+14155552671");
  const CsvWriter csv = contactsAsCsv(sortedContacts(sample.book(), SelectionMode::All));
  const QTemporaryDir folder;
  const QString path = folder.filePath("out.csv");
  ASSERT_EQ(csv.save(path), "");

  const SheetReading reading = readDelimited(path, detectFormat(path, {}, {}), {}, {});
  ASSERT_EQ(reading.problem, "");
  ImportPlan plan;
  plan.columns = suggestColumns(reading.sheet, 0);
  SampleBook readBack;
  for (int row = 1; row < reading.sheet.rowCount(); ++row) {
    const ImportRow read = readImportRow(reading.sheet, row, plan);
    EXPECT_EQ(read.refusal, "");
    readBack.book().insertContact(newContact(read, plan));
  }
  EXPECT_EQ(contactsAsCsv(sortedContacts(readBack.book(), SelectionMode::All)).bytes(), csv.bytes());
  EXPECT_EQ(exportName({Kind::Group, "Parents/Carers: A?"}), "Parents_Carers_ A_");
}

struct ContactsFlowTest : DiskBook {
  ContactsFlowTest() {
    addContact("Ann");
    addContact("Bob");
    EXPECT_TRUE(book_.createGroup("My Personal Contacts", {"Ann"}));
    EXPECT_TRUE(book_.createGroup("Team", {"Ann", "Bob"}));
    notifier_.shown.clear();
  }

  ContactsFlow flow_{services()};
  const ContactFolder team_{Kind::Group, "Team"};
};

TEST_F(ContactsFlowTest, rejectsActionsThatAFolderDoesNotSupport) {
  const ContactFolder others[] = {
      {Kind::Root, {}}, {Kind::AllContacts, {}}, {Kind::Letter, "A"}, {Kind::Other, {}}};
  for (const ContactFolder& folder : others) {
    EXPECT_FALSE(flow_.acceptsNewContact(folder));
    EXPECT_FALSE(flow_.acceptsImport(folder));
    EXPECT_FALSE(flow_.hasProperties(folder));
    EXPECT_FALSE(flow_.confirmGroupDeletion(folder));
    EXPECT_EQ(
        notifier_.popLines(),
        QStringList({"16 You must select a \"Group\" or \"My Personal Contacts\" Folder. Contacts can only "
                     "be added into these Folders.",
                     "16 You must select a \"Group\" or \"My Personal Contacts\" Folder. Contacts can only "
                     "be imported into these Folders.",
                     "64 Can only get properties on \"Group\" folders.",
                     "16 Select a \"Group\" Folder that you wish to delete. You can only delete Groups that "
                     "you created."}));
  }
  const ContactFolder personal{Kind::Group, "My Personal Contacts"};
  EXPECT_TRUE(flow_.acceptsNewContact(personal) && flow_.acceptsImport(personal));
  EXPECT_TRUE(flow_.hasProperties(personal));
  EXPECT_TRUE(notifier_.popLines().isEmpty());
  EXPECT_FALSE(flow_.confirmGroupDeletion(personal));
  EXPECT_EQ(notifier_.popLines().size(), 1);
  notifier_.answers = {MessageResult::Yes};
  EXPECT_TRUE(flow_.confirmGroupDeletion(team_));
  EXPECT_EQ(notifier_.popLines(),
            QStringList("36 Are you sure you want to delete this group from your Address Book?"));
}

TEST_F(ContactsFlowTest, deletionAsksAndKeepsTheContactInAGroup) {
  EXPECT_FALSE(flow_.confirmDeletion(team_, 1));
  EXPECT_FALSE(flow_.confirmDeletion({Kind::Letter, "A"}, 2));
  EXPECT_EQ(notifier_.popLines(),
            QStringList({"36 Are you sure you want to remove this contact from the selected Group?",
                         "36 Are you sure you want to delete this contact completely from your Address Book "
                         "and all groups?\n\n(2 contacts are selected.)"}));
  flow_.deleteContacts(team_, {"Bob"});
  EXPECT_TRUE(book_.findContact("Bob"));
  EXPECT_EQ(progress_.opened, QStringList("Adding/removing contacts in Group..."));
}

TEST_F(ContactsFlowTest, writesNewContactsAndGroupChanges) {
  flow_.addContact(typedContact("Cid", "+1"), "Team");
  flow_.saveGroup({"New", true, {typedContact("Dan", "+2")}, {"Ann", "Dan"}, {}});
  flow_.saveGroup({"Team", false, {typedContact("Ann", "+3")}, {"Dan"}, {"Bob"}});
  flow_.deleteGroup("My Personal Contacts");
  EXPECT_EQ(progress_.opened, QStringList({"Adding/removing contacts in Group...", "Creating the Group...",
                                           "Adding/removing contacts in Group...", "Deleting the Group..."}));
  for (const bool fromDisk : {false, true}) {
    if (fromDisk) reload();
    EXPECT_EQ(memberNames("Team"), QStringList({"Ann", "Cid", "Dan"}));
    EXPECT_EQ(memberNames("New"), QStringList({"Ann", "Dan"}));
    EXPECT_EQ(book_.findContact("Ann")->phone, "+3");
  }
  EXPECT_TRUE(notifier_.popLines().isEmpty());
}

TEST_F(ContactsFlowTest, failedWritesChangeMemoryAndAreReportedOnce) {
  loseFolder();
  const auto sentences = [this] {
    QStringList lines = notifier_.popLines();
    for (QString& line : lines) line = line.section(u'[', 0, 0);
    return lines;
  };
  flow_.saveGroup({"New", true, {typedContact("Dan", "+2"), typedContact("Eva", "+2")}, {"Ann", "Dan"}, {}});
  EXPECT_EQ(memberNames("New"), QStringList({"Ann", "Dan"}));
  EXPECT_EQ(sentences(),
            QStringList({"16 There was a problem trying to save your contact to the database. Error=",
                         "16 There was a problem trying to create your group in the database Error=",
                         "16 There was a problem saving your contact to the database group. Error="}));
  flow_.deleteContacts(team_, {"Ann", "Bob"});
  EXPECT_EQ(memberNames("Team"), QStringList());
  EXPECT_EQ(sentences(), QStringList("16 There was a problem deleting a contact from your database. Error="));
  flow_.deleteContacts({Kind::Letter, "A"}, {"Ann", "Bob"});
  EXPECT_FALSE(book_.findContact("Ann") || book_.findContact("Bob"));
}

}  // namespace
}  // namespace parlexo::test
