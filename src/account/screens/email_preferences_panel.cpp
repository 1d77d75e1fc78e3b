// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/email_preferences_panel.h"

#include <utility>

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "base/code_page.h"
#include "base/run_state.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/unsendable_hint.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int filterColumn = 3;  // of the grid, after the check boxes and a gap

// Returns the text as the gateway receives it: converted to the code page and back.
QString toSentText(const QLineEdit& edit) {
  return throughCodePage(edit.text());
}

}  // namespace

EmailPreferencesPanel::EmailPreferencesPanel(const AccountServices& services, QWidget* parent)
    : QGroupBox(tr("Email Messaging:"), parent), services_(services) {
  setObjectName(u"emailPanel"_s);
  auto* grid = new QGridLayout(this);
  grid->setColumnMinimumWidth(filterColumn - 1, look::groupSpacing);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(filterColumn + 1, 1);
  createSwitches(*grid);
  createFilter(*grid);
  auto* hint = new UnsendableHint(this);
  hint->watch({code_, addresses_[0], addresses_[1], addresses_[2]});
  grid->addWidget(hint, grid->rowCount(), 0, 1, -1);
  setFields(saved_);
  load();
}

void EmailPreferencesPanel::reloadUnlessChanged() {
  if (readFields() == saved_) load();
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
  enabled_ = addCheckBox(grid, 0, 0, "emailEnabled", tr("Enable Email Messaging:"));
  connect(enabled_, &QCheckBox::toggled, this, &EmailPreferencesPanel::updateEnabled);
  code_ = addEdit(grid, 1, 0, "identityCode", tr("&Identity Code:"));
  split_ = addCheckBox(grid, 2, 0, "splitLongSms", tr("Split long SMS into several SMS"));
  doubleLine_ = addCheckBox(grid, 3, 0, "stopAtDoubleLine", tr("Stop emails at blank double lines"));
  endKeyword_ = addCheckBox(grid, 4, 0, "stopAtEndKeyword", tr("Stop emails at ##END## keyword"));
}

void EmailPreferencesPanel::createFilter(QGridLayout& grid) {
  filter_ = addCheckBox(grid, 0, filterColumn, "emailFilter", tr("Filter based on email addresses:"));
  connect(filter_, &QCheckBox::toggled, this, &EmailPreferencesPanel::updateEnabled);
  addresses_ = {addEdit(grid, 1, filterColumn, "emailAddress1", tr("Email address &1:")),
                addEdit(grid, 2, filterColumn, "emailAddress2", tr("Email address &2:")),
                addEdit(grid, 3, filterColumn, "emailAddress3", tr("Email address &3:"))};
  auto* button = new PictureButton(tr("&Save Changes"), this);
  button->setObjectName(u"saveChangesButton"_s);
  connect(button, &PictureButton::clicked, this, &EmailPreferencesPanel::save);
  grid.addWidget(button, 4, filterColumn, 1, 2, Qt::AlignRight);
}

void EmailPreferencesPanel::showEvent(QShowEvent* event) {
  QGroupBox::showEvent(event);
  if (shownUser_ != services_.state.userName)
    QMetaObject::invokeMethod(this, &EmailPreferencesPanel::load, Qt::QueuedConnection);
}

void EmailPreferencesPanel::load() {
  if (std::exchange(shownUser_, services_.state.userName) != services_.state.userName) {
    saved_ = {};
    setFields(saved_);
  }
  const auto preferences = fetchEmailPreferences(services_);
  if (!preferences) return;
  saved_ = *preferences;
  setFields(saved_);
}

void EmailPreferencesPanel::save() {
  const EmailPreferences preferences = readFields();
  setFields(preferences);
  switch (saveEmailPreferences(services_, preferences)) {
    case EmailSaveOutcome::Saved:
      saved_ = preferences;
      break;
    case EmailSaveOutcome::Incomplete:
      focusMissingField();
      break;
    case EmailSaveOutcome::Failed:
      break;
  }
}

void EmailPreferencesPanel::setFields(const EmailPreferences& preferences) {
  enabled_->setChecked(preferences.isEnabled);
  code_->setText(preferences.identityCode);
  split_->setChecked(preferences.splitsLongSms);
  doubleLine_->setChecked(preferences.stopsAtDoubleLine);
  endKeyword_->setChecked(preferences.stopsAtEndKeyword);
  filter_->setChecked(preferences.isFiltered);
  for (std::size_t i = 0; i < addresses_.size(); ++i) addresses_[i]->setText(preferences.addresses[i]);
  updateEnabled();
}

EmailPreferences EmailPreferencesPanel::readFields() const {
  return {.isEnabled = enabled_->isChecked(),
          .identityCode = toSentText(*code_),
          .splitsLongSms = split_->isChecked(),
          .stopsAtDoubleLine = doubleLine_->isChecked(),
          .stopsAtEndKeyword = endKeyword_->isChecked(),
          .isFiltered = filter_->isChecked(),
          .addresses = {toSentText(*addresses_[0]), toSentText(*addresses_[1]), toSentText(*addresses_[2])}};
}

void EmailPreferencesPanel::updateEnabled() {
  const bool isOn = enabled_->isChecked();
  for (QWidget* control :
       {static_cast<QWidget*>(code_), static_cast<QWidget*>(split_), static_cast<QWidget*>(doubleLine_),
        static_cast<QWidget*>(endKeyword_), static_cast<QWidget*>(filter_)})
    control->setEnabled(isOn);
  for (QLineEdit* address : addresses_) address->setEnabled(isOn && filter_->isChecked());
  for (auto* label : findChildren<QLabel*>())
    if (label->buddy()) label->setEnabled(label->buddy()->isEnabled());
}

void EmailPreferencesPanel::focusMissingField() {
  (code_->text().isEmpty() || !addresses_[0]->isEnabled() ? code_ : addresses_[0])->setFocus();
}

}  // namespace parlexo
