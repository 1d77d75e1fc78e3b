// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/settings.h"

#include "base/product.h"
#include "tests/support/file_bytes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

struct SettingsTest : testing::Test {
  QString path(const QString& name) const { return QDir::toNativeSeparators(folder_.filePath(name)); }

  QByteArray storedFile() const { return readBytes(path(u"Parlexo Client.conf"_s)).replace("\r\n", "\n"); }
  void store(const QByteArray& content) const { writeBytes(path(u"Parlexo Client.conf"_s), content); }

  QTemporaryDir folder_;
};

TEST_F(SettingsTest, defaultsAreNotWritten) {
  {
    Settings settings(folder_.path());
    EXPECT_EQ(settings.contactsFolder(), path(u"contacts"_s));
    EXPECT_EQ(settings.templatesFolder(), path(u"templates"_s));
    EXPECT_EQ(settings.statusFile(), path(u"Status.xml"_s));
    EXPECT_EQ(settings.mobilePhoneNumber(), QString());
    EXPECT_EQ(settings.rememberedUser(), QString());
    EXPECT_EQ(settings.serviceHost(), defaultServiceHost());
  }
  EXPECT_EQ(storedFile(), "");
}

TEST_F(SettingsTest, writtenValuesAreRestoredAtTheNextStart) {
  {
    Settings settings(folder_.path());
    settings.setMobilePhoneNumber(u"+61491570156"_s);
    settings.setContactsFolder(u"/srv/shared, all/contacts"_s);
    settings.setTemplatesFolder(u"/srv/templates"_s);
    settings.setRememberedUser(u"zoë"_s);
    settings.suppressMessage(146);
    settings.setWindowGeometry(QByteArray("\0geometry\xFF", 10));
    settings.setColumnWidths(u"statusList"_s, {130, 0, 90});
  }
  const QByteArray stored = storedFile();
  for (const char* line : {"[Mobile]\nPhoneNumber=+61491570156\n", "[Login]\nUser=zo",
                           "[Path]\nContacts=\"/srv/shared, all/contacts\"\nTemplates=/srv/templates\n",
                           "[Settings]\nMessageDontShowAgain146=1\n"})
    EXPECT_TRUE(stored.contains(line)) << line << "missing in\n" << stored.constData();

  Settings next(folder_.path());
  EXPECT_EQ(next.mobilePhoneNumber(), u"+61491570156"_s);
  EXPECT_EQ(next.contactsFolder(), u"/srv/shared, all/contacts"_s);
  EXPECT_EQ(next.templatesFolder(), u"/srv/templates"_s);
  EXPECT_EQ(next.rememberedUser(), u"zoë"_s);
  EXPECT_EQ(next.windowGeometry(), QByteArray("\0geometry\xFF", 10));
  EXPECT_EQ(next.columnWidths(u"statusList"_s), QList<int>({130, 0, 90}));
  EXPECT_EQ(next.columnWidths(u"otherList"_s), QList<int>());
  EXPECT_TRUE(next.isMessageSuppressed(146));
  EXPECT_FALSE(next.isMessageSuppressed(147));
}

TEST_F(SettingsTest, handEditedValuesAreRead) {
  store(
      "[Path]\nContacts=/data/a, "
      "b\nTemplates=\n[Settings]\nMessageDontShowAgain146=0\n[Service]\nHost=a.example\n"
      "[Columns]\nlist=-5 wide 999999 80\n");
  Settings settings(folder_.path());
  EXPECT_EQ(settings.contactsFolder(), u"/data/a, b"_s);
  EXPECT_EQ(settings.templatesFolder(), path(u"templates"_s));
  EXPECT_FALSE(settings.isMessageSuppressed(146));
  EXPECT_EQ(settings.serviceHost(), u"a.example"_s);
  EXPECT_EQ(settings.columnWidths(u"list"_s), QList<int>({0, 0, 4000, 80}));
}

TEST_F(SettingsTest, folderIsCached) {
  Settings settings(folder_.path());
  Settings other(folder_.path());
  settings.setContactsFolder(u"/first"_s);
  EXPECT_EQ(settings.contactsFolder(), u"/first"_s);
  other.setContactsFolder(u"/second"_s);
  EXPECT_EQ(settings.contactsFolder(), u"/first"_s);
  settings.setContactsFolder({});
  EXPECT_EQ(settings.contactsFolder(), path(u"contacts"_s));
}

TEST_F(SettingsTest, folderPathIsCreatedAndNothingIsOverwritten) {
  makeFolderPath(u"  "_s + path(u"My Data/shared/contacts"_s) + u"\t"_s);
  EXPECT_TRUE(QDir(path(u"My Data/shared/contacts"_s)).exists());
  store("in the way");
  makeFolderPath(path(u"Parlexo Client.conf/contacts"_s));
  makeFolderPath({});
  EXPECT_EQ(storedFile(), "in the way");
}

}  // namespace
}  // namespace parlexo::test
