// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <new>
#include <vector>

#include <QLatin1String>
#include <QString>
#include <QtGlobal>

namespace parlexo {

// Error handling of the operations of ItemDatabase: their steps throw, and runOperation() converts the
// exception to a message and a return value.

/// Thrown to end an operation with this message.
struct Failure {
  int number;
  const char* text;
};

/// Thrown to end an operation whose message has already been appended to the error string.
struct Reported {};

/// Appends the message of a failed operation, such as "[readAllItems:5 - Read from database error!]".
inline void appendMessage(QString& error, const char* operation, const Failure& failure) {
  error += QStringLiteral("[%1:%2 - %3]")
               .arg(QLatin1String(operation), QString::number(failure.number), QLatin1String(failure.text));
}

/// Runs the body of `operation`. If it throws, appends one message to `error` and returns false. The message
/// is that of a Failure, or "Unknown error!" with `unknownNumber` for any other exception.
template <typename Body>
bool runOperation(QString& error, const char* operation, int unknownNumber, Body body) {
  try {
    body();
    return true;
  } catch (const Failure& failure) {
    appendMessage(error, operation, failure);
  } catch (const Reported&) {
    return false;
  } catch (...) {
    appendMessage(error, operation, {unknownNumber, "Unknown error!"});
  }
  return false;
}

inline void require(bool success, const Failure& failure) {
  if (!success) throw failure;
}

/// Returns `size` zero bytes. Throws `failure` if they can't be allocated.
inline std::vector<char> allocate(qint64 size, const Failure& failure) {
  try {
    return std::vector<char>(static_cast<std::size_t>(size), '\0');
  } catch (const std::bad_alloc&) {
    throw failure;
  }
}

}  // namespace parlexo
