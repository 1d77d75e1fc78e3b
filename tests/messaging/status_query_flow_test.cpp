// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/status_query_flow.h"

#include "messaging/core/sms_send_flow.h"
#include "tests/messaging/gateway_rig.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

// Three sent messages and an empty journal.
struct StatusQuery : testing::Test, GatewayRig {
  StatusQuery() {
    SmsDraft draft;
    draft.text = u"Hello"_s;
    draft.displayList = u"somebody"_s;
    draft.numbersList = u"+61491570156,+60312345678,+861012345678"_s;
    (void)SmsSendFlow(services()).send(draft);
    receipts_ = simulator.messages().at(0).receipts;
    journal.clear();
    notifier.shown.clear();
    sent_ = operations().size();
  }

  void query(const QStringList& receipts) {
    updated_.clear();
    outcome_ = StatusQueryFlow(services()).query(receipts, [this](const StatusEntry& entry) {
      updated_.append(entry.receipt + QChar(u'=') + entry.status);
    });
  }
  [[nodiscard]] QString status(int which) const { return log.entries().at(receipts_[which]).status; }
  [[nodiscard]] QStringList queries() const { return operations().mid(sent_); }

  QStringList receipts_;
  QStringList updated_;
  StatusQueryOutcome outcome_;
  qsizetype sent_ = 0;
};

TEST_F(StatusQuery, repliesAreStoredShownAndSaved) {
  query({receipts_[2], receipts_[0]});
  EXPECT_EQ(updated_,
            QStringList({receipts_[2] + "=Queued at gateway", receipts_[0] + "=Queued at gateway"}));
  EXPECT_EQ(status(0), "Queued at gateway");
  EXPECT_EQ(status(1), "Delivered to Gateway");
  EXPECT_THAT(journal, ElementsAre(QString::fromUtf8("(box) Getting the status (1 of 2)…"), "(no box)"));
  StatusLog readBack;
  file.load(readBack, notifier);
  EXPECT_EQ(readBack.entries(), log.entries());
}

TEST_F(StatusQuery, expiredSessionAsksForLoginOnceAndStops) {
  simulator.expireSessions();
  query(receipts_);
  EXPECT_THAT(journal, ElementsAre(QString::fromUtf8("(box) Getting the status (1 of 3)…"), "(no box)",
                                   "16 Your Session has expired. Please log back in", "(login)"));
  EXPECT_EQ(queries().size(), 1);
}

TEST_F(StatusQuery, aFailedReceiptIsSkippedAndReportedOnce) {
  query({receipts_[0], "no such receipt", "FAIL", "nor this", receipts_[1]});
  EXPECT_EQ(updated_.size(), 2);
  EXPECT_EQ(status(1), "Queued at gateway");
  EXPECT_EQ(queries().size(), 4);
  EXPECT_FALSE(log.isModified());
  EXPECT_THAT(journal,
              ElementsAre(QString::fromUtf8("(box) Getting the status (1 of 4)…"), "(no box)",
                          "16 An error occured while getting the status of the message.\r\nError code: 10"));
  EXPECT_EQ(outcome_.text(), "2 could not be determined. 1 failed message was left out.");
  query({receipts_[0]});
  EXPECT_EQ(outcome_.text(), "");
}

TEST_F(StatusQuery, queryStopsAfterThreeUnansweredReceipts) {
  setFault(FaultKind::SoapFault, u"getStatus"_s);
  query(receipts_ + receipts_);
  EXPECT_EQ(queries().size(), 3);
  EXPECT_THAT(notifier.popTexts(), ElementsAre(unreachable));
  EXPECT_EQ(outcome_.text(), "6 could not be determined.");
  EXPECT_EQ(status(0), "Delivered to Gateway");
}

TEST_F(StatusQuery, cancelKeepsReceivedStatusesAndShowsNoError) {
  setFault(FaultKind::Late, u"getStatus"_s, 150);
  runner.cancel(2, std::chrono::milliseconds(20));
  query(receipts_);
  EXPECT_EQ(status(0), "Queued at gateway");
  EXPECT_EQ(status(2), "Delivered to Gateway");
  EXPECT_THAT(notifier.popTexts(), IsEmpty());
  EXPECT_EQ(outcome_.text(), "Cancelled: 2 not asked for.");
  EXPECT_FALSE(log.isModified());
}

}  // namespace
}  // namespace parlexo::test
