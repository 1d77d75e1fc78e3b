#include "account/screens/receive_messages_dlg.h"

#include <gtest/gtest.h>

#include "base/run_state.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

QStringList visibleTexts(const QWidget& page) {
  QStringList texts;
  for (const auto* child : page.findChildren<QWidget*>()) {
    const QString text = child->property("text").toString();
    if (child->isVisible() && !text.isEmpty()) texts << text;
  }
  return texts;
}

TEST(ReceiveMessagesPage, showsTheNumbersOfWhoeverIsLoggedIn) {
  RunState state;
  state.userName = u"demo"_qs;
  CReceiveMessagesDlg page(state);
  page.show();
  const QStringList texts = visibleTexts(page);
  EXPECT_EQ(texts.count(u"demo"_qs), 3);
  EXPECT_EQ(texts.count(u"@"_qs), 3);
  for (const auto& each : receivingNumbers) EXPECT_TRUE(texts.contains(QLatin1String(each.number)));

  // Another user logs in after the session has expired.
  page.hide();
  state.userName = u"crew@demo"_qs;
  page.show();
  EXPECT_EQ(
      visibleTexts(page),
      QStringList({u"If your parent account has been assigned a dedicated number then it is possible for "
                   "you to receive replies to your SMS.\r\nEmail Parlexo for further information."_qs}));
}

}  // namespace
}  // namespace parlexo
