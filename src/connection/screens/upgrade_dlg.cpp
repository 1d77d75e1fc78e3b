#include "connection/screens/upgrade_dlg.h"

#include <utility>

#include <QLabel>
#include <QVBoxLayout>

#include "base/product.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/waiting/box_column.h"

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
  setObjectName(QStringLiteral("upgradeDlg"));
  setWindowTitle(QStringLiteral("Parlexo(TM) : Product UPGRADE"));
  QVBoxLayout* column = createColumn(*this);
  makeBold(*addLabel(*column, "warning", warning()));
  QLabel* news = addLabel(*column, "announcement", announcement(latestVersion));
  news->setVisible(!latestVersion.isEmpty());
  addLabel(*column, "explanation", explanation())->setMinimumWidth(dialogUnits(*this, 290, 0).width());
  column->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* download = addButton(*buttons, QStringLiteral("download"), QStringLiteral("&Download"));
  download->setDefault(true);
  auto* cancel = addButton(*buttons, QStringLiteral("cancel"), QStringLiteral("&Cancel"));
  column->addLayout(buttons);
  download->setFocus();
  connect(download, &PictureButton::clicked, this,
          [opener = std::move(opener)] { opener(QUrl(webPage(QStringLiteral("/messagingclient.php")))); });
  connect(cancel, &PictureButton::clicked, this, &QDialog::reject);
}

}  // namespace parlexo
