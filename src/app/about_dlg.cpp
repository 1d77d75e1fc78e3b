// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/about_dlg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "base/message_texts.h"
#include "base/product.h"
#include "ui/hyperlink_label.h"
#include "ui/look.h"
#include "ui/picture_button.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QLabel* createVersionLabel() {
  auto* label = new QLabel(
      CAboutDlg::tr("Parlexo Client v%1\nCopyright (C) 2026 the Parlexo developers.\nGPL-3.0-or-later.")
          .arg(QLatin1String(clientVersion)));
  label->setObjectName(u"version"_s);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return label;
}

}  // namespace

CAboutDlg::CAboutDlg(QWidget* parent) : GradientDialog(parent) {
  setObjectName(u"about"_s);
  setWindowTitle(tr("Parlexo(TM) : About"));
  auto* site = new HyperlinkLabel(webPage({}), QUrl(webPage({})));
  site->setObjectName(u"site"_s);
  auto* texts = new QVBoxLayout;
  texts->addWidget(createVersionLabel());
  texts->addWidget(site, 0, Qt::AlignLeft);
  texts->addStretch();

  auto* ok = new PictureButton(text(TextId::ButtonOk));
  ok->setObjectName(u"ok"_s);
  ok->setDefault(true);
  connect(ok, &PictureButton::clicked, this, &CAboutDlg::accept);
  auto* row = new QHBoxLayout(this);
  row->addWidget(createConnectingAnimation(this), 0, Qt::AlignTop);
  row->addLayout(texts, 1);
  row->addWidget(ok, 0, Qt::AlignTop);
  ok->setFocus();
  setMinimumSize(dialogUnits(*this, 295, 76));
}

}  // namespace parlexo
