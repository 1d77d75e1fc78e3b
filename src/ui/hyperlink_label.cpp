// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/hyperlink_label.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include "ui/button_accessibility.h"
#include "ui/look.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 3;

}  // namespace

bool isWebAddress(const QUrl& page) {
  const bool isWeb = page.scheme() == u"https"_s || page.scheme() == u"http"_s;
  return page.isValid() && isWeb && !page.host().isEmpty();
}

bool openInBrowser(const QUrl& page) {
  return isWebAddress(page) && QDesktopServices::openUrl(page);
}

HyperlinkLabel::HyperlinkLabel(const QString& text, const QUrl& page, QWidget* parent)
    : QAbstractButton(parent) {
  installButtonAccessibility();
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  setText(text);
  setPage(page);
  connect(this, &QAbstractButton::clicked, this, &HyperlinkLabel::open);
}

void HyperlinkLabel::setPage(const QUrl& page) {
  page_ = page;
  setToolTip(page.toDisplayString());
}

void HyperlinkLabel::open() {
  if (isWebAddress(page_) && opener_) opener_(page_);
}

QSize HyperlinkLabel::sizeHint() const {
  return fontMetrics().size(Qt::TextShowMnemonic, text()) + QSize(2 * margin, 2 * margin);
}

void HyperlinkLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QFont underlined = font();
  underlined.setUnderline(true);
  painter.setFont(underlined);
  const QColor color = underMouse() || isDown() ? look::selection : look::link;
  painter.setPen(isEnabled() ? color : look::disabledText);
  const QRect area = rect().adjusted(margin, margin, -margin, -margin);
  const auto side = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
  painter.drawText(area, int(side) | Qt::TextShowMnemonic, text());
  if (!hasFocus()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(look::focus, 1));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
}

void HyperlinkLabel::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter) {
    QAbstractButton::keyPressEvent(event);
    return;
  }
  if (!event->isAutoRepeat()) click();
}

}  // namespace parlexo
