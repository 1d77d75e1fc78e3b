// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/run_state.h"
#include "connection/locator/gateway_search.h"
#include "connection/locator/proxy_discovery.h"
#include "ui/gradient_page.h"

class QLineEdit;
class QVBoxLayout;

namespace parlexo {

/// Asks for the address of the proxy and for the login to it.
class CProxyLoginDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// Fills in the proxy that `discovery` finds, which may take some seconds; nothing found leaves its two
  /// fields empty.
  explicit CProxyLoginDlg(const ProxyDiscovery& discovery, QWidget* parent = nullptr);
  /// Also wipes the password field.
  ~CProxyLoginDlg() override;

  /// What stands in the fields. The port is the number that its text begins with, 0 without one.
  [[nodiscard]] ProxySettings settings() const;

 private:
  void addFields(QVBoxLayout& column, const ProxyAddress& proxy);

  QLineEdit* user_ = nullptr;
  QLineEdit* password_ = nullptr;
  QLineEdit* host_ = nullptr;
  QLineEdit* port_ = nullptr;
};

/// Asks by means of the dialog.
class ProxyLoginBox final : public ProxyLogin {
 public:
  /// `discovery` must outlive this.
  explicit ProxyLoginBox(const ProxyDiscovery& discovery) : discovery_(discovery) {}

  [[nodiscard]] std::optional<ProxySettings> ask() override;

 private:
  const ProxyDiscovery& discovery_;
};

}  // namespace parlexo
