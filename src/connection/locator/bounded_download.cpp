// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/locator/bounded_download.h"

#include <algorithm>
#include <memory>

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkRequest>
#include <QTimer>

namespace parlexo {

namespace {

constexpr std::chrono::milliseconds cancelPollInterval{100};

/// Waits for one reply and collects its data.
class DownloadWait {
 public:
  DownloadWait(QNetworkReply& reply, const DownloadLimits& limits) : reply_(reply), limits_(limits) {}

  [[nodiscard]] Download run(const CancelFlag& cancel) {
    QObject::connect(&reply_, &QNetworkReply::requestSent, &loop_, [this] { result_.wasSent = true; });
    QObject::connect(&reply_, &QNetworkReply::readyRead, &loop_, [this] { readAvailable(); });
    QObject::connect(&reply_, &QNetworkReply::finished, &loop_, &QEventLoop::quit);
    QTimer::singleShot(limits_.whole, &loop_, [this] { abort(); });
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop_, [this, &cancel] {
      if (cancel.isRaised()) abort();
    });
    poll.start(cancelPollInterval);
    if (!reply_.isFinished()) loop_.exec();
    return result();
  }

 private:
  void readAvailable() {
    // A reply that failed immediately is not open.
    if (reply_.isOpen()) result_.document += reply_.read(limits_.bytes - result_.document.size());
    if (result_.document.size() >= limits_.bytes) loop_.quit();
  }

  void abort() {
    aborted_ = true;
    loop_.quit();
  }

  Download result() {
    readAvailable();
    result_.status = reply_.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    result_.error = reply_.error();
    result_.location = reply_.attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    result_.isWhole = result_.error == QNetworkReply::NoError && !aborted_ && hasAnnouncedLength();
    return std::move(result_);
  }

  // Qt sometimes treats a connection that was closed early as the end of the document.
  [[nodiscard]] bool hasAnnouncedLength() const {
    const qint64 announced = reply_.header(QNetworkRequest::ContentLengthHeader).toLongLong();
    return result_.document.size() >= std::min(announced, limits_.bytes);
  }

  QNetworkReply& reply_;
  const DownloadLimits& limits_;
  QEventLoop loop_;
  Download result_;
  bool aborted_ = false;
};

}  // namespace

Download download(QNetworkRequest request, const QNetworkProxy& proxy, const DownloadLimits& limits,
                  const CancelFlag& cancel) {
  // The size limit applies to bytes as received, so they must not be compressed.
  request.setRawHeader("Accept-Encoding", "identity");
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  request.setTransferTimeout(static_cast<int>(limits.silence.count()));
  QNetworkAccessManager manager;
  manager.setProxy(proxy);
  const std::unique_ptr<QNetworkReply> reply(manager.get(request));
  reply->setReadBufferSize(limits.bytes);
  return DownloadWait(*reply, limits).run(cancel);
}

}  // namespace parlexo
