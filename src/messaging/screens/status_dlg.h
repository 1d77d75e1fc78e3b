// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/message_type.h"
#include "messaging/core/messaging_services.h"
#include "messaging/screens/status_list_model.h"
#include "ui/gradient_page.h"

class QComboBox;
class QLabel;
class QMenu;

namespace parlexo {

class ExportButton;
class PictureButton;
class RecordTable;

/// The status page: lists the sent messages of one type and queries the gateway for their status.
class CStatusDlg final : public GradientPage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CStatusDlg(const MessagingServices& services, QWidget* parent = nullptr);

  /// Shows the messages of `type` and updates the list from the log.
  void selectType(MessageType type);

  /// Queries the gateway for the status of the selected messages.
  void refresh() override { getStatus(); }

 protected:
  /// Updates the list if the log has changed.
  void showEvent(QShowEvent* event) override;

 private:
  void createTypeBox();
  void createList();
  void createMenu();
  void createLayout();
  [[nodiscard]] MessageType selectedType() const;
  void fill();
  /// Shows the counts of messages followed by `remark`.
  void showCount(const QString& remark);
  [[nodiscard]] QString countText() const;
  void getStatus();

  MessagingServices services_;
  StatusListModel model_;
  quint64 shownRevision_ = 0;
  bool isQuerying_ = false;

  QComboBox* type_ = nullptr;
  RecordTable* list_ = nullptr;
  QLabel* count_ = nullptr;
  QMenu* menu_ = nullptr;
  ExportButton* exportButton_ = nullptr;
  PictureButton* getStatusButton_ = nullptr;
};

}  // namespace parlexo
