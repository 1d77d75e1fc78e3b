#include "account/core/password_change.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/account/account_rig.h"

namespace parlexo {
namespace {

using simulator::FaultKind;
using testing::ElementsAre;

constexpr char oldLength[] = "No old password has been provided that is between 6 and 10 characters.";
constexpr char newLength[] = "No new password has been provided that is between 6 and 10 characters.";
constexpr char letters[] = "Password must contain some characters and some numbers.";
constexpr char retypedLength[] =
    "No new retype password has been provided that is between 6 and 10 characters.";
constexpr char mismatch[] =
    "The new password and retyped password does not match. Please enter the passwords match.";

class PasswordChange : public testing::Test, protected AccountRig {
 protected:
  std::optional<PasswordField> change(const PasswordDraft& draft) {
    return PasswordChangeFlow(services()).change(draft);
  }
};

TEST_F(PasswordChange, brokenRulesAreToldInTheirOrderBeforeAnyCall) {
  const struct {
    PasswordDraft draft;
    const char* text;
    PasswordField field;
  } cases[] = {
      {{"abcd1", "short", "x"}, oldLength, PasswordField::Old},
      {{"abcdefghij1", "abc123", "abc123"}, oldLength, PasswordField::Old},
      {{"abcdef", "abcd1", "abcdef"}, newLength, PasswordField::New},
      {{"abcdef", "abcdef", "abcdef"}, letters, PasswordField::New},
      {{"abcdef", "123456", "123456"}, letters, PasswordField::New},
      {{"abcdef", "abc123", "abcdefghijk"}, letters, PasswordField::Retyped},
      {{"abcdef", "äöüß12", "äöüß12"}, letters, PasswordField::New},
      {{"abcdef", "abcdef", "abc12"}, retypedLength, PasswordField::Retyped},
      {{"abcdef", "abcdef", "abcdefghij1"}, retypedLength, PasswordField::Retyped},
      {{"abcdef", "abc123", "Abc123"}, mismatch, PasswordField::Retyped},
  };
  for (const auto& [draft, text, field] : cases) {
    EXPECT_EQ(change(draft), field);
    EXPECT_EQ(notifier.shown.at(0).style, message_style::stop);
    EXPECT_THAT(notifier.takeTexts(), ElementsAre(text)) << qPrintable(draft.retyped);
  }
  EXPECT_TRUE(operations().isEmpty());
  for (const char* good : {"abcde1", "abcdefghi1"})
    EXPECT_FALSE(problemWith({"abcdef", good, good}).has_value()) << good;
}

TEST_F(PasswordChange, goodOneReachesTheGateway) {
  EXPECT_EQ(change({"demo1234", "newer567", "newer567"}), std::nullopt);
  EXPECT_TRUE(simulator.hasPassword("demo", "newer567"));
  EXPECT_THAT(journal, ElementsAre("(box)", "(no box)", "Your password has successfully been updated!"));
  EXPECT_EQ(notifier.shown.at(0).style, message_style::information);
}

TEST_F(PasswordChange, everyFailureNamesItsCodeAndKeepsTheOldOne) {
  const auto failsWith = [this](const char* oldPassword, const char* text) {
    journal.clear();
    EXPECT_EQ(change({oldPassword, "newer567", "newer567"}), PasswordField::Old);
    EXPECT_THAT(journal, ElementsAre("(box)", "(no box)", text));
    EXPECT_EQ(notifier.shown.back().style, message_style::stop);
    EXPECT_TRUE(simulator.hasPassword("demo", "demo1234"));
  };
  failsWith("wrong123", "Could not successfully set the new password. Error: 4");
  misbehave(FaultKind::HttpError, "setAccountPassword");
  failsWith("demo1234", "Could not successfully set the new password. Error: 0");
  simulator.clearFaults();
  simulator.expireSessions();
  failsWith("demo1234", "Could not successfully set the new password. Error: 7");
}

}  // namespace
}  // namespace parlexo
