// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/gradient_page.h"
#include "ui/hyperlink_label.h"

namespace parlexo {

/// Tells that this version of the program is too old for the gateway, and where a newer one is.
class CUpgradeDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// `latestVersion` is the version that can be had; empty when it is not known.
  explicit CUpgradeDlg(const QString& latestVersion, QWidget* parent = nullptr,
                       WebOpener opener = openInBrowser);
};

}  // namespace parlexo
