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

namespace {

QLabel* createVersionLabel() {
  auto* label =
      new QLabel(QStringLiteral("Parlexo Client vX.XX\n"
                                "Copyright (C) 2026 the Parlexo developers.\nGPL-3.0-or-later."));
  label->setObjectName(QStringLiteral("version"));
  label->setText(label->text().replace(QStringLiteral("X.XX"), QLatin1String(clientVersion)));
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return label;
}

}  // namespace

CAboutDlg::CAboutDlg(QWidget* parent) : GradientDialog(parent) {
  setObjectName(QStringLiteral("about"));
  setWindowTitle(QStringLiteral("Parlexo(TM) : About"));
  auto* site = new HyperlinkLabel(webPage({}), QUrl(webPage({})));
  site->setObjectName(QStringLiteral("site"));
  auto* texts = new QVBoxLayout;
  texts->addWidget(createVersionLabel());
  texts->addWidget(site, 0, Qt::AlignLeft);
  texts->addStretch();

  auto* ok = new PictureButton(text(TextId::ButtonOk));
  ok->setObjectName(QStringLiteral("ok"));
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
