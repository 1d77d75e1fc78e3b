#include "app/core/balance_check.h"

#include <ostream>
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

const Journal nothing;
const Journal low = {u"progress hidden"_qs, u"message 0x40 146 "_qs + text(TextId::BalanceLow)};
const Journal zero = {u"progress hidden"_qs, u"message 0x40 147 "_qs + text(TextId::BalanceZero)};

struct Amount {
  double balance;
  QString shown;
  Journal told;
  bool isZero;
};

void PrintTo(const Amount& amount, std::ostream* out) {
  *out << amount.balance;
}

class BalanceAmount : public BalanceCheckTest, public testing::WithParamInterface<Amount> {};

TEST_P(BalanceAmount, isShownAndJudged) {
  EXPECT_EQ(BalanceCheck(state, gateway, notifier, progress).take(GetParam().balance), GetParam().shown);
  EXPECT_EQ(journal, GetParam().told);
  EXPECT_EQ(state.balanceIsZero, GetParam().isZero);
}

INSTANTIATE_TEST_SUITE_P(
    Amounts, BalanceAmount,
    testing::Values(Amount{100.0, u"100.00"_qs, nothing, false}, Amount{2.0, u"2.00"_qs, nothing, false},
                    Amount{1.999, u"2.00"_qs, low, false}, Amount{0.01, u"0.01"_qs, low, false},
                    Amount{0.0, u"0.00"_qs, zero, true}, Amount{-3.5, u"-3.50"_qs, zero, true},
                    Amount{1e15, u"1000000000000000.00"_qs, nothing, false}));

TEST_F(BalanceCheckTest, amountComesFromTheAccountOfTheSession) {
  ASSERT_EQ(LoginFlow(state, settings, gateway, notifier).attempt(u"demo"_qs, u"demo1234"_qs),
            LoginOutcome::Accepted);
  ASSERT_TRUE(simulator.setBalance(u"demo"_qs, 1.25));
  EXPECT_EQ(run(), u"1.25"_qs);
  EXPECT_EQ(journal, low);
  EXPECT_EQ(simulator.calls().back().session, state.session);
}

TEST_F(BalanceCheckTest, refusalLeavesFieldEmptyWithoutAWord) {
  setFault(FaultKind::Code, u"getAccountBalance"_qs, 7);
  EXPECT_EQ(run(), QString());
  EXPECT_EQ(journal, nothing);
  EXPECT_FALSE(state.balanceIsZero);
}

TEST_F(BalanceCheckTest, gatewayOutOfReachIsReported) {
  setFault(FaultKind::Cut, u"getAccountBalance"_qs);
  EXPECT_EQ(run(), QString());
  EXPECT_EQ(journal,
            Journal({u"progress hidden"_qs,
                     u"message 0x10 0 Could not connect to the Parlexo gateway server.\r\n\r\nPlease make "
                     u"sure you have internet connectivity, your firewall allows gateway connection or try "
                     u"again later."_qs}));
  EXPECT_FALSE(state.balanceIsZero);
}

TEST_F(BalanceCheckTest, refreshIsQuietAndSetsTheZeroFlagForGood) {
  ASSERT_EQ(LoginFlow(state, settings, gateway, notifier).attempt(u"demo"_qs, u"demo1234"_qs),
            LoginOutcome::Accepted);
  BalanceCheck check(state, gateway, notifier, progress);
  const std::tuple<double, QString, bool> steps[] = {
      {1.5, u"1.50"_qs, false}, {0.0, u"0.00"_qs, true}, {50.0, u"50.00"_qs, true}};
  for (const auto& [balance, shown, isZero] : steps) {
    ASSERT_TRUE(simulator.setBalance(u"demo"_qs, balance));
    EXPECT_EQ(check.refresh(), shown);
    EXPECT_EQ(state.balanceIsZero, isZero);
  }
  EXPECT_EQ(journal, nothing);
  simulator.stop();
  EXPECT_EQ(check.refresh(), QString());
  EXPECT_EQ(journal.size(), 2) << "the box goes and the failure is told";
}

}  // namespace
}  // namespace parlexo
