#include "account/core/account_history.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/account/account_rig.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;
using simulator::FaultKind;
using testing::ElementsAre;

TEST(HistoryText, becomesARecordForEveryLineThatHasEnded) {
  const struct {
    const char* text;
    std::vector<HistoryRecord> records;
  } cases[] = {
      {"", {}},
      {"1\td\t5\tno end", {}},
      {"1\td\t5\tends\r\n2\td\t5\tdoes not", {{"1", "d", "5", "ends"}}},
      {"\r\n1\td\t5\ta\r\n\r\n2\td\t5\tb\r\n", {{"1", "d", "5", "a"}, {"2", "d", "5", "b"}}},
      {"1\r\n2\td\r\n3\t\t7\r\n", {{"1", "", "", ""}, {"2", "d", "", ""}, {"3", "", "7", ""}}},
      {"\t\t\t\r\n", {{"", "", "", ""}}},
      {"1\td\t5\ta\tb\r\n", {{"1", "d", "5", "a\tb"}}},
      {"1\td\t5\ta\rb\nc\r\r\n", {{"1", "d", "5", "a\rb\nc\r"}}},
      {" 1 \td\t+05.0\t a \r\n", {{" 1 ", "d", "+05.0", " a "}}},
  };
  for (const auto& [text, records] : cases) EXPECT_EQ(parseHistory(text), records) << text;
}

TEST(HistoryDate, isOrderedByTimeWhereItHasTheUsualForm) {
  const QStringList inOrder = {u"31/12/2025 23:59:59"_qs, u"01/01/2026 00:00:00"_qs,
                               u"01/01/2026 00:00:01"_qs, u"01/01/2026 00:01:00"_qs,
                               u"01/01/2026 01:00:00"_qs, u"02/01/2026 00:00:00"_qs,
                               u"01/02/2026 00:00:00"_qs};
  for (int i = 1; i < inOrder.size(); ++i)
    EXPECT_LT(historyDateOrder(inOrder[i - 1]), historyDateOrder(inOrder[i])) << i;
  EXPECT_TRUE(historyDateOrder(inOrder[0]));
  for (const auto& other : {u"2026-01-01"_qs, u"1/1/2026 10:00:00"_qs, u"01/01/2026 10:00:0x"_qs, QString()})
    EXPECT_FALSE(historyDateOrder(other)) << other.toStdString();
}

class AccountHistory : public testing::Test, protected AccountRig {};

TEST_F(AccountHistory, arrivesFieldByFieldOverTheWire) {
  const QDateTime date({2026, 1, 2}, {3, 4, 5}, Qt::UTC);
  simulator.rememberTransaction("demo", -0.05, date, u"SMS <to> Zoë & 1 €"_qs);
  simulator.rememberTransaction("demo", 100, date.addDays(1), QString());
  const auto records = AccountHistoryFlow(services()).load();
  ASSERT_TRUE(records);
  EXPECT_THAT(*records,
              ElementsAre(HistoryRecord{"1", "02/01/2026 03:04:05", "-0.05", u"SMS <to> Zoë & 1 €"_qs},
                          HistoryRecord{"2", "03/01/2026 03:04:05", "100.00", ""}));
  EXPECT_THAT(journal, ElementsAre("(box)", "(no box)"));
}

TEST_F(AccountHistory, everyFailureIsToldByTheSameMessageAlone) {
  const auto failsWith = [this](const char* text) {
    journal.clear();
    EXPECT_FALSE(AccountHistoryFlow(services()).load());
    EXPECT_THAT(journal, ElementsAre("(box)", "(no box)", text));
    EXPECT_EQ(notifier.shown.back().style, message_style::stop);
  };
  misbehave(FaultKind::Code, "getAccountHistory", 12);
  failsWith("Could not successfully obtain history details. Error: 12");
  simulator.clearFaults();
  for (const auto kind : {FaultKind::SoapFault, FaultKind::Cut, FaultKind::HttpError}) {
    misbehave(kind, "getAccountHistory");
    failsWith("Could not successfully obtain history details. Error: 0");
    simulator.clearFaults();
  }
  simulator.expireSessions();
  failsWith("Could not successfully obtain history details. Error: 7");
  simulator.stop();
  failsWith("Could not successfully obtain history details. Error: 0");
}

}  // namespace
}  // namespace parlexo
