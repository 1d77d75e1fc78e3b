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

QString announcement(const QString& version) {
  if (version.isEmpty()) return {};
  return u"A new version %1 is now available!"_s.arg(version);
}

QString warning() {
  return u"Product software version mismatch. You MUST upgrade your software!"_s;
}

QString explanation() {
  return u"The version of the client software you are using is out of date.\nPress the Download button to "
         "download the latest version  of the program. Get the latest fixes and new features..."_s;
}

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
  setWindowTitle(u"Parlexo(TM) : Product UPGRADE"_s);
  QVBoxLayout* column = createColumn(*this);
  makeBold(*addLabel(*column, "warning", warning()));
  QLabel* news = addLabel(*column, "announcement", announcement(latestVersion));
  news->setVisible(!latestVersion.isEmpty());
  addLabel(*column, "explanation", explanation())->setMinimumWidth(dialogUnits(*this, 290, 0).width());
  column->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* download = addButton(*buttons, u"download"_s, u"&Download"_s);
  download->setDefault(true);
  auto* cancel = addButton(*buttons, u"cancel"_s, u"&Cancel"_s);
  column->addLayout(buttons);
  download->setFocus();
  connect(download, &PictureButton::clicked, this,
          [opener = std::move(opener)] { opener(QUrl(webPage(u"/messagingclient.php"_s))); });
  connect(cancel, &PictureButton::clicked, this, &QDialog::reject);
}

}  // namespace parlexo
