// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QCoreApplication>
#include <QString>

class QTemporaryDir;

namespace parlexo {

namespace simulator {
class Simulator;
}

/// The environment of `--demo`: the gateway simulator inside the process, and a data folder with sample
/// contacts, groups, templates and sent messages.
class Demo {
  Q_DECLARE_TR_FUNCTIONS(Demo)

 public:
  /// Uses a temporary folder, deleted with the object, if `dataFolder` is empty. In an existing folder only
  /// missing data are added.
  explicit Demo(const QString& dataFolder = {});
  ~Demo();
  Demo(const Demo&) = delete;
  Demo& operator=(const Demo&) = delete;

  /// Starts the simulator and fills the folder. Returns an error message if no port is free or the folder
  /// can't be written, and an empty string on success.
  [[nodiscard]] QString start();

  [[nodiscard]] const QString& dataFolder() const { return dataFolder_; }
  /// The site of the location document, "http://HOST:PORT".
  [[nodiscard]] QString site() const;
  [[nodiscard]] static QString user();
  [[nodiscard]] static QString password();

 private:
  void addPayments();
  [[nodiscard]] QString fillContacts() const;
  [[nodiscard]] QString fillTemplates() const;
  [[nodiscard]] QString fillStatusLog();

  std::unique_ptr<QTemporaryDir> temporary_;
  QString dataFolder_;
  std::unique_ptr<simulator::Simulator> simulator_;
};

}  // namespace parlexo
