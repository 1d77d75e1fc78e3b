// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/status_dlg.h"

#include <QHeaderView>
#include <QMenu>
#include <QTreeView>

#include "tests/messaging/gateway_rig.h"
#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

struct StatusPage : testing::Test, GatewayRig {
  void logMessage(const char* receipt, const char* date, const char* type = "SMS") {
    log.add({"+61491570156", QString::fromLatin1(receipt), "Delivered to Gateway", QString::fromLatin1(type),
             QString::fromLatin1(date)});
    simulator.rememberReceipt(u"demo"_s, QString::fromLatin1(receipt));
  }
  void open() {
    page_ = std::make_unique<CStatusDlg>(services());
    page_->show();
    list_ = page_->findChild<QTreeView*>("statusList");
    combo_ = page_->findChild<QComboBox*>("messageType");
  }
  [[nodiscard]] QStringList column(int which) const { return columnCells(*list_, which); }
  void getStatus() { click(*page_, "getStatusButton"); }

  std::unique_ptr<CStatusDlg> page_;
  QTreeView* list_ = nullptr;
  QComboBox* combo_ = nullptr;
};

TEST_F(StatusPage, opensWithSmsInOrderAndTheFirstRowSelected) {
  logMessage("late", "01/01/2026 10:00:30");
  logMessage("early", "01/01/2026 10:00:10");
  logMessage("fax", "01/01/2026 10:00:00", "Fax");
  logMessage("other", "01/01/2026 10:00:00", "Pigeon");
  open();
  EXPECT_EQ(combo_->currentText(), "SMS");
  EXPECT_THAT(column(1), ElementsAre("early", "late"));
  EXPECT_EQ(list_->selectionModel()->selectedRows().size(), 1);
  EXPECT_TRUE(list_->selectionModel()->isRowSelected(0));
  combo_->setCurrentText("Fax");
  EXPECT_THAT(column(1), ElementsAre("fax"));
  combo_->setCurrentText("Voice");
  EXPECT_THAT(column(1), IsEmpty());
}

TEST_F(StatusPage, selectTypeRefreshesEvenWhenTheTypeStays) {
  open();
  logMessage("new", "01/01/2026 10:00:00");
  page_->selectType(MessageType::Sms);
  EXPECT_THAT(column(1), ElementsAre("new"));
  page_->hide();
  logMessage("newer", "01/01/2026 10:00:01");
  page_->show();
  EXPECT_THAT(column(1), ElementsAre("new", "newer"));
}

TEST_F(StatusPage, getStatusQueriesTheSelectedRowsInOrder) {
  logMessage("R1", "01/01/2026 10:00:01");
  logMessage("R2", "01/01/2026 10:00:02");
  logMessage("R3", "01/01/2026 10:00:03");
  open();
  list_->selectionModel()->select(list_->model()->index(2, 0),
                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
  getStatus();
  EXPECT_THAT(column(3), ElementsAre("Delivered to handset", "Delivered to Gateway", "Delivered to handset"));
  EXPECT_EQ(list_->selectionModel()->selectedRows().size(), 2);
  EXPECT_EQ(operations().count(u"getStatus"_s), 2);
  list_->clearSelection();
  journal.clear();
  getStatus();
  EXPECT_THAT(journal, IsEmpty()) << "nothing selected, no box either";
  EXPECT_EQ(operations().count(u"getStatus"_s), 2);
  EXPECT_THAT(notifier.popTexts(), IsEmpty());
}

TEST_F(StatusPage, contextMenuQueriesTheStatus) {
  logMessage("R1", "01/01/2026 10:00:01");
  open();
  auto* menu = page_->findChild<QMenu*>("statusMenu");
  Q_EMIT list_->customContextMenuRequested(QPoint(5, 5));
  EXPECT_TRUE(menu->isVisible());
  ASSERT_EQ(menu->actions().size(), 1);
  EXPECT_EQ(menu->actions()[0]->text(), "Status");
  menu->actions()[0]->trigger();
  menu->close();
  EXPECT_THAT(column(3), ElementsAre("Delivered to handset"));
}

TEST_F(StatusPage, dateHeadingSortsByTime) {
  logMessage("new", "02/01/2026 10:00:10");
  logMessage("old", "30/12/2025 10:00:40");
  logMessage("newest", "02/01/2026 10:00:50");
  open();
  const auto first = column(1);
  QHeaderView& header = *list_->header();
  const QPoint dateHeading(header.sectionViewportPosition(0) + 10, header.height() / 2);
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, dateHeading);
  EXPECT_THAT(column(1), ElementsAre("old", "new", "newest"));
  list_->selectionModel()->select(list_->model()->index(0, 0),
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  getStatus();
  EXPECT_THAT(column(3), ElementsAre("Delivered to handset", "Delivered to Gateway", "Delivered to Gateway"));
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, dateHeading);
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, dateHeading);
  EXPECT_EQ(column(1), first);
}

TEST_F(StatusPage, countLineShowsTotalsAndTheFileLimit) {
  const auto count = [this] { return page_->findChild<QLabel*>("statusCount")->text(); };
  logMessage("R0", "01/01/2026 10:00:01");
  open();
  EXPECT_EQ(count(), "1 message of this type, 1 in all.");
  for (int i = 1; i < 1000; ++i) logMessage(qPrintable(u"R%1"_s.arg(i)), "", "Fax");
  page_->selectType(MessageType::Fax);
  EXPECT_EQ(count(), "999 messages of this type, 1000 in all.");
  logMessage("R1000", "", "Fax");
  page_->selectType(MessageType::Voice);
  EXPECT_EQ(count(),
            "0 messages of this type, 1001 in all. Only the newest 1000 are kept when the program ends.");
}

}  // namespace
}  // namespace parlexo::test
