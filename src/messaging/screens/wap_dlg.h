// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messaging/screens/file_page.h"

namespace parlexo {

/// The WAP push page: a media file with a short note of its sender.
class CQuillonWAPDlg final : public FilePage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CQuillonWAPDlg(const MessagingServices& services, QWidget* parent = nullptr)
      : FilePage(services, FileKind::Wap, parent) {}
};

}  // namespace parlexo
