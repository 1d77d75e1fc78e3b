#pragma once

#include <optional>
#include <vector>

#include <QString>
#include <QUrl>

namespace parlexo {

class Gateway;

/// What the gateway has to tell everybody; none when it could not be had. Needs no session.
[[nodiscard]] std::optional<QString> fetchNews(const Gateway& gateway);

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
