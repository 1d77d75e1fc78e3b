// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <variant>
#include <vector>

#include <QString>
#include <QStringList>

namespace parlexo::simulator {

/// The kinds of misbehaviour that the simulator supports.
enum class FaultKind {
  Refuse,         ///< close new connections before reading from them
  Close,          ///< execute the operation, then close without a reply
  Cut,            ///< execute the operation, then close after half of the reply
  Late,           ///< execute the operation, reply after `number` milliseconds
  HttpError,      ///< reply with HTTP 500 and an HTML page instead of executing the operation
  NotXml,         ///< reply with HTTP 200 and plain text instead of executing the operation
  SoapFault,      ///< reply with a SOAP fault with the reason `text` instead of executing the operation
  Code,           ///< reply with only `nErrorCode` = `number` instead of executing the operation
  Text,           ///< execute the operation, replace the text of the reply by `text`
  Version,        ///< getVersion returns `number`
  ClientVersion,  ///< the locator document announces the client version `text`
  BadLocator,     ///< the locator document is malformed
};

/// A misbehaviour of one or all operations, at the next call or at every call.
struct Fault {
  FaultKind kind = FaultKind::Close;
  /// The name of an operation, "locator" for downloads of the locator document, or "any" for all operations
  /// except the locator.
  QString operation = QStringLiteral("any");
  int number = 0;
  QString text;
  bool once = false;  ///< applies only to the next matching call
};

/// Returns why `fault` is invalid, as an English text; empty if it is valid.
[[nodiscard]] QString findProblem(const Fault& fault);

/// Parses "OPERATION:KIND[=VALUE][:next]", which the help of the command line describes. Returns the fault,
/// or an English text that says what is wrong.
[[nodiscard]] std::variant<Fault, QString> parseFault(const QString& text);

/// Returns kind and value of `fault` in the format of parseFault().
[[nodiscard]] QString toString(const Fault& fault);

/// The names of all operations, in the order of the contract.
[[nodiscard]] const QStringList& operationNames();

/// The active faults. Not thread-safe.
class FaultPlan {
 public:
  void add(const Fault& fault) { faults_.push_back(fault); }
  void clear() { faults_.clear(); }

  /// Returns the oldest fault that applies to a call of `operation` (or "locator"), or nullopt. Removes it if
  /// it applies only once.
  [[nodiscard]] std::optional<Fault> nextFor(const QString& operation);
  /// Returns whether a new connection must be refused.
  [[nodiscard]] bool refusesConnection();

 private:
  template <class Applies>
  std::optional<Fault> next(Applies applies);

  std::vector<Fault> faults_;
};

}  // namespace parlexo::simulator
