// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/receipts.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString failMark() {
  return u"FAIL"_s;
}

QStringList splitList(const QString& list) {
  return list.isEmpty() ? QStringList() : list.split(QChar(u','));
}

QString numberPart(const QString& element) {
  return element.section(QChar(u':'), 0, 0);
}

QString receiptPart(const QString& element) {
  return element.section(QChar(u':'), 1);
}

}  // namespace

std::vector<StatusEntry> statusEntries(const QString& receipts, const QString& numbersSent, MessageType type,
                                       const QDateTime& now) {
  const QStringList elements = splitList(receipts);
  std::vector<StatusEntry> entries;
  if (elements.size() != splitList(numbersSent).size()) return entries;
  const QString date = now.toString(u"dd/MM/yyyy HH:mm:ss"_s);
  entries.reserve(static_cast<std::size_t>(elements.size()));
  for (const QString& element : elements)
    entries.push_back({.phone = numberPart(element),
                       .receipt = receiptPart(element),
                       .status = deliveredToGateway(),
                       .type = toWord(type),
                       .date = date});
  return entries;
}

bool hasFailures(const QString& receipts) {
  return receipts.contains(failMark());
}

QString failureWarning(const QString& warning, const QString& receipts) {
  QString message = warning + QChar(u'\n');
  for (const QString& element : splitList(receipts))
    if (element.contains(failMark())) message += numberPart(element) + QChar(u'\n');
  return message;
}

}  // namespace parlexo
