// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QByteArray>
#include <QList>
#include <QSettings>
#include <QString>

#include "base/program.h"

namespace parlexo {

/// The per-user settings and the folders that depend on them. Stored under
/// HKEY_CURRENT_USER\Software\Parlexo\Parlexo Client on Windows, elsewhere in "Parlexo/Parlexo Client.conf"
/// in the user's configuration folder, with the same sections and keys. All values are strings. Missing
/// values read as empty, and errors are ignored.
class Settings {
 public:
  /// Opens the user's settings. The program folder is the folder of the executable, or the user's data folder
  /// in a build with PARLEXO_USER_DATA_FOLDER.
  Settings();
  /// Keeps the settings and all folders inside `dataFolder` (the option --data-dir).
  explicit Settings(const QString& dataFolder);

  /// The default parent folder of contacts, templates and Status.xml, without a trailing separator. Empty if
  /// the system could not determine it.
  [[nodiscard]] const QString& programFolder() const { return programFolder_.path; }
  /// The system error code if programFolder() is empty, otherwise 0.
  [[nodiscard]] unsigned long programFolderError() const { return programFolder_.error; }

  /// The user's own mobile number; empty if not set.
  [[nodiscard]] QString mobilePhoneNumber();
  void setMobilePhoneNumber(const QString& number);

  /// The folder of the contact store: "Path"/"Contacts", or "contacts" in the program folder. Cached after
  /// the first read; the default is not stored.
  [[nodiscard]] QString contactsFolder();
  void setContactsFolder(const QString& folder);

  /// The folder of the message templates: "Path"/"Templates", or "templates" in the program folder.
  [[nodiscard]] QString templatesFolder();
  void setTemplatesFolder(const QString& folder);

  /// The full path of the status log.
  [[nodiscard]] QString statusFile() const;

  /// The user name of the last successful login ("Login"/"User").
  [[nodiscard]] QString rememberedUser() const;
  void setRememberedUser(const QString& user);

  /// The web host of the service: "Service"/"Host", or the built-in default.
  [[nodiscard]] QString serviceHost() const;

  /// Whether the user chose "don't show again" for the message with this number.
  [[nodiscard]] bool isMessageSuppressed(int messageNumber) const;
  void suppressMessage(int messageNumber);

  /// The folder of the file last chosen for sending ("Path"/"Files"); empty if there is none.
  [[nodiscard]] QString fileFolder() const;
  void setFileFolder(const QString& folder);

  /// The geometry of the main window, as returned by saveGeometry(); empty if not set.
  [[nodiscard]] QByteArray windowGeometry() const;
  void setWindowGeometry(const QByteArray& geometry);

  /// The column widths in pixels that the user set in the list named `list`. 0 for a column with its default
  /// width; empty if no width was set.
  [[nodiscard]] QList<int> columnWidths(const QString& list) const;
  void setColumnWidths(const QString& list, const QList<int>& widths);

 private:
  QString cached(QString& cache, const QString& key, const QString& fallback);
  void write(QString& cache, const QString& key, const QString& value);

  std::unique_ptr<QSettings> store_;
  ProgramFolder programFolder_;
  QString mobilePhoneNumber_;
  QString contactsFolder_;
  QString templatesFolder_;
};

/// Creates the folder `path` with all its parents. Leading and trailing white space is trimmed. Failure is
/// ignored, because code that uses the folder reports the error.
void makeFolderPath(const QString& path);

}  // namespace parlexo
