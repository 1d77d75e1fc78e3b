#include <windows.h>
// clang-format off
#include <commctrl.h>
// clang-format on

#include <QObject>
#include <QWidget>

#include "app/system_menu.h"

namespace parlexo {

namespace {

// The system wants the low four bits clear and keeps the numbers from 0xF000 on for itself.
constexpr UINT commandNumber = 0x10;
constexpr WPARAM commandMask = 0xFFF0;

/// The entry's action; belongs to the window.
class SystemCommand final : public QObject {
 public:
  SystemCommand(QWidget& window, const std::function<void()>& action) : QObject(&window), action_(action) {}

  // A dialog opened at once would run inside the delivery of the system's message.
  void runSoon() {
    QMetaObject::invokeMethod(
        this, [this] { action_(); }, Qt::QueuedConnection);
  }

 private:
  std::function<void()> action_;
};

LRESULT CALLBACK hearCommand(HWND window, UINT message, WPARAM command, LPARAM position, UINT_PTR /*id*/,
                             DWORD_PTR data) {
  if (message != WM_SYSCOMMAND || (command & commandMask) != commandNumber)
    return DefSubclassProc(window, message, command, position);
  reinterpret_cast<SystemCommand*>(data)->runSoon();
  return 0;
}

}  // namespace

void addToSystemMenu(QWidget& window, const QString& text, const std::function<void()>& action) {
  if (text.isEmpty()) return;
  const auto handle = reinterpret_cast<HWND>(window.winId());
  const HMENU menu = GetSystemMenu(handle, FALSE);
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(menu, MF_STRING, commandNumber, reinterpret_cast<const wchar_t*>(text.utf16()));
  auto* command = new SystemCommand(window, action);
  SetWindowSubclass(handle, hearCommand, commandNumber, reinterpret_cast<DWORD_PTR>(command));
}

}  // namespace parlexo
