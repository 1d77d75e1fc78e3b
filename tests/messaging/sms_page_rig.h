// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>

#include "messaging/screens/message_edit.h"
#include "messaging/screens/sms_dlg.h"
#include "tests/messaging/page_rig.h"

namespace parlexo::test {

/// The SMS page with contacts to choose from.
struct SmsPage : PageRig<CQuillonSMSDlg> {
  SmsPage() {
    book.addContact("Ann", "+61491570156", "Y");
    book.addContact("Lee, Bob", "+60312345678", "Y");
    book.addContact("Local", "0491570156", "Y");
    book.addContact("Mute", "+861012345678", "N");
  }

  MessageEdit& editor() { return find<MessageEdit>("messageEdit"); }
  QListView& contactsBox() { return find<QListView>("contactsBox"); }
  void choose(const char* name) { find<QRadioButton>(name).setChecked(true); }
  void paste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    editor().paste();
  }
  std::string counters() {
    return (find<QLineEdit>("totalSms").text() + u'/' + find<QLineEdit>("charactersRemaining").text())
        .toStdString();
  }
};

}  // namespace parlexo::test
