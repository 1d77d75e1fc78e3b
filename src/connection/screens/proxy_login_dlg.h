// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/run_state.h"
#include "connection/locator/gateway_search.h"
#include "connection/locator/proxy_discovery.h"
#include "ui/gradient_page.h"

class QLineEdit;
class QVBoxLayout;

namespace parlexo {

/// Asks for the address and login of the proxy.
class CProxyLoginDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// Fills in the address of the proxy that `discovery` finds, if any. Blocks for the discovery, which may
  /// take some seconds.
  explicit CProxyLoginDlg(const ProxyDiscovery& discovery, QWidget* parent = nullptr);
  /// Also wipes the password field.
  ~CProxyLoginDlg() override;

  /// The contents of the fields. The port is 0 if its text does not start with a number.
  [[nodiscard]] ProxySettings settings() const;

 private:
  void addFields(QVBoxLayout& column, const ProxyAddress& proxy);

  QLineEdit* user_ = nullptr;
  QLineEdit* password_ = nullptr;
  QLineEdit* host_ = nullptr;
  QLineEdit* port_ = nullptr;
};

/// Shows CProxyLoginDlg.
class ProxyLoginBox final : public ProxyLogin {
 public:
  /// `discovery` must outlive this object.
  explicit ProxyLoginBox(const ProxyDiscovery& discovery) : discovery_(discovery) {}

  [[nodiscard]] std::optional<ProxySettings> ask() override;

 private:
  const ProxyDiscovery& discovery_;
};

}  // namespace parlexo
