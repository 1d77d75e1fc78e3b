// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "app/core/start_up.h"
#include "base/call_runner.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "connection/client/gateway.h"
#include "connection/locator/server_locator.h"
#include "simulator/simulator.h"

namespace parlexo {

/// What a user would see and what the disk would get, one line each, in order.
using Journal = QStringList;

inline const QString unreachableMessage = QStringLiteral(
    "message 0x10 0 Could not connect to the Parlexo gateway server.\r\n\r\nPlease make sure you have "
    "internet "
    "connectivity, your firewall allows gateway connection or try again later.");
class JournalNotifier final : public Notifier {
 public:
  explicit JournalNotifier(Journal& journal) : journal_(journal) {}

  MessageResult show(const QString& text, unsigned style, int suppressibleNumber = 0) override {
    journal_ << QStringLiteral("message 0x%1 %2 %3").arg(style, 0, 16).arg(suppressibleNumber).arg(text);
    return MessageResult::Ok;
  }

 private:
  Journal& journal_;
};

class JournalProgress final : public Progress {
 public:
  explicit JournalProgress(Journal& journal) : journal_(journal) {}

  void show(const QString& text = {}) override { journal_ << QStringLiteral("progress ") + text; }
  void setText(const QString& text) override { journal_ << QStringLiteral("progress text ") + text; }
  void hide() override { journal_ << QStringLiteral("progress hidden"); }

 private:
  Journal& journal_;
};

class JournalStores final : public RunStores {
 public:
  explicit JournalStores(Journal& journal) : journal_(journal) {}

  bool loadContacts() override {
    journal_ << QStringLiteral("contacts loaded");
    return contactsReadable;
  }
  void loadStatusLog() override { journal_ << QStringLiteral("status log loaded"); }
  void releaseContacts() override { journal_ << QStringLiteral("contacts released"); }
  void saveStatusLog() override { journal_ << QStringLiteral("status log saved"); }

  bool contactsReadable = true;

 private:
  Journal& journal_;
};

/// Answers for the user; a login is carried out by `login`.
class JournalWindows final : public StartUpWindows {
 public:
  explicit JournalWindows(Journal& journal) : journal_(journal) {}

  void showUpgrade(const QString& version) override {
    journal_ << QStringLiteral("upgrade \"%1\"").arg(version);
  }
  bool logIn() override {
    journal_ << QStringLiteral("login");
    return login();
  }
  void runMainWindow() override { journal_ << QStringLiteral("main window"); }

  std::function<bool()> login = [] { return true; };

 private:
  Journal& journal_;
};

/// A run of the program against a simulator over the loopback interface, with a journal for a user.
class RunTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(simulator.start()); }

  bool locate() {
    return ServerLocator(QUrl(simulator.site()), {.retryDelay = std::chrono::milliseconds(1)})
               .locate(state) == ServerLocator::Outcome::Located;
  }

  void setFault(simulator::FaultKind kind, const QString& operation, int number = 0,
                const QString& text = {}) {
    simulator::Fault fault;
    fault.kind = kind;
    fault.operation = operation;
    fault.number = number;
    fault.text = text;
    ASSERT_TRUE(simulator.setFault(fault));
  }

  simulator::Simulator simulator;
  QTemporaryDir folder;
  Journal journal;
  RunState state;
  Settings settings{folder.path()};
  DirectCallRunner runner;
  Gateway gateway{state, runner, {.connect = std::chrono::seconds(5), .silence = std::chrono::seconds(5)}};
  JournalNotifier notifier{journal};
  JournalProgress progress{journal};
  JournalStores stores{journal};
  JournalWindows windows{journal};
};

}  // namespace parlexo
