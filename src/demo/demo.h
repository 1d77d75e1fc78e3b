// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QString>

class QTemporaryDir;

namespace parlexo {

namespace simulator {
class Simulator;
}

/// A world to try the program in: the gateway simulator inside the process and a data folder with sample
/// contacts, groups, templates and messages sent on earlier days.
class Demo {
 public:
  /// With an empty `dataFolder` the demo works in a temporary folder that goes away with it; otherwise in the
  /// given one, where only what is missing is filled in.
  explicit Demo(const QString& dataFolder = {});
  ~Demo();
  Demo(const Demo&) = delete;
  Demo& operator=(const Demo&) = delete;

  /// Starts the simulator and fills the folder. Returns an empty text, or why the demo can't be had: no
  /// port is free, or the folder can't be written.
  [[nodiscard]] QString start();

  [[nodiscard]] const QString& dataFolder() const { return dataFolder_; }
  /// Where the client finds the gateway's location document, "http://HOST:PORT".
  [[nodiscard]] QString site() const;
  [[nodiscard]] static QString user();
  [[nodiscard]] static QString password();

 private:
  void rememberPayments();
  [[nodiscard]] QString fillContacts() const;
  [[nodiscard]] QString fillTemplates() const;
  [[nodiscard]] QString fillStatusLog();

  std::unique_ptr<QTemporaryDir> temporary_;
  QString dataFolder_;
  std::unique_ptr<simulator::Simulator> simulator_;
};

}  // namespace parlexo
