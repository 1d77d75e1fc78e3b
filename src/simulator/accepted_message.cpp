// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/accepted_message.h"

#include <algorithm>

#include "simulator/account_book.h"
#include "simulator/message_text.h"
#include "simulator/outbox.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

QString toLogTime(const QDateTime& time) {
  return time.toUTC().toString(u"yyyy/MM/dd HH:mm:ss"_s);
}

// Lists only the first recipients, as a message may have tens of thousands.
QString recipientList(const AcceptedMessage& message) {
  constexpr qsizetype shown = 20;
  QStringList list;
  for (qsizetype i = 0; i < std::min(shown, message.numbers.size()); ++i) {
    const bool failed = message.receipts[i] == Outbox::failedReceipt();
    list.append(failed ? message.numbers[i] + u" (failed)"_s : message.numbers[i]);
  }
  const qsizetype more = message.numbers.size() - list.size();
  const QString tail = more > 0 ? u" and %1 more"_s.arg(more) : QString();
  return escapeForLog(list.join(u", "_s)) + tail;
}

}  // namespace

QStringList toLogLines(const AcceptedMessage& message) {
  QStringList details;
  if (message.flash) details.append(u"flash"_s);
  if (message.unicode) details.append(u"Unicode"_s);
  if (message.parts > 1) details.append(u"%1 parts"_s.arg(message.parts));
  if (!message.senderId.isEmpty()) details.append(u"sender ID "_s + escapeForLog(message.senderId));
  if (message.schedule) details.append(u"scheduled for %1 GMT"_s.arg(toLogTime(*message.schedule)));
  details.append(u"cost %1"_s.arg(toAmount(message.costCents), 0, 'f', 2));

  QStringList lines;
  lines.append(
      u"  %1 from %2 (%3)"_s.arg(toWord(message.type), escapeForLog(message.user), details.join(u", "_s)));
  lines.append(u"  to %1"_s.arg(recipientList(message)));
  if (!message.text.isEmpty()) lines.append(u"  text: %1"_s.arg(escapeForLog(message.text)));
  if (!message.fileName.isEmpty())
    lines.append(u"  file: %1, %2 bytes, SHA-256 %3"_s.arg(escapeForLog(message.fileName))
                     .arg(message.fileSize)
                     .arg(QString::fromLatin1(message.fileSha256)));
  return lines;
}

}  // namespace parlexo::simulator
