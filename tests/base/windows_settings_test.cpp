// SPDX-License-Identifier: GPL-3.0-or-later
// Compares settings with the registry, in a separate hive.

#include <windows.h>

#include <array>

#include "base/settings.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

/// Redirects HKEY_CURRENT_USER to an empty key, which the destructor deletes.
class OwnHive {
 public:
  OwnHive() {
    RegCreateKeyExW(HKEY_CURRENT_USER, name, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr,
                    &key_, nullptr);
    EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, key_), ERROR_SUCCESS);
  }
  ~OwnHive() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(key_);
    RegDeleteTreeW(HKEY_CURRENT_USER, name);
  }
  OwnHive(const OwnHive&) = delete;
  OwnHive& operator=(const OwnHive&) = delete;

 private:
  static constexpr wchar_t name[] = L"Software\\Parlexo settings test";
  HKEY key_ = nullptr;
};

std::wstring registryKey(const wchar_t* section) {
  return std::wstring(L"Software\\Parlexo\\Parlexo Client\\") + section;
}

/// The stored string; "(none)" if there is no value or it has another type.
std::wstring stored(const wchar_t* section, const wchar_t* value) {
  std::array<wchar_t, 1000> text{};
  DWORD bytes = sizeof text;
  const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, registryKey(section).c_str(), value, RRF_RT_REG_SZ,
                                      nullptr, text.data(), &bytes);
  return status == ERROR_SUCCESS ? text.data() : L"(none)";
}

void store(const wchar_t* section, const wchar_t* value, const std::wstring& text) {
  EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, registryKey(section).c_str(), value, REG_SZ, text.c_str(),
                            static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
            ERROR_SUCCESS);
}

TEST(RegistrySettings, areStringsUnderTheProgramKey) {
  const OwnHive hive;
  {
    Settings settings;
    settings.setMobilePhoneNumber(u"+61491570156"_s);
    settings.setContactsFolder(QString::fromUtf8("\\\\server\\share\\\u4f60\u597d, all"));
    settings.setTemplatesFolder(u"C:\\Templates"_s);
    settings.setRememberedUser(QString::fromUtf8("zo\u00eb"));
    settings.suppressMessage(146);
  }
  EXPECT_EQ(stored(L"Mobile", L"PhoneNumber"), L"+61491570156");
  EXPECT_EQ(stored(L"Path", L"Contacts"), L"\\\\server\\share\\\u4f60\u597d, all");
  EXPECT_EQ(stored(L"Path", L"Templates"), L"C:\\Templates");
  EXPECT_EQ(stored(L"Login", L"User"), L"zo\u00eb");
  EXPECT_EQ(stored(L"Settings", L"MessageDontShowAgain146"), L"1");
}

TEST(RegistrySettings, areReadFromAdministratorKeys) {
  const OwnHive hive;
  EXPECT_TRUE(Settings().contactsFolder().endsWith(u"\\contacts"_s));
  EXPECT_EQ(stored(L"Path", L"Contacts"), L"(none)") << "the default is not written";
  store(L"Path", L"Contacts", L"P:\\Team");
  store(L"Settings", L"MessageDontShowAgain147", L"1");
  store(L"..\\OrganizationDefaults\\Settings", L"MessageDontShowAgain146", L"1");
  Settings settings;
  EXPECT_EQ(settings.contactsFolder(), u"P:\\Team"_s);
  EXPECT_TRUE(settings.isMessageSuppressed(147));
  EXPECT_FALSE(settings.isMessageSuppressed(146));
}

TEST(FolderPath, acceptsAllSeparators) {
  const QTemporaryDir folder;
  const QString native = QDir::toNativeSeparators(folder.path());
  ASSERT_TRUE(QDir::setCurrent(native)) << "a path without a drive means that of the current folder";
  makeFolderPath(native + u"\\a\\b/c\\"_s);
  makeFolderPath(QLatin1Char(' ') + native.mid(2) + u"\\d"_s);
  makeFolderPath(u"Q:\\no such drive"_s);
  EXPECT_TRUE(QDir(folder.filePath(u"a/b/c"_s)).exists());
  EXPECT_TRUE(QDir(folder.filePath(u"d"_s)).exists());
  QDir::setCurrent(QDir::rootPath());
}

}  // namespace
}  // namespace parlexo::test
