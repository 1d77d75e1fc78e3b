#include "ui/web_opener.h"

#include <QDesktopServices>

namespace parlexo {

bool isWebAddress(const QUrl& page) {
  const bool isWeb = page.scheme() == QStringLiteral("https") || page.scheme() == QStringLiteral("http");
  return page.isValid() && isWeb && !page.host().isEmpty();
}

bool openInBrowser(const QUrl& page) {
  return isWebAddress(page) && QDesktopServices::openUrl(page);
}

}  // namespace parlexo
