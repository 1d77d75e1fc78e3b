// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>
#include <QUrl>

#include "connection/locator/proxy_system.h"

namespace parlexo {

/// A platform that answers as the test says and notes what it was asked.
class FakeProxySystem final : public ProxySystem {
 public:
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

}  // namespace parlexo
