// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <array>

#include "app/about_dlg.h"
#include "app/main_dlg.h"
#include "app/platform.h"
#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

TEST(SystemMenu, endsWithTheAboutEntry) {
  CMainDlg window({});
  QSignalSpy opened(&window, &CMainDlg::opened);
  window.show();
  ASSERT_TRUE(opened.wait());
  const auto handle = reinterpret_cast<HWND>(window.winId());
  const HMENU menu = GetSystemMenu(handle, FALSE);
  const int last = GetMenuItemCount(menu) - 1;
  std::array<wchar_t, 40> text{};
  GetMenuStringW(menu, static_cast<UINT>(last), text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
  EXPECT_STREQ(text.data(), L"&About Parlexo Client...");
  EXPECT_TRUE(GetMenuState(menu, static_cast<UINT>(last) - 1, MF_BYPOSITION) & MF_SEPARATOR);
  addToSystemMenu(window, QString());
  EXPECT_EQ(GetMenuItemCount(menu), last + 1) << "nothing for an empty text";

  int boxes = 0;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, &window, [&boxes] {
    auto* about = dynamic_cast<CAboutDlg*>(QApplication::activeModalWidget());
    if (!about) return;
    ++boxes;
    about->accept();
  });
  poll.start(10);
  SendMessageW(handle, WM_SYSCOMMAND, SC_RESTORE, 0);
  SendMessageW(handle, WM_SYSCOMMAND, GetMenuItemID(menu, last), 0);
  EXPECT_EQ(boxes, 0) << "a dialog must not run inside the delivery of the message";
  EXPECT_TRUE(QTest::qWaitFor([&boxes] { return boxes > 0; }));
  QTest::qWait(50);
  EXPECT_EQ(boxes, 1);
}

}  // namespace
}  // namespace parlexo::test
