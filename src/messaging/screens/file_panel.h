// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFutureWatcher>
#include <QString>
#include <QTimer>
#include <QWidget>

#include "messaging/screens/file_details.h"

class QLabel;
class QLineEdit;
class QMimeData;

namespace parlexo {

class Settings;

/// The file of a send page: an edit with its path, a Browse button and a line with its details.
class FilePanel final : public QWidget {
  Q_OBJECT

 public:
  /// `label`, with its mnemonic, is the label of the path. `settings` stores the folder of the last choice
  /// and must outlive the panel.
  FilePanel(const QString& label, Settings& settings, QWidget* parent = nullptr);

  [[nodiscard]] QWidget* pathEdit() const;
  /// The entered or chosen path; the URL of a local file is converted to its path.
  [[nodiscard]] QString path() const;
  void clear();

  /// Sets the details to read from now on.
  void setRequest(const FileDetails::Request& request) { request_ = request; }
  /// Reads the file's details on another thread; emits detailsChanged() when done.
  void updateDetails();

  /// Lets the user choose a file, starting in the folder of the last choice.
  void browse();
  /// Sets the file and stores its folder as that of the last choice.
  void choose(const QString& path);
  /// The path of the one local file that `data` contains; empty if it contains anything else.
  [[nodiscard]] static QString draggedFile(const QMimeData& data);

 Q_SIGNALS:
  /// The path has changed or the details have been read. The name in the facts is empty until they are known.
  void detailsChanged(const FileDetails& details);

 private:
  void pathChanged();
  void showResult();
  void display(const FileDetails& details);
  [[nodiscard]] QString detailsText(const FileDetails& details) const;
  [[nodiscard]] QString startFolder() const;

  Settings& settings_;
  FileDetails::Request request_;
  QTimer updateTimer_;
  QFutureWatcher<FileDetails> watcher_;  ///< of the latest read; the results of earlier ones are dropped
  QLineEdit* path_ = nullptr;
  QLabel* facts_ = nullptr;
};

}  // namespace parlexo
