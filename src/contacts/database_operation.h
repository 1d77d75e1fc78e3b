// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <new>
#include <vector>

#include <QLatin1String>
#include <QString>
#include <QtGlobal>

namespace parlexo {

/// How the operations of ItemDatabase fail: their parts throw, and the operation turns what it catches into
/// its message and its result.

/// Ends an operation with the message of this number and text.
struct Failure {
  int number;
  const char* text;
};

/// Ends an operation whose message is in the caller's error string already.
struct Reported {};

/// Appends the message of a failed operation, as in "[readAllItems:5 - Read from database error!]".
inline void appendMessage(QString& error, const char* operation, const Failure& failure) {
  error += QStringLiteral("[%1:%2 - %3]")
               .arg(QLatin1String(operation), QString::number(failure.number), QLatin1String(failure.text));
}

/// Runs the body of `operation`. Returns false when it threw, after appending one message to `error`: that of
/// a Failure, or "Unknown error!" under `unknownNumber` for any other exception.
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

/// `size` zero bytes. Throws `failure` when there is no memory for them.
inline std::vector<char> allocate(qint64 size, const Failure& failure) {
  try {
    return std::vector<char>(static_cast<std::size_t>(size), '\0');
  } catch (const std::bad_alloc&) {
    throw failure;
  }
}

}  // namespace parlexo
