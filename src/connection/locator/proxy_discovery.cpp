// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/locator/proxy_discovery.h"

#include <utility>

#include <QFile>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QNetworkRequest>
#include <QTemporaryDir>

#include "base/timeouts.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr DownloadLimits scriptLimits{
    .silence = timeouts::proxyScriptSilence, .whole = timeouts::proxyScriptWhole, .bytes = 1 << 20};

bool isOnThisMachine(const QString& host) {
  return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

/// The script's bytes; empty when it can't be had or is longer than any real one.
QByteArray downloadScript(const QUrl& address, const CancelFlag& cancel) {
  QNetworkRequest request(address);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  const Download script = download(request, QNetworkProxy::NoProxy, scriptLimits, cancel);
  const bool isComplete = script.isWhole && script.document.size() < scriptLimits.bytes;
  return isComplete ? script.document : QByteArray();
}

/// The proxy that the network's configuration script names, as text.
QString askScript(const ProxySystem& system, const QUrl& address, const CancelFlag& cancel) {
  const QUrl place = system.scriptAddress(cancel);
  if (!place.isValid()) return {};
  const QByteArray script = downloadScript(place, cancel);
  const QTemporaryDir folder;
  QFile file(folder.filePath(u"proxy.pac"_s));
  if (script.isEmpty() || !file.open(QIODevice::WriteOnly) || file.write(script) != script.size()) return {};
  // Who runs it may want to have the file alone.
  file.close();
  const QString answer = system.scriptAnswer(file.fileName(), address, cancel);
  const QLatin1String prefix("PROXY ");
  return answer.startsWith(prefix) ? answer.sliced(prefix.size()) : QString();
}

}  // namespace

ProxyDiscovery::ProxyDiscovery(QUrl address, CallRunner& runner, std::shared_ptr<const ProxySystem> system)
    : address_(std::move(address)), runner_(runner), system_(std::move(system)) {}

ProxyAddress ProxyDiscovery::configuredFor(const QUrl& address) const {
  if (isOnThisMachine(address.host())) return {};
  const QString list =
      run(address, [](const ProxySystem& system, const QUrl& wanted, const CancelFlag& cancel) {
        return system.configuredProxy(wanted, cancel);
      });
  return httpProxyIn(list, address.scheme());
}

ProxyAddress ProxyDiscovery::discover() const {
  return parseProxyText(
      run(address_, [](const ProxySystem& system, const QUrl& address, const CancelFlag& cancel) {
        const QString configured = system.configuredProxy(address, cancel);
        return configured.isEmpty() ? askScript(system, address, cancel) : configured;
      }));
}

QString ProxyDiscovery::run(const QUrl& address, const Search& search) const {
  const auto found = std::make_shared<QString>();
  const bool ended = runner_.run([search, found, system = system_, address](const CancelFlag& cancel) {
    *found = search(*system, address, cancel);
  });
  return ended ? *found : QString();
}

}  // namespace parlexo
