// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messaging/core/file_send_flow.h"
#include "messaging/screens/send_page.h"

class QGridLayout;
class QLayout;
class QLineEdit;

namespace parlexo {

class FilePanel;
class MessageEdit;
class PicturePreview;
struct FileLook;

/// A page that sends a file: the file, a note where the kind of message has one, and what all send pages
/// have. The pages of MMS, fax and WAP are this one, each with its row of a table.
class FilePage : public SendPage {
  Q_OBJECT

 public:
  /// What the page holds now.
  [[nodiscard]] FileDraft draft() const;

  /// Looks at the file anew: its length, whether it is still there.
  void refresh() override;

 protected:
  FilePage(const MessagingServices& services, FileKind kind, QWidget* parent);

  [[nodiscard]] SendOutcome sendMessage() override;
  [[nodiscard]] QWidget* controlAtFault(SendOutcome outcome) const override;
  void clearMessage() override;
  void showEvent(QShowEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  struct Kind;
  [[nodiscard]] static const Kind& kindOf(FileKind kind);

  [[nodiscard]] QLayout* messageArea();
  [[nodiscard]] QLayout* noteArea();
  [[nodiscard]] QLayout* noteHeading();
  void addPreview(QGridLayout& area);
  [[nodiscard]] QLayout* counterRow();
  void recount();
  void showPicture(const FileLook& look);

  const Kind& kind_;
  int GatewayLocation::*limit_;
  FileSendFlow flow_;
  FilePanel* file_ = nullptr;
  MessageEdit* note_ = nullptr;        ///< null for a kind without
  QLineEdit* remaining_ = nullptr;     ///< null where nobody counts
  PicturePreview* preview_ = nullptr;  ///< null where nothing is previewed
};

}  // namespace parlexo
