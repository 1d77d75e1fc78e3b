// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "addressbook/core/addressbook_services.h"
#include "addressbook/core/import_row.h"
#include "addressbook/core/import_source.h"
#include "ui/gradient_page.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;

namespace parlexo {

class ImportPreview;
class PictureButton;

/// Imports contacts from a delimited text file or a workbook: shows how the file will be read, lets the user
/// change all of that, and imports. The dialog is accepted when an import has run, to its end or not.
class CImportContactsDlg : public GradientDialog {
  Q_OBJECT

 public:
  /// `selectedGroup` is the group that the contacts join; without one they only come into the address book.
  /// `services` must refer to objects that outlive the dialog.
  CImportContactsDlg(const AddressBookServices& services, const QString& selectedGroup,
                     QWidget* parent = nullptr);

  /// Shows the file, as "Browse" does.
  void openFile(const QString& path);
  /// Imports by what is chosen, and tells what became of it.
  void startImport();
  /// The contacts that came into the address book or were updated there.
  [[nodiscard]] const QStringList& importedNames() const { return importedNames_; }

  /// Ends an import that is running, at its next row; else closes the dialog.
  void reject() override;

 private:
  class Running;

  void createFileControls();
  void createPlanControls();
  void createBottom();
  void createLayout(const QString& group);
  [[nodiscard]] QComboBox* createChoice(const QString& objectName, const QString& caption, QBoxLayout& row);

  void browse();
  void changeFormat();
  void showFormat();
  void suggestPlan();
  void showHeadingRow();
  void showPreview();
  void judgeRows();
  void showProblem();
  [[nodiscard]] ImportPlan plan() const;
  [[nodiscard]] QString problemOfPlan() const;
  void setImporting(bool importing);
  /// Shows how far the import has come. False when the user has cancelled.
  [[nodiscard]] bool showProgress(int done, int total);

  AddressBookServices services_;
  QString group_;
  ImportSource source_;
  QLineEdit* file_;
  PictureButton* browse_;
  QWidget* workbookRow_;
  QWidget* textRow_;
  QComboBox* sheet_;
  QComboBox* encoding_;
  QComboBox* delimiter_;
  QCheckBox* headings_;
  int headingRow_ = 0;  ///< of the sheet, where headings_ is checked
  ImportPreview* preview_;
  QLabel* problem_;
  QLineEdit* countryCode_;
  QCheckBox* supportsSms_;
  QCheckBox* supportsMedia_;
  QWidget* options_;
  QLabel* progressText_;
  QProgressBar* progressBar_;
  PictureButton* import_;
  QStringList importedNames_;
  bool isImporting_ = false;
  bool isCancelled_ = false;
};

}  // namespace parlexo
