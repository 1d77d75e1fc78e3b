#include <windows.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QWidget>

#include "app/system_menu.h"

namespace parlexo {

namespace {

// The system wants the low four bits clear and keeps the numbers from 0xF000 on for itself.
constexpr UINT commandNumber = 0x10;
constexpr WPARAM commandMask = 0xFFF0;

/// Hears the system menu's commands for one window, which owns it.
class SystemCommandFilter final : public QObject, public QAbstractNativeEventFilter {
 public:
  SystemCommandFilter(QWidget& window, const std::function<void()>& action)
      : QObject(&window), window_(reinterpret_cast<HWND>(window.winId())), action_(action) {
    QCoreApplication::instance()->installNativeEventFilter(this);
  }

  bool nativeEventFilter(const QByteArray& /*type*/, void* event, qintptr* /*result*/) override {
    const auto* message = static_cast<const MSG*>(event);
    const bool isOurs = message->message == WM_SYSCOMMAND && message->hwnd == window_ &&
                        (message->wParam & commandMask) == commandNumber;
    // A dialog opened in here would run inside the delivery of this message.
    if (isOurs)
      QMetaObject::invokeMethod(
          this, [this] { action_(); }, Qt::QueuedConnection);
    return isOurs;
  }

 private:
  HWND window_;
  std::function<void()> action_;
};

}  // namespace

void addToSystemMenu(QWidget& window, const QString& text, const std::function<void()>& action) {
  if (text.isEmpty()) return;
  const HMENU menu = GetSystemMenu(reinterpret_cast<HWND>(window.winId()), FALSE);
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(menu, MF_STRING, commandNumber, reinterpret_cast<const wchar_t*>(text.utf16()));
  new SystemCommandFilter(window, action);
}

}  // namespace parlexo
