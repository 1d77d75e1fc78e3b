#include "gateway/boxes/proxy_login_dlg.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "gateway/boxes/animated_picture.h"
#include "gateway/core/leading_number.h"
#include "ui/look.h"
#include "ui/picture_button.h"

namespace parlexo {

namespace {

QString proxyExplanation() {
  return QStringLiteral(
      "You connect to the internet via the proxy. You must provide the proxy user name and the proxy "
      "password (usually your windows login details).");
}

QLineEdit* addRow(QGridLayout& grid, const char* name, const QString& text) {
  auto* field = new QLineEdit;
  field->setObjectName(QString::fromLatin1(name));
  auto* label = new QLabel(text);
  label->setBuddy(field);
  const int row = grid.rowCount();
  grid.addWidget(label, row, 0);
  grid.addWidget(field, row, 1);
  return field;
}

PictureButton* addButton(QBoxLayout& row, const char* name, const QString& text) {
  auto* button = new PictureButton(text);
  button->setObjectName(QString::fromLatin1(name));
  row.addWidget(button);
  return button;
}

}  // namespace

CProxyLoginDlg::CProxyLoginDlg(const ProxyDiscovery& discovery, QWidget* parent) : GradientDialog(parent) {
  const ProxyAddress proxy = discovery.discover();
  setObjectName(QStringLiteral("proxyLoginDlg"));
  setWindowTitle(QStringLiteral("Parlexo(TM) : Proxy Login"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 14, 16, 14);
  column->setSpacing(10);
  auto* animation = new CAnimatedPicture(this);
  animation->loadFromResource(QString::fromLatin1(connectingAnimation));
  animation->start();
  column->addWidget(animation);
  addFields(*column, proxy);
  auto* explanation = new QLabel(proxyExplanation());
  explanation->setObjectName(QStringLiteral("explanation"));
  explanation->setWordWrap(true);
  column->addWidget(explanation);
  column->addStretch();
  addButtons(*column);
  setMinimumSize(dialogUnits(*this, 220, 139));
}

void CProxyLoginDlg::addFields(QVBoxLayout& column, const ProxyAddress& proxy) {
  auto* grid = new QGridLayout;
  user_ = addRow(*grid, "proxyUser", QStringLiteral("Proxy User Name:"));
  password_ = addRow(*grid, "proxyPassword", QStringLiteral("Proxy Password:"));
  password_->setEchoMode(QLineEdit::Password);
  host_ = addRow(*grid, "proxyHost", QStringLiteral("Proxy Host / Address:"));
  port_ = addRow(*grid, "proxyPort", QStringLiteral("Proxy Port:"));
  column.addLayout(grid);
  if (!proxy.isEmpty()) {
    host_->setText(proxy.host);
    port_->setText(QString::number(proxy.port));
  }
  user_->setFocus();
}

void CProxyLoginDlg::addButtons(QVBoxLayout& column) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  auto* ok = addButton(*row, "ok", QStringLiteral("OK"));
  ok->setDefault(true);
  connect(ok, &QAbstractButton::clicked, this, &QDialog::accept);
  connect(addButton(*row, "cancel", QStringLiteral("Cancel")), &QAbstractButton::clicked, this,
          &QDialog::reject);
  column.addLayout(row);
}

ProxySettings CProxyLoginDlg::settings() const {
  return {.password = password_->text(),
          .user = user_->text(),
          // Blanks come along when an address is pasted, and no host has any.
          .host = host_->text().trimmed(),
          .port = leadingNumber(port_->text().toLatin1())};
}

std::optional<ProxySettings> ProxyLoginBox::ask() {
  CProxyLoginDlg dialog(discovery_, QApplication::activeWindow());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.settings();
}

}  // namespace parlexo
