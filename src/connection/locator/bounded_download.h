// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

#include <QByteArray>
#include <QNetworkReply>
#include <QUrl>

#include "base/call_runner.h"

class QNetworkProxy;
class QNetworkRequest;

namespace parlexo {

/// How much of a document is read and how long it may take.
struct DownloadLimits {
  std::chrono::milliseconds silence;  ///< longest wait for a connection or the next byte
  std::chrono::milliseconds whole;    ///< longest time for all of it
  qint64 bytes;                       ///< a longer document is read up to here
};

/// What came of one download.
struct Download {
  int status = 0;  ///< HTTP status, 0 when there was none
  QNetworkReply::NetworkError error = QNetworkReply::NoError;
  bool wasSent = false;  ///< the request went out, so a connection had come about
  bool isWhole = false;  ///< the document has arrived to its end or up to the limit
  QUrl location;         ///< where a redirect points to, perhaps relative; empty when there is none
  QByteArray document;
};

/// Downloads what `request` asks for through `proxy`, waiting in a local event loop; any thread may call.
/// Ends as soon as one of the limits is reached, and about 100 ms after `cancel` was raised.
[[nodiscard]] Download download(QNetworkRequest request, const QNetworkProxy& proxy,
                                const DownloadLimits& limits, const CancelFlag& cancel = {});

}  // namespace parlexo
