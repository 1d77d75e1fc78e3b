// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QGroupBox>
#include <QString>

#include "account/core/account_services.h"

class QLineEdit;
class QVBoxLayout;

namespace parlexo {

/// Lets the user choose a folder, beginning at `start`; empty when none was chosen. Replaced in tests.
using FolderChooser = std::function<QString(QWidget* parent, const QString& prompt, const QString& start)>;

/// The system's dialog for choosing a folder.
[[nodiscard]] QString chooseFolder(QWidget* parent, const QString& prompt, const QString& start);

/// The part of the settings page for the folders of contacts and templates. A folder that the user chooses
/// is remembered at once and used from the next start on.
class StorageFoldersPanel final : public QGroupBox {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the panel.
  StorageFoldersPanel(const AccountServices& services, FolderChooser chooser, QWidget* parent = nullptr);

 private:
  /// One of the two folders; `what` is its name in the texts.
  struct Folder {
    QString what;
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
