// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/import_question_dlg.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "base/message_texts.h"
#include "ui/look.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

CImportQuestionDlg::CImportQuestionDlg(const QString& contactName, QWidget* parent)
    : GradientDialog(parent), forAll_(new QCheckBox(tr("&Do this for all existing contacts"), this)) {
  constexpr int widthUnits = 230;
  setObjectName(u"importQuestionDialog"_s);
  setWindowTitle(tr("Parlexo(TM) : Import Contacts"));
  auto* question = new QLabel(
      tr("A contact with the name \"%1\" already exists. Do you want to overwrite it?\n\nFields that "
         "the file does not have keep their values.")
          .arg(contactName),
      this);
  question->setObjectName(u"question"_s);
  question->setTextFormat(Qt::PlainText);
  question->setWordWrap(true);
  question->setMinimumWidth(dialogUnits(*this, widthUnits, 0).width());
  forAll_->setObjectName(u"forAllBox"_s);
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  const auto addButton = [&](TextId text, const QString& name, ImportUser::Choice choice) {
    auto* button = new PictureButton(parlexo::text(text), this);
    button->setObjectName(name);
    connect(button, &PictureButton::clicked, this, [this, choice] {
      choice_ = choice;
      accept();
    });
    row->addWidget(button);
    return button;
  };
  addButton(TextId::ButtonYes, u"yesButton"_s, ImportUser::Choice::Overwrite);
  auto* no = addButton(TextId::ButtonNo, u"noButton"_s, ImportUser::Choice::Skip);
  addButton(TextId::ButtonCancel, u"cancelButton"_s, ImportUser::Choice::Cancel);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::dialogMargins);
  layout->setSpacing(look::questionSpacing);
  layout->addWidget(question);
  layout->addWidget(forAll_);
  layout->addLayout(row);
  no->setDefault(true);
  no->setFocus(Qt::OtherFocusReason);
}

ImportUser::Answer CImportQuestionDlg::answer() const {
  return {choice_, forAll_->isChecked()};
}

}  // namespace parlexo
