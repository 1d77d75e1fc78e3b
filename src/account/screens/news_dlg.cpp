// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/news_dlg.h"

#include <QHBoxLayout>
#include <QPalette>
#include <QTextBrowser>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QVBoxLayout>

#include "account/core/news.h"
#include "base/message_texts.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QTextCharFormat toFormat(const NewsPart& part) {
  QTextCharFormat format;
  if (!isWebAddress(part.page)) return format;
  format.setAnchor(true);
  format.setAnchorHref(part.page.toString(QUrl::FullyEncoded));
  format.setForeground(look::link);
  format.setFontUnderline(true);
  return format;
}

QTextBrowser* createBrowser(QWidget* parent) {
  auto* browser = new QTextBrowser(parent);
  browser->setObjectName(u"news"_s);
  browser->setAccessibleName(CNewsDlg::tr("News"));
  browser->setOpenLinks(false);
  QPalette palette = browser->palette();
  palette.setColor(QPalette::Base, look::listBackground);
  browser->setPalette(palette);
  return browser;
}

}  // namespace

CNewsDlg::CNewsDlg(const QString& news, QWidget* parent) : GradientDialog(parent) {
  setObjectName(u"newsDialog"_s);
  setWindowTitle(tr("Parlexo(TM) : News"));
  text_ = createBrowser(this);
  connect(text_, &QTextBrowser::anchorClicked, this, &CNewsDlg::openPage);
  fill(news);
  auto* row = new QHBoxLayout;
  row->addStretch();
  auto* ok = addButton(*row, u"ok"_s, text(TextId::ButtonOk));
  ok->setDefault(true);
  connect(ok, &PictureButton::clicked, this, &CNewsDlg::accept);
  auto* column = createColumn(*this);
  column->addWidget(text_, 1);
  column->addLayout(row);
  ok->setFocus();
  resize(dialogUnits(*this, 260, 180));
}

void CNewsDlg::fill(const QString& news) {
  QTextCursor cursor(text_->document());
  for (const NewsPart& part : splitNews(news)) cursor.insertText(part.text, toFormat(part));
}

void CNewsDlg::openPage(const QUrl& page) const {
  if (isWebAddress(page) && opener_) opener_(page);
}

}  // namespace parlexo
