// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/core/news.h"

#include <QRegularExpression>

#include "connection/client/background_gateway.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString withoutControlCharacters(QString text) {
  text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
  text.removeIf([](QChar c) { return c.category() == QChar::Other_Control && c != u'\n' && c != u'\t'; });
  return text;
}

// Punctuation after an address and a closing bracket around it are not part of it.
QString withoutTrailingPunctuation(QString address) {
  while (!address.isEmpty()) {
    const QChar last = address.back();
    const bool closesOuterBracket = last == u')' && !address.contains(u'(');
    if (!closesOuterBracket && !u".,;:!?'"_s.contains(last)) break;
    address.chop(1);
  }
  return address;
}

QUrl toSafeUrl(const QString& address) {
  // User info can make a URL look as if it had another host.
  const QUrl url(address, QUrl::StrictMode);
  return url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty() ? url : QUrl();
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

std::vector<NewsPart> splitNews(const QString& news) {
  static const QRegularExpression addressPattern(uR"(\bhttps?://[^\s<>"]+)"_s,
                                                 QRegularExpression::CaseInsensitiveOption);
  const QString text = withoutControlCharacters(news);
  std::vector<NewsPart> parts;
  qsizetype parsed = 0;
  for (auto matches = addressPattern.globalMatch(text); matches.hasNext();) {
    const auto match = matches.next();
    const QString address = withoutTrailingPunctuation(match.captured());
    const QUrl page = toSafeUrl(address);
    if (page.isEmpty()) continue;
    append(parts, text.mid(parsed, match.capturedStart() - parsed));
    append(parts, address, page);
    parsed = match.capturedStart() + address.size();
  }
  append(parts, text.mid(parsed));
  return parts;
}

}  // namespace parlexo
