#include "messaging/screens/save_template_dlg.h"

#include <utility>

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "base/notifier.h"
#include "messaging/core/messaging_texts.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/waiting/box_column.h"

namespace parlexo {

CSaveTemplateDlg::CSaveTemplateDlg(const TemplateFolder& folder, Template content, Notifier& notifier,
                                   QWidget* parent)
    : GradientDialog(parent), folder_(folder), content_(std::move(content)), notifier_(notifier) {
  setObjectName(QStringLiteral("saveTemplateDialog"));
  setWindowTitle(QStringLiteral("Parlexo(TM) : Save Template"));
  name_ = new QLineEdit(this);
  name_->setObjectName(QStringLiteral("templateName"));
  QVBoxLayout* layout = createColumn(*this);
  layout->addWidget(labelFor(name_, QStringLiteral("&Template Name:")));
  layout->addWidget(name_);
  layout->addStretch(1);
  layout->addSpacing(8);
  layout->addLayout(dialogButtonRow(*this, {QStringLiteral("saveButton"), QStringLiteral("&Save")},
                                    {QStringLiteral("cancelButton"), QStringLiteral("&Cancel")}));
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
