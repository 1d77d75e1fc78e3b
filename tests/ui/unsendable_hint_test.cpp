// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/unsendable_hint.h"

#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

TEST(UnsendableCharacters, areListedOnceInReadableForm) {
  const QString family = QString::fromUtf8("\U0001F468\u200D\U0001F469");
  EXPECT_EQ(unsendableCharacters(QString::fromUtf8("\u4F60a\u20AC\u00E9\u4F60\u200B\u0161 ") + family),
            QStringList({QString::fromUtf8("\u4F60"), "U+200B", family}));
  EXPECT_EQ(unsendableCharacters(QString::fromUtf8("e\u0301")), QStringList(QString::fromUtf8("e\u0301")));
  EXPECT_TRUE(unsendableCharacters(QString::fromUtf8("tab\tline\r\n[\u0081\x7F]")).isEmpty());
  EXPECT_EQ(unsendableCharacters(QChar(0) + QString::fromUtf8("\x07\x0B\x1B\x1B\x1F\u0085")),
            QStringList({"NUL (null)", "BEL (bell)", "VT (vertical tab)", "ESC (escape)",
                         "US (unit separator)", "NEL (next line)"}));
}

TEST(UnsendableHint, coversAllFieldsAndHidesPasswords) {
  QLineEdit user;
  QLineEdit password;
  password.setEchoMode(QLineEdit::Password);
  UnsendableHint hint;
  hint.watch({&user, &password});
  const Cases<QString, QString, QString> cases = {
      {u"Zo\u00EB \u20AC"_s, u"\u00E9"_s, {}},
      {u"\u4F60"_s, {}, u"Will be sent as \"?\":  \u4F60"_s},
      {{}, u"\u4F60"_s, u"Will be sent as \"?\":  characters of the password"_s},
      {u"\u4F60\u597D"_s, u"\u0436"_s,
       u"Will be sent as \"?\":  characters of the password  \u4F60  \u597D"_s},
      {u"\u0430\u0431\u0432\u0433\u0434\u0435\u0436\u0437\u0438"_s,
       {},
       u"Will be sent as \"?\":  \u0430  \u0431  \u0432  \u0433  \u0434  \u0435  \u0436  \u0437  \u2026"_s},
  };
  for (const auto& [userText, passwordText, expected] : cases) {
    user.setText(userText);
    password.setText(passwordText);
    EXPECT_EQ(hint.text(), expected);
  }
}

}  // namespace
}  // namespace parlexo::test
