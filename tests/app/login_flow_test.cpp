#include "app/core/login_flow.h"

#include <QDirIterator>
#include <gmock/gmock.h>

#include "app/core/shut_down.h"
#include "tests/app/run_fakes.h"
#include "tests/base/file_bytes.h"
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
    EXPECT_FALSE(readBytes(all.next()).contains("demo1234")) << all.filePath().toStdString();
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

TEST_F(LoginFlowTest, refusalIsShownAndStoresNothing) {
  const struct {
    FaultKind kind;
    int number;
    QString message;
  } refusals[] = {
      {FaultKind::Code, 4, u"message 0x10 0 Invalid Username or Password. Passwords are case sensitive"_qs},
      {FaultKind::Code, 12, u"message 0x10 0 An error occured while logging on. Error code: 12"_qs},
      {FaultKind::Code, -1, u"message 0x10 0 An error occured while logging on. Error code: -1"_qs},
      {FaultKind::Cut, 0, unreachableMessage},
      {FaultKind::HttpError, 0, unreachableMessage},
      {FaultKind::SoapFault, 0, unreachableMessage},
  };
  for (const auto& [kind, number, message] : refusals) {
    simulator.clearFaults();
    journal.clear();
    setFault(kind, u"sessionStart"_qs, number, u"reason"_qs);
    EXPECT_EQ(attempt(u"demo"_qs, u"demo1234"_qs), LoginOutcome::Refused);
    EXPECT_THAT(journal, ElementsAre(message));
    expectNothingStored();
  }
}

}  // namespace
}  // namespace parlexo
