// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/screens/select_contacts_dlg.h"
#include "tests/messaging/gateway_rig.h"
#include "tests/support/widgets.h"

namespace parlexo::test {

/// A visible send page with the input of a user.
template <class Page>
struct PageRig : testing::Test, GatewayRig {
  PageRig() { showActive(page); }

  template <class Widget>
  Widget& find(const char* name) {
    return child<Widget>(page, name);
  }
  void press(const char* name) { click(page, name); }

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

}  // namespace parlexo::test
