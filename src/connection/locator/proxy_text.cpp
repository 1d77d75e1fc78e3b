// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/locator/proxy_text.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include <QRegularExpression>
#include <QUrl>

#include "base/code_page.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

int firstNumber(const QString& text) {
  const auto digit = std::find_if(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
  return leadingNumber(text.sliced(digit - text.begin()).toLatin1());
}

ProxyAddress httpProxy(const QString& entry) {
  constexpr int defaultPort = 80;
  const QString address = entry.contains(QLatin1String("://")) ? entry : u"http://"_s + entry;
  const QUrl proxy(address, QUrl::StrictMode);
  const int port = proxy.port(defaultPort);
  const bool isHttp = proxy.isValid() && proxy.scheme() == QLatin1String("http");
  if (!isHttp || proxy.host().isEmpty() || port == 0) return {};
  return {proxy.host(), port};
}

}  // namespace

ProxyAddress parseProxyText(const QString& text) {
  const QString proxy = text.sliced(text.indexOf(u'=') + 1);
  const qsizetype colon = proxy.indexOf(u':');
  if (colon < 0) return {proxy, 0};
  return {proxy.first(colon), firstNumber(proxy.sliced(colon))};
}

ProxyAddress httpProxyIn(const QString& list, const QString& scheme) {
  static const QRegularExpression separators(u"[;\\s]+"_s);
  ProxyAddress forAllSchemes;
  for (const QString& entry : list.split(separators, Qt::SkipEmptyParts)) {
    const qsizetype equals = entry.indexOf(u'=');
    ProxyAddress proxy = httpProxy(entry.sliced(equals + 1));
    if (equals < 0) {
      if (forAllSchemes.isEmpty()) forAllSchemes = proxy;
    } else if (entry.first(equals).compare(scheme, Qt::CaseInsensitive) == 0) {
      return proxy;
    }
  }
  return forAllSchemes;
}

QByteArray makeProxyAuthorisation(const QString& user, const QString& password) {
  return "Proxy-Authorization: Basic " + toCodePage(user + u':' + password).toBase64() + "\r\n";
}

int leadingNumber(const QByteArray& text) {
  const long long number = std::strtoll(text.constData(), nullptr, 10);
  return static_cast<int>(
      std::clamp<long long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

}  // namespace parlexo
