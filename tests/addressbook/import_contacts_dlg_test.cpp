// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/import_contacts_dlg.h"

#include <QTableWidget>

#include "addressbook/screens/import_question_dlg.h"
#include "addressbook/screens/import_summary_dlg.h"
#include "tests/addressbook/disk_book.h"
#include "tests/support/file_bytes.h"
#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

/// The import dialog. `onDialog` answers the dialogs that it opens.
struct ImportContactsDlgTest : DiskBook {
  ImportContactsDlgTest() {
    EXPECT_TRUE(book_.createGroup("Team"));
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
      auto* top = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (top && top != &dialog_ && onDialog) onDialog(*top);
    });
    timer_.start(1);
    dialog_.open();
  }

  QString write(const QByteArray& text) { return writeBytes(folder_.filePath("people.csv"), text); }
  QTableWidget& preview() { return child<QTableWidget>(dialog_, "preview"); }
  QString cell(int row, int column) {
    const auto* item = preview().item(row - 1, column);
    return item ? item->text() : QString();
  }
  QComboBox& choice(int column) {
    return *dialog_.findChild<QComboBox*>(QString("column%1Choice").arg(column));
  }
  QString problem() { return child<QLabel>(dialog_, "problemLine").text(); }

  CImportContactsDlg dialog_{services(), "Team"};
  std::function<void(QDialog&)> onDialog;
  QTimer timer_;
};

TEST_F(ImportContactsDlgTest, previewShowsTheRowsAsTheyAreImported) {
  dialog_.openFile(write("Name;Mobile;City\nAnn;0412 345 678;Z\xFCrich\nBob;+61491570157;\n"));
  EXPECT_EQ(choice(2).currentText(), "Phone Number");
  EXPECT_EQ(cell(1, 3), QString::fromUtf8("Zürich"));
  EXPECT_EQ(cell(1, 0), "Refused: The number 0412345678 has no country code.");
  QTest::keyClicks(dialog_.findChild<QLineEdit*>("countryCode"), "61");
  EXPECT_EQ(cell(1, 0), "Ann [+61412345678]");

  choice(3).setCurrentText("Name");
  EXPECT_EQ(choice(1).currentText(), "(not imported)");
  EXPECT_EQ(cell(1, 0), QString::fromUtf8("Zürich [+61412345678]"));

  auto* delimiter = dialog_.findChild<QComboBox*>("delimiterChoice");
  EXPECT_EQ(delimiter->currentText(), "Semicolon");
  delimiter->setCurrentText("Comma");
  EXPECT_EQ(preview().columnCount(), 2);
  EXPECT_THAT(problem().toStdString(), HasSubstr("Choose the column"));
  dialog_.startImport();
  EXPECT_EQ(notifier_.popLines(), QStringList("16 " + problem()));
}

TEST_F(ImportContactsDlgTest, aBrokenFileIsReportedAndNotImported) {
  dialog_.openFile(write("Name,Phone\n\"Ann,+61491570156\n"));
  EXPECT_THAT(problem().toStdString(), HasSubstr("Line 2"));
  EXPECT_EQ(preview().columnCount(), 0);
  EXPECT_FALSE(dialog_.findChild<QAbstractButton*>("importButton")->isEnabled());

  // An error after the preview prevents the whole import.
  QByteArray late = "Name,Phone\n";
  for (int row = 0; row < 50; ++row) late += "A" + QByteArray::number(row) + ",+61491570156\n";
  dialog_.openFile(write(late + "\"never closed"));
  EXPECT_EQ(problem(), QString());
  click(dialog_, "importButton");
  EXPECT_THAT(notifier_.popLines().join(u'/').toStdString(), HasSubstr("Line 52"));
  EXPECT_TRUE(book_.contacts().empty());
}

TEST_F(ImportContactsDlgTest, importsAndSumsUp) {
  EXPECT_TRUE(book_.saveContact({"Ann", "+61491570150", "Y", "N", {}, {}, {}}));
  QString question;
  QString summary;
  const QString refusedFile = folder_.filePath("refused.csv");
  onDialog = [&](QDialog& top) {
    if (auto* asking = qobject_cast<CImportQuestionDlg*>(&top)) {
      question = asking->findChild<QLabel*>("question")->text();
      asking->findChild<QCheckBox*>("forAllBox")->setChecked(true);
      click(*asking, "yesButton");
    } else if (auto* ended = qobject_cast<CImportSummaryDlg*>(&top)) {
      summary = ended->findChild<QLabel*>("summary")->text();
      EXPECT_TRUE(ended->saveRefusedTo(refusedFile));
      click(*ended, "okButton");
    }
  };
  dialog_.openFile(write("Name,Phone\nAnn,+61491570156\nBob,+61491570157\nAnn,+61491570158\nCid,\n"));
  dialog_.findChild<QCheckBox*>("supportsMediaBox")->setChecked(true);
  click(dialog_, "importButton");
  EXPECT_THAT(question.toStdString(), StartsWith("A contact with the name \"Ann\" already exists."));
  EXPECT_EQ(summary, "The import is complete.\n\nImported: 1\nUpdated: 2\nSkipped: 0\nRefused: 1");
  EXPECT_EQ(book_.findContact("Bob")->supportsMedia, "Y");
  EXPECT_EQ(book_.findContact("Ann")->supportsMedia, "N");
  EXPECT_EQ(book_.findGroup("Team")->members().size(), 2u);
  EXPECT_EQ(dialog_.result(), QDialog::Accepted);
  EXPECT_EQ(dialog_.importedNames(), QStringList({"Ann", "Bob", "Ann"}));
  EXPECT_EQ(readBytes(refusedFile), "\xEF\xBB\xBFName,Phone,Reason\r\nCid,,The row has no number.\r\n");
}

TEST_F(ImportContactsDlgTest, cancelEndsTheImportAtItsNextRow) {
  QByteArray rows = "Name,Phone\n";
  for (int row = 0; row < 20'000; ++row) rows += "A" + QByteArray::number(row) + ",+61491570156\n";
  dialog_.openFile(write(rows));
  QString summary;
  onDialog = [&](QDialog& top) {
    summary = top.findChild<QLabel*>("summary")->text();
    top.accept();
  };
  QTimer::singleShot(0, &dialog_, [&] {
    EXPECT_THAT(dialog_.findChild<QLabel*>("progressText")->text().toStdString(),
                AllOf(StartsWith("Importing contacts ("), EndsWith(" / 20000). Please wait...")));
    click(dialog_, "cancelButton");
  });
  dialog_.startImport();
  EXPECT_THAT(summary.toStdString(), StartsWith("The import was cancelled."));
  EXPECT_LT(book_.contacts().size(), 20'000u);
  EXPECT_EQ(book_.contacts().size(), book_.findGroup("Team")->members().size());
}

}  // namespace
}  // namespace parlexo::test
