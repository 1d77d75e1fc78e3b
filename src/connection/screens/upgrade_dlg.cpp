// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/screens/upgrade_dlg.h"

#include <utility>

#include <QLabel>
#include <QVBoxLayout>

#include "base/product.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QLabel* addLabel(QBoxLayout& column, const char* name, const QString& text) {
  QLabel* label = wrappedLabel(text, column.parentWidget());
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  column.addWidget(label);
  return label;
}

void makeBold(QWidget& widget) {
  QFont font = widget.font();
  font.setBold(true);
  widget.setFont(font);
}

}  // namespace

CUpgradeDlg::CUpgradeDlg(const QString& latestVersion, QWidget* parent, WebOpener opener)
    : GradientDialog(parent) {
  setObjectName(u"upgradeDlg"_s);
  setWindowTitle(tr("Parlexo(TM) : Product UPGRADE"));
  QVBoxLayout* column = createColumn(*this);
  makeBold(*addLabel(*column, "warning",
                     tr("Product software version mismatch. You MUST upgrade your software!")));
  const QString announcement =
      latestVersion.isEmpty() ? QString() : tr("A new version %1 is now available!").arg(latestVersion);
  addLabel(*column, "announcement", announcement)->setVisible(!latestVersion.isEmpty());
  addLabel(
      *column, "explanation",
      tr("The version of the client software you are using is out of date.\nPress the Download button to "
         "download the latest version  of the program. Get the latest fixes and new features..."))
      ->setMinimumWidth(dialogUnits(*this, 290, 0).width());
  column->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* download = addButton(*buttons, u"download"_s, tr("&Download"));
  download->setDefault(true);
  auto* cancel = addButton(*buttons, u"cancel"_s, tr("&Cancel"));
  column->addLayout(buttons);
  download->setFocus();
  connect(download, &PictureButton::clicked, this,
          [opener = std::move(opener)] { opener(QUrl(webPage(u"/messagingclient.php"_s))); });
  connect(cancel, &PictureButton::clicked, this, &QDialog::reject);
}

}  // namespace parlexo
