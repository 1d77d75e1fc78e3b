// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "addressbook/screens/select_contacts_dlg.h"
#include "tests/messaging/gateway_rig.h"
#include "ui/picture_button.h"

namespace parlexo {

/// A send page on the screen, and a user's hands.
template <class Page>
class PageRig : public testing::Test, protected GatewayRig {
 protected:
  PageRig() {
    page.show();
    page.activateWindow();
    (void)QTest::qWaitForWindowActive(&page);
  }

  template <class Widget>
  Widget& find(const char* name) {
    auto* widget = page.template findChild<Widget*>(QString::fromLatin1(name));
    if (!widget) qFatal("no %s", name);
    return *widget;
  }
  void press(const char* name) { QTest::mouseClick(&find<PictureButton>(name), Qt::LeftButton); }

  // Does `work` in the dialog that opens next.
  template <class Dialog>
  void atNextDialog(const std::function<void(Dialog&)>& work) {
    QTimer::singleShot(0, &page, [work] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!dialog) qFatal("no such dialog opens");
      work(*dialog);
    });
  }
  // Presses a button and does `work` in the dialog that opens.
  template <class Dialog>
  void inDialog(const char* button, const std::function<void(Dialog&)>& work) {
    atNextDialog<Dialog>(work);
    press(button);
  }
  void inSelection(const std::function<void(CSelectContactsDlg&)>& work) {
    inDialog("selectContactsButton", work);
  }
  // Ticks exactly these contacts and closes with Select.
  void select(const QStringList& names) {
    inSelection([&names](CSelectContactsDlg& dialog) {
      QAbstractItemModel& model = *dialog.findChild<QAbstractItemView*>("contactList")->model();
      for (int row = 0; row < model.rowCount(); ++row) {
        const bool wanted = names.contains(model.index(row, 1).data().toString());
        model.setData(model.index(row, 0), wanted ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
      }
      dialog.accept();
    });
  }

  Page page{services()};
};

}  // namespace parlexo
