#include "simulator/message_remarks.h"

#include <algorithm>

#include "simulator/account_book.h"
#include "simulator/message_text.h"
#include "simulator/outbox.h"

namespace parlexo::simulator {

namespace {

QString moment(const QDateTime& time) {
  return time.toUTC().toString(QStringLiteral("yyyy/MM/dd HH:mm:ss"));
}

// At most a few numbers: a log line for fifty thousand recipients helps nobody.
QString recipientsForLog(const AcceptedMessage& message) {
  constexpr qsizetype shown = 20;
  QStringList list;
  for (qsizetype i = 0; i < std::min(shown, message.numbers.size()); ++i) {
    const bool failed = message.receipts[i] == Outbox::failedReceipt();
    list.append(failed ? message.numbers[i] + QStringLiteral(" (failed)") : message.numbers[i]);
  }
  const qsizetype more = message.numbers.size() - list.size();
  const QString tail = more > 0 ? QStringLiteral(" and %1 more").arg(more) : QString();
  return forLog(list.join(QStringLiteral(", "))) + tail;
}

}  // namespace

QStringList remarksOn(const AcceptedMessage& message) {
  QStringList traits;
  if (message.flash) traits.append(QStringLiteral("flash"));
  if (message.unicode) traits.append(QStringLiteral("Unicode"));
  if (message.parts > 1) traits.append(QStringLiteral("%1 parts").arg(message.parts));
  if (!message.senderId.isEmpty()) traits.append(QStringLiteral("sender ID ") + forLog(message.senderId));
  if (message.schedule) traits.append(QStringLiteral("scheduled for %1 GMT").arg(moment(*message.schedule)));
  traits.append(QStringLiteral("cost %1").arg(toAmount(message.costCents), 0, 'f', 2));

  QStringList lines;
  lines.append(QStringLiteral("  %1 from %2 (%3)")
                   .arg(wordFor(message.type), forLog(message.user), traits.join(QStringLiteral(", "))));
  lines.append(QStringLiteral("  to %1").arg(recipientsForLog(message)));
  if (!message.text.isEmpty()) lines.append(QStringLiteral("  text: %1").arg(forLog(message.text)));
  if (!message.fileName.isEmpty())
    lines.append(QStringLiteral("  file: %1, %2 bytes, SHA-256 %3")
                     .arg(forLog(message.fileName))
                     .arg(message.fileSize)
                     .arg(QString::fromLatin1(message.fileSha256)));
  return lines;
}

}  // namespace parlexo::simulator
