#include "base/settings.h"

#include <algorithm>

#include <QDir>
#include <QStandardPaths>

#include "base/message_texts.h"
#include "base/product.h"

namespace parlexo {

namespace {

constexpr char organisation[] = "Parlexo";
constexpr char application[] = "Parlexo Client";
constexpr int widestColumn = 4000;  // pixels; a hand-edited value must not push a list's columns out of reach

ProgramFolder defaultProgramFolder() {
#ifdef PARLEXO_USER_DATA_FOLDER
  return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u'/' + application};
#else
  return findProgramFolder();
#endif
}

QString inFolder(const QString& folder, const QString& name) {
  return QDir::toNativeSeparators(QDir(folder).filePath(name));
}

// A text as it stands in the store. A hand-edited value with a comma that is not quoted comes back as a list.
QString storedText(const QSettings& store, const QString& key) {
  return store.value(key).toStringList().join(QStringLiteral(", "));
}

QString columnWidthsKey(const QString& list) {
  return QStringLiteral("Columns/") + list;
}

QString suppressionKey(int messageNumber) {
  return text(TextId::SettingsSection) + u'/' + withNumber(TextId::DontShowAgainValue, messageNumber);
}

}  // namespace

Settings::Settings()
    : store_(std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, organisation,
                                         application)),
      programFolder_(defaultProgramFolder()) {
  // The user's own values only, not those that other places hold for all programs or all users.
  store_->setFallbacksEnabled(false);
}

Settings::Settings(const QString& dataFolder)
    : store_(std::make_unique<QSettings>(inFolder(dataFolder, QStringLiteral("Parlexo Client.conf")),
                                         QSettings::IniFormat)),
      programFolder_{QDir::toNativeSeparators(QDir(dataFolder).absolutePath())} {}

QString Settings::mobilePhoneNumber() {
  return cached(mobilePhoneNumber_, QStringLiteral("Mobile/PhoneNumber"), QString());
}

void Settings::setMobilePhoneNumber(const QString& number) {
  write(mobilePhoneNumber_, QStringLiteral("Mobile/PhoneNumber"), number);
}

QString Settings::contactsFolder() {
  return cached(contactsFolder_, QStringLiteral("Path/Contacts"),
                inFolder(programFolder_.path, QStringLiteral("contacts")));
}

void Settings::setContactsFolder(const QString& folder) {
  write(contactsFolder_, QStringLiteral("Path/Contacts"), folder);
}

QString Settings::templatesFolder() {
  return cached(templatesFolder_, QStringLiteral("Path/Templates"),
                inFolder(programFolder_.path, QStringLiteral("templates")));
}

void Settings::setTemplatesFolder(const QString& folder) {
  write(templatesFolder_, QStringLiteral("Path/Templates"), folder);
}

QString Settings::statusFile() const {
  return inFolder(programFolder_.path, QStringLiteral("Status.xml"));
}

QString Settings::rememberedUser() const {
  return storedText(*store_, QStringLiteral("Login/User"));
}

void Settings::setRememberedUser(const QString& user) {
  store_->setValue(QStringLiteral("Login/User"), user);
}

QString Settings::serviceHost() const {
  const QString host = storedText(*store_, QStringLiteral("Service/Host"));
  return host.isEmpty() ? defaultServiceHost() : host;
}

bool Settings::isMessageSuppressed(int messageNumber) const {
  return store_->value(suppressionKey(messageNumber)).toInt() != 0;
}

void Settings::suppressMessage(int messageNumber) {
  // A text like all settings: the registry keeps numbers and texts apart.
  store_->setValue(suppressionKey(messageNumber), QStringLiteral("1"));
}

QString Settings::fileFolder() const {
  return storedText(*store_, QStringLiteral("Path/Files"));
}

void Settings::setFileFolder(const QString& folder) {
  store_->setValue(QStringLiteral("Path/Files"), folder);
}

QByteArray Settings::windowGeometry() const {
  return QByteArray::fromBase64(storedText(*store_, QStringLiteral("Window/Geometry")).toLatin1());
}

void Settings::setWindowGeometry(const QByteArray& geometry) {
  store_->setValue(QStringLiteral("Window/Geometry"), QString::fromLatin1(geometry.toBase64()));
}

QList<int> Settings::columnWidths(const QString& list) const {
  QList<int> widths;
  const QString stored = storedText(*store_, columnWidthsKey(list));
  for (const QString& width : stored.split(QChar(u' '), Qt::SkipEmptyParts))
    widths.append(std::clamp(width.toInt(), 0, widestColumn));
  return widths;
}

void Settings::setColumnWidths(const QString& list, const QList<int>& widths) {
  QStringList texts;
  for (const int width : widths) texts.append(QString::number(width));
  store_->setValue(columnWidthsKey(list), texts.join(QChar(u' ')));
}

QString Settings::cached(QString& cache, const QString& key, const QString& fallback) {
  if (cache.isEmpty()) cache = storedText(*store_, key);
  if (cache.isEmpty()) cache = fallback;
  return cache;
}

void Settings::write(QString& cache, const QString& key, const QString& value) {
  store_->setValue(key, value);
  cache = value;
}

void makeFolderPath(const QString& path) {
  const QString folder = QDir::fromNativeSeparators(path.trimmed());
  if (!folder.isEmpty()) QDir().mkpath(folder);
}

}  // namespace parlexo
