// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QGroupBox>
#include <QString>

#include "account/core/account_services.h"

class QLineEdit;
class QVBoxLayout;

namespace parlexo {

/// Asks the user for a folder, starting at `start`. Returns an empty string if the user cancelled.
/// Replaceable for tests.
using FolderChooser = std::function<QString(QWidget* parent, const QString& prompt, const QString& start)>;

/// Asks for a folder with the system's dialog.
[[nodiscard]] QString chooseFolder(QWidget* parent, const QString& prompt, const QString& start);

/// The section of the settings page for the contacts and templates folders. A new folder is saved to the
/// settings immediately and used from the next start on.
class StorageFoldersPanel final : public QGroupBox {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the panel.
  StorageFoldersPanel(const AccountServices& services, FolderChooser chooser, QWidget* parent = nullptr);

 private:
  struct Folder {
    QString objectName;  ///< prefix of the object names of its controls
    QString content;     ///< translated, for messages
    QString label;
    std::function<QString()> read;
    std::function<void(const QString&)> write;
  };

  void addFolder(QVBoxLayout& column, const Folder& folder);
  void choose(const Folder& folder, QLineEdit& path);

  AccountServices services_;
  FolderChooser chooser_;
};

}  // namespace parlexo
