// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/group_file_name.h"

#include <array>

#include <QRegularExpression>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

struct Replacement {
  const char* plain;
  const char* encoded;
};

// In the order in which both directions apply them, each to the whole name.
constexpr std::array<Replacement, 12> replacements = {{
    {"-", "--"},
    {"%", "-1"},
    {"\\", "-2"},
    {":", "-3"},
    {"/", "-4"},
    {"*", "-5"},
    {"?", "-6"},
    {"\"", "-7"},
    {"'", "-8"},
    {".", "-9"},
    {"<", "-A"},
    {">", "-B"},
}};

}  // namespace

QString encodeGroupFileName(const QString& name, const QString& extension) {
  QString encoded = name;
  for (const Replacement& replacement : replacements)
    encoded.replace(QLatin1String(replacement.plain), QLatin1String(replacement.encoded));
  return encoded + extension;
}

QString decodeGroupFileName(const QString& fileName, const QString& extension) {
  QString name = fileName;
  for (const Replacement& replacement : replacements)
    name.replace(QLatin1String(replacement.encoded), QLatin1String(replacement.plain));
  if (name.endsWith(extension)) name.chop(extension.size());
  return name;
}

QString groupNameAfterRestart(const QString& name) {
  const QLatin1String extension(groupExtension);
  return decodeGroupFileName(encodeGroupFileName(name, extension), extension);
}

QString groupNameThatStays(const QString& name) {
  static const QRegularExpression misread(u"-+(?=[1-9AB])"_s);
  return QString(name).replace(misread, u" "_s).trimmed();
}

}  // namespace parlexo
