#include "ui/unsendable_hint.h"

#include <QLineEdit>
#include <gtest/gtest.h>

namespace parlexo {
namespace {

TEST(UnsendableHint, tellsOfAllFieldsAndKeepsAPasswordToItself) {
  QLineEdit user;
  QLineEdit password;
  password.setEchoMode(QLineEdit::Password);
  UnsendableHint hint;
  hint.watch({&user, &password});
  const struct {
    QString user;
    QString password;
    QString told;
  } cases[] = {
      {QStringLiteral("Zo\u00EB \u20AC"), QStringLiteral("\u00E9"), {}},
      {QStringLiteral("\u4F60"), {}, QStringLiteral("Will be sent as \"?\":  \u4F60")},
      {{}, QStringLiteral("\u4F60"), QStringLiteral("Will be sent as \"?\":  characters of the password")},
      {QStringLiteral("\u4F60\u597D"), QStringLiteral("\u0436"),
       QStringLiteral("Will be sent as \"?\":  characters of the password  \u4F60  \u597D")},
      {QStringLiteral("\u0430\u0431\u0432\u0433\u0434\u0435\u0436\u0437\u0438"),
       {},
       QStringLiteral(
           "Will be sent as \"?\":  \u0430  \u0431  \u0432  \u0433  \u0434  \u0435  \u0436  \u0437  \u2026")},
  };
  for (const auto& each : cases) {
    user.setText(each.user);
    password.setText(each.password);
    EXPECT_EQ(hint.text(), each.told);
  }
}

}  // namespace
}  // namespace parlexo
