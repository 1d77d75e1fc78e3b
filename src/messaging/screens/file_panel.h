// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFutureWatcher>
#include <QString>
#include <QTimer>
#include <QWidget>

#include "messaging/screens/file_look.h"

class QLabel;
class QLineEdit;
class QMimeData;

namespace parlexo {

class Settings;

/// The file that a page sends: its path, the way to choose one, and a line that says what was chosen.
class FilePanel final : public QWidget {
  Q_OBJECT

 public:
  /// `label` stands before the path, with its mnemonic. `settings` remembers the folder of the last choice
  /// and must outlive the panel.
  FilePanel(const QString& label, Settings& settings, QWidget* parent = nullptr);

  [[nodiscard]] QWidget* pathEdit() const;
  /// The path that was typed or chosen; of an address of a file on this computer, the path that it means.
  [[nodiscard]] QString path() const;
  void clear();

  /// What is to be found out about files from now on.
  void setWishes(const FileLookWishes& wishes) { wishes_ = wishes; }
  /// Looks at the file anew, on another thread; looked() tells what was seen.
  void look();

  /// Lets the user choose a file, beginning in the folder of the last choice.
  void browse();
  /// Takes the file at `path` as the user's choice.
  void choose(const QString& path);
  /// The one file on this computer that is dragged; empty when it is something else.
  [[nodiscard]] static QString draggedFile(const QMimeData& data);

 Q_SIGNALS:
  /// The path has changed or the file was looked at. An empty name in the facts: nothing is known yet.
  void looked(const FileLook& look);

 private:
  void pathChanged();
  void takeLook();
  void display(const FileLook& look);
  [[nodiscard]] QString lineFor(const FileLook& look) const;
  [[nodiscard]] QString startFolder() const;

  Settings& settings_;
  FileLookWishes wishes_;
  QTimer untilLook_;
  QFutureWatcher<FileLook> newestLook_;  ///< lets go of a look that is no longer of interest
  QLineEdit* path_ = nullptr;
  QLabel* facts_ = nullptr;
};

}  // namespace parlexo
