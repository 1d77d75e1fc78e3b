// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QAbstractButton>
#include <QUrl>

namespace parlexo {

/// Opens a web page outside the program. Returns false on failure. Replaced in tests.
using WebOpener = std::function<bool(const QUrl& page)>;

/// Opens `page` in the default browser. Returns false on failure, and for schemes other than http and https,
/// for which the system might start any program.
bool openInBrowser(const QUrl& page);

/// Returns whether `page` is a valid http or https address.
[[nodiscard]] bool isWebAddress(const QUrl& page);

/// An underlined link that opens a web page in the browser when clicked or activated with Space or Enter.
/// Without an address it only emits clicked(), for links inside the program.
class HyperlinkLabel : public QAbstractButton {
  Q_OBJECT

 public:
  explicit HyperlinkLabel(const QString& text, const QUrl& page = {}, QWidget* parent = nullptr);

  /// Addresses other than http and https are never passed to the opener.
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
