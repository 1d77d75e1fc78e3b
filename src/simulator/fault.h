// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace parlexo::simulator {

/// How the simulator can misbehave.
enum class FaultKind {
  Refuse,         ///< close a new connection before reading from it
  Close,          ///< carry the operation out, then close without an answer
  Cut,            ///< carry the operation out, then close after half of the answer
  Late,           ///< carry the operation out, answer after `number` milliseconds
  HttpError,      ///< answer HTTP 500 with a page of HTML; nothing is carried out
  NotXml,         ///< answer HTTP 200 with a line of plain text; nothing is carried out
  SoapFault,      ///< answer a SOAP fault whose reason is `text`; nothing is carried out
  Code,           ///< answer `nErrorCode` = `number` and nothing else; nothing is carried out
  Text,           ///< answer `text` in the place of the answer's text; the operation is carried out
  Version,        ///< getVersion answers `number`
  ClientVersion,  ///< the locator document announces the client version `text`
  BadLocator,     ///< the locator document is malformed
};

/// One misbehaviour: of one operation or of any, at its next call or at all of them.
struct Fault {
  FaultKind kind = FaultKind::Close;
  /// An operation's name, "locator" for the download of the locator document, or "any" for every operation
  /// (not the locator).
  QString operation = QStringLiteral("any");
  int number = 0;
  QString text;
  bool once = false;
};

/// Why `fault` makes no sense, in words for a person; empty when it does.
[[nodiscard]] QString problemWith(const Fault& fault);

struct ParsedFault {
  Fault fault;
  QString problem;  ///< empty when `fault` was read
};

/// Reads "OPERATION:KIND[=VALUE][:next]", as the help of the command line describes it.
[[nodiscard]] ParsedFault parseFault(const QString& text);

/// `fault` in the form that parseFault() reads, without operation and ":next".
[[nodiscard]] QString describe(const Fault& fault);

/// The operations that a fault can be set for, in the order of the contract.
[[nodiscard]] const QStringList& operationNames();

}  // namespace parlexo::simulator
