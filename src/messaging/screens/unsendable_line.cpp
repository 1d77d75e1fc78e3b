// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/unsendable_line.h"

#include <QLayout>

#include "ui/hyperlink_label.h"
#include "ui/page_controls.h"
#include "ui/unsendable_hint.h"

namespace parlexo {

using namespace Qt::StringLiterals;

UnsendableLine::UnsendableLine(QWidget* parent) : QWidget(parent) {
  setObjectName(u"unsendableLine"_s);
  hint_ = new UnsendableHint(this);
  switch_ = new HyperlinkLabel(u"Switch to Unicode"_s, {}, this);
  switch_->setObjectName(u"switchToUnicode"_s);
  connect(switch_, &HyperlinkLabel::clicked, this, &UnsendableLine::unicodeRequested);
  QLayout* line = lineWithLink(*hint_, *switch_);
  line->setContentsMargins({});
  setLayout(line);
}

void UnsendableLine::follow(const QString& editorText, SmsCharset charset) {
  hint_->check(charset == SmsCharset::Standard ? editorText : QString());
  switch_->setVisible(!hint_->text().isEmpty() && editorText.size() <= unicodeSmsLimits.text);
}

}  // namespace parlexo
