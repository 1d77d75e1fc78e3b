// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/unsendable_hint.h"

#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

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
