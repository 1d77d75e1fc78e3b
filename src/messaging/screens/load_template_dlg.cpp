// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/load_template_dlg.h"

#include <optional>
#include <utility>

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListWidget>
#include <QShortcut>
#include <QVBoxLayout>

#include "base/notifier.h"
#include "ui/list_style.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

/// A list without a current item until the user selects one, so the first Down key selects the first item
/// rather than the second.
class TemplateList final : public QListWidget {
 public:
  using QListWidget::QListWidget;

 protected:
  void focusInEvent(QFocusEvent* event) override {
    const bool hadCurrent = currentIndex().isValid();
    QListWidget::focusInEvent(event);
    if (!hadCurrent) selectionModel()->clearCurrentIndex();
  }
};

}  // namespace

CLoadTemplateDlg::CLoadTemplateDlg(const TemplateFolder& folder, Notifier& notifier, QWidget* parent)
    : GradientDialog(parent), folder_(folder), notifier_(notifier) {
  setObjectName(u"loadTemplateDialog"_s);
  setWindowTitle(tr("Parlexo(TM) : Load or Delete Template"));
  createList();
  createLayout();
  resize(dialogUnits(*this, 210, 150).expandedTo(sizeHint()));
  names_->setFocus(Qt::OtherFocusReason);
}

void CLoadTemplateDlg::createList() {
  names_ = new TemplateList(this);
  names_->setObjectName(u"templateList"_s);
  names_->setAccessibleName(tr("Select the Template you wish to Load or  Delete:"));
  names_->setUniformItemSizes(true);
  styleList(*names_);
  names_->addItems(folder_.names());
  connect(names_, &QListWidget::itemDoubleClicked, this, &CLoadTemplateDlg::accept);
  auto* deleteKey = new QShortcut(QKeySequence(QKeySequence::Delete), names_);
  deleteKey->setContext(Qt::WidgetShortcut);
  connect(deleteKey, &QShortcut::activated, this, &CLoadTemplateDlg::deleteSelected);
}

void CLoadTemplateDlg::createLayout() {
  QVBoxLayout* layout = createColumn(*this);
  layout->addWidget(labelFor(names_, names_->accessibleName()));
  layout->addWidget(names_, 1);
  layout->addSpacing(look::captionSpacing);
  layout->addLayout(createButtons());
}

QLayout* CLoadTemplateDlg::createButtons() {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  const auto button = [&](const QString& text, const QString& name, auto action) {
    PictureButton* created = addButton(*row, name, text);
    connect(created, &PictureButton::clicked, this, action);
    return created;
  };
  button(tr("&Load"), u"loadButton"_s, &QDialog::accept)->setDefault(true);
  button(tr("&Delete"), u"deleteButton"_s, &CLoadTemplateDlg::deleteSelected);
  button(tr("&Cancel"), u"cancelButton"_s, &QDialog::reject);
  return row;
}

void CLoadTemplateDlg::accept() {
  if (!hasSelection()) {
    notifier_.warning(tr("Please select a Template to load"));
    return;
  }
  if (!notifier_.confirm(
          tr("Are you sure you want to load the Template called: \"%1\"?").arg(selectedName())))
    return;
  std::optional<Template> loaded = folder_.load(selectedName());
  if (!loaded) {
    notifier_.error(tr("Something wrong with the Template as it could not be loaded"));
    return;
  }
  content_ = std::move(*loaded);
  GradientDialog::accept();
}

void CLoadTemplateDlg::deleteSelected() {
  if (!hasSelection()) {
    notifier_.warning(tr("Please select a Template to delete"));
    return;
  }
  if (!notifier_.confirm(
          tr("Are you sure you want to delete the Template called: \"%1\"?").arg(selectedName())))
    return;
  if (!folder_.remove(selectedName())) {
    notifier_.error(tr("Could not delete your template!!"));
    return;
  }
  const int row = names_->currentRow();
  delete names_->takeItem(row);
  // Selects nothing, so pressing Delete again does not delete a neighbour. The Down key selects the item that
  // is now in this row.
  names_->setCurrentRow(row - 1, QItemSelectionModel::Clear);
}

bool CLoadTemplateDlg::hasSelection() const {
  return !names_->selectedItems().isEmpty();
}

QString CLoadTemplateDlg::selectedName() const {
  return names_->currentItem()->text();
}

}  // namespace parlexo
