// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include <QStringList>
#include <QTemporaryDir>

#include "base/call_runner.h"
#include "base/run_state.h"
#include "base/session_renewal.h"
#include "base/settings.h"
#include "connection/client/gateway.h"
#include "simulator/simulator.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/recording_progress.h"

namespace parlexo::test {

using simulator::FaultKind;

/// The message about a gateway that could not be reached.
inline constexpr char unreachable[] =
    "Could not connect to the Parlexo gateway server.\r\n\r\nPlease make sure you have internet "
    "connectivity, your firewall allows gateway connection or try again later.";
/// The same as a line of a journal.
inline const QString unreachableLine = QStringLiteral("16 ") + QLatin1String(unreachable);

/// Runs tasks on the calling thread and can cancel one of them.
struct ImpatientRunner final : CallRunner {
  /// Cancels the `number`th task from now (1 is the next) when it has run for the time `after`.
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

  std::function<void()> onRun;  ///< called before each task

 private:
  int untilCancelled_ = 0;
  std::chrono::milliseconds after_{};
};

/// A gateway over a real connection to a simulator in this process, and a journal of what the user sees.
class SimulatorRig {
 public:
  explicit SimulatorRig(const simulator::Options& options = {},
                        const GatewayTimeouts& timeouts = {.connect = std::chrono::seconds(2),
                                                           .silence = std::chrono::seconds(1)})
      : simulator(options), gateway(state, runner, timeouts) {
    if (!simulator.start()) qFatal("the simulator does not start: %s", qPrintable(simulator.errorText()));
  }

  /// Makes all calls of `operation` fail in this way from now on.
  void setFault(FaultKind kind, const QString& operation, int number = 0, const QString& text = {}) {
    simulator::Fault fault;
    fault.kind = kind;
    fault.operation = operation;
    fault.number = number;
    fault.text = text;
    if (!simulator.setFault(fault)) qFatal("%s", qPrintable(simulator::findProblem(fault)));
  }

  Journal journal;
  simulator::Simulator simulator;
  QTemporaryDir folder;
  Settings settings{folder.path()};
  RunState state;
  ImpatientRunner runner;
  Gateway gateway;
  RecordingNotifier notifier{&journal};
  RecordingProgress progress{&journal};
};

/// The same with an account that is logged in.
class LoggedInRig : public SimulatorRig {
 public:
  explicit LoggedInRig(const simulator::Options& options = {}) : SimulatorRig(options) {
    state.gateway.endpoint = simulator.site() + QStringLiteral("/ccx/onlineCommunication");
    const auto reply =
        gateway.call<&GatewayClient::sessionStart>(std::string("demo"), std::string("demo1234"));
    if (!reply.answered() || reply->nErrorCode != 0) qFatal("the simulator refuses the log-in");
    state.session = fromWire(reply->sSession);
  }

  /// The operations called since the log-in.
  [[nodiscard]] QStringList operations() const { return simulator.calledOperations().mid(1); }
  [[nodiscard]] SessionRenewal& renewal() { return renewal_; }

 private:
  class JournalRenewal final : public SessionRenewal {
   public:
    explicit JournalRenewal(Journal& journal) : journal_(journal) {}
    void logInAgain() override { journal_ << QStringLiteral("(login)"); }

   private:
    Journal& journal_;
  };

  JournalRenewal renewal_{journal};
};

}  // namespace parlexo::test
