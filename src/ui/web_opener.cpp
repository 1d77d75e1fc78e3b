// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/web_opener.h"

#include <QDesktopServices>

namespace parlexo {

using namespace Qt::StringLiterals;

bool isWebAddress(const QUrl& page) {
  const bool isWeb = page.scheme() == u"https"_s || page.scheme() == u"http"_s;
  return page.isValid() && isWeb && !page.host().isEmpty();
}

bool openInBrowser(const QUrl& page) {
  return isWebAddress(page) && QDesktopServices::openUrl(page);
}

}  // namespace parlexo
