#include "account/core/email_preferences.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/account/account_rig.h"

namespace parlexo {
namespace {

using simulator::FaultKind;
using testing::ElementsAre;

class EmailPreferencesTest : public testing::Test, protected AccountRig {
 protected:
  EmailPreferencesFlow flow{services()};
};

TEST_F(EmailPreferencesTest, everySettingArrivesInItsOwnPlaceAndComesBack) {
  // Each flag alone: the two that change places between loading and saving would go unnoticed together.
  for (int flag = 0; flag < 4; ++flag) {
    EmailPreferences wanted{.isEnabled = true,
                            .identityCode = QStringLiteral("Zoë & <1>"),
                            .splitsLongSms = flag == 0,
                            .stopsAtDoubleLine = flag == 1,
                            .stopsAtEndKeyword = flag == 2,
                            .isFiltered = flag == 3,
                            .addresses = {"a@b.example", "\"odd one\"@c.example", "d@e.example"}};
    EXPECT_EQ(flow.save(wanted), EmailSaveOutcome::Saved);
    EXPECT_EQ(flow.load(), wanted) << flag;
    const simulator::EmailPreferences held = simulator.emailPreferences("demo");
    EXPECT_EQ(held.splitLong, flag == 0);
    EXPECT_EQ(held.endAtDoubleLine, flag == 1);
    EXPECT_EQ(held.endAtKeyword, flag == 2);
    EXPECT_EQ(held.filter, flag == 3);
    EXPECT_EQ(held.address3, "d@e.example");
  }
  EXPECT_THAT(notifier.takeTexts(), testing::Each("Saved email messaging preferences"));
}

TEST_F(EmailPreferencesTest, failedSaveIsToldByWhatFailed) {
  const auto saveFails = [this](EmailSaveOutcome outcome, const char* text) {
    journal.clear();
    EXPECT_EQ(flow.save({.isEnabled = true}), outcome);
    EXPECT_THAT(journal, ElementsAre("(box)", "(no box)", text));
    EXPECT_EQ(notifier.shown.back().style, message_style::stop);
  };
  constexpr char other[] = "An error occured while trying to save your email messaging preferences";
  saveFails(EmailSaveOutcome::Incomplete,
            "Bad email messaging settings provided. You must provide an email code (and email addresses to "
            "filter if email filtering is enabled)");
  misbehave(FaultKind::Code, "editEmailMessaging", 12);
  saveFails(EmailSaveOutcome::Failed, other);
  simulator.clearFaults();
  misbehave(FaultKind::SoapFault, "editEmailMessaging");
  saveFails(EmailSaveOutcome::Failed, other);
  simulator.stop();
  saveFails(EmailSaveOutcome::Failed, other);
}

}  // namespace
}  // namespace parlexo
