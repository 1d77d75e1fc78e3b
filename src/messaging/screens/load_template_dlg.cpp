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
#include "messaging/core/messaging_texts.h"
#include "ui/list_style.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString listCaption() {
  return u"Select the Template you wish to Load or  Delete:"_s;
}

/// A list in which nothing is current until the user picks something, so that the first Down key leads to the
/// first entry and not past it.
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
  setWindowTitle(u"Parlexo(TM) : Load or Delete Template"_s);
  createList();
  createLayout();
  resize(dialogUnits(*this, 210, 150).expandedTo(sizeHint()));
  names_->setFocus(Qt::OtherFocusReason);
}

void CLoadTemplateDlg::createList() {
  names_ = new TemplateList(this);
  names_->setObjectName(u"templateList"_s);
  names_->setAccessibleName(listCaption());
  names_->setUniformItemSizes(true);
  styleList(*names_);
  names_->addItems(folder_.names());
  connect(names_, &QListWidget::itemDoubleClicked, this, &CLoadTemplateDlg::accept);
  auto* removal = new QShortcut(QKeySequence(QKeySequence::Delete), names_);
  removal->setContext(Qt::WidgetShortcut);
  connect(removal, &QShortcut::activated, this, &CLoadTemplateDlg::deleteSelected);
}

void CLoadTemplateDlg::createLayout() {
  QVBoxLayout* layout = createColumn(*this);
  layout->addWidget(labelFor(names_, listCaption()));
  layout->addWidget(names_, 1);
  layout->addSpacing(4);
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
  button(u"&Load"_s, u"loadButton"_s, &QDialog::accept)->setDefault(true);
  button(u"&Delete"_s, u"deleteButton"_s, &CLoadTemplateDlg::deleteSelected);
  button(u"&Cancel"_s, u"cancelButton"_s, &QDialog::reject);
  return row;
}

void CLoadTemplateDlg::accept() {
  if (!hasSelection()) {
    notifier_.warning(messaging_texts::noTemplateToLoad());
    return;
  }
  if (!notifier_.confirm(messaging_texts::confirmTemplateLoading(selectedName()))) return;
  std::optional<Template> loaded = folder_.load(selectedName());
  if (!loaded) {
    notifier_.error(messaging_texts::templateNotLoaded());
    return;
  }
  content_ = std::move(*loaded);
  GradientDialog::accept();
}

void CLoadTemplateDlg::deleteSelected() {
  if (!hasSelection()) {
    notifier_.warning(messaging_texts::noTemplateToDelete());
    return;
  }
  if (!notifier_.confirm(messaging_texts::confirmTemplateDeletion(selectedName()))) return;
  if (!folder_.remove(selectedName())) {
    notifier_.error(messaging_texts::templateNotDeleted());
    return;
  }
  const int row = names_->currentRow();
  delete names_->takeItem(row);
  // Nothing is selected now, so that a further Delete can't take a neighbour unasked for; the Down key leads
  // to the entry that stands here now.
  names_->setCurrentRow(row - 1, QItemSelectionModel::Clear);
}

bool CLoadTemplateDlg::hasSelection() const {
  return !names_->selectedItems().isEmpty();
}

QString CLoadTemplateDlg::selectedName() const {
  return names_->currentItem()->text();
}

}  // namespace parlexo
