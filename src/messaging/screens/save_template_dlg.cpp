#include "messaging/screens/save_template_dlg.h"

#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "base/notifier.h"
#include "messaging/core/messaging_texts.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {
namespace {

QLayout* saveTemplateButtons(QDialog& dialog) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  PictureButton* save = addButton(*row, QStringLiteral("saveButton"), QStringLiteral("&Save"));
  save->setDefault(true);
  QObject::connect(save, &PictureButton::clicked, &dialog, &QDialog::accept);
  PictureButton* cancel = addButton(*row, QStringLiteral("cancelButton"), QStringLiteral("&Cancel"));
  QObject::connect(cancel, &PictureButton::clicked, &dialog, &QDialog::reject);
  return row;
}

}  // namespace

CSaveTemplateDlg::CSaveTemplateDlg(const TemplateFolder& folder, Template content, Notifier& notifier,
                                   QWidget* parent)
    : GradientDialog(parent), folder_(folder), content_(std::move(content)), notifier_(notifier) {
  setObjectName(QStringLiteral("saveTemplateDialog"));
  setWindowTitle(QStringLiteral("Parlexo(TM) : Save Template"));
  name_ = new QLineEdit(this);
  name_->setObjectName(QStringLiteral("templateName"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 14, 16, 14);
  layout->addWidget(labelFor(name_, QStringLiteral("&Template Name:")));
  layout->addWidget(name_);
  layout->addStretch(1);
  layout->addSpacing(8);
  layout->addLayout(saveTemplateButtons(*this));
  setMinimumSize(dialogUnits(*this, 190, 60));
  name_->setFocus(Qt::OtherFocusReason);
}

void CSaveTemplateDlg::accept() {
  if (!folder_.save(name_->text(), content_)) {
    notifier_.error(messaging_texts::templateNotSaved());
    return;
  }
  notifier_.information(messaging_texts::templateSaved());
  GradientDialog::accept();
}

}  // namespace parlexo
