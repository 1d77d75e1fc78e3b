#pragma once

#include <functional>

#include <QString>
#include <QStringList>

#include "messaging/core/messaging_services.h"

namespace parlexo {

/// Asks the gateway what became of messages and keeps the answers in the status log.
class StatusQueryFlow {
 public:
  /// Called with each receipt whose status has come in.
  using Updated = std::function<void(const QString& receipt, const QString& status)>;

  /// `services` must refer to objects that outlive the flow.
  explicit StatusQueryFlow(const MessagingServices& services) : services_(services) {}

  /// Asks for each receipt in turn and stops at the first failure, which the user is told; what came in
  /// before stays. Without receipts nothing is called. The log is saved when something came in.
  void query(const QStringList& receipts, const Updated& updated) const;

 private:
  struct Answer {
    bool answered = true;
    int code = 0;
    QString status;

    [[nodiscard]] bool isGood() const { return answered && code == 0; }
  };

  [[nodiscard]] Answer askAll(const QStringList& receipts, const Updated& updated) const;
  [[nodiscard]] Answer ask(const QString& receipt) const;
  void report(const Answer& failure) const;

  MessagingServices services_;
};

}  // namespace parlexo
