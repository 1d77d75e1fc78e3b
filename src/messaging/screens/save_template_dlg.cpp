// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/save_template_dlg.h"

#include <utility>

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "base/notifier.h"
#include "messaging/core/messaging_texts.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

CSaveTemplateDlg::CSaveTemplateDlg(const TemplateFolder& folder, Template content, Notifier& notifier,
                                   QWidget* parent)
    : GradientDialog(parent), folder_(folder), content_(std::move(content)), notifier_(notifier) {
  setObjectName(u"saveTemplateDialog"_s);
  setWindowTitle(u"Parlexo(TM) : Save Template"_s);
  name_ = new QLineEdit(this);
  name_->setObjectName(u"templateName"_s);
  QVBoxLayout* layout = createColumn(*this);
  layout->addWidget(labelFor(name_, u"&Template Name:"_s));
  layout->addWidget(name_);
  layout->addStretch(1);
  layout->addSpacing(8);
  layout->addLayout(dialogButtonRow(*this, {u"saveButton"_s, u"&Save"_s}, {u"cancelButton"_s, u"&Cancel"_s}));
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
