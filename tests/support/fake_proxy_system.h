// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>
#include <QUrl>

#include "connection/locator/proxy_system.h"

namespace parlexo::test {

/// A platform with preset replies that records the queries.
struct FakeProxySystem final : ProxySystem {
  QString configuredProxy(const QUrl& address, const CancelFlag& /*cancel*/) const override {
    askedFor = address;
    return address.host() == excepted ? QString() : configured;
  }
  QUrl scriptAddress(const CancelFlag& /*cancel*/) const override { return script; }
  QString scriptAnswer(const QString& file, const QUrl& /*address*/,
                       const CancelFlag& /*cancel*/) const override {
    QFile opened(file);
    if (opened.open(QIODevice::ReadOnly)) scriptText = opened.readAll();
    scriptFile = file;
    return answer;
  }

  QString configured;
  QString excepted;  ///< the host that `configured` is not for
  QUrl script;
  QString answer;
  mutable QUrl askedFor;
  mutable QString scriptFile;
  mutable QByteArray scriptText;
};

}  // namespace parlexo::test
