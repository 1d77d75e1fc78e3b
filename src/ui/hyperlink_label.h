// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QUrl>

#include "ui/web_opener.h"

namespace parlexo {

/// An underlined link that opens a web page in the browser when it is clicked or pressed with Space or
/// Enter. Without an address it only emits clicked(), for links inside the program.
class HyperlinkLabel : public QAbstractButton {
  Q_OBJECT

 public:
  explicit HyperlinkLabel(const QString& text, const QUrl& page = {}, QWidget* parent = nullptr);

  /// Only http and https addresses are ever opened, whatever the opener.
  void setPage(const QUrl& page);
  [[nodiscard]] const QUrl& page() const { return page_; }
  void setOpener(WebOpener opener) { opener_ = std::move(opener); }

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void open();

  QUrl page_;
  WebOpener opener_ = openInBrowser;
};

}  // namespace parlexo
