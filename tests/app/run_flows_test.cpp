// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/core/balance_check.h"
#include "app/core/login_flow.h"
#include "app/core/start_up.h"
#include "base/message_texts.h"
#include "tests/app/run_fakes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

struct BalanceCheckTest : RunTest {
  void SetUp() override {
    ASSERT_TRUE(locate());
    state.session = u"token"_s;
  }

  QString run() { return BalanceCheck(state, gateway, notifier, progress).run(); }
};

TEST_F(BalanceCheckTest, amountIsShownAndLowOnesAreReported) {
  const Journal nothing;
  const Journal low = {u"(no box)"_s, u"64/146 "_s + text(TextId::BalanceLow)};
  const Journal zero = {u"(no box)"_s, u"64/147 "_s + text(TextId::BalanceZero)};
  const Cases<double, QString, Journal, bool> amounts = {{100.0, u"100.00"_s, nothing, false},
                                                         {2.0, u"2.00"_s, nothing, false},
                                                         {1.999, u"2.00"_s, low, false},
                                                         {0.01, u"0.01"_s, low, false},
                                                         {0.0, u"0.00"_s, zero, true},
                                                         {-3.5, u"-3.50"_s, zero, true},
                                                         {1e15, u"1000000000000000.00"_s, nothing, false}};
  for (const auto& [balance, shown, messages, isZero] : amounts) {
    state.balanceIsZero = false;
    journal.clear();
    EXPECT_EQ(BalanceCheck(state, gateway, notifier, progress).report(balance), shown);
    EXPECT_EQ(journal, messages) << balance;
    EXPECT_EQ(state.balanceIsZero, isZero) << balance;
  }
}

TEST_F(BalanceCheckTest, refusalIsIgnoredAndALostGatewayIsReported) {
  setFault(FaultKind::Code, u"getAccountBalance"_s, 7);
  EXPECT_EQ(run(), QString());
  EXPECT_EQ(journal, Journal());
  simulator.clearFaults();
  setFault(FaultKind::Cut, u"getAccountBalance"_s);
  EXPECT_EQ(run(), QString());
  EXPECT_EQ(journal, Journal({u"(no box)"_s, unreachableLine}));
  EXPECT_FALSE(state.balanceIsZero);
}

TEST_F(BalanceCheckTest, checkWarnsAndRefreshIsSilent) {
  ASSERT_EQ(LoginFlow(state, settings, gateway, notifier).attempt(u"demo"_s, u"demo1234"_s),
            LoginOutcome::Accepted);
  ASSERT_TRUE(simulator.setBalance(u"demo"_s, 1.25));
  EXPECT_EQ(run(), u"1.25"_s);
  EXPECT_EQ(journal.size(), 2) << "it is low";
  journal.clear();
  BalanceCheck check(state, gateway, notifier, progress);
  const std::tuple<double, QString, bool> steps[] = {
      {1.5, u"1.50"_s, false}, {0.0, u"0.00"_s, true}, {50.0, u"50.00"_s, true}};
  for (const auto& [balance, shown, isZero] : steps) {
    ASSERT_TRUE(simulator.setBalance(u"demo"_s, balance));
    EXPECT_EQ(check.refresh(), shown);
    EXPECT_EQ(state.balanceIsZero, isZero);
  }
  EXPECT_EQ(journal, Journal());
  EXPECT_EQ(simulator.calls().back().session, state.session);
  simulator.stop();
  EXPECT_EQ(check.refresh(), std::nullopt);
  EXPECT_EQ(journal.size(), 2) << "the box goes and the failure is told";
}

struct LoginFlowTest : RunTest {
  void SetUp() override {
    ASSERT_TRUE(locate());
    settings.setRememberedUser(u"earlier"_s);
    state.session = u"old token"_s;
    state.userName = u"old user"_s;
  }

  LoginOutcome attempt(const QString& user, const QString& password) {
    return LoginFlow(state, settings, gateway, notifier).attempt(user, password);
  }

  void expectNothingStored() {
    EXPECT_EQ(state.session, u"old token"_s);
    EXPECT_EQ(state.userName, u"old user"_s);
    EXPECT_EQ(settings.rememberedUser(), u"earlier"_s);
  }
};

TEST_F(LoginFlowTest, acceptedLoginReplacesSessionAndIsRemembered) {
  EXPECT_EQ(attempt(u"demo"_s, u"demo1234"_s), LoginOutcome::Accepted);
  EXPECT_FALSE(state.session.isEmpty());
  EXPECT_NE(state.session, u"old token"_s);
  EXPECT_EQ(state.userName, u"demo"_s);
  EXPECT_EQ(settings.rememberedUser(), u"demo"_s);
  EXPECT_EQ(journal, Journal());
}

TEST_F(LoginFlowTest, acceptedLoginWithoutTokenStoresNothing) {
  setFault(FaultKind::Code, u"sessionStart"_s, 0);
  EXPECT_EQ(attempt(u"demo"_s, u"demo1234"_s), LoginOutcome::Accepted);
  expectNothingStored();
  EXPECT_EQ(journal, Journal());
}

