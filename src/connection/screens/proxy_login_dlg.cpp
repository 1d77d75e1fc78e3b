// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/screens/proxy_login_dlg.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "connection/locator/proxy_text.h"
#include "ui/gradient_page.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/unsendable_hint.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

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
  setObjectName(u"proxyLoginDlg"_s);
  setWindowTitle(tr("Parlexo(TM) : Proxy Login"));
  QVBoxLayout* column = createColumn(*this);
  addFields(*column, proxy);
  QLabel* explanation = wrappedLabel(
      tr("You connect to the internet via the proxy. You must provide the proxy user name and the proxy "
         "password (usually your windows login details)."),
      this);
  explanation->setObjectName(u"explanation"_s);
  column->addWidget(explanation);
  column->addStretch();
  column->addLayout(dialogButtonRow(*this, {u"ok"_s, tr("OK")}, {u"cancel"_s, tr("Cancel")}));
  setMinimumSize(dialogUnits(*this, 220, 139));
}

CProxyLoginDlg::~CProxyLoginDlg() {
  wipeField(*password_);
}

void CProxyLoginDlg::addFields(QVBoxLayout& column, const ProxyAddress& proxy) {
  auto* grid = new QGridLayout;
  user_ = addRow(*grid, "proxyUser", tr("Proxy User Name:"));
  password_ = addRow(*grid, "proxyPassword", tr("Proxy Password:"));
  password_->setEchoMode(QLineEdit::Password);
  host_ = addRow(*grid, "proxyHost", tr("Proxy Host / Address:"));
  port_ = addRow(*grid, "proxyPort", tr("Proxy Port:"));
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
          // Pasted addresses often have blanks around them.
          .host = host_->text().trimmed(),
          .port = leadingNumber(port_->text().toLatin1())};
}

std::optional<ProxySettings> ProxyLoginBox::ask() {
  CProxyLoginDlg dialog(discovery_, frontWindow());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.settings();
}

}  // namespace parlexo
