// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/core/account_history.h"

#include <algorithm>
#include <utility>

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

auto askForHistory(const AccountServices& services) {
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

std::optional<double> historyDateOrder(QStringView date) {
  constexpr QStringView form = u"00/00/0000 00:00:00";
  const auto fits = [](QChar given, QChar wanted) {
    return wanted == u'0' ? given >= u'0' && given <= u'9' : given == wanted;
  };
  if (!std::equal(date.begin(), date.end(), form.begin(), form.end(), fits)) return std::nullopt;
  QString digits;
  constexpr std::pair<int, int> fromYearToSecond[] = {{6, 4}, {3, 2}, {0, 2}, {11, 2}, {14, 2}, {17, 2}};
  for (const auto& [place, length] : fromYearToSecond) digits += date.mid(place, length);
  return digits.toDouble();
}

std::optional<std::vector<HistoryRecord>> AccountHistoryFlow::load() const {
  const auto reply = askForHistory(services_);
  if (reply.answered() && reply->nErrorCode == 0) return parseHistory(fromWire(reply->sXmlAccountHistory));
  services_.notifier.error(
      withNumber(u"Could not successfully obtain history details. Error: %i"_s, reply->nErrorCode));
  return std::nullopt;
}

}  // namespace parlexo
