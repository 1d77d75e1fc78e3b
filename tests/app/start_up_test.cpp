#include "app/core/start_up.h"

#include <ostream>

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

const QString gatewayMessage =
    u"message 0x10 0 Could not connect to the Parlexo gateway server.\r\n\r\nPlease make sure you have "
    u"internet connectivity, your firewall allows gateway connection or try again later."_qs;
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

struct Obstacle {
  const char* name;
  FaultKind kind;
  QString operation;
  int number;
  QString text;
  Journal after;  // what follows the loading
};

void PrintTo(const Obstacle& obstacle, std::ostream* out) {
  *out << obstacle.name;
}

class StartUpObstacle : public StartUpTest, public testing::WithParamInterface<Obstacle> {};

TEST_P(StartUpObstacle, isToldToTheUser) {
  const auto& obstacle = GetParam();
  setFault(obstacle.kind, obstacle.operation, obstacle.number, obstacle.text);
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(journal, loading + obstacle.after);
}

const Journal noLocation = {locatorMessage};
const Journal noGateway = {u"progress hidden"_qs, gatewayMessage};
const Journal wrongProtocol = {u"progress hidden"_qs, u"upgrade \"\""_qs};

Journal otherClient(const QString& version) {
  return {u"progress hidden"_qs, u"upgrade \"%1\""_qs.arg(version), u"login"_qs, u"progress "_qs,
          u"main window"_qs};
}

INSTANTIATE_TEST_SUITE_P(
    Faults, StartUpObstacle,
    testing::Values(
        Obstacle{"malformed locator", FaultKind::BadLocator, u"locator"_qs, 0, {}, noLocation},
        Obstacle{"HTTP error of the locator", FaultKind::HttpError, u"locator"_qs, 0, {}, noLocation},
        Obstacle{"cut locator", FaultKind::Cut, u"locator"_qs, 0, {}, noLocation},
        Obstacle{"version query closed", FaultKind::Close, u"getVersion"_qs, 0, {}, noGateway},
        Obstacle{"cut version", FaultKind::Cut, u"getVersion"_qs, 0, {}, noGateway},
        Obstacle{"HTTP error of the version query", FaultKind::HttpError, u"getVersion"_qs, 0, {}, noGateway},
        Obstacle{"version that is not XML", FaultKind::NotXml, u"getVersion"_qs, 0, {}, noGateway},
        Obstacle{"fault of the version query", FaultKind::SoapFault, u"getVersion"_qs, 0, u"no"_qs,
                 noGateway},
        Obstacle{"older protocol", FaultKind::Version, u"getVersion"_qs, 102, {}, wrongProtocol},
        Obstacle{"newer protocol", FaultKind::Version, u"getVersion"_qs, 104, {}, wrongProtocol},
        Obstacle{"older client", FaultKind::ClientVersion, u"locator"_qs, 0, u"2.23"_qs,
                 otherClient(u"2.23"_qs)},
        Obstacle{"slightly newer client", FaultKind::ClientVersion, u"locator"_qs, 0, u"2.25"_qs,
                 otherClient(u"2.25"_qs)},
        Obstacle{"locator without a version", FaultKind::ClientVersion, u"locator"_qs, 0, {}, noLocation},
        Obstacle{"newer client", FaultKind::ClientVersion, u"locator"_qs, 0, u"2.240"_qs,
                 otherClient(u"2.240"_qs)}));

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
