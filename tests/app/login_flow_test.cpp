#include "app/core/login_flow.h"

#include <ostream>

#include <QDirIterator>
#include <QFile>
#include <gmock/gmock.h>

#include "app/core/shut_down.h"
#include "tests/app/run_fakes.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;
using simulator::FaultKind;
using testing::ElementsAre;

class LoginFlowTest : public RunTest {
 protected:
  void SetUp() override {
    RunTest::SetUp();
    ASSERT_TRUE(locate());
    settings.setRememberedUser(u"earlier"_qs);
    state.session = u"old token"_qs;
    state.userName = u"old user"_qs;
  }

  LoginOutcome attempt(const QString& user, const QString& password) {
    return LoginFlow(state, settings, gateway, notifier).attempt(user, password);
  }

  void expectNothingStored() {
    EXPECT_EQ(state.session, u"old token"_qs);
    EXPECT_EQ(state.userName, u"old user"_qs);
    EXPECT_EQ(settings.rememberedUser(), u"earlier"_qs);
  }
};

TEST_F(LoginFlowTest, acceptedLoginReplacesSessionAndIsRemembered) {
  EXPECT_EQ(attempt(u"demo"_qs, u"demo1234"_qs), LoginOutcome::Accepted);
  EXPECT_FALSE(state.session.isEmpty());
  EXPECT_NE(state.session, u"old token"_qs);
  EXPECT_EQ(state.userName, u"demo"_qs);
  EXPECT_EQ(settings.rememberedUser(), u"demo"_qs);
  EXPECT_EQ(journal, Journal());
}

TEST_F(LoginFlowTest, passwordIsWrittenNowhere) {
  ASSERT_EQ(attempt(u"demo"_qs, u"demo1234"_qs), LoginOutcome::Accepted);
  shutDown(state, stores, progress, runner);
  { const Settings given = std::move(settings); }
  int files = 0;
  QDirIterator all(folder.path(), QDir::Files, QDirIterator::Subdirectories);
  while (all.hasNext()) {
    QFile file(all.next());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_FALSE(file.readAll().contains("demo1234")) << file.fileName().toStdString();
    ++files;
  }
  EXPECT_GT(files, 0) << "the user name is remembered";
}

TEST_F(LoginFlowTest, acceptanceWithoutTokenClosesTheDialogAndStoresNothing) {
  setFault(FaultKind::Code, u"sessionStart"_qs, 0);
  EXPECT_EQ(attempt(u"demo"_qs, u"demo1234"_qs), LoginOutcome::Accepted);
  expectNothingStored();
  EXPECT_EQ(journal, Journal());
}

TEST_F(LoginFlowTest, emptyFieldsAreLeftToTheGateway) {
  EXPECT_EQ(attempt({}, {}), LoginOutcome::Refused);
  EXPECT_THAT(simulator.calledOperations(), ElementsAre(u"locator"_qs, u"sessionStart"_qs));
  EXPECT_THAT(journal,
              ElementsAre(u"message 0x10 0 Invalid Username or Password. Passwords are case sensitive"_qs));
}

struct Refusal {
  const char* name;
  FaultKind kind;
  int number;
  QString message;
};

void PrintTo(const Refusal& refusal, std::ostream* out) {
  *out << refusal.name;
}

class LoginRefusal : public LoginFlowTest, public testing::WithParamInterface<Refusal> {};

TEST_P(LoginRefusal, isShownAndStoresNothing) {
  setFault(GetParam().kind, u"sessionStart"_qs, GetParam().number, u"reason"_qs);
  EXPECT_EQ(attempt(u"demo"_qs, u"demo1234"_qs), LoginOutcome::Refused);
  EXPECT_THAT(journal, ElementsAre(u"message 0x10 0 "_qs + GetParam().message));
  expectNothingStored();
}

const QString unreachable =
    u"Could not connect to the Parlexo gateway server.\r\n\r\nPlease make sure you have internet "
    u"connectivity, "
    u"your firewall allows gateway connection or try again later."_qs;

INSTANTIATE_TEST_SUITE_P(
    Faults, LoginRefusal,
    testing::Values(
        Refusal{"wrong password", FaultKind::Code, 4,
                u"Invalid Username or Password. Passwords are case sensitive"_qs},
        Refusal{"code 12", FaultKind::Code, 12, u"An error occured while logging on. Error code: 12"_qs},
        Refusal{"code 7", FaultKind::Code, 7, u"An error occured while logging on. Error code: 7"_qs},
        Refusal{"negative code", FaultKind::Code, -1,
                u"An error occured while logging on. Error code: -1"_qs},
        Refusal{"cut", FaultKind::Cut, 0, unreachable}, Refusal{"closed", FaultKind::Close, 0, unreachable},
        Refusal{"HTTP error", FaultKind::HttpError, 0, unreachable},
        Refusal{"fault", FaultKind::SoapFault, 0, unreachable}));

}  // namespace
}  // namespace parlexo
