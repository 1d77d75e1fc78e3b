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
constexpr qint64 maxTemplateSize = 64 * 1024 * 1024;  // bytes; enough for a million recipients

QString templateSuffix() {
  return u".tpl"_s;
}

// On Windows file names are not case-sensitive: "X.tpl" also opens "X.TPL".
Qt::CaseSensitivity suffixCase() {
  return QDir::separator() == u'\\' ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

// On Windows a name with a colon would address an alternate data stream of another file.
QStringView invalidCharacters() {
  return QDir::separator() == u'\\' ? u"\\/:*?\"<>|" : u"\\/";
}

bool isTemplateName(const QString& name) {
  const auto isInvalid = [](QChar c) { return c == u'\0' || invalidCharacters().contains(c); };
  return !name.isEmpty() && std::none_of(name.begin(), name.end(), isInvalid);
}

}  // namespace

QByteArray toTemplateBytes(const Template& content) {
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
  // Sorted, because most file systems list files in no particular order.
  const QDir::SortFlags order = QDir::Name | QDir::IgnoreCase;
  for (const QString& file : QDir(path_).entryList(QDir::Files | QDir::Hidden, order))
    if (file.endsWith(templateSuffix(), suffixCase())) names.append(file.chopped(templateSuffix().size()));
  return names;
}

bool TemplateFolder::save(const QString& name, const Template& content) const {
  if (!isTemplateName(name)) return false;
  QSaveFile file(filePath(name));
  return file.open(QIODevice::WriteOnly) && file.write(toTemplateBytes(content)) >= 0 && file.flush() &&
         file.commit();
}

std::optional<Template> TemplateFolder::load(const QString& name) const {
  QFile file(filePath(name));
  if (!file.open(QIODevice::ReadOnly) || file.size() > maxTemplateSize) return std::nullopt;
  const QByteArray bytes = file.readAll();
  return file.error() == QFileDevice::NoError ? parseTemplate(bytes) : std::nullopt;
}

bool TemplateFolder::remove(const QString& name) const {
  return QFile::remove(filePath(name)) || !QFile::exists(filePath(name));
}

QString TemplateFolder::filePath(const QString& name) const {
  return QDir(path_).filePath(name + templateSuffix());
}

}  // namespace parlexo
