// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/core/start_up.h"
#include "connection/locator/server_locator.h"
#include "tests/support/logged_in_rig.h"
#include "tests/support/test.h"

namespace parlexo::test {

struct JournalStores final : RunStores {
  explicit JournalStores(Journal& journal) : journal_(journal) {}

  bool loadContacts() override {
    journal_ << u"contacts loaded"_s;
    return contactsReadable;
  }
  void loadStatusLog() override { journal_ << u"status log loaded"_s; }
  void releaseContacts() override { journal_ << u"contacts released"_s; }
  void saveStatusLog() override { journal_ << u"status log saved"_s; }

  bool contactsReadable = true;

 private:
  Journal& journal_;
};

/// Windows that close at once; `login` decides the result of a login.
struct JournalWindows final : StartUpWindows {
  explicit JournalWindows(Journal& journal) : journal_(journal) {}

  void showUpgrade(const QString& version) override { journal_ << u"upgrade \"%1\""_s.arg(version); }
  bool logIn() override {
    journal_ << u"login"_s;
    return login();
  }
  void runMainWindow() override { journal_ << u"main window"_s; }

  std::function<bool()> login = [] { return true; };

 private:
  Journal& journal_;
};

/// A run of the program against a simulator, without a login.
struct RunTest : testing::Test, SimulatorRig {
  RunTest() : SimulatorRig({}, {.connect = std::chrono::seconds(5), .silence = std::chrono::seconds(5)}) {
    progress.onText = [this](const QString& text) { journal << u"(text) "_s + text; };
  }

  bool locate() {
    return ServerLocator(QUrl(simulator.site()), {.retryDelay = std::chrono::milliseconds(1)})
               .locate(state) == ServerLocator::Outcome::Located;
  }

  JournalStores stores{journal};
  JournalWindows windows{journal};
};

}  // namespace parlexo::test
