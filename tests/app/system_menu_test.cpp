#include "app/system_menu.h"

#include <windows.h>

#include <array>

#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

namespace parlexo {
namespace {

TEST(SystemMenu, getsASeparatorAndAnEntryThatRunsTheAction) {
  QWidget window;
  const auto handle = reinterpret_cast<HWND>(window.winId());
  const HMENU menu = GetSystemMenu(handle, FALSE);
  const int before = GetMenuItemCount(menu);
  int runs = 0;
  addToSystemMenu(window, QString(), [&runs] { ++runs; });
  EXPECT_EQ(GetMenuItemCount(menu), before) << "nothing for an empty text";
  addToSystemMenu(window, QStringLiteral("&About"), [&runs] { ++runs; });
  ASSERT_EQ(GetMenuItemCount(menu), before + 2);
  std::array<wchar_t, 20> text{};
  GetMenuStringW(menu, static_cast<UINT>(before) + 1, text.data(), static_cast<int>(text.size()),
                 MF_BYPOSITION);
  EXPECT_STREQ(text.data(), L"&About");
  const UINT command = GetMenuItemID(menu, before + 1);
  SendMessageW(handle, WM_SYSCOMMAND, command, 0);
  EXPECT_EQ(runs, 0) << "a dialog must not run inside the delivery of the message";
  EXPECT_TRUE(QTest::qWaitFor([&runs] { return runs == 1; }));
  SendMessageW(handle, WM_SYSCOMMAND, SC_RESTORE, 0);
  QTest::qWait(50);
  EXPECT_EQ(runs, 1) << "the system's own commands are not ours";
}

}  // namespace
}  // namespace parlexo
