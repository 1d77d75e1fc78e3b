#pragma once

#include <QString>

namespace parlexo {

/// When a page's message is to be delivered. The default means at once.
struct Schedule {
  [[nodiscard]] static QString sendNow() { return QStringLiteral("Send Message Now"); }

  QString text = sendNow();  ///< what the page shows: local time, "yyyy/MM/dd HH:mm:ss", or sendNow()
  QString value;             ///< what the gateway is told: the same instant in GMT, in the same form

  [[nodiscard]] bool isNow() const { return text == sendNow(); }
};

}  // namespace parlexo
