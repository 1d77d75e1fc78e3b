#include "messaging/screens/unsendable_line.h"

#include <QLabel>
#include <QLayout>

#include "ui/hyperlink_label.h"
#include "ui/page_controls.h"

namespace parlexo {
namespace {

// As many as a narrow page has room for; the rest is an ellipsis.
constexpr int mostCharactersShown = 8;

QString unsendableText(QStringList characters) {
  if (characters.isEmpty()) return {};
  const bool isCut = characters.size() > mostCharactersShown;
  characters = characters.mid(0, mostCharactersShown);
  if (isCut) characters.append(QString(QChar(u'\u2026')));
  return QStringLiteral("Will be sent as \"?\":  ") + characters.join(QStringLiteral("  "));
}

}  // namespace

UnsendableLine::UnsendableLine(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("unsendableLine"));
  characters_ = new QLabel(this);
  characters_->setObjectName(QStringLiteral("unsendableCharacters"));
  characters_->setTextFormat(Qt::PlainText);
  switch_ = new HyperlinkLabel(QStringLiteral("Switch to Unicode"), {}, this);
  switch_->setObjectName(QStringLiteral("switchToUnicode"));
  connect(switch_, &HyperlinkLabel::clicked, this, &UnsendableLine::unicodeRequested);
  QLayout* line = lineWithLink(*characters_, *switch_);
  line->setContentsMargins({});
  setLayout(line);
}

void UnsendableLine::follow(const QString& editorText, SmsCharset charset) {
  const bool isStandard = charset == SmsCharset::Standard;
  const QStringList lacking = isStandard ? unsendableCharacters(editorText) : QStringList();
  characters_->setText(unsendableText(lacking));
  switch_->setVisible(!lacking.isEmpty() && editorText.size() <= unicodeSmsLimits.text);
}

}  // namespace parlexo
