// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messaging/screens/file_page.h"

namespace parlexo {

/// The MMS page: a media file with a description.
class CQuillonMMSDlg final : public FilePage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CQuillonMMSDlg(const MessagingServices& services, QWidget* parent = nullptr)
      : FilePage(services, FileKind::Mms, parent) {}
};

}  // namespace parlexo
