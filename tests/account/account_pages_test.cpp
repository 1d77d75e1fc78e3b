// SPDX-License-Identifier: GPL-3.0-or-later
#include <QHeaderView>
#include <QTextBrowser>

#include "account/screens/account_history_dlg.h"
#include "account/screens/news_dlg.h"
#include "account/screens/receive_messages_dlg.h"
#include "base/run_state.h"
#include "tests/account/account_rig.h"
#include "tests/support/widgets.h"
#include "ui/record_table.h"

namespace parlexo::test {
namespace {

struct HistoryPage : testing::Test, AccountRig {
  void remember(double amount, const QDate& day) {
    simulator.rememberTransaction("demo", amount, QDateTime(day, {12, 0}, Qt::UTC), u"note"_s);
  }
  void open() {
    page_ = std::make_unique<CAccountHistoryDlg>(services());
    list_ = page_->findChild<RecordTable*>(u"historyList"_s);
    page_->resize(700, 300);
    page_->show();
  }
  [[nodiscard]] QStringList column(int which) const { return columnCells(*list_, which); }
  std::unique_ptr<CAccountHistoryDlg> page_;
  RecordTable* list_ = nullptr;
};

TEST_F(HistoryPage, loadsOnCreationAndSelectsTheLastRow) {
  for (int i = 0; i < 500; ++i) remember(1, {2026, 1, 1});
  page_ = std::make_unique<CAccountHistoryDlg>(services());
  EXPECT_EQ(operations(), QStringList({"getAccountHistory"}));
  open();
  EXPECT_EQ(list_->model()->rowCount(), 500);
  EXPECT_THAT(list_->selectedRecords(), ElementsAre(499));
  EXPECT_TRUE(list_->viewport()->rect().contains(list_->visualRect(list_->currentIndex()).center()));
}

TEST_F(HistoryPage, refreshAddsNewRowsAndAFailureKeepsTheRows) {
  open();
  EXPECT_THAT(column(0), ElementsAre());
  remember(-5, {2026, 1, 1});
  page_->refresh();
  EXPECT_THAT(column(0), ElementsAre("1"));
  remember(1, {2026, 1, 2});
  click(*page_, "refreshButton");
  EXPECT_THAT(column(2), ElementsAre("-5.00", "1.00"));
  setFault(FaultKind::Code, "getAccountHistory", 3);
  click(*page_, "refreshButton");
  EXPECT_EQ(notifier.shown.size(), 1U);
  EXPECT_THAT(column(2), ElementsAre("-5.00", "1.00"));
}

TEST_F(HistoryPage, showsNothingOfThePreviousUser) {
  remember(1, {2026, 1, 1});
  open();
  page_->hide();
  setFault(FaultKind::Code, "getAccountHistory", 3);
  state.userName = u"other"_s;
  page_->show();
  EXPECT_TRUE(QTest::qWaitFor([this] { return column(0).isEmpty(); }));
  EXPECT_EQ(operations().size(), 2);
}

TEST_F(HistoryPage, headingsSortNumbersByValueAndDatesByTime) {
  remember(20, {2025, 12, 31});
  remember(-3, {2026, 1, 1});
  remember(100, {2025, 2, 3});
  open();
  list_->header()->setSortIndicator(2, Qt::AscendingOrder);
  EXPECT_THAT(column(2), ElementsAre("-3.00", "20.00", "100.00"));
  list_->header()->setSortIndicator(1, Qt::AscendingOrder);
  EXPECT_THAT(column(0), ElementsAre("3", "1", "2"));
}

TEST(NewsDlg, showsMarkupAsTextAndOpensWebAddressesByKeyboard) {
  const QString news = u"<img src='file:///etc/hostname'> see https://a.example/x and javascript:alert(1)"_s;
  CNewsDlg dialog(news);
  QList<QUrl> opened;
  dialog.setOpener([&opened](const QUrl& page) {
    opened << page;
    return true;
  });
  showActive(dialog);
  auto* text = dialog.findChild<QTextBrowser*>(u"news"_s);
  EXPECT_EQ(text->toPlainText(), news);
  text->setFocus();
  QTest::keyClick(text, Qt::Key_Tab);
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(opened, QList<QUrl>({QUrl(u"https://a.example/x"_s)}));
  EXPECT_TRUE(dialog.isVisible()) << "Enter followed the link";
  EXPECT_EQ(text->toPlainText(), news) << "the page is not loaded into the dialog";
  Q_EMIT text->anchorClicked(QUrl(u"file:///etc/passwd"_s));
  EXPECT_EQ(opened.size(), 1);
  QTest::keyClick(&child(dialog, "ok"), Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
}

TEST(ReceiveMessagesPage, showsTheNumbersOfTheCurrentUser) {
  RunState state;
  state.userName = u"demo"_s;
  CReceiveMessagesDlg page(state);
  page.show();
  const QStringList texts = visibleTexts(page);
  EXPECT_EQ(texts.count(u"demo"_s), 3);
  EXPECT_EQ(texts.count(u"@"_s), 3);
  for (const auto& each : receivingNumbers) EXPECT_TRUE(texts.contains(QLatin1String(each.number)));

  // Another user logs in after the session has expired.
  page.hide();
  state.userName = u"crew@demo"_s;
  page.show();
  EXPECT_EQ(
      visibleTexts(page),
      QStringList({u"If your parent account has been assigned a dedicated number then it is possible for "
                   "you to receive replies to your SMS.\r\nEmail Parlexo for further information."_s}));
}

}  // namespace
}  // namespace parlexo::test
