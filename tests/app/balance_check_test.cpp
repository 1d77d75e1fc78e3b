#include "app/core/balance_check.h"

#include <tuple>

#include <gmock/gmock.h>

#include "app/core/login_flow.h"
#include "base/message_texts.h"
#include "tests/app/run_fakes.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;
using simulator::FaultKind;

class BalanceCheckTest : public RunTest {
 protected:
  void SetUp() override {
    RunTest::SetUp();
    ASSERT_TRUE(locate());
    state.session = u"token"_qs;
  }

  QString run() { return BalanceCheck(state, gateway, notifier, progress).run(); }
};

TEST_F(BalanceCheckTest, amountIsShownAndJudged) {
  const Journal nothing;
  const Journal low = {u"progress hidden"_qs, u"message 0x40 146 "_qs + text(TextId::BalanceLow)};
  const Journal zero = {u"progress hidden"_qs, u"message 0x40 147 "_qs + text(TextId::BalanceZero)};
  const struct {
    double balance;
    QString shown;
    Journal told;
    bool isZero;
  } amounts[] = {{100.0, u"100.00"_qs, nothing, false},
                 {2.0, u"2.00"_qs, nothing, false},
                 {1.999, u"2.00"_qs, low, false},
                 {0.01, u"0.01"_qs, low, false},
                 {0.0, u"0.00"_qs, zero, true},
                 {-3.5, u"-3.50"_qs, zero, true},
                 {1e15, u"1000000000000000.00"_qs, nothing, false}};
  for (const auto& [balance, shown, told, isZero] : amounts) {
    state.balanceIsZero = false;
    journal.clear();
    EXPECT_EQ(BalanceCheck(state, gateway, notifier, progress).take(balance), shown);
    EXPECT_EQ(journal, told) << balance;
    EXPECT_EQ(state.balanceIsZero, isZero) << balance;
  }
}

TEST_F(BalanceCheckTest, refusalIsPassedOverInSilenceAndALostGatewayIsReported) {
  setFault(FaultKind::Code, u"getAccountBalance"_qs, 7);
  EXPECT_EQ(run(), QString());
  EXPECT_EQ(journal, Journal());
  simulator.clearFaults();
  setFault(FaultKind::Cut, u"getAccountBalance"_qs);
  EXPECT_EQ(run(), QString());
  EXPECT_EQ(journal, Journal({u"progress hidden"_qs, unreachableMessage}));
  EXPECT_FALSE(state.balanceIsZero);
}

TEST_F(BalanceCheckTest, checkWarnsAndRefreshIsQuietAndSetsTheZeroFlagForGood) {
  ASSERT_EQ(LoginFlow(state, settings, gateway, notifier).attempt(u"demo"_qs, u"demo1234"_qs),
            LoginOutcome::Accepted);
  ASSERT_TRUE(simulator.setBalance(u"demo"_qs, 1.25));
  EXPECT_EQ(run(), u"1.25"_qs);
  EXPECT_EQ(journal.size(), 2) << "it is low";
  journal.clear();
  BalanceCheck check(state, gateway, notifier, progress);
  const std::tuple<double, QString, bool> steps[] = {
      {1.5, u"1.50"_qs, false}, {0.0, u"0.00"_qs, true}, {50.0, u"50.00"_qs, true}};
  for (const auto& [balance, shown, isZero] : steps) {
    ASSERT_TRUE(simulator.setBalance(u"demo"_qs, balance));
    EXPECT_EQ(check.refresh(), shown);
    EXPECT_EQ(state.balanceIsZero, isZero);
  }
  EXPECT_EQ(journal, Journal());
  EXPECT_EQ(simulator.calls().back().session, state.session);
  simulator.stop();
  EXPECT_EQ(check.refresh(), QString());
  EXPECT_EQ(journal.size(), 2) << "the box goes and the failure is told";
}

}  // namespace
}  // namespace parlexo
