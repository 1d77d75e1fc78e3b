// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/load_template_dlg.h"

#include <QListWidget>

#include "tests/support/file_bytes.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

/// The dialog with three templates, one of them malformed.
struct LoadTemplateDlg : testing::Test {
  LoadTemplateDlg() {
    if (!folder.save("good", {"Ann [+1]", "Hi"}) || !folder.save("other", {"", "Ho"})) qFatal("no templates");
    writeBytes(directory.filePath("broken.tpl"), "Hi");
    dialog.emplace(folder, notifier);
    showActive(*dialog);
  }

  void press(const char* name) { click(*dialog, name); }
  [[nodiscard]] QListWidget& list() const { return *dialog->findChild<QListWidget*>(); }
  void pick(const char* name) { list().setCurrentItem(list().findItems(name, Qt::MatchExactly).at(0)); }

  QTemporaryDir directory;
  TemplateFolder folder{directory.path()};
  RecordingNotifier notifier;
  std::optional<CLoadTemplateDlg> dialog;
};

TEST_F(LoadTemplateDlg, asksForASelectionFirst) {
  press("loadButton");
  press("deleteButton");
  EXPECT_THAT(notifier.popLines(),
              ElementsAre("48 Please select a Template to load", "48 Please select a Template to delete"));
  list().setFocus();
  QTest::keyClick(&list(), Qt::Key_Down);
  EXPECT_EQ(list().currentRow(), 0) << "the first Down leads to the first entry";
}

TEST_F(LoadTemplateDlg, loadsValidTemplatesAfterYes) {
  notifier.answers = {MessageResult::No, MessageResult::Yes};
  pick("good");
  press("loadButton");
  EXPECT_THAT(notifier.popTexts(),
              ElementsAre("Are you sure you want to load the Template called: \"good\"?"));
  EXPECT_TRUE(dialog->isVisible());
  pick("broken");
  press("loadButton");
  EXPECT_THAT(notifier.popTexts(),
              ElementsAre("Are you sure you want to load the Template called: \"broken\"?",
                          "Something wrong with the Template as it could not be loaded"));
  EXPECT_TRUE(dialog->isVisible());
  notifier.answers = {MessageResult::Yes};
  pick("good");
  press("loadButton");
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(dialog->content(), (Template{"Ann [+1]", "Hi"}));
}

TEST_F(LoadTemplateDlg, deletesAfterYesAndClearsTheSelection) {
  notifier.answers = {MessageResult::No, MessageResult::Yes};
  pick("good");
  press("deleteButton");
  EXPECT_THAT(folder.names(), ElementsAre("broken", "good", "other"));
  list().setFocus();
  QTest::keyClick(&list(), Qt::Key_Delete);
  EXPECT_THAT(folder.names(), ElementsAre("broken", "other"));
  EXPECT_EQ(list().count(), 2);
  EXPECT_TRUE(list().selectedItems().isEmpty());
  press("deleteButton");
  EXPECT_THAT(notifier.popTexts(),
              ElementsAre("Are you sure you want to delete the Template called: \"good\"?",
                          "Are you sure you want to delete the Template called: \"good\"?",
                          "Please select a Template to delete"));
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(LoadTemplateDlg, failedDeletionIsReportedAndKeepsTheEntry) {
  pick("other");
  ASSERT_TRUE(folder.remove("other") && QDir(directory.path()).mkdir("other.tpl"));
  notifier.answers = {MessageResult::Yes};
  press("deleteButton");
  EXPECT_THAT(notifier.popTexts(),
              ElementsAre("Are you sure you want to delete the Template called: \"other\"?",
                          "Could not delete your template!!"));
  EXPECT_EQ(list().count(), 3);
}

}  // namespace
}  // namespace parlexo::test
