// SPDX-License-Identifier: GPL-3.0-or-later

#include "account/core/account_history.h"
#include "account/core/email_preferences.h"
#include "account/core/news.h"
#include "account/core/password_change.h"
#include "connection/client/background_gateway.h"
#include "tests/account/account_rig.h"
#include "tests/support/stepping_worker.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

TEST(HistoryText, hasARecordForEveryTerminatedLine) {
  const Cases<const char*, std::vector<HistoryRecord>> cases = {
      {"", {}},
      {"1\td\t5\tno end", {}},
      {"1\td\t5\tends\r\n2\td\t5\tdoes not", {{"1", "d", "5", "ends"}}},
      {"\r\n1\td\t5\ta\r\n\r\n2\td\t5\tb\r\n", {{"1", "d", "5", "a"}, {"2", "d", "5", "b"}}},
      {"1\r\n2\td\r\n3\t\t7\r\n", {{"1", "", "", ""}, {"2", "d", "", ""}, {"3", "", "7", ""}}},
      {"1\td\t5\ta\tb\r\n", {{"1", "d", "5", "a\tb"}}},
      {"1\td\t5\ta\rb\nc\r\r\n", {{"1", "d", "5", "a\rb\nc\r"}}},
      {" 1 \td\t+05.0\t a \r\n", {{" 1 ", "d", "+05.0", " a "}}},
  };
  for (const auto& [text, records] : cases) EXPECT_EQ(parseHistory(text), records) << text;
}

TEST(HistoryDate, isOrderedByTimeInTheUsualForm) {
  const QStringList inOrder = {u"31/12/2025 23:59:59"_s, u"01/01/2026 00:00:00"_s, u"01/01/2026 00:00:01"_s,
                               u"01/01/2026 00:01:00"_s, u"01/01/2026 01:00:00"_s, u"02/01/2026 00:00:00"_s,
                               u"01/02/2026 00:00:00"_s};
  for (int i = 1; i < inOrder.size(); ++i) EXPECT_LT(toSortKey(inOrder[i - 1]), toSortKey(inOrder[i])) << i;
  EXPECT_TRUE(toSortKey(inOrder[0]));
  for (const auto& other : {u"2026-01-01"_s, u"1/1/2026 10:00:00"_s, u"01/01/2026 10:00:0x"_s, QString()})
    EXPECT_FALSE(toSortKey(other)) << other.toStdString();
}

class AccountHistory : public testing::Test, protected AccountRig {};

TEST_F(AccountHistory, isReadFromTheGateway) {
  const QDateTime date({2026, 1, 2}, {3, 4, 5}, Qt::UTC);
  simulator.rememberTransaction("demo", -0.05, date, u"SMS <to> Zoë & 1 €"_s);
  simulator.rememberTransaction("demo", 100, date.addDays(1), QString());
  const auto records = fetchAccountHistory(services());
  ASSERT_TRUE(records);
  EXPECT_THAT(*records,
              ElementsAre(HistoryRecord{"1", "02/01/2026 03:04:05", "-0.05", u"SMS <to> Zoë & 1 €"_s},
                          HistoryRecord{"2", "03/01/2026 03:04:05", "100.00", ""}));
  EXPECT_THAT(journal, ElementsAre("(box)", "(no box)"));
}

TEST_F(AccountHistory, everyFailureShowsTheSameMessage) {
  const auto failsWith = [this](const char* line) {
    journal.clear();
    EXPECT_FALSE(fetchAccountHistory(services()));
    EXPECT_THAT(journal, ElementsAre("(box)", "(no box)", line));
  };
  setFault(FaultKind::Code, "getAccountHistory", 12);
  failsWith("16 Could not successfully obtain history details. Error: 12");
  simulator.clearFaults();
  setFault(FaultKind::Cut, "getAccountHistory");
  failsWith("16 Could not successfully obtain history details. Error: 0");
}

struct EmailPreferencesTest : testing::Test, AccountRig {};

