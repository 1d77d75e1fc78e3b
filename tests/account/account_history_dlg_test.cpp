#include "account/screens/account_history_dlg.h"

#include <QHeaderView>
#include <QTest>
#include <gmock/gmock.h>

#include "tests/account/account_rig.h"
#include "tests/ui/column_cells.h"
#include "ui/picture_button.h"
#include "ui/record_table.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;
using simulator::FaultKind;
using testing::ElementsAre;

class HistoryPage : public testing::Test, protected AccountRig {
 protected:
  void remember(double amount, const QDate& day) {
    simulator.rememberTransaction("demo", amount, QDateTime(day, {12, 0}, Qt::UTC), u"note"_qs);
  }
  void open() {
    page_ = std::make_unique<CAccountHistoryDlg>(services());
    list_ = page_->findChild<RecordTable*>(u"historyList"_qs);
    page_->resize(700, 300);
    page_->show();
  }
  [[nodiscard]] QStringList column(int which) const { return columnCells(*list_->model(), which); }
  std::unique_ptr<CAccountHistoryDlg> page_;
  RecordTable* list_ = nullptr;
};

TEST_F(HistoryPage, loadsAsItIsMadeAndShowsTheLastRowSelected) {
  for (int i = 0; i < 500; ++i) remember(1, {2026, 1, 1});
  page_ = std::make_unique<CAccountHistoryDlg>(services());
  EXPECT_EQ(operations(), QStringList({"getAccountHistory"}));
  open();
  EXPECT_EQ(list_->model()->rowCount(), 500);
  EXPECT_THAT(list_->selectedRecords(), ElementsAre(499));
  EXPECT_TRUE(list_->viewport()->rect().contains(list_->visualRect(list_->currentIndex()).center()));
}

TEST_F(HistoryPage, refreshShowsWhatIsNewAndAFailureKeepsTheRows) {
  open();
  EXPECT_THAT(column(0), ElementsAre());
  remember(-5, {2026, 1, 1});
  page_->refresh();
  EXPECT_THAT(column(0), ElementsAre("1"));
  remember(1, {2026, 1, 2});
  auto* button = page_->findChild<PictureButton*>(u"refreshButton"_qs);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_THAT(column(2), ElementsAre("-5.00", "1.00"));
  misbehave(FaultKind::Code, "getAccountHistory", 3);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(notifier.shown.size(), 1U);
  EXPECT_THAT(column(2), ElementsAre("-5.00", "1.00"));
}

TEST_F(HistoryPage, showsNothingOfTheUserWhoWasLoggedInBefore) {
  remember(1, {2026, 1, 1});
  open();
  page_->hide();
  misbehave(FaultKind::Code, "getAccountHistory", 3);
  state.userName = u"other"_qs;
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

}  // namespace
}  // namespace parlexo
