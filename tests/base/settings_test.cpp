#include "base/settings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "base/product.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

class SettingsTest : public testing::Test {
 protected:
  QString path(const QString& name) const { return QDir::toNativeSeparators(folder_.filePath(name)); }

  // The settings file as a later start finds it.
  QString storedFile() const {
    QFile file(path(u"Parlexo Client.conf"_qs));
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll()) : QString();
  }

  void store(const QByteArray& content) const {
    QFile file(path(u"Parlexo Client.conf"_qs));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }

  QTemporaryDir folder_;
};

TEST_F(SettingsTest, emptyStoreGivesDefaultsThatAreNotWrittenBack) {
  {
    Settings settings(folder_.path());
    EXPECT_EQ(settings.contactsFolder(), path(u"contacts"_qs));
    EXPECT_EQ(settings.templatesFolder(), path(u"templates"_qs));
    EXPECT_EQ(settings.statusFile(), path(u"Status.xml"_qs));
    EXPECT_EQ(settings.mobilePhoneNumber(), QString());
    EXPECT_EQ(settings.rememberedUser(), QString());
    EXPECT_EQ(settings.serviceHost(), defaultServiceHost());
  }
  EXPECT_EQ(storedFile(), QString());
}

TEST_F(SettingsTest, writtenValuesLieUnderTheirSectionsAndComeBackAtTheNextStart) {
  {
    Settings settings(folder_.path());
    settings.setMobilePhoneNumber(u"+61491570156"_qs);
    settings.setContactsFolder(u"/srv/shared, all/contacts"_qs);
    settings.setTemplatesFolder(u"/srv/templates"_qs);
    settings.setRememberedUser(u"zoë"_qs);
    settings.suppressMessage(146);
    settings.setWindowGeometry(QByteArray("\0geometry\xFF", 10));
    settings.setColumnWidths(u"statusList"_qs, {130, 0, 90});
  }
  const QString stored = storedFile();
  for (const auto& line : {u"[Mobile]\nPhoneNumber=+61491570156\n"_qs, u"[Login]\nUser=zo"_qs,
                           u"[Path]\nContacts=\"/srv/shared, all/contacts\"\nTemplates=/srv/templates\n"_qs,
                           u"[Settings]\nMessageDontShowAgain146=1\n"_qs})
    EXPECT_TRUE(stored.contains(line)) << line.toStdString() << "\nmissing in\n" << stored.toStdString();

  Settings next(folder_.path());
  EXPECT_EQ(next.mobilePhoneNumber(), u"+61491570156"_qs);
  EXPECT_EQ(next.contactsFolder(), u"/srv/shared, all/contacts"_qs);
  EXPECT_EQ(next.templatesFolder(), u"/srv/templates"_qs);
  EXPECT_EQ(next.rememberedUser(), u"zoë"_qs);
  EXPECT_EQ(next.windowGeometry(), QByteArray("\0geometry\xFF", 10));
  EXPECT_EQ(next.columnWidths(u"statusList"_qs), QList<int>({130, 0, 90}));
  EXPECT_EQ(next.columnWidths(u"otherList"_qs), QList<int>());
  EXPECT_TRUE(next.isMessageSuppressed(146));
  EXPECT_FALSE(next.isMessageSuppressed(147));
}

TEST_F(SettingsTest, handEditedValuesReadAsTheyWereMeant) {
  store(
      "[Path]\nContacts=/data/a, "
      "b\nTemplates=\n[Settings]\nMessageDontShowAgain146=0\n[Service]\nHost=a.example\n"
      "[Columns]\nlist=-5 wide 999999 80\n");
  Settings settings(folder_.path());
  EXPECT_EQ(settings.contactsFolder(), u"/data/a, b"_qs);
  EXPECT_EQ(settings.templatesFolder(), path(u"templates"_qs));
  EXPECT_FALSE(settings.isMessageSuppressed(146));
  EXPECT_EQ(settings.serviceHost(), u"a.example"_qs);
  EXPECT_EQ(settings.columnWidths(u"list"_qs), QList<int>({0, 0, 4000, 80}));
}

TEST_F(SettingsTest, folderIsReadOnceAndFollowsItsSetter) {
  Settings settings(folder_.path());
  Settings other(folder_.path());
  settings.setContactsFolder(u"/first"_qs);
  EXPECT_EQ(settings.contactsFolder(), u"/first"_qs);
  other.setContactsFolder(u"/second"_qs);
  EXPECT_EQ(settings.contactsFolder(), u"/first"_qs);
  settings.setContactsFolder({});
  EXPECT_EQ(settings.contactsFolder(), path(u"contacts"_qs));
}

TEST_F(SettingsTest, folderPathIsMadeWithEveryMissingLevel) {
  makeFolderPath(u"  "_qs + path(u"My Data/shared/contacts"_qs) + u"\t"_qs);
  EXPECT_TRUE(QDir(path(u"My Data/shared/contacts"_qs)).exists());
  makeFolderPath(path(u"My Data"_qs));
  EXPECT_TRUE(QDir(path(u"My Data/shared/contacts"_qs)).exists());
}

TEST_F(SettingsTest, folderThatCannotBeMadeIsPassedOver) {
  store("in the way");
  makeFolderPath(path(u"Parlexo Client.conf/contacts"_qs));
  makeFolderPath({});
  EXPECT_EQ(storedFile(), u"in the way"_qs);
}

}  // namespace
}  // namespace parlexo
