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
struct FileDetails;

/// A page that sends a file: the file, a note if the message type has one, and the common controls of send
/// pages. The derived classes differ only in their row of page_traits.h.
class FilePage : public SendPage {
  Q_OBJECT

 public:
  /// The current contents of the page.
  [[nodiscard]] FileDraft draft() const;

  /// Updates the details of the file, which may have changed on disk.
  void refresh() override;

 protected:
  FilePage(const MessagingServices& services, MessageType type, QWidget* parent);

  [[nodiscard]] SendOutcome sendMessage() override;
  [[nodiscard]] QWidget* controlAtFault(SendOutcome outcome) const override;
  void clearMessage() override;
  void showEvent(QShowEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  [[nodiscard]] QLayout* messageArea();
  [[nodiscard]] QLayout* noteArea();
  [[nodiscard]] QLayout* noteHeading();
  void addPreview(QGridLayout& area);
  [[nodiscard]] QLayout* counterRow();
  void recount();
  void showThumbnail(const FileDetails& details);

  FileSendFlow flow_;
  FilePanel* file_ = nullptr;
  MessageEdit* note_ = nullptr;        ///< null on a page without a note
  QLineEdit* remaining_ = nullptr;     ///< null unless the note is counted
  PicturePreview* preview_ = nullptr;  ///< null on a page without a preview
};

/// The fax page: sends a document to the fax numbers of contacts.
class CQuillonFaxDlg final : public FilePage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CQuillonFaxDlg(const MessagingServices& services, QWidget* parent = nullptr)
      : FilePage(services, MessageType::Fax, parent) {}
};

/// The MMS page: sends a media file with a description.
class CQuillonMMSDlg final : public FilePage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CQuillonMMSDlg(const MessagingServices& services, QWidget* parent = nullptr)
      : FilePage(services, MessageType::Mms, parent) {}
};

/// The WAP push page: sends a media file with a short note.
class CQuillonWAPDlg final : public FilePage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CQuillonWAPDlg(const MessagingServices& services, QWidget* parent = nullptr)
      : FilePage(services, MessageType::Wap, parent) {}
};

}  // namespace parlexo
