// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/gradient_page.h"

namespace parlexo {

/// Shows the product's version and copyright and a link to the service's web site.
class CAboutDlg : public GradientDialog {
  Q_OBJECT

 public:
  explicit CAboutDlg(QWidget* parent = nullptr);
};

}  // namespace parlexo
