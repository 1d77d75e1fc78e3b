// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/locator_document.h"

namespace parlexo::server {

using namespace Qt::StringLiterals;

QString hostText(const QHostAddress& address) {
  bool isIpv4 = false;
  const QHostAddress ipv4(address.toIPv4Address(&isIpv4));
  if (isIpv4) return ipv4.toString();
  return u"[%1]"_s.arg(address.toString());
}

QByteArray locatorDocument(const Location& location) {
  return u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<server ip=\"%1\" port=\"%2\" maxfilesize=\"%3\" maxfilesizemobile=\"%4\">\n"
         "  <versions>\n"
         "    <version product=\"client\" version=\"%5\"/>\n"
         "  </versions>\n"
         "</server>\n"_s
             .arg(hostText(location.address), QString::number(location.port),
                  QString::number(location.maxFileSize), QString::number(location.maxMobileFileSize),
                  location.clientVersion.toHtmlEscaped())
             .toUtf8();
}

}  // namespace parlexo::server
