// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look.h"

#include <algorithm>

#include <QApplication>
#include <QFontMetrics>
#include <QPalette>
#include <QToolTip>
#include <QWidget>

#include "ui/look_style.h"

// Without this call the linker drops the resources of a static library. Q_INIT_RESOURCE must be used outside
// of namespaces.
static void loadResources() {
  Q_INIT_RESOURCE(ui);
}

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal smallestPointSize = 9;

void setDisabledColors(QPalette& palette) {
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, look::disabledText);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, look::dialogBackground);
}

QPalette lookPalette() {
  QPalette palette(look::dialogBackground, look::dialogBackground);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, look::text);
  }
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, look::listBackground);
  palette.setColor(QPalette::ToolTipBase, look::listBackground);
  palette.setColor(QPalette::Highlight, look::selection);
  palette.setColor(QPalette::HighlightedText, look::selectedText);
  palette.setColor(QPalette::Link, look::link);
  palette.setColor(QPalette::LinkVisited, look::link);
  palette.setColor(QPalette::PlaceholderText, look::disabledText);
  setDisabledColors(palette);
  return palette;
}

QFont lookFont(QFont font) {
  if (font.pointSizeF() > 0) font.setPointSizeF(std::max(font.pointSizeF(), smallestPointSize));
  return font;
}

}  // namespace

void applyLook(QApplication& application) {
  QApplication::setStyle(new LookStyle);
  QApplication::setPalette(lookPalette());
  QApplication::setFont(lookFont(application.font()));
  QApplication::setWindowIcon(programIcon());
  QToolTip::setPalette(lookPalette());
}

QIcon programIcon() {
  loadResources();
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    icon.addFile(u":/icons/parlexo-client-%1.png"_s.arg(size), QSize(size, size));
  }
  return icon;
}

QSize dialogUnits(const QWidget& widget, int width, int height) {
  const QFontMetricsF metrics(widget.font(), &widget);
  const QString letters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"_s;
  const qreal averageWidth = metrics.horizontalAdvance(letters) / qreal(letters.size());
  return {qRound(width * averageWidth / 4), qRound(height * metrics.height() / 8)};
}

}  // namespace parlexo
