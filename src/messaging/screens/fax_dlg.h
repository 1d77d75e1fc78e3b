// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messaging/screens/file_page.h"

namespace parlexo {

/// The fax page: a document goes to the fax numbers of contacts.
class CQuillonFaxDlg final : public FilePage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CQuillonFaxDlg(const MessagingServices& services, QWidget* parent = nullptr)
      : FilePage(services, FileKind::Fax, parent) {}
};

}  // namespace parlexo
