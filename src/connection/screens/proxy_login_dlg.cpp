#include "connection/screens/proxy_login_dlg.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "connection/locator/leading_number.h"
#include "ui/front_window.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/unsendable_hint.h"
#include "ui/waiting/box_column.h"

namespace parlexo {

namespace {

QString proxyExplanation() {
  return QStringLiteral(
      "You connect to the internet via the proxy. You must provide the proxy user name and the proxy "
      "password (usually your windows login details).");
}

QLineEdit* addRow(QGridLayout& grid, const char* name, const QString& text) {
  auto* field = new QLineEdit;
  field->setObjectName(QLatin1String(name));
  const int row = grid.rowCount();
  grid.addWidget(field, row, 1);
  grid.addWidget(labelFor(field, text), row, 0);
  return field;
}

}  // namespace

CProxyLoginDlg::CProxyLoginDlg(const ProxyDiscovery& discovery, QWidget* parent) : GradientDialog(parent) {
  const ProxyAddress proxy = discovery.discover();
  setObjectName(QStringLiteral("proxyLoginDlg"));
  setWindowTitle(QStringLiteral("Parlexo(TM) : Proxy Login"));
  QVBoxLayout* column = createColumn(*this);
  addFields(*column, proxy);
  QLabel* explanation = wrappedLabel(proxyExplanation(), this);
  explanation->setObjectName(QStringLiteral("explanation"));
  column->addWidget(explanation);
  column->addStretch();
  column->addLayout(dialogButtonRow(*this, {QStringLiteral("ok"), QStringLiteral("OK")},
                                    {QStringLiteral("cancel"), QStringLiteral("Cancel")}));
  setMinimumSize(dialogUnits(*this, 220, 139));
}

CProxyLoginDlg::~CProxyLoginDlg() {
  wipeField(*password_);
}

void CProxyLoginDlg::addFields(QVBoxLayout& column, const ProxyAddress& proxy) {
  auto* grid = new QGridLayout;
  user_ = addRow(*grid, "proxyUser", QStringLiteral("Proxy User Name:"));
  password_ = addRow(*grid, "proxyPassword", QStringLiteral("Proxy Password:"));
  password_->setEchoMode(QLineEdit::Password);
  host_ = addRow(*grid, "proxyHost", QStringLiteral("Proxy Host / Address:"));
  port_ = addRow(*grid, "proxyPort", QStringLiteral("Proxy Port:"));
  column.addLayout(grid);
  auto* hint = new UnsendableHint(this);
  hint->watch({user_, password_});
  column.addWidget(hint);
  if (!proxy.isEmpty()) {
    host_->setText(proxy.host);
    port_->setText(QString::number(proxy.port));
  }
  user_->setFocus();
}

ProxySettings CProxyLoginDlg::settings() const {
  return {.password = password_->text(),
          .user = user_->text(),
          // Blanks come along when an address is pasted, and no host has any.
          .host = host_->text().trimmed(),
          .port = leadingNumber(port_->text().toLatin1())};
}

std::optional<ProxySettings> ProxyLoginBox::ask() {
  CProxyLoginDlg dialog(discovery_, frontWindow());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.settings();
}

}  // namespace parlexo
