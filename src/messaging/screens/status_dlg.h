// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

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

/// The status page: what was sent, one message type at a time, and the question to the gateway what became
/// of it.
class CStatusDlg final : public GradientPage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CStatusDlg(const MessagingServices& services, QWidget* parent = nullptr);

  /// Shows the messages of type `typeWord`, read anew from the log. A word that the page does not offer only
  /// refreshes the list.
  void selectType(const QString& typeWord);

  /// Asks the gateway for the status of the selected messages.
  void refresh() override { getStatus(); }

 protected:
  /// Reads the log anew when it has changed since the list was filled.
  void showEvent(QShowEvent* event) override;

 private:
  void createTypeBox();
  void createList();
  void createMenu();
  void createLayout();
  void fill();
  /// Shows how many messages there are, and `remark` behind it.
  void showCount(const QString& remark);
  void getStatus();

  MessagingServices services_;
  StatusListModel model_;
  quint64 shownRevision_ = 0;
  bool isAsking_ = false;

  QComboBox* type_ = nullptr;
  RecordTable* list_ = nullptr;
  QLabel* count_ = nullptr;
  QMenu* menu_ = nullptr;
  ExportButton* exportButton_ = nullptr;
  PictureButton* getStatusButton_ = nullptr;
};

}  // namespace parlexo
