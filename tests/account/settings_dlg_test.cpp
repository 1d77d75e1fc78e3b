// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/settings_dlg.h"

#include "account/core/email_preferences.h"
#include "tests/account/account_rig.h"
#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

struct SettingsPage : testing::Test, AccountRig {
  void open() {
    page_ = std::make_unique<CSettingsDlg>(services(),
                                           [this](QWidget*, const QString& prompt, const QString& start) {
                                             asked_ << prompt << start;
                                             return chosen_;
                                           });
    showActive(*page_);
  }
  QLineEdit& edit(const char* name) { return child<QLineEdit>(*page_, name); }
  QCheckBox& box(const char* name) { return child<QCheckBox>(*page_, name); }
  void press(const char* name) { click(*page_, name); }
  [[nodiscard]] QStringList enabledControls() const {
    QStringList names;
    for (const auto* control : child(*page_, "emailPanel").findChildren<QWidget*>())
      if (control->isEnabled() && control->focusPolicy() != Qt::NoFocus) names << control->objectName();
    return names;
  }

  std::unique_ptr<CSettingsDlg> page_;
  QStringList asked_;
  QString chosen_;
};

TEST_F(SettingsPage, onlyControlsWithAnEffectAreEnabled) {
  open();
  EXPECT_EQ(enabledControls(), QStringList({"emailEnabled", "saveChangesButton"}));
  box("emailEnabled").click();
  EXPECT_EQ(enabledControls(),
            QStringList({"emailEnabled", "identityCode", "splitLongSms", "stopAtDoubleLine",
                         "stopAtEndKeyword", "emailFilter", "saveChangesButton"}));
  box("emailFilter").click();
  EXPECT_TRUE(edit("emailAddress3").isEnabled());
  box("emailEnabled").click();
  EXPECT_EQ(enabledControls(), QStringList({"emailEnabled", "saveChangesButton"}));
}

TEST_F(SettingsPage, incompletePreferencesFocusTheMissingField) {
  open();
  box("emailEnabled").click();
  press("saveChangesButton");
  EXPECT_TRUE(edit("identityCode").hasFocus());
  QTest::keyClicks(&edit("identityCode"), "x1");
  box("emailFilter").click();
  QTest::keyClick(&edit("identityCode"), Qt::Key_Return);
  EXPECT_TRUE(edit("emailAddress1").hasFocus());
  edit("emailAddress1").setText(u"日本@a.example"_s);
  press("saveChangesButton");
  EXPECT_EQ(notifier.shown.back().style, message_style::information);
  EXPECT_EQ(edit("emailAddress1").text(), u"??@a.example"_s) << "as the gateway has it";
  EXPECT_EQ(simulator.emailPreferences("demo").address1, u"??@a.example"_s);
}

TEST_F(SettingsPage, refreshLoadsMissingPreferencesButKeepsUserInput) {
  ASSERT_EQ(saveEmailPreferences(services(), {.identityCode = u"held"_s}), EmailSaveOutcome::Saved);
  notifier.shown.clear();
  for (const auto& [kind, code] : {std::pair(FaultKind::Code, 7), {FaultKind::HttpError, 0}}) {
    simulator.clearFaults();
    setFault(kind, "getEmailMessaging", code);
    open();
    EXPECT_EQ(edit("identityCode").text(), QString());
  }
  EXPECT_THAT(notifier.popTexts(), IsEmpty());
  simulator.clearFaults();
  page_->refresh();
  EXPECT_EQ(edit("identityCode").text(), u"held"_s);
  edit("identityCode").setText(u"typed"_s);
  page_->refresh();
  EXPECT_EQ(edit("identityCode").text(), u"typed"_s);
  page_->hide();
  state.userName = u"other"_s;
  page_->show();
  EXPECT_TRUE(QTest::qWaitFor([this] { return edit("identityCode").text() == u"held"_s; }))
      << "what another user has typed does not stay";
}

TEST_F(SettingsPage, passwordsStayAfterAFailureAndAreWipedAfterSuccess) {
  open();
  QTest::keyClicks(&edit("oldPassword"), "wrong123");
  for (const char* field : {"newPassword", "retypedPassword"}) {
    EXPECT_EQ(edit(field).echoMode(), QLineEdit::Password);
    QTest::keyClicks(&edit(field), "newer567");
  }
  QTest::keyClick(&edit("retypedPassword"), Qt::Key_Return);
  EXPECT_EQ(edit("newPassword").text(), u"newer567"_s);
  EXPECT_TRUE(edit("oldPassword").hasFocus());
  QTest::keyClicks(&edit("oldPassword"), "demo1234");  // replaces the selected wrong one
  press("changePasswordButton");
  EXPECT_TRUE(simulator.hasPassword("demo", "newer567"));
  for (const char* field : {"oldPassword", "newPassword", "retypedPassword"}) {
    edit(field).undo();
    EXPECT_EQ(edit(field).text(), QString()) << field;
  }
}

TEST_F(SettingsPage, chosenFolderIsStoredWithAWarning) {
  open();
  const QString before = settings.templatesFolder();
  press("templatesBrowseButton");
  EXPECT_EQ(settings.templatesFolder(), before);
  EXPECT_THAT(notifier.popTexts(), IsEmpty()) << "cancelled";
  chosen_ = folder.filePath("shared");
  for (const char* button : {"templatesBrowseButton", "contactsBrowseButton"}) press(button);
  EXPECT_EQ(edit("contactsFolder").text(), chosen_);
  EXPECT_EQ(Settings(folder.path()).contactsFolder(), chosen_);
  EXPECT_EQ(Settings(folder.path()).templatesFolder(), chosen_);
  EXPECT_EQ(asked_.value(1), before) << "the search begins there";
  EXPECT_EQ(notifier.shown.at(1).style, message_style::exclamation);
  EXPECT_TRUE(notifier.shown.at(1).text.contains(u"Contacts. You must exit application"_s));
}

}  // namespace
}  // namespace parlexo::test
