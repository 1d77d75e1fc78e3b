#include "gateway/core/server_locator.h"

#include <limits>

#include <QEventLoop>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include "gateway/core/locator_document.h"

namespace parlexo {

namespace {

constexpr int statusOk = 200;
constexpr int statusProxyLogin = 407;

/// A port beyond 65535 would lose its upper bits and lead to another proxy.
bool hasPort(const ProxyAddress& address) {
  return address.port > 0 && address.port <= std::numeric_limits<quint16>::max();
}

QNetworkProxy proxyAt(const ProxyAddress& address) {
  // Without this Qt would take a proxy from the environment, which the gateway's own calls don't see.
  if (address.isEmpty() || !hasPort(address)) return QNetworkProxy::NoProxy;
  // No name and password here: the header says them, and Qt must not start an exchange of its own.
  return {QNetworkProxy::HttpProxy, address.host, static_cast<quint16>(address.port)};
}

void addHeaderLine(QNetworkRequest& request, const QByteArray& line) {
  const qsizetype colon = line.indexOf(": ");
  request.setRawHeader(line.first(colon), line.sliced(colon + 2).trimmed());
}

QNetworkRequest requestFor(const QUrl& site) {
  QUrl address(site);
  address.setPath(QStringLiteral("/WSDLServerLocator.xml"));
  QNetworkRequest request(address);
  addHeaderLine(request, "Accept: text/plain, text/html, text/htm, text/xml\r\n");
  addHeaderLine(request, "User-Agent: Parlexo/1.0\r\n");
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  return request;
}

/// True when no connection came about, so that another attempt may do better.
bool hasNotConnected(const Download& download) {
  return download.error != QNetworkReply::NoError && !download.wasSent && download.status == 0;
}

void pause(std::chrono::milliseconds delay) {
  QEventLoop loop;
  QTimer::singleShot(delay, &loop, &QEventLoop::quit);
  loop.exec();
}

}  // namespace

ServerLocator::ServerLocator(const QUrl& site, const LocatorLimits& limits) : site_(site), limits_(limits) {}

Download ServerLocator::attempt(const ProxySettings& login, const ProxyAddress& preconfigured,
                                const CancelFlag& cancel) const {
  const bool isLogin = !login.host.isEmpty();
  const ProxyAddress proxy = isLogin ? ProxyAddress{login.host, login.port} : preconfigured;
  QNetworkRequest request = requestFor(site_);
  if (isLogin) addHeaderLine(request, makeProxyAuthorisation(login.user, login.password));
  return download(request, proxyAt(proxy),
                  {.silence = limits_.transfer, .whole = limits_.whole, .bytes = limits_.documentBytes},
                  cancel);
}

ServerLocator::Outcome ServerLocator::locate(RunState& state, const ProxyAddress& preconfigured,
                                             const CancelFlag& cancel) const {
  // The login must not go anywhere but to its proxy.
  if (!state.proxy.host.isEmpty() && !hasPort({state.proxy.host, state.proxy.port}))
    return Outcome::NotLocated;
  Download download = attempt(state.proxy, preconfigured, cancel);
  if (hasNotConnected(download) && !cancel.isRaised()) {
    pause(limits_.retryDelay);
    download = attempt(state.proxy, preconfigured, cancel);
  }
  if (cancel.isRaised()) return Outcome::NotLocated;
  if (download.status == statusProxyLogin ||
      download.error == QNetworkReply::ProxyAuthenticationRequiredError) {
    return Outcome::ProxyRefusal;
  }
  if (download.status != statusOk || !download.isWhole) return Outcome::NotLocated;
  const auto location = parseLocatorDocument(download.document);
  if (!location) return Outcome::NotLocated;
  state.gateway = *location;
  return Outcome::Located;
}

}  // namespace parlexo
