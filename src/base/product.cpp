// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/product.h"

namespace parlexo {

using namespace Qt::StringLiterals;

const char clientVersion[] = PARLEXO_VERSION;

namespace {
// Process-wide, because texts and links in all parts of the program name the service's web site.
QString& chosenHost() {
  static QString host;
  return host;
}
}  // namespace

QString defaultServiceHost() {
  return QStringLiteral(PARLEXO_SERVICE_HOST);
}

void setServiceHost(const QString& host) {
  chosenHost() = host;
}

QString webPage(const QString& path) {
  const QString& host = chosenHost();
  return u"https://"_s + (host.isEmpty() ? defaultServiceHost() : host) + path;
}

}  // namespace parlexo
