// SPDX-License-Identifier: GPL-3.0-or-later
// wininet.h requires windows.h.
#include <windows.h>
// clang-format off
#include <wininet.h>
// clang-format on

#include <algorithm>
#include <array>
#include <memory>
#include <type_traits>
#include <utility>

#include <QByteArray>
#include <QFile>
#include <QNetworkProxy>
#include <QRegularExpression>
#include <QStringList>

#include "connection/locator/proxy_system.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr DWORD settingSize = 4096;
constexpr DWORD scriptAddressSize = 256;

struct LibraryDeleter {
  void operator()(HMODULE library) const { FreeLibrary(library); }
};
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryDeleter>;

template <typename Function>
Function function(const Library& library, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library.get(), name)));
}

/// The system's engine for proxy configuration scripts, with one script loaded.
class ScriptEngine {
 public:
  explicit ScriptEngine(const QByteArray& file)
      // Never load a DLL with that name from the program's folder.
      : library_(LoadLibraryExW(L"jsproxy.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {
    if (!library_) return;
    end_ = function<pfnInternetDeInitializeAutoProxyDll>(library_, "InternetDeInitializeAutoProxyDll");
    ask_ = function<pfnInternetGetProxyInfo>(library_, "InternetGetProxyInfo");
    const auto start =
        function<pfnInternetInitializeAutoProxyDll>(library_, "InternetInitializeAutoProxyDll");
    QByteArray path = file;
    isReady_ = start && end_ && ask_ && start(0, path.data(), nullptr, nullptr, nullptr);
  }
  ~ScriptEngine() {
    if (isReady_) end_(nullptr, 0);
  }
  ScriptEngine(const ScriptEngine&) = delete;
  ScriptEngine& operator=(const ScriptEngine&) = delete;

  [[nodiscard]] QString answer(const QUrl& address) const {
    if (!isReady_) return {};
    QByteArray url = address.toEncoded();
    QByteArray host = address.host(QUrl::FullyEncoded).toLatin1();
    char* proxy = nullptr;
    DWORD length = 0;
    if (!ask_(url.data(), static_cast<DWORD>(url.size()), host.data(), static_cast<DWORD>(host.size()),
              &proxy, &length) ||
        !proxy)
      return {};
    const QString text = QString::fromLatin1(proxy);
    GlobalFree(proxy);
    return text;
  }

 private:
  Library library_;
  pfnInternetDeInitializeAutoProxyDll end_ = nullptr;
  pfnInternetGetProxyInfo ask_ = nullptr;
  bool isReady_ = false;
};

/// The proxies of the user's settings and the hosts that are excluded from them; empty if there are none.
std::pair<QString, QString> proxySetting() {
  alignas(INTERNET_PROXY_INFO) std::array<char, settingSize> buffer{};
  DWORD size = settingSize;
  if (!InternetQueryOptionA(nullptr, INTERNET_OPTION_PROXY, buffer.data(), &size)) return {};
  const auto* setting = reinterpret_cast<const INTERNET_PROXY_INFO*>(buffer.data());
  // The header declares the strings with the character type of the build, but this call returns bytes.
  return {QString::fromLocal8Bit(reinterpret_cast<const char*>(setting->lpszProxy)),
          QString::fromLocal8Bit(reinterpret_cast<const char*>(setting->lpszProxyBypass))};
}

/// Whether `host` matches `exceptions`, which are patterns such as "*.inside.example", or "<local>" for all
/// names without a dot.
bool isExcepted(const QString& host, const QString& exceptions) {
  static const QRegularExpression separators(u"[;\\s]+"_s);
  const QStringList patterns = exceptions.split(separators, Qt::SkipEmptyParts);
  return std::any_of(patterns.begin(), patterns.end(), [&host](const QString& pattern) {
    if (pattern == QLatin1String("<local>")) return !host.contains(u'.');
    return QRegularExpression::fromWildcard(pattern, Qt::CaseInsensitive).match(host).hasMatch();
  });
}

/// The proxy that the script in the user's settings returns for `address`; empty if there is none.
QString scriptedProxy(const QUrl& address) {
  const auto proxies = QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(address));
  const QNetworkProxy first = proxies.value(0);
  if (first.type() != QNetworkProxy::HttpProxy) return {};
  return u"%1:%2"_s.arg(first.hostName()).arg(first.port());
}

/// Queries WinINet, whose calls can't be interrupted: a cancelled call runs to its end.
class WindowsProxySystem final : public ProxySystem {
 public:
  [[nodiscard]] QString configuredProxy(const QUrl& address, const CancelFlag& cancel) const override {
    const auto [proxies, exceptions] = proxySetting();
    if (cancel.isRaised() || isExcepted(address.host(), exceptions)) return {};
    return proxies.isEmpty() ? scriptedProxy(address) : proxies;
  }

  [[nodiscard]] QUrl scriptAddress(const CancelFlag& cancel) const override {
    std::array<char, scriptAddressSize> address{};
    const bool isDetected =
        !cancel.isRaised() && DetectAutoProxyUrl(address.data(), scriptAddressSize,
                                                 PROXY_AUTO_DETECT_TYPE_DHCP | PROXY_AUTO_DETECT_TYPE_DNS_A);
    return isDetected ? QUrl(QString::fromLatin1(address.data())) : QUrl();
  }

  [[nodiscard]] QString scriptAnswer(const QString& file, const QUrl& address,
                                     const CancelFlag& cancel) const override {
    return cancel.isRaised() ? QString() : ScriptEngine(QFile::encodeName(file)).answer(address);
  }
};

}  // namespace

std::shared_ptr<const ProxySystem> makeProxySystem(std::chrono::milliseconds /*patience*/) {
  return std::make_shared<WindowsProxySystem>();
}

}  // namespace parlexo
