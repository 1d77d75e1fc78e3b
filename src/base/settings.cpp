// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/settings.h"

#include <algorithm>

#include <QDir>
#include <QStandardPaths>

#include "base/message_texts.h"
#include "base/product.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr char organisation[] = "Parlexo";
constexpr char application[] = "Parlexo Client";
constexpr int maxColumnWidth = 4000;  // pixels; keeps columns reachable if the file was edited by hand

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

// QSettings returns a list for a value with an unquoted comma, as in a file edited by hand.
QString storedText(const QSettings& store, const QString& key) {
  return store.value(key).toStringList().join(u", "_s);
}

QString columnWidthsKey(const QString& list) {
  return u"Columns/"_s + list;
}

QString suppressionKey(int messageNumber) {
  return text(TextId::SettingsSection) + u'/' + withNumber(TextId::DontShowAgainValue, messageNumber);
}

}  // namespace

Settings::Settings()
    : store_(std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, organisation,
                                         application)),
      programFolder_(defaultProgramFolder()) {
  // Read only this user's settings for this program.
  store_->setFallbacksEnabled(false);
}

Settings::Settings(const QString& dataFolder)
    : store_(
          std::make_unique<QSettings>(inFolder(dataFolder, u"Parlexo Client.conf"_s), QSettings::IniFormat)),
      programFolder_{QDir::toNativeSeparators(QDir(dataFolder).absolutePath())} {}

QString Settings::mobilePhoneNumber() {
  return cached(mobilePhoneNumber_, u"Mobile/PhoneNumber"_s, QString());
}

void Settings::setMobilePhoneNumber(const QString& number) {
  write(mobilePhoneNumber_, u"Mobile/PhoneNumber"_s, number);
}

QString Settings::contactsFolder() {
  return cached(contactsFolder_, u"Path/Contacts"_s, inFolder(programFolder_.path, u"contacts"_s));
}

void Settings::setContactsFolder(const QString& folder) {
  write(contactsFolder_, u"Path/Contacts"_s, folder);
}

QString Settings::templatesFolder() {
  return cached(templatesFolder_, u"Path/Templates"_s, inFolder(programFolder_.path, u"templates"_s));
}

void Settings::setTemplatesFolder(const QString& folder) {
  write(templatesFolder_, u"Path/Templates"_s, folder);
}

QString Settings::statusFile() const {
  return inFolder(programFolder_.path, u"Status.xml"_s);
}

QString Settings::rememberedUser() const {
  return storedText(*store_, u"Login/User"_s);
}

void Settings::setRememberedUser(const QString& user) {
  store_->setValue(u"Login/User"_s, user);
}

QString Settings::serviceHost() const {
  const QString host = storedText(*store_, u"Service/Host"_s);
  return host.isEmpty() ? defaultServiceHost() : host;
}

bool Settings::isMessageSuppressed(int messageNumber) const {
  return store_->value(suppressionKey(messageNumber)).toInt() != 0;
}

void Settings::suppressMessage(int messageNumber) {
  // A string like all settings: the registry distinguishes numbers from strings.
  store_->setValue(suppressionKey(messageNumber), u"1"_s);
}

QString Settings::fileFolder() const {
  return storedText(*store_, u"Path/Files"_s);
}

void Settings::setFileFolder(const QString& folder) {
  store_->setValue(u"Path/Files"_s, folder);
}

QByteArray Settings::windowGeometry() const {
  return QByteArray::fromBase64(storedText(*store_, u"Window/Geometry"_s).toLatin1());
}

void Settings::setWindowGeometry(const QByteArray& geometry) {
  store_->setValue(u"Window/Geometry"_s, QString::fromLatin1(geometry.toBase64()));
}

QList<int> Settings::columnWidths(const QString& list) const {
  QList<int> widths;
  const QString stored = storedText(*store_, columnWidthsKey(list));
  for (const QString& width : stored.split(QChar(u' '), Qt::SkipEmptyParts))
    widths.append(std::clamp(width.toInt(), 0, maxColumnWidth));
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
