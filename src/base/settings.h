// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QByteArray>
#include <QList>
#include <QSettings>
#include <QString>

#include "base/program_folder.h"

namespace parlexo {

/// The per-user settings of the program and the folders that follow from them. On Windows the values lie
/// under HKEY_CURRENT_USER\Software\Parlexo\Parlexo Client, elsewhere in "Parlexo/Parlexo Client.conf" in
/// the user's configuration folder, with the same sections and value names; all are strings.
/// Missing values read as empty; nothing here fails aloud, because no setting is worth stopping for.
class Settings {
 public:
  /// The user's own settings; the program folder is the one that holds the executable (or the user's data
  /// folder in a build with PARLEXO_USER_DATA_FOLDER).
  Settings();
  /// Settings and all folders of a run inside `dataFolder` (the option --data-dir).
  explicit Settings(const QString& dataFolder);

  /// The folder beside which contacts, templates and Status.xml lie; without a separator at its end.
  /// Empty when the system would not tell where the program lies.
  [[nodiscard]] const QString& programFolder() const { return programFolder_.path; }
  /// The system's number for why it would not, else 0.
  [[nodiscard]] unsigned long programFolderError() const { return programFolder_.error; }

  /// The user's own mobile number; empty when never set.
  [[nodiscard]] QString mobilePhoneNumber();
  void setMobilePhoneNumber(const QString& number);

  /// Where the contact store lies: the value "Path"/"Contacts", or "contacts" in the program folder. Read
  /// once; a default is not written back.
  [[nodiscard]] QString contactsFolder();
  void setContactsFolder(const QString& folder);

  /// Where the message templates lie: "Path"/"Templates", or "templates" in the program folder.
  [[nodiscard]] QString templatesFolder();
  void setTemplatesFolder(const QString& folder);

  /// The full path of the status log file.
  [[nodiscard]] QString statusFile() const;

  /// The user name of the last successful login ("Login"/"User").
  [[nodiscard]] QString rememberedUser() const;
  void setRememberedUser(const QString& user);

  /// The web host of the service: "Service"/"Host", or the compiled one.
  [[nodiscard]] QString serviceHost() const;

  /// Whether the user asked not to see the message with this number again, and the wish itself.
  [[nodiscard]] bool isMessageSuppressed(int messageNumber) const;
  void suppressMessage(int messageNumber);

  /// The folder from which a file was last chosen to be sent ("Path"/"Files"); empty when none ever was.
  [[nodiscard]] QString fileFolder() const;
  void setFileFolder(const QString& folder);

  /// Where the main window was and how large, as its saveGeometry() told; empty when nobody ever said.
  [[nodiscard]] QByteArray windowGeometry() const;
  void setWindowGeometry(const QByteArray& geometry);

  /// The widths in pixels that the user gave to the columns of the list called `list`; 0 for a column that
  /// was left alone, and empty when all were.
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

/// Creates every missing level of a folder path. White space at both ends is trimmed and "/" and "\" both
/// count as separators where the platform has both. Folders that exist or may not be made are passed over
/// in silence: who uses the folder next reports what is wrong with it.
void makeFolderPath(const QString& path);

}  // namespace parlexo
