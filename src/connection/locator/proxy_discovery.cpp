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

/// Returns the script; empty if the download fails or exceeds the size limit.
QByteArray downloadScript(const QUrl& address, const CancelFlag& cancel) {
  QNetworkRequest request(address);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  const Download script = download(request, QNetworkProxy::NoProxy, scriptLimits, cancel);
  const bool isComplete = script.isWhole && script.document.size() < scriptLimits.bytes;
  return isComplete ? script.document : QByteArray();
}

/// Returns the proxy that the network's configuration script returns, as text for parseProxyText(); empty if
/// there is none.
QString evaluateScript(const ProxySystem& system, const QUrl& address, const CancelFlag& cancel) {
  const QUrl scriptAddress = system.scriptAddress(cancel);
  if (!scriptAddress.isValid()) return {};
  const QByteArray script = downloadScript(scriptAddress, cancel);
  const QTemporaryDir folder;
  QFile file(folder.filePath(u"proxy.pac"_s));
  if (script.isEmpty() || !file.open(QIODevice::WriteOnly) || file.write(script) != script.size()) return {};
  // The script engine may require exclusive access.
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
      run(address, [](const ProxySystem& system, const QUrl& target, const CancelFlag& cancel) {
        return system.configuredProxy(target, cancel);
      });
  return httpProxyIn(list, address.scheme());
}

ProxyAddress ProxyDiscovery::discover() const {
  return parseProxyText(
      run(address_, [](const ProxySystem& system, const QUrl& address, const CancelFlag& cancel) {
        const QString configured = system.configuredProxy(address, cancel);
        return configured.isEmpty() ? evaluateScript(system, address, cancel) : configured;
      }));
}

QString ProxyDiscovery::run(const QUrl& address, const Search& search) const {
  const auto result = std::make_shared<QString>();
  const bool ended = runner_.run([search, result, system = system_, address](const CancelFlag& cancel) {
    *result = search(*system, address, cancel);
  });
  return ended ? *result : QString();
}

}  // namespace parlexo
