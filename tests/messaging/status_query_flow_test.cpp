#include "messaging/core/status_query_flow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "messaging/core/sms_send_flow.h"
#include "tests/messaging/gateway_rig.h"

namespace parlexo {
namespace {

using simulator::FaultKind;
using testing::ElementsAre;
using testing::IsEmpty;

// Three messages that are on their way, and nothing in the journal yet.
class StatusQuery : public testing::Test, protected GatewayRig {
 protected:
  StatusQuery() {
    SmsDraft draft;
    draft.text = QStringLiteral("Hello");
    draft.displayList = QStringLiteral("somebody");
    draft.numbersList = QStringLiteral("+61491570156,+60312345678,+861012345678");
    (void)SmsSendFlow(services()).send(draft);
    receipts_ = simulator.messages().at(0).receipts;
    journal.clear();
    notifier.shown.clear();
    sent_ = operations().size();
  }

  void query(const QStringList& receipts) {
    StatusQueryFlow(services()).query(receipts, [this](const QString& receipt, const QString& status) {
      updated_.append(receipt + QChar(u'=') + status);
    });
  }
  [[nodiscard]] QString status(int which) const { return log.entries().at(receipts_[which]).status; }
  [[nodiscard]] QStringList queries() const { return operations().mid(sent_); }

  QStringList receipts_;
  QStringList updated_;
  qsizetype sent_ = 0;
};

TEST_F(StatusQuery, answersAreStoredShownAndSaved) {
  query({receipts_[2], receipts_[0]});
  EXPECT_EQ(updated_,
            QStringList({receipts_[2] + "=Queued at gateway", receipts_[0] + "=Queued at gateway"}));
  EXPECT_EQ(status(0), "Queued at gateway");
  EXPECT_EQ(status(1), "Delivered to Gateway");
  EXPECT_THAT(journal, ElementsAre("(box)", "(no box)"));
  StatusLog readBack;
  file.load(readBack, notifier);
  EXPECT_EQ(readBack.entries(), log.entries());
}

TEST_F(StatusQuery, expiredSessionAsksForLoginOnceAndStops) {
  simulator.expireSessions();
  query(receipts_);
  EXPECT_THAT(journal,
              ElementsAre("(box)", "(no box)", "Your Session has expired. Please log back in", "(login)"));
  EXPECT_EQ(queries().size(), 1);
}

TEST_F(StatusQuery, stopsAtTheFirstFailureAndKeepsWhatCameIn) {
  query({receipts_[0], QStringLiteral("no such receipt"), receipts_[1]});
  EXPECT_EQ(updated_.size(), 1);
  EXPECT_EQ(status(0), "Queued at gateway");
  EXPECT_EQ(status(1), "Delivered to Gateway");
  EXPECT_EQ(queries().size(), 2);
  EXPECT_FALSE(log.isModified());
  EXPECT_THAT(journal,
              ElementsAre("(box)", "(no box)",
                          "An error occured while getting the status of the message.\r\nError code: 10"));
}

TEST_F(StatusQuery, everyFaultOfTheConnectionGivesTheSameMessage) {
  for (const auto& [kind, number] : {std::pair{FaultKind::Late, 2500}, {FaultKind::SoapFault, 0}}) {
    simulator.clearFaults();
    misbehave(kind, QStringLiteral("getStatus"), number);
    query(receipts_);
    EXPECT_EQ(notifier.shown.back().style, message_style::stop);
    EXPECT_THAT(notifier.takeTexts(), ElementsAre(unreachable)) << static_cast<int>(kind);
  }
  EXPECT_THAT(updated_, IsEmpty());
  EXPECT_EQ(status(0), "Delivered to Gateway");
}

}  // namespace
}  // namespace parlexo
