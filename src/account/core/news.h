// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include <QString>
#include <QUrl>

class QObject;

namespace parlexo {

class BackgroundGateway;

/// Fetches the gateway's news, which need no session, in the background and passes them to `show` on the
/// interface thread. `show` is not called when they could not be fetched, nor after `context` was destroyed.
void fetchNews(const BackgroundGateway& gateway, QObject& context,
               std::function<void(const QString& news)> show);

/// A stretch of a text: plain words, or a web address with the page it names.
struct NewsPart {
  QString text;
  QUrl page;  ///< empty for plain words

  [[nodiscard]] bool operator==(const NewsPart&) const = default;
};

/// `news` from its beginning to its end, its web addresses set apart. Only http and https addresses count,
/// and none that hides its host behind a user name. A line break is one "\n"; what can't be shown is left
/// out; markup is text like any other.
[[nodiscard]] std::vector<NewsPart> newsParts(const QString& news);

}  // namespace parlexo
