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

/// Imports contacts from a delimited text file or a workbook: previews the file, lets the user change how it
/// is read, and runs the import. Accepted once an import has run, even if it was cancelled.
class CImportContactsDlg : public GradientDialog {
  Q_OBJECT

 public:
  /// The contacts are added to `selectedGroup`, unless it is empty. The objects that `services` refers to
  /// must outlive the dialog.
  CImportContactsDlg(const AddressBookServices& services, const QString& selectedGroup,
                     QWidget* parent = nullptr);

  /// Loads and previews a file, like "Browse".
  void openFile(const QString& path);
  /// Runs the import with the current settings and shows a summary.
  void startImport();
  /// The names of the contacts that were added or updated.
  [[nodiscard]] const QStringList& importedNames() const { return importedNames_; }

  /// Cancels a running import at its next row; otherwise closes the dialog.
  void reject() override;

 private:
  class ImportDialogUser;

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
  void validateRows();
  void showProblem();
  [[nodiscard]] ImportPlan plan() const;
  [[nodiscard]] QString currentProblem() const;
  void setImporting(bool importing);
  /// Updates the progress bar and processes events. Returns false if the user has cancelled.
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
  int headingRow_ = 0;  ///< row of the sheet; used if headings_ is checked
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