TEST_F(LoginFlowTest, refusalIsShownAndStoresNothing) {
  const Cases<FaultKind, int, QString> refusals = {
      {FaultKind::Code, 4, u"16 Invalid Username or Password. Passwords are case sensitive"_s},
      {FaultKind::Code, 12, u"16 An error occured while logging on. Error code: 12"_s},
      {FaultKind::Cut, 0, unreachableLine},
  };
  for (const auto& [kind, number, message] : refusals) {
    simulator.clearFaults();
    journal.clear();
    setFault(kind, u"sessionStart"_s, number, u"reason"_s);
    EXPECT_EQ(attempt(u"demo"_s, u"demo1234"_s), LoginOutcome::Refused);
    EXPECT_THAT(journal, ElementsAre(message));
    expectNothingStored();
  }
}

const QString locatorMessage =
    u"16 Could not connect to the Parlexo internet to determine the location of the gateway "
    u"server.\r\n\r\nPlease make sure you have internet connectivity, your firewall allows gateway "
    u"connection or try again later."_s;

// The journal of every run up to its first call.
const Journal loading = {u"(box) Loading Contacts from Database..."_s, u"contacts loaded"_s,
                         u"status log loaded"_s, u"(text) "_s};

struct StartUpTest : RunTest {
  int run() {
    return StartUp(
               {state, settings, stores, gateway, notifier, progress, windows, [this] { return locate(); }})
        .run();
  }
};

TEST_F(StartUpTest, stepsRunInOrder) {
  windows.login = [this] {
    return LoginFlow(state, settings, gateway, notifier).attempt(u"demo"_s, u"demo1234"_s) ==
           LoginOutcome::Accepted;
  };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(journal, loading + Journal({u"(no box)"_s, u"login"_s, u"(box)"_s, u"main window"_s}));
  EXPECT_THAT(simulator.calledOperations(), ElementsAre(u"locator"_s, u"getVersion"_s, u"sessionStart"_s));
  EXPECT_TRUE(QDir(folder.filePath(u"contacts"_s)).exists());
  EXPECT_TRUE(QDir(folder.filePath(u"templates"_s)).exists());
}

TEST_F(StartUpTest, unreadableContactsEndTheProgramBeforeTheStatusLog) {
  stores.contactsReadable = false;
  EXPECT_EQ(run(), -1);
  EXPECT_EQ(journal, loading.first(2));
  EXPECT_THAT(simulator.calledOperations(), ElementsAre());
}

TEST_F(StartUpTest, cancelledLoginEndsTheRunSilently) {
  windows.login = [] { return false; };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(journal, loading + Journal({u"(no box)"_s, u"login"_s}));
}

const Journal noLocation = {locatorMessage};
const Journal noGateway = {u"(no box)"_s, unreachableLine};
const Journal wrongProtocol = {u"(no box)"_s, u"upgrade \"\""_s};

Journal otherClient(const QString& version) {
  return {u"(no box)"_s, u"upgrade \"%1\""_s.arg(version), u"login"_s, u"(box)"_s, u"main window"_s};
}

TEST_F(StartUpTest, obstaclesAreReported) {
  const auto locator = u"locator"_s;
  const auto version = u"getVersion"_s;
  const Cases<FaultKind, QString, int, QString, Journal> obstacles = {
      {FaultKind::BadLocator, locator, 0, {}, noLocation},
      {FaultKind::Close, version, 0, {}, noGateway},
      {FaultKind::Version, version, 104, {}, wrongProtocol},
      {FaultKind::ClientVersion, locator, 0, u"2.23"_s, otherClient(u"2.23"_s)},
      {FaultKind::ClientVersion, locator, 0, u"2.240"_s, otherClient(u"2.240"_s)},
  };
  for (const auto& [kind, operation, number, text, after] : obstacles) {
    SCOPED_TRACE(static_cast<int>(kind));
    simulator.clearFaults();
    journal.clear();
    state = {};
    setFault(kind, operation, number, text);
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(journal, loading + after);
  }
}

struct ShutDownTest : RunTest {
  const Journal ending = {u"(no box)"_s, u"contacts released"_s, u"status log saved"_s};
};

TEST_F(ShutDownTest, runWithoutSessionMakesNoCall) {
  ASSERT_TRUE(locate());
  shutDown(state, stores, progress, runner);
  EXPECT_EQ(journal, ending);
  EXPECT_THAT(simulator.calledOperations(), ElementsAre(u"locator"_s));
}

TEST_F(ShutDownTest, sessionIsClosedWithoutTheProxy) {
  ASSERT_TRUE(locate());
  ASSERT_EQ(LoginFlow(state, settings, gateway, notifier).attempt(u"demo"_s, u"demo1234"_s),
            LoginOutcome::Accepted);
  state.proxy.host = u"127.0.0.1"_s;
  state.proxy.port = 1;
  shutDown(state, stores, progress, runner);
  EXPECT_EQ(simulator.openSessions(), 0);
  EXPECT_EQ(simulator.calls().back().session, state.session);
  EXPECT_EQ(journal, ending);
}

}  // namespace
}  // namespace parlexo::test
