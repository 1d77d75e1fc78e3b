// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

#include "ui/gradient_page.h"
#include "ui/hyperlink_label.h"

class QTextBrowser;

namespace parlexo {

/// Shows the gateway's news as plain text with web links. The text is untrusted: markup is not interpreted
/// and nothing is loaded.
class CNewsDlg final : public GradientDialog {
  Q_OBJECT

 public:
  explicit CNewsDlg(const QString& news, QWidget* parent = nullptr);

  void setOpener(WebOpener opener) { opener_ = std::move(opener); }

 private:
  void fill(const QString& news);
  void openPage(const QUrl& page) const;

  QTextBrowser* text_ = nullptr;
  WebOpener opener_ = openInBrowser;
};

}  // namespace parlexo
