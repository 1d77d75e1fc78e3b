// SPDX-License-Identifier: GPL-3.0-or-later
// Compares the system's proxy with the user's settings.

#include <windows.h>

#include <array>

#include "connection/locator/proxy_system.h"
#include "connection/locator/proxy_text.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

const QUrl address(u"http://gateway.test/WSDLServerLocator.xml"_s);
constexpr wchar_t internetSettings[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";

QString textOfUser(const wchar_t* name) {
  std::array<wchar_t, 1000> text{};
  DWORD size = sizeof text;
  RegGetValueW(HKEY_CURRENT_USER, internetSettings, name, RRF_RT_REG_SZ, nullptr, text.data(), &size);
  return QString::fromWCharArray(text.data());
}

/// The proxy in the user's settings; empty if none is enabled.
QString proxyOfUser() {
  DWORD isOn = 0;
  DWORD size = sizeof isOn;
  RegGetValueW(HKEY_CURRENT_USER, internetSettings, L"ProxyEnable", RRF_RT_REG_DWORD, nullptr, &isOn, &size);
  return isOn ? textOfUser(L"ProxyServer") : QString();
}

TEST(WindowsProxySystem, readsTheUsersProxySettings) {
  const CancelFlag cancel;
  EXPECT_EQ(makeProxySystem()->configuredProxy(address, cancel), proxyOfUser());
  for (const char* host : {"news.inside.test", "intranet"}) {
    const bool isExcepted = textOfUser(L"ProxyOverride") == u"*.inside.test;<local>"_s;
    EXPECT_EQ(makeProxySystem()->configuredProxy(QUrl(u"http://"_s + QLatin1String(host)), cancel),
              isExcepted ? QString() : proxyOfUser())
        << host;
  }
}

TEST(WindowsProxySystem, runsAConfigurationScript) {
  const QTemporaryDir folder;
  const QString script = folder.filePath(u"proxy.pac"_s);
  const auto answer = [&](const QByteArray& text) {
    QFile file(script);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    const CancelFlag cancel;
    return makeProxySystem()->scriptAnswer(script, address, cancel);
  };
  EXPECT_EQ(answer("function FindProxyForURL(url, host) {\n"
                   "  return host == 'gateway.test' ? 'PROXY proxy.test:8080' : 'DIRECT';\n}\n"),
            u"PROXY proxy.test:8080"_s);
  EXPECT_EQ(answer("this is no script ("), QString());
}

}  // namespace
}  // namespace parlexo::test
