#include "gateway/core/server_locator.h"

#include <memory>

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include "gateway/core/locator_document.h"

namespace parlexo {

namespace {

constexpr int statusOk = 200;
constexpr int statusProxyLogin = 407;

/// What came of one download.
struct Download {
  int status = 0;  ///< HTTP status, 0 when there was none
  QNetworkReply::NetworkError error = QNetworkReply::NoError;
  bool isWhole = false;  ///< the document, up to the allowed length, has arrived
  QByteArray document;
};

QNetworkProxy proxyOf(const ProxySettings& settings) {
  // Without this Qt would take a proxy from the environment, which the gateway's own calls don't see.
  if (settings.host.isEmpty()) return QNetworkProxy::NoProxy;
  return {QNetworkProxy::HttpProxy, settings.host, static_cast<quint16>(settings.port), settings.user,
          settings.password};
}

QNetworkRequest requestFor(const QUrl& site, const LocatorLimits& limits) {
  QUrl address(site);
  address.setPath(QStringLiteral("/WSDLServerLocator.xml"));
  QNetworkRequest request(address);
  request.setRawHeader("Accept", "text/plain, text/html, text/htm, text/xml");
  request.setRawHeader("User-Agent", "Parlexo/1.0");
  // The limit on the document counts bytes as they arrive, so they must not be compressed.
  request.setRawHeader("Accept-Encoding", "identity");
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  request.setTransferTimeout(static_cast<int>(limits.transfer.count()));
  return request;
}

/// Waits for the reply's end, or until more than the limit has arrived.
Download wait(QNetworkReply& reply, qint64 limit) {
  Download download;
  QEventLoop loop;
  const auto take = [&] {
    // A reply that failed at once is not open.
    if (reply.isOpen()) download.document += reply.read(limit - download.document.size());
    if (download.document.size() >= limit) loop.quit();
  };
  QObject::connect(&reply, &QNetworkReply::readyRead, &loop, take);
  QObject::connect(&reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
  if (!reply.isFinished()) loop.exec();
  take();
  download.status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  download.error = reply.error();
  download.isWhole = download.error == QNetworkReply::NoError;
  return download;
}

Download attempt(const QUrl& site, const ProxySettings& proxy, const LocatorLimits& limits) {
  QNetworkAccessManager manager;
  manager.setProxy(proxyOf(proxy));
  const std::unique_ptr<QNetworkReply> reply(manager.get(requestFor(site, limits)));
  reply->setReadBufferSize(limits.documentBytes);
  return wait(*reply, limits.documentBytes);
}

/// True when no connection came about, so that another attempt may do better.
bool hasNotConnected(const Download& download) {
  switch (download.error) {
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::HostNotFoundError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::UnknownNetworkError:
    case QNetworkReply::ProxyConnectionRefusedError:
    case QNetworkReply::ProxyNotFoundError:
      return true;
    default:
      return false;
  }
}

void pause(std::chrono::milliseconds delay) {
  QEventLoop loop;
  QTimer::singleShot(delay, &loop, &QEventLoop::quit);
  loop.exec();
}

}  // namespace

ServerLocator::ServerLocator(const QUrl& site, const LocatorLimits& limits) : site_(site), limits_(limits) {}

ServerLocator::Outcome ServerLocator::locate(RunState& state) const {
  Download download = attempt(site_, state.proxy, limits_);
  if (hasNotConnected(download)) {
    pause(limits_.retryDelay);
    download = attempt(site_, state.proxy, limits_);
  }
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
