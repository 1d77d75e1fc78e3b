// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include <QString>
#include <QUrl>

class QObject;

namespace parlexo {

class BackgroundGateway;

/// Fetches the gateway's news in the background, which needs no session, and passes it to `show` on the GUI
/// thread. `show` is not called if the query fails or `context` has been destroyed.
void fetchNews(const BackgroundGateway& gateway, QObject& context,
               std::function<void(const QString& news)> show);

/// A part of a text: plain text or a web link.
struct NewsPart {
  QString text;
  QUrl page;  ///< empty for plain text

  [[nodiscard]] bool operator==(const NewsPart&) const = default;
};

/// Splits untrusted `news` into plain text and web links, in order. Only http and https URLs without user
/// info become links. Line breaks become "\n" and other control characters except tabs are removed. Markup is
/// not interpreted.
[[nodiscard]] std::vector<NewsPart> splitNews(const QString& news);

}  // namespace parlexo
