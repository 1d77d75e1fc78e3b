// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/locator/server_locator.h"

#include <algorithm>
#include <array>
#include <limits>

#include <QEventLoop>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include "connection/locator/locator_document.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int statusOk = 200;
constexpr int statusProxyLogin = 407;
constexpr int maxRedirects = 5;

/// A port above 65535 would be truncated to that of another proxy.
bool hasPort(const ProxyAddress& address) {
  return address.port > 0 && address.port <= std::numeric_limits<quint16>::max();
}

QNetworkProxy proxyAt(const ProxyAddress& address) {
  // An explicit NoProxy, because Qt's default is the environment's proxy, which calls to the gateway ignore.
  if (address.isEmpty() || !hasPort(address)) return QNetworkProxy::NoProxy;
  // User and password are sent in a header, because Qt would send them only after another 407.
  return {QNetworkProxy::HttpProxy, address.host, static_cast<quint16>(address.port)};
}

void addHeaderLine(QNetworkRequest& request, const QByteArray& line) {
  const qsizetype colon = line.indexOf(": ");
  request.setRawHeader(line.first(colon), line.sliced(colon + 2).trimmed());
}

bool isEncrypted(const QUrl& address) {
  return address.scheme() == QLatin1String("https");
}

/// The login must reach only the proxy. A request to an encrypted site is tunnelled, so its headers reach the
/// site instead.
bool headerCarriesLogin(const ProxySettings& login, const QUrl& address) {
  return !login.host.isEmpty() && !isEncrypted(address);
}

QNetworkRequest makeRequest(const QUrl& address, const ProxySettings& login) {
  QNetworkRequest request(address);
  addHeaderLine(request, "Accept: text/plain, text/html, text/htm, text/xml\r\n");
  addHeaderLine(request, "User-Agent: Parlexo/1.0\r\n");
  if (headerCarriesLogin(login, address))
    addHeaderLine(request, makeProxyAuthorisation(login.user, login.password));
  // Redirects are followed manually, because Qt would send the login header to an encrypted site.
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  return request;
}

QNetworkProxy proxyFor(const QUrl& address, const ProxySettings& login, const ProxyAddress& preconfigured) {
  if (login.host.isEmpty()) return proxyAt(preconfigured);
  QNetworkProxy proxy = proxyAt({login.host, login.port});
  if (headerCarriesLogin(login, address)) return proxy;
  proxy.setUser(login.user);
  proxy.setPassword(login.password);
  return proxy;
}

bool isRedirect(int status) {
  constexpr std::array redirects = {301, 302, 303, 307, 308};
  return std::find(redirects.begin(), redirects.end(), status) != redirects.end();
}

/// For an encrypted site the proxy rejects the tunnel, which has no HTTP status.
bool needsProxyLogin(const Download& download) {
  return download.status == statusProxyLogin ||
         download.error == QNetworkReply::ProxyAuthenticationRequiredError;
}

/// Whether there was no connection, so that a second attempt may succeed.
bool hasNotConnected(const Download& download) {
  return download.error != QNetworkReply::NoError && !download.wasSent && download.status == 0 &&
         !needsProxyLogin(download);
}

void pause(std::chrono::milliseconds delay) {
  QEventLoop loop;
  QTimer::singleShot(delay, &loop, &QEventLoop::quit);
  loop.exec();
}

}  // namespace

QUrl redirectTarget(const QUrl& from, const QUrl& location) {
  const QUrl target = from.resolved(location);
  const bool isWeb = isEncrypted(target) || target.scheme() == QLatin1String("http");
  const bool isLessSafe = isEncrypted(from) && !isEncrypted(target);
  const bool hasTarget = !location.isEmpty() && target.isValid() && !target.host().isEmpty();
  return hasTarget && isWeb && !isLessSafe ? target : QUrl();
}

ServerLocator::ServerLocator(const QUrl& site, const LocatorLimits& limits) : site_(site), limits_(limits) {}

Download ServerLocator::attempt(const ProxySettings& login, const ProxyAddress& preconfigured,
                                const QDeadlineTimer& deadline, const CancelFlag& cancel) const {
  QUrl address(site_);
  address.setPath(u"/WSDLServerLocator.xml"_s);
  for (int redirects = 0;; ++redirects) {
    Download reply = download(makeRequest(address, login), proxyFor(address, login, preconfigured),
                              {.silence = limits_.transfer,
                               .whole = std::chrono::milliseconds(deadline.remainingTime()),
                               .bytes = limits_.documentBytes},
                              cancel);
    const QUrl next = isRedirect(reply.status) ? redirectTarget(address, reply.location) : QUrl();
    if (next.isEmpty() || redirects == maxRedirects || cancel.isRaised()) return reply;
    address = next;
  }
}

ServerLocator::Outcome ServerLocator::locate(RunState& state, const ProxyAddress& preconfigured,
                                             const CancelFlag& cancel) const {
  // Without a valid port, the login would be sent elsewhere than to its proxy.
  if (!state.proxy.host.isEmpty() && !hasPort({state.proxy.host, state.proxy.port}))
    return Outcome::NotLocated;
  const QDeadlineTimer deadline(limits_.whole);
  Download download = attempt(state.proxy, preconfigured, deadline, cancel);
  if (hasNotConnected(download) && !cancel.isRaised()) {
    pause(limits_.retryDelay);
    download = attempt(state.proxy, preconfigured, deadline, cancel);
  }
  if (cancel.isRaised()) return Outcome::NotLocated;
  if (needsProxyLogin(download)) return Outcome::ProxyRefusal;
  if (download.status != statusOk || !download.isWhole) return Outcome::NotLocated;
  const auto location = parseLocatorDocument(download.document);
  if (!location) return Outcome::NotLocated;
  state.gateway = *location;
  return Outcome::Located;
}

}  // namespace parlexo
