#include "messaging/screens/unsendable_line.h"

#include <QLayout>

#include "ui/hyperlink_label.h"
#include "ui/page_controls.h"
#include "ui/unsendable_hint.h"

namespace parlexo {

UnsendableLine::UnsendableLine(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("unsendableLine"));
  hint_ = new UnsendableHint(this);
  switch_ = new HyperlinkLabel(QStringLiteral("Switch to Unicode"), {}, this);
  switch_->setObjectName(QStringLiteral("switchToUnicode"));
  connect(switch_, &HyperlinkLabel::clicked, this, &UnsendableLine::unicodeRequested);
  QLayout* line = lineWithLink(*hint_, *switch_);
  line->setContentsMargins({});
  setLayout(line);
}

void UnsendableLine::follow(const QString& editorText, SmsCharset charset) {
  hint_->follow(charset == SmsCharset::Standard ? editorText : QString());
  switch_->setVisible(!hint_->text().isEmpty() && editorText.size() <= unicodeSmsLimits.text);
}

}  // namespace parlexo
