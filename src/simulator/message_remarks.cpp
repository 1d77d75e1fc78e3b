// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/message_remarks.h"

#include <algorithm>

#include "simulator/account_book.h"
#include "simulator/message_text.h"
#include "simulator/outbox.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

QString moment(const QDateTime& time) {
  return time.toUTC().toString(u"yyyy/MM/dd HH:mm:ss"_s);
}

// At most a few numbers: a log line for fifty thousand recipients helps nobody.
QString recipientsForLog(const AcceptedMessage& message) {
  constexpr qsizetype shown = 20;
  QStringList list;
  for (qsizetype i = 0; i < std::min(shown, message.numbers.size()); ++i) {
    const bool failed = message.receipts[i] == Outbox::failedReceipt();
    list.append(failed ? message.numbers[i] + u" (failed)"_s : message.numbers[i]);
  }
  const qsizetype more = message.numbers.size() - list.size();
  const QString tail = more > 0 ? u" and %1 more"_s.arg(more) : QString();
  return forLog(list.join(u", "_s)) + tail;
}

}  // namespace

QStringList remarksOn(const AcceptedMessage& message) {
  QStringList traits;
  if (message.flash) traits.append(u"flash"_s);
  if (message.unicode) traits.append(u"Unicode"_s);
  if (message.parts > 1) traits.append(u"%1 parts"_s.arg(message.parts));
  if (!message.senderId.isEmpty()) traits.append(u"sender ID "_s + forLog(message.senderId));
  if (message.schedule) traits.append(u"scheduled for %1 GMT"_s.arg(moment(*message.schedule)));
  traits.append(u"cost %1"_s.arg(toAmount(message.costCents), 0, 'f', 2));

  QStringList lines;
  lines.append(u"  %1 from %2 (%3)"_s.arg(toWord(message.type), forLog(message.user), traits.join(u", "_s)));
  lines.append(u"  to %1"_s.arg(recipientsForLog(message)));
  if (!message.text.isEmpty()) lines.append(u"  text: %1"_s.arg(forLog(message.text)));
  if (!message.fileName.isEmpty())
    lines.append(u"  file: %1, %2 bytes, SHA-256 %3"_s.arg(forLog(message.fileName))
                     .arg(message.fileSize)
                     .arg(QString::fromLatin1(message.fileSha256)));
  return lines;
}

}  // namespace parlexo::simulator
