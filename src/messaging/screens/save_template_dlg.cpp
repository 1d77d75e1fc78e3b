// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/save_template_dlg.h"

#include <utility>

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "base/notifier.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

CSaveTemplateDlg::CSaveTemplateDlg(const TemplateFolder& folder, Template content, Notifier& notifier,
                                   QWidget* parent)
    : GradientDialog(parent), folder_(folder), content_(std::move(content)), notifier_(notifier) {
  setObjectName(u"saveTemplateDialog"_s);
  setWindowTitle(tr("Parlexo(TM) : Save Template"));
  name_ = new QLineEdit(this);
  name_->setObjectName(u"templateName"_s);
  QVBoxLayout* layout = createColumn(*this);
  layout->addWidget(labelFor(name_, tr("&Template Name:")));
  layout->addWidget(name_);
  layout->addStretch(1);
  layout->addSpacing(look::fieldSpacing);
  layout->addLayout(
      dialogButtonRow(*this, {u"saveButton"_s, tr("&Save")}, {u"cancelButton"_s, tr("&Cancel")}));
  setMinimumSize(dialogUnits(*this, 190, 60));
  name_->setFocus(Qt::OtherFocusReason);
}

void CSaveTemplateDlg::accept() {
  if (!folder_.save(name_->text(), content_)) {
    notifier_.error(tr("Could not save your template!!"));
    return;
  }
  notifier_.information(tr("Your template was saved."));
  GradientDialog::accept();
}

}  // namespace parlexo
