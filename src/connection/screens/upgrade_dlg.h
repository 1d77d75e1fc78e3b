// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/gradient_page.h"
#include "ui/hyperlink_label.h"

namespace parlexo {

/// Tells the user that this version of the program is too old for the gateway, and offers to open the
/// download page.
class CUpgradeDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// `latestVersion` is the version available for download; empty if unknown.
  explicit CUpgradeDlg(const QString& latestVersion, QWidget* parent = nullptr,
                       WebOpener opener = openInBrowser);
};

}  // namespace parlexo
