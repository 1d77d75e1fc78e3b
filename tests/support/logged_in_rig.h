// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <QString>
#include <QStringList>

#include "base/call_runner.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "base/session_renewal.h"
#include "connection/client/gateway.h"
#include "simulator/simulator.h"
#include "tests/support/recording_notifier.h"

namespace parlexo {

/// What the user reads when the gateway was not reached.
inline constexpr char unreachable[] =
    "Could not connect to the Parlexo gateway server.\r\n\r\nPlease make sure you have internet "
    "connectivity, your firewall allows gateway connection or try again later.";

/// Runs exchanges directly, for a user who may lose patience with one of them.
class ImpatientRunner final : public CallRunner {
 public:
  /// The user will cancel the `number`th exchange from now (1 is the next) `after` it has begun.
  void cancel(int number, std::chrono::milliseconds after = std::chrono::milliseconds(200)) {
    untilCancelled_ = number;
    after_ = after;
  }

  [[nodiscard]] bool run(Task task) override {
    if (onRun) onRun();
    const CancelFlag flag;
    std::thread user;
    if (untilCancelled_ > 0 && --untilCancelled_ == 0) {
      user = std::thread([flag, after = after_] {
        std::this_thread::sleep_for(after);
        flag.raise();
      });
    }
    task(flag);
    if (user.joinable()) user.join();
    return true;
  }

  std::function<void()> onRun;  ///< called before each exchange

 private:
  int untilCancelled_ = 0;
  std::chrono::milliseconds after_{};
};

/// A gateway over a real connection to a simulator in the process, an account that is logged in, and a
/// journal of what the user sees in which order.
class LoggedInRig {
 public:
  explicit LoggedInRig(const simulator::Options& options = {}) : simulator(options) {
    if (!simulator.start()) qFatal("the simulator does not start: %s", qPrintable(simulator.errorText()));
    state.gateway.endpoint = simulator.site() + QStringLiteral("/ccx/onlineCommunication");
    logIn();
    notifier.onShow = [this] { journal.push_back(notifier.shown.back().text.toStdString()); };
  }

  void logIn() {
    const auto reply =
        gateway.call<&GatewayClient::sessionStart>(std::string("demo"), std::string("demo1234"));
    if (!reply.answered() || reply->nErrorCode != 0) qFatal("the simulator refuses the log-in");
    state.session = fromWire(reply->sSession);
  }

  /// The operations asked for since the rig was made, the log-in left out.
  [[nodiscard]] QStringList operations() const { return simulator.calledOperations().mid(1); }

  /// The fault for all calls of `operation` from now on.
  void misbehave(simulator::FaultKind kind, const QString& operation, int number = 0) {
    simulator::Fault fault;
    fault.kind = kind;
    fault.operation = operation;
    fault.number = number;
    if (!simulator.setFault(fault)) qFatal("%s", qPrintable(simulator::findProblem(fault)));
  }

  [[nodiscard]] Progress& progress() { return journalProgress_; }
  /// The transfers that the progress box was to show.
  [[nodiscard]] const std::vector<Transfer>& transfers() const { return journalProgress_.followed; }
  [[nodiscard]] SessionRenewal& renewal() { return journalRenewal_; }

  std::vector<std::string> journal;
  simulator::Simulator simulator;
  RunState state;
  ImpatientRunner runner;
  Gateway gateway{state, runner, {.connect = std::chrono::seconds(2), .silence = std::chrono::seconds(1)}};
  RecordingNotifier notifier;

 private:
  class JournalProgress final : public Progress {
   public:
    explicit JournalProgress(std::vector<std::string>& journal) : journal_(journal) {}
    void show(const QString& /*text*/) override { journal_.emplace_back("(box)"); }
    void setText(const QString& /*text*/) override {}
    void setTransfer(const Transfer& transfer) override { followed.push_back(transfer); }
    void hide() override { journal_.emplace_back("(no box)"); }

    std::vector<Transfer> followed;

   private:
    std::vector<std::string>& journal_;
  };

  class JournalRenewal final : public SessionRenewal {
   public:
    explicit JournalRenewal(std::vector<std::string>& journal) : journal_(journal) {}
    void logInAgain() override { journal_.emplace_back("(login)"); }

   private:
    std::vector<std::string>& journal_;
  };

  JournalProgress journalProgress_{journal};
  JournalRenewal journalRenewal_{journal};
};

}  // namespace parlexo
