#include "gateway/boxes/upgrade_dlg.h"

#include <utility>

#include <QGridLayout>
#include <QLabel>

#include "base/product.h"
#include "gateway/boxes/animated_picture.h"
#include "ui/look.h"
#include "ui/picture_button.h"

namespace parlexo {

namespace {

QString announcement(const QString& version) {
  if (version.isEmpty()) return {};
  return QStringLiteral("A new version %1 is now available!").arg(version);
}

QString warning() {
  return QStringLiteral("Product software version mismatch. You MUST upgrade your software!");
}

QString explanation() {
  return QStringLiteral(
      "The version of the client software you are using is out of date.\nPress the Download button to "
      "download the latest version  of the program. Get the latest fixes and new features...");
}

QLabel* addLabel(QBoxLayout& column, const char* name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(QString::fromLatin1(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
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
  setObjectName(QStringLiteral("upgradeDlg"));
  setWindowTitle(QStringLiteral("Parlexo(TM) : Product UPGRADE"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 14, 16, 14);
  column->setSpacing(10);
  auto* animation = new CAnimatedPicture(this);
  animation->loadFromResource(QString::fromLatin1(connectingAnimation));
  animation->start();
  column->addWidget(animation);
  makeBold(*addLabel(*column, "warning", warning()));
  QLabel* news = addLabel(*column, "announcement", announcement(latestVersion));
  news->setVisible(!latestVersion.isEmpty());
  addLabel(*column, "explanation", explanation())->setMinimumWidth(dialogUnits(*this, 290, 0).width());
  column->addStretch();

  auto* download = new PictureButton(QStringLiteral("&Download"));
  download->setObjectName(QStringLiteral("download"));
  download->setDefault(true);
  auto* cancel = new PictureButton(QStringLiteral("&Cancel"));
  cancel->setObjectName(QStringLiteral("cancel"));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(download);
  buttons->addWidget(cancel);
  column->addLayout(buttons);
  download->setFocus();
  connect(download, &QAbstractButton::clicked, this,
          [opener = std::move(opener)] { opener(QUrl(webPage(QStringLiteral("/messagingclient.php")))); });
  connect(cancel, &QAbstractButton::clicked, this, &QDialog::reject);
}

}  // namespace parlexo
