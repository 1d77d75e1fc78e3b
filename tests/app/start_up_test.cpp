#include "app/core/start_up.h"

#include <QDir>
#include <gmock/gmock.h>

#include "app/core/login_flow.h"
#include "app/core/shut_down.h"
#include "tests/app/run_fakes.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;
using simulator::FaultKind;
using testing::ElementsAre;

const QString locatorMessage =
    u"message 0x10 0 Could not connect to the Parlexo internet to determine the location of the gateway "
    u"server.\r\n\r\nPlease make sure you have internet connectivity, your firewall allows gateway "
    u"connection or try again later."_qs;

// What every run journals before its first call to the gateway.
const Journal loading = {u"progress Loading Contacts from Database..."_qs, u"contacts loaded"_qs,
                         u"status log loaded"_qs, u"progress text "_qs};

class StartUpTest : public RunTest {
 protected:
  int run() {
    return StartUp(
               {state, settings, stores, gateway, notifier, progress, windows, [this] { return locate(); }})
        .run();
  }
};

TEST_F(StartUpTest, everyStepComesInItsOrder) {
  windows.login = [this] {
    return LoginFlow(state, settings, gateway, notifier).attempt(u"demo"_qs, u"demo1234"_qs) ==
           LoginOutcome::Accepted;
  };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(journal,
            loading + Journal({u"progress hidden"_qs, u"login"_qs, u"progress "_qs, u"main window"_qs}));
  EXPECT_THAT(simulator.calledOperations(), ElementsAre(u"locator"_qs, u"getVersion"_qs, u"sessionStart"_qs));
  EXPECT_TRUE(QDir(folder.filePath(u"contacts"_qs)).exists());
  EXPECT_TRUE(QDir(folder.filePath(u"templates"_qs)).exists());
}

TEST_F(StartUpTest, unreadableContactsEndTheProgramBeforeTheStatusLog) {
  stores.contactsReadable = false;
  EXPECT_EQ(run(), -1);
  EXPECT_EQ(journal, loading.first(2));
  EXPECT_THAT(simulator.calledOperations(), ElementsAre());
}

TEST_F(StartUpTest, cancelledLoginEndsInSilence) {
  windows.login = [] { return false; };
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(journal, loading + Journal({u"progress hidden"_qs, u"login"_qs}));
}

const Journal noLocation = {locatorMessage};
const Journal noGateway = {u"progress hidden"_qs, unreachableMessage};
const Journal wrongProtocol = {u"progress hidden"_qs, u"upgrade \"\""_qs};

Journal otherClient(const QString& version) {
  return {u"progress hidden"_qs, u"upgrade \"%1\""_qs.arg(version), u"login"_qs, u"progress "_qs,
          u"main window"_qs};
}

TEST_F(StartUpTest, obstacleIsToldToTheUser) {
  const auto locator = u"locator"_qs;
  const auto version = u"getVersion"_qs;
  const struct {
    FaultKind kind;
    QString operation;
    int number;
    QString text;
    Journal after;  // what follows the loading
  } obstacles[] = {
      {FaultKind::BadLocator, locator, 0, {}, noLocation},
      {FaultKind::HttpError, locator, 0, {}, noLocation},
      {FaultKind::Cut, locator, 0, {}, noLocation},
      {FaultKind::ClientVersion, locator, 0, {}, noLocation},
      {FaultKind::Close, version, 0, {}, noGateway},
      {FaultKind::Cut, version, 0, {}, noGateway},
      {FaultKind::HttpError, version, 0, {}, noGateway},
      {FaultKind::NotXml, version, 0, {}, noGateway},
      {FaultKind::SoapFault, version, 0, u"no"_qs, noGateway},
      {FaultKind::Version, version, 102, {}, wrongProtocol},
      {FaultKind::Version, version, 104, {}, wrongProtocol},
      {FaultKind::ClientVersion, locator, 0, u"2.23"_qs, otherClient(u"2.23"_qs)},
      {FaultKind::ClientVersion, locator, 0, u"2.25"_qs, otherClient(u"2.25"_qs)},
      {FaultKind::ClientVersion, locator, 0, u"2.240"_qs, otherClient(u"2.240"_qs)},
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

TEST_F(StartUpTest, siteThatRefusesConnectionsIsToldToTheUser) {
  simulator.stop();
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(journal, loading + noLocation);
}

class ShutDownTest : public RunTest {
 protected:
  const Journal ending = {u"progress hidden"_qs, u"contacts released"_qs, u"status log saved"_qs};
};

TEST_F(ShutDownTest, runWithoutSessionMakesNoCall) {
  ASSERT_TRUE(locate());
  shutDown(state, stores, progress, runner);
  EXPECT_EQ(journal, ending);
  EXPECT_THAT(simulator.calledOperations(), ElementsAre(u"locator"_qs));
}

TEST_F(ShutDownTest, sessionIsClosedPastTheProxyThatOtherCallsUse) {
  ASSERT_TRUE(locate());
  ASSERT_EQ(LoginFlow(state, settings, gateway, notifier).attempt(u"demo"_qs, u"demo1234"_qs),
            LoginOutcome::Accepted);
  state.proxy.host = u"127.0.0.1"_qs;
  state.proxy.port = 1;
  shutDown(state, stores, progress, runner);
  EXPECT_EQ(simulator.openSessions(), 0);
  EXPECT_EQ(simulator.calls().back().session, state.session);
  EXPECT_EQ(journal, ending);
}

TEST_F(ShutDownTest, gatewayThatIsGoneIsNotMentioned) {
  ASSERT_TRUE(locate());
  state.session = u"token"_qs;
  simulator.stop();
  shutDown(state, stores, progress, runner);
  EXPECT_EQ(journal, ending);
}

}  // namespace
}  // namespace parlexo
