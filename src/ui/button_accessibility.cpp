// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/button_accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "ui/hyperlink_label.h"
#include "ui/input_block.h"
#include "ui/picture_button.h"

namespace parlexo {

namespace {

QString withoutMnemonic(const QString& text) {
  QString plain;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == u'&' && i + 1 < text.size()) ++i;
    plain += text[i];
  }
  return plain;
}

class AccessibleButton final : public QAccessibleWidget {
 public:
  AccessibleButton(QAbstractButton& button, QAccessible::Role role)
      : QAccessibleWidget(&button, role), button_(button) {}

  [[nodiscard]] QString text(QAccessible::Text which) const override {
    if (which == QAccessible::Name && button_.accessibleName().isEmpty()) {
      return withoutMnemonic(button_.text());
    }
    if (which == QAccessible::Accelerator) return keyBinding();
    return QAccessibleWidget::text(which);
  }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.pressed = button_.isDown();
    state.checkable = button_.isCheckable();
    state.checked = button_.isChecked();
    const auto* picture = qobject_cast<PictureButton*>(&button_);
    state.defaultButton = picture && picture->isDefault();
    return state;
  }

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names;
    if (button_.isEnabled()) names << pressAction();
    return names << QAccessibleWidget::actionNames();
  }

  [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override {
    if (name != pressAction()) return QAccessibleWidget::keyBindingsForAction(name);
    return keyBinding().isEmpty() ? QStringList() : QStringList(keyBinding());
  }

  void doAction(const QString& name) override {
    if (name != pressAction()) {
      QAccessibleWidget::doAction(name);
    } else if (!InputBlock::isBlocked(button_)) {
      button_.click();
    }
  }

 private:
  // The shortcut rather than the mnemonic in the text, because a page may have removed the shortcut.
  [[nodiscard]] QString keyBinding() const { return button_.shortcut().toString(QKeySequence::NativeText); }

  QAbstractButton& button_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  if (auto* button = qobject_cast<PictureButton*>(object)) {
    return new AccessibleButton(*button, QAccessible::Button);
  }
  if (auto* link = qobject_cast<HyperlinkLabel*>(object)) {
    return new AccessibleButton(*link, QAccessible::Link);
  }
  return nullptr;
}

}  // namespace

void installButtonAccessibility() {
  [[maybe_unused]] static const bool installed = [] {
    QAccessible::installFactory(makeInterface);
    return true;
  }();
}

}  // namespace parlexo
