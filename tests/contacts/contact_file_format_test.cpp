#include "contacts/contact_file_format.h"

#include <gtest/gtest.h>

#include "contacts/group_file_name.h"

namespace parlexo {
namespace {

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
