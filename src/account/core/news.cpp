// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/core/news.h"

#include <QRegularExpression>

#include "connection/client/background_gateway.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString showable(QString text) {
  text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
  text.removeIf([](QChar c) { return c.category() == QChar::Other_Control && c != u'\n' && c != u'\t'; });
  return text;
}

// What closes a sentence or a bracket behind an address is no part of it.
QString withoutClosing(QString address) {
  while (!address.isEmpty()) {
    const QChar last = address.back();
    const bool closesOther = last == u')' && !address.contains(u'(');
    if (!closesOther && !u".,;:!?'"_s.contains(last)) break;
    address.chop(1);
  }
  return address;
}

QUrl pageOf(const QString& address) {
  const QUrl page(address, QUrl::StrictMode);
  return page.isValid() && !page.host().isEmpty() && page.userInfo().isEmpty() ? page : QUrl();
}

void append(std::vector<NewsPart>& parts, const QString& text, const QUrl& page = {}) {
  if (!text.isEmpty()) parts.push_back({text, page});
}

}  // namespace

void fetchNews(const BackgroundGateway& gateway, QObject& context,
               std::function<void(const QString& news)> show) {
  gateway.call<&GatewayClient::getNews>(
      context, [show = std::move(show)](const Reply<protocol::getNewsResponse>& reply) {
        if (reply.answered() && reply->nErrorCode == 0) show(fromWire(reply->sNews));
      });
}

std::vector<NewsPart> newsParts(const QString& news) {
  static const QRegularExpression addressLike(uR"(\bhttps?://[^\s<>"]+)"_s,
                                              QRegularExpression::CaseInsensitiveOption);
  const QString text = showable(news);
  std::vector<NewsPart> parts;
  qsizetype taken = 0;
  for (auto found = addressLike.globalMatch(text); found.hasNext();) {
    const auto match = found.next();
    const QString address = withoutClosing(match.captured());
    const QUrl page = pageOf(address);
    if (page.isEmpty()) continue;
    append(parts, text.mid(taken, match.capturedStart() - taken));
    append(parts, address, page);
    taken = match.capturedStart() + address.size();
  }
  append(parts, text.mid(taken));
  return parts;
}

}  // namespace parlexo
