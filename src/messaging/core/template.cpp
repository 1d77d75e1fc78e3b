// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/template.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include "base/code_page.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr char templateSeparator[] = "{|/SEP/|}";
constexpr qint64 largestTemplate = 64 * 1024 * 1024;  // bytes; more than a million recipients

QString templateSuffix() {
  return u".tpl"_s;
}

// File names differ by case except on Windows, where the file system finds "X.TPL" by the name "X.tpl".
Qt::CaseSensitivity suffixCase() {
  return QDir::separator() == u'\\' ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

// On Windows a name with a colon would lead into a hidden part of another file.
QStringView refusedCharacters() {
  return QDir::separator() == u'\\' ? u"\\/:*?\"<>|" : u"\\/";
}

bool isTemplateName(const QString& name) {
  const auto isRefused = [](QChar c) { return c == u'\0' || refusedCharacters().contains(c); };
  return !name.isEmpty() && std::none_of(name.begin(), name.end(), isRefused);
}

}  // namespace

QByteArray templateBytes(const Template& content) {
  return toCodePage(content.displayList) + templateSeparator + toCodePage(content.message);
}

std::optional<Template> parseTemplate(const QByteArray& bytes) {
  const qsizetype separator = bytes.indexOf(templateSeparator);
  const qsizetype message = separator + static_cast<qsizetype>(sizeof(templateSeparator)) - 1;
  if (separator < 0 || bytes.indexOf(templateSeparator, message) >= 0) return std::nullopt;
  return Template{fromCodePage(bytes.left(separator)).trimmed(), fromCodePage(bytes.mid(message)).trimmed()};
}

QStringList TemplateFolder::names() const {
  QStringList names;
  // Sorted here, because the file systems of Windows list their files in this order and others in none.
  const QDir::SortFlags order = QDir::Name | QDir::IgnoreCase;
  for (const QString& file : QDir(path_).entryList(QDir::Files | QDir::Hidden, order))
    if (file.endsWith(templateSuffix(), suffixCase())) names.append(file.chopped(templateSuffix().size()));
  return names;
}

bool TemplateFolder::save(const QString& name, const Template& content) const {
  if (!isTemplateName(name)) return false;
  QSaveFile file(fileOf(name));
  return file.open(QIODevice::WriteOnly) && file.write(templateBytes(content)) >= 0 && file.flush() &&
         file.commit();
}

std::optional<Template> TemplateFolder::load(const QString& name) const {
  QFile file(fileOf(name));
  if (!file.open(QIODevice::ReadOnly) || file.size() > largestTemplate) return std::nullopt;
  const QByteArray bytes = file.readAll();
  return file.error() == QFileDevice::NoError ? parseTemplate(bytes) : std::nullopt;
}

bool TemplateFolder::remove(const QString& name) const {
  return QFile::remove(fileOf(name)) || !QFile::exists(fileOf(name));
}

QString TemplateFolder::fileOf(const QString& name) const {
  return QDir(path_).filePath(name + templateSuffix());
}

}  // namespace parlexo