TEST_F(EmailPreferencesTest, everySettingRoundTrips) {
  // One flag at a time: two swapped flags would otherwise go unnoticed.
  for (int flag = 0; flag < 4; ++flag) {
    EmailPreferences wanted{.isEnabled = true,
                            .identityCode = u"Zoë & <1>"_s,
                            .splitsLongSms = flag == 0,
                            .stopsAtDoubleLine = flag == 1,
                            .stopsAtEndKeyword = flag == 2,
                            .isFiltered = flag == 3,
                            .addresses = {"a@b.example", "\"odd one\"@c.example", "d@e.example"}};
    EXPECT_EQ(saveEmailPreferences(services(), wanted), EmailSaveOutcome::Saved);
    EXPECT_EQ(fetchEmailPreferences(services()), wanted) << flag;
    const simulator::EmailPreferences held = simulator.emailPreferences("demo");
    EXPECT_EQ(held.splitLong, flag == 0);
    EXPECT_EQ(held.endAtDoubleLine, flag == 1);
    EXPECT_EQ(held.endAtKeyword, flag == 2);
    EXPECT_EQ(held.filter, flag == 3);
    EXPECT_EQ(held.address3, "d@e.example");
  }
  EXPECT_THAT(notifier.popTexts(), Each("Saved email messaging preferences"));
}

TEST_F(EmailPreferencesTest, failedSaveNamesItsCause) {
  const auto saveFails = [this](EmailSaveOutcome outcome, const char* line) {
    journal.clear();
    EXPECT_EQ(saveEmailPreferences(services(), {.isEnabled = true}), outcome);
    EXPECT_THAT(journal, ElementsAre("(box)", "(no box)", line));
  };
  constexpr char other[] = "16 An error occured while trying to save your email messaging preferences";
  saveFails(
      EmailSaveOutcome::Incomplete,
      "16 Bad email messaging settings provided. You must provide an email code (and email addresses to "
      "filter if email filtering is enabled)");
  setFault(FaultKind::Code, "editEmailMessaging", 12);
  saveFails(EmailSaveOutcome::Failed, other);
  simulator.stop();
  saveFails(EmailSaveOutcome::Failed, other);
}

class News : public testing::Test, protected AccountRig {};

TEST_F(News, needsNoSessionAndIsUnchanged) {
  const QString odd = u"<b>50 % off</b> & more\r\n\r\n€ ]]> caf\u00e9 \u0100 \U0001F600 \"quoted\""_s;
  simulator.setNews(odd);
  state.session.clear();
  auto* worker = new SteppingWorker;
  BackgroundQueue queue{std::unique_ptr<BackgroundWorker>(worker)};
  const BackgroundGateway background(state, queue);
  QObject window;
  QStringList shown;
  const auto fetch = [&] {
    fetchNews(background, window, [&](const QString& news) { shown << news; });
    worker->finish();
  };
  fetch();
  EXPECT_EQ(shown, QStringList(odd));
  setFault(FaultKind::Code, "getNews", 1);
  fetch();
  simulator.stop();
  fetch();
  EXPECT_EQ(shown.size(), 1) << "failures are silent";
}

// The news with its links in brackets.
std::string withMarkedLinks(const char* news) {
  QString text;
  for (const NewsPart& part : splitNews(QString::fromUtf8(news)))
    text += part.page.isEmpty() ? part.text : u"[%1]"_s.arg(part.text);
  return text.toStdString();
}

