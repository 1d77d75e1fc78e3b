// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/core/account_history.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>

#include "base/message_texts.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "connection/client/gateway.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

HistoryRecord parseRecord(const QString& record) {
  constexpr QChar tab(u'\t');
  return {record.section(tab, 0, 0), record.section(tab, 1, 1), record.section(tab, 2, 2),
          record.section(tab, 3)};
}

auto requestHistory(const AccountServices& services) {
  const ProgressScope box(services.progress);
  return services.gateway.call<&GatewayClient::getAccountHistory>(services.state.session);
}

}  // namespace

std::vector<HistoryRecord> parseHistory(const QString& text) {
  const QString recordEnd = u"\r\n"_s;
  std::vector<HistoryRecord> records;
  qsizetype begin = 0;
  for (qsizetype end = text.indexOf(recordEnd); end >= 0; end = text.indexOf(recordEnd, begin)) {
    if (end > begin) records.push_back(parseRecord(text.mid(begin, end - begin)));
    begin = end + recordEnd.size();
  }
  return records;
}

std::optional<double> toSortKey(QStringView date) {
  constexpr QStringView format = u"00/00/0000 00:00:00";
  const auto matches = [](QChar actual, QChar expected) {
    return expected == u'0' ? actual >= u'0' && actual <= u'9' : actual == expected;
  };
  if (!std::equal(date.begin(), date.end(), format.begin(), format.end(), matches)) return std::nullopt;
  QString digits;
  constexpr std::pair<int, int> yearToSecond[] = {{6, 4}, {3, 2}, {0, 2}, {11, 2}, {14, 2}, {17, 2}};
  for (const auto& [position, length] : yearToSecond) digits += date.mid(position, length);
  return digits.toDouble();
}

std::optional<std::vector<HistoryRecord>> fetchAccountHistory(const AccountServices& services) {
  const auto reply = requestHistory(services);
  if (reply.answered() && reply->nErrorCode == 0) return parseHistory(fromWire(reply->sXmlAccountHistory));
  const QString message = QCoreApplication::translate(
      "AccountHistory", "Could not successfully obtain history details. Error: %i");
  services.notifier.error(withNumber(message, reply->nErrorCode));
  return std::nullopt;
}

}  // namespace parlexo
