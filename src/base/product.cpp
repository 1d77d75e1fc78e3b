// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/product.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {
// Process-wide by contract: texts and links name the service's site wherever they stand.
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
