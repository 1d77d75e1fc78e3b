#include "gateway/core/proxy_text.h"

#include <algorithm>

#include "base/code_page.h"
#include "gateway/core/leading_number.h"

namespace parlexo {

namespace {

int firstNumber(const QString& text) {
  const auto digit = std::find_if(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
  return leadingNumber(text.sliced(digit - text.begin()).toLatin1());
}

}  // namespace

ProxyAddress parseProxyText(const QString& text) {
  const QString proxy = text.sliced(text.indexOf(u'=') + 1);
  const qsizetype colon = proxy.indexOf(u':');
  if (colon < 0) return {proxy, 0};
  return {proxy.first(colon), firstNumber(proxy.sliced(colon))};
}

QByteArray makeProxyAuthorisation(const QString& user, const QString& password) {
  return "Proxy-Authorization: Basic " + toCodePage(user + u':' + password).toBase64() + "\r\n";
}

}  // namespace parlexo