TEST(NewsParts, onlyPlainWebAddressesBecomeLinks) {
  const std::pair<const char*, const char*> cases[] = {
      {"", ""},
      {"See http://a.example/x?y=1#z, or HTTPS://b.example.",
       "See [http://a.example/x?y=1#z], or [HTTPS://b.example]."},
      {"(https://a.example/b_(c)) (https://a.example)", "([https://a.example/b_(c))] ([https://a.example])"},
      {"<a href=\"https://a.example/\">bank</a>", "<a href=\"[https://a.example/]\">bank</a>"},
      {"https://bank.example@evil.example/", "https://bank.example@evil.example/"},
      {"file:///etc/passwd javascript:alert(1) ftp://a.example mailto:a@b.example",
       "file:///etc/passwd javascript:alert(1) ftp://a.example mailto:a@b.example"},
      {"xhttp://a.example http:// http://[ https://%zz", "xhttp://a.example http:// http://[ https://%zz"},
      {"one\r\ntwo\rthree\nfour\x01\x7f\tfive", "one\ntwo\nthree\nfour\tfive"},
  };
  for (const auto& [news, expected] : cases) EXPECT_EQ(withMarkedLinks(news), expected);
}

constexpr char oldLength[] = "No old password has been provided that is between 6 and 10 characters.";
constexpr char newLength[] = "No new password has been provided that is between 6 and 10 characters.";
constexpr char letters[] = "Password must contain some characters and some numbers.";
constexpr char retypedLength[] =
    "No new retype password has been provided that is between 6 and 10 characters.";
constexpr char mismatch[] =
    "The new password and retyped password does not match. Please enter the passwords match.";

struct PasswordChange : testing::Test, AccountRig {
  std::optional<PasswordField> change(const PasswordDraft& draft) {
    return changePassword(services(), draft);
  }
};

TEST_F(PasswordChange, invalidInputIsReportedInOrderBeforeAnyCall) {
  const Cases<PasswordDraft, const char*, PasswordField> cases = {
      {{"abcd1", "short", "x"}, oldLength, PasswordField::Old},
      {{"abcdefghij1", "abc123", "abc123"}, oldLength, PasswordField::Old},
      {{"abcdef", "abcd1", "abcdef"}, newLength, PasswordField::New},
      {{"abcdef", "abcdef", "abcdef"}, letters, PasswordField::New},
      {{"abcdef", "123456", "123456"}, letters, PasswordField::New},
      {{"abcdef", "abc123", "abcdefghijk"}, letters, PasswordField::Retyped},
      {{"abcdef", "äöüß12", "äöüß12"}, letters, PasswordField::New},
      {{"abcdef", "abcdef", "abc12"}, retypedLength, PasswordField::Retyped},
      {{"abcdef", "abc123", "Abc123"}, mismatch, PasswordField::Retyped},
  };
  for (const auto& [draft, text, field] : cases) {
    EXPECT_EQ(change(draft), field);
    EXPECT_EQ(notifier.popLines(), QStringList(QString("16 ") + text)) << qPrintable(draft.retyped);
  }
  EXPECT_TRUE(operations().isEmpty());
  for (const char* good : {"abcde1", "abcdefghi1"})
    EXPECT_FALSE(validate({"abcdef", good, good}).has_value()) << good;
}

TEST_F(PasswordChange, validPasswordReachesTheGateway) {
  EXPECT_EQ(change({"demo1234", "newer567", "newer567"}), std::nullopt);
  EXPECT_TRUE(simulator.hasPassword("demo", "newer567"));
  EXPECT_THAT(journal, ElementsAre("(box)", "(no box)", "64 Your password has successfully been updated!"));
}

TEST_F(PasswordChange, everyFailureNamesItsCodeAndKeepsTheOldPassword) {
  const auto failsWith = [this](const char* oldPassword, const char* line) {
    journal.clear();
    EXPECT_EQ(change({oldPassword, "newer567", "newer567"}), PasswordField::Old);
    EXPECT_THAT(journal, ElementsAre("(box)", "(no box)", line));
    EXPECT_TRUE(simulator.hasPassword("demo", "demo1234"));
  };
  failsWith("wrong123", "16 Could not successfully set the new password. Error: 4");
  setFault(FaultKind::HttpError, "setAccountPassword");
  failsWith("demo1234", "16 Could not successfully set the new password. Error: 0");
}

}  // namespace
}  // namespace parlexo::test
