#include "contacts/contact_file_format.h"

#include <gtest/gtest.h>

#include "contacts/group_file_name.h"

namespace parlexo {
namespace {

QByteArray field(const QByteArray& content, int width) {
  return content.leftJustified(width, '\0');
}

TEST(ContactFileFormat, contactRecordHasItsFieldsInPlace) {
  const ContactRecord contact = {"Zo\u00EB \u20AC",
                                 "+491712345678",
                                 "Yes",
                                 "N",
                                 "+4930",
                                 "z@x.example",
                                 {"one", "two", "", "four", "", "six"}};
  const QByteArray expected = "\x01" + field("Zo\xEB \x80", 80) + field("z@x.example", 60) +
                              field("+491712345678", 20) + field("+4930", 20) + "YN" + field("one", 40) +
                              field("two", 40) + field("", 40) + field("four", 40) + field("", 40) +
                              field("six", 40) + field("", 89);
  ASSERT_EQ(expected.size(), 512);
  EXPECT_EQ(packContact(contact), expected);
}

TEST(ContactFileFormat, longValuesFillTheirFieldsAndNothingElse) {
  ContactRecord contact = {QString(81, u'n'), QString(21, u'1'), {}, {},
                           QString(21, u'2'), QString(61, u'e'), {}};
  for (QString& extra : contact.extra) extra = QString(41, u'x');
  const QByteArray expected = "\x01" + QByteArray(80, 'n') + QByteArray(60, 'e') + QByteArray(20, '1') +
                              QByteArray(20, '2') + QByteArray(2, '\0') + QByteArray(240, 'x') +
                              QByteArray(89, '\0');
  EXPECT_EQ(packContact(contact), expected);
  EXPECT_EQ(unpackContact(expected).name, QString(80, u'n'));
  EXPECT_EQ(unpackContact(expected).extra[5], QString(40, u'x'));
  EXPECT_EQ(packName(contact.name), QByteArray(80, 'n'));
}

TEST(GroupFileName, decodingUndoesDoubledHyphensFirst) {
  const struct {
    const char16_t* fileName;
    const char16_t* name;
  } cases[] = {
      {u"a-9b.grp", u"a.b"},    {u"a--b.grp", u"a-b"},   {u"a--1.grp", u"a%"},
      {u"a--B--A.grp", u"a><"}, {u"a----1.grp", u"a-%"}, {u"-4-3-2.grp", u"/:\\"},
      {u"plain.grp", u"plain"}, {u".grp.grp", u".grp"},  {u"plain.txt", u"plain.txt"},
  };
  for (const auto& each : cases) {
    const QString fileName = QString::fromUtf16(each.fileName);
    EXPECT_EQ(decodeGroupFileName(fileName, QStringLiteral(".grp")), QString::fromUtf16(each.name));
  }
}

}  // namespace
}  // namespace parlexo
