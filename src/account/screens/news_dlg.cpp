#include "account/screens/news_dlg.h"

#include <QPalette>
#include <QTextBrowser>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QVBoxLayout>

#include "account/core/news.h"
#include "base/message_texts.h"
#include "gateway/boxes/animated_picture.h"
#include "ui/look.h"
#include "ui/picture_button.h"

namespace parlexo {
namespace {

QTextCharFormat formatOf(const NewsPart& part) {
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
  browser->setObjectName(QStringLiteral("news"));
  browser->setAccessibleName(QStringLiteral("News"));
  browser->setOpenLinks(false);
  QPalette palette = browser->palette();
  palette.setColor(QPalette::Base, look::listBackground);
  browser->setPalette(palette);
  return browser;
}

}  // namespace

CNewsDlg::CNewsDlg(const QString& news, QWidget* parent) : GradientDialog(parent) {
  setObjectName(QStringLiteral("newsDialog"));
  setWindowTitle(QStringLiteral("Parlexo(TM) : News"));
  auto* picture = new CAnimatedPicture(this);
  if (picture->loadFromResource(QLatin1String(connectingAnimation))) picture->start();
  text_ = createBrowser(this);
  connect(text_, &QTextBrowser::anchorClicked, this, &CNewsDlg::follow);
  fill(news);
  auto* ok = new PictureButton(text(TextId::ButtonOk), this);
  ok->setObjectName(QStringLiteral("ok"));
  ok->setDefault(true);
  connect(ok, &PictureButton::clicked, this, &CNewsDlg::accept);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 14, 16, 14);
  column->setSpacing(10);
  column->addWidget(picture);
  column->addWidget(text_, 1);
  column->addWidget(ok, 0, Qt::AlignRight);
  ok->setFocus();
  resize(dialogUnits(*this, 260, 180));
}

void CNewsDlg::fill(const QString& news) {
  QTextCursor cursor(text_->document());
  for (const NewsPart& part : newsParts(news)) cursor.insertText(part.text, formatOf(part));
}

void CNewsDlg::follow(const QUrl& page) const {
  if (isWebAddress(page) && opener_) opener_(page);
}

}  // namespace parlexo
