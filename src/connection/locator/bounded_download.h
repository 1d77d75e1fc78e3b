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

/// Limits of a download.
struct DownloadLimits {
  std::chrono::milliseconds silence;  ///< maximum wait for a connection or the next byte
  std::chrono::milliseconds whole;    ///< maximum total time
  qint64 bytes;                       ///< a longer document is truncated to this size
};

/// The result of a download.
struct Download {
  int status = 0;  ///< HTTP status, 0 without a reply
  QNetworkReply::NetworkError error = QNetworkReply::NoError;
  bool wasSent = false;  ///< the request was sent, so there was a connection
  bool isWhole = false;  ///< the document is complete, or truncated at the size limit
  QUrl location;         ///< target of a redirect, may be relative; empty if there is none
  QByteArray document;
};

/// Downloads a document through `proxy`. Blocks in a local event loop until the download has ended, a limit
/// is reached or, within about 100 ms, `cancel` is raised. May be called on any thread.
[[nodiscard]] Download download(QNetworkRequest request, const QNetworkProxy& proxy,
                                const DownloadLimits& limits, const CancelFlag& cancel = {});

}  // namespace parlexo
