// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/email_preferences_panel.h"

#include <utility>

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "base/code_page.h"
#include "base/run_state.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/unsendable_hint.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int filterColumn = 3;  // of the grid; the columns before it are for the switches and a gap

// What the gateway will make of a text, which knows no other characters than those of the code page.
QString asSent(const QLineEdit& edit) {
  return throughCodePage(edit.text());
}

}  // namespace

EmailPreferencesPanel::EmailPreferencesPanel(const AccountServices& services, QWidget* parent)
    : QGroupBox(u"Email Messaging:"_s, parent), state_(services.state), flow_(services) {
  setObjectName(u"emailPanel"_s);
  auto* grid = new QGridLayout(this);
  grid->setColumnMinimumWidth(filterColumn - 1, 24);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(filterColumn + 1, 1);
  createSwitches(*grid);
  createFilter(*grid);
  auto* hint = new UnsendableHint(this);
  hint->watch({code_, addresses_[0], addresses_[1], addresses_[2]});
  grid->addWidget(hint, grid->rowCount(), 0, 1, -1);
  show(held_);
  load();
}

void EmailPreferencesPanel::reloadUnlessChanged() {
  if (shown() == held_) load();
}

QCheckBox* EmailPreferencesPanel::addCheckBox(QGridLayout& grid, int row, int column, const char* name,
                                              const QString& label) {
  auto* box = new QCheckBox(label, this);
  box->setObjectName(QLatin1String(name));
  grid.addWidget(box, row, column, 1, 2);
  return box;
}

QLineEdit* EmailPreferencesPanel::addEdit(QGridLayout& grid, int row, int column, const char* name,
                                          const QString& label) {
  auto* edit = new QLineEdit(this);
  edit->setObjectName(QLatin1String(name));
  connect(edit, &QLineEdit::returnPressed, this, &EmailPreferencesPanel::save);
  grid.addWidget(labelFor(edit, label), row, column);
  grid.addWidget(edit, row, column + 1);
  return edit;
}

void EmailPreferencesPanel::createSwitches(QGridLayout& grid) {
  enabled_ = addCheckBox(grid, 0, 0, "emailEnabled", u"Enable Email Messaging:"_s);
  connect(enabled_, &QCheckBox::toggled, this, &EmailPreferencesPanel::enableWhatCounts);
  code_ = addEdit(grid, 1, 0, "identityCode", u"&Identity Code:"_s);
  split_ = addCheckBox(grid, 2, 0, "splitLongSms", u"Split long SMS into several SMS"_s);
  doubleLine_ = addCheckBox(grid, 3, 0, "stopAtDoubleLine", u"Stop emails at blank double lines"_s);
  endKeyword_ = addCheckBox(grid, 4, 0, "stopAtEndKeyword", u"Stop emails at ##END## keyword"_s);
}

void EmailPreferencesPanel::createFilter(QGridLayout& grid) {
  filter_ = addCheckBox(grid, 0, filterColumn, "emailFilter", u"Filter based on email addresses:"_s);
  connect(filter_, &QCheckBox::toggled, this, &EmailPreferencesPanel::enableWhatCounts);
  addresses_ = {addEdit(grid, 1, filterColumn, "emailAddress1", u"Email address &1:"_s),
                addEdit(grid, 2, filterColumn, "emailAddress2", u"Email address &2:"_s),
                addEdit(grid, 3, filterColumn, "emailAddress3", u"Email address &3:"_s)};
  auto* button = new PictureButton(u"&Save Changes"_s, this);
  button->setObjectName(u"saveChangesButton"_s);
  connect(button, &PictureButton::clicked, this, &EmailPreferencesPanel::save);
  grid.addWidget(button, 4, filterColumn, 1, 2, Qt::AlignRight);
}

void EmailPreferencesPanel::showEvent(QShowEvent* event) {
  QGroupBox::showEvent(event);
  if (shownUser_ != state_.userName)
    QMetaObject::invokeMethod(this, &EmailPreferencesPanel::load, Qt::QueuedConnection);
}

void EmailPreferencesPanel::load() {
  if (std::exchange(shownUser_, state_.userName) != state_.userName) {
    held_ = {};
    show(held_);
  }
  const auto preferences = flow_.load();
  if (!preferences) return;
  held_ = *preferences;
  show(held_);
}

void EmailPreferencesPanel::save() {
  const EmailPreferences wanted = shown();
  show(wanted);
  switch (flow_.save(wanted)) {
    case EmailSaveOutcome::Saved:
      held_ = wanted;
      break;
    case EmailSaveOutcome::Incomplete:
      focusWhatMayMiss();
      break;
    case EmailSaveOutcome::Failed:
      break;
  }
}

void EmailPreferencesPanel::show(const EmailPreferences& preferences) {
  enabled_->setChecked(preferences.isEnabled);
  code_->setText(preferences.identityCode);
  split_->setChecked(preferences.splitsLongSms);
  doubleLine_->setChecked(preferences.stopsAtDoubleLine);
  endKeyword_->setChecked(preferences.stopsAtEndKeyword);
  filter_->setChecked(preferences.isFiltered);
  for (std::size_t i = 0; i < addresses_.size(); ++i) addresses_[i]->setText(preferences.addresses[i]);
  enableWhatCounts();
}

EmailPreferences EmailPreferencesPanel::shown() const {
  return {.isEnabled = enabled_->isChecked(),
          .identityCode = asSent(*code_),
          .splitsLongSms = split_->isChecked(),
          .stopsAtDoubleLine = doubleLine_->isChecked(),
          .stopsAtEndKeyword = endKeyword_->isChecked(),
          .isFiltered = filter_->isChecked(),
          .addresses = {asSent(*addresses_[0]), asSent(*addresses_[1]), asSent(*addresses_[2])}};
}

void EmailPreferencesPanel::enableWhatCounts() {
  const bool isOn = enabled_->isChecked();
  for (QWidget* control :
       {static_cast<QWidget*>(code_), static_cast<QWidget*>(split_), static_cast<QWidget*>(doubleLine_),
        static_cast<QWidget*>(endKeyword_), static_cast<QWidget*>(filter_)})
    control->setEnabled(isOn);
  for (QLineEdit* address : addresses_) address->setEnabled(isOn && filter_->isChecked());
  for (auto* label : findChildren<QLabel*>())
    if (label->buddy()) label->setEnabled(label->buddy()->isEnabled());
}

void EmailPreferencesPanel::focusWhatMayMiss() {
  (code_->text().isEmpty() || !addresses_[0]->isEnabled() ? code_ : addresses_[0])->setFocus();
}

}  // namespace parlexo
