// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <utility>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace parlexo {

/// A frequently used text with the recipients that it goes to, as a page shows them.
struct Template {
  QString displayList;  ///< entries "Name [number]" joined by commas; empty for none
  QString message;      ///< the text in the form that travels

  bool operator==(const Template&) const = default;
};

/// The file's content: recipients, separator and text in bytes of the code page. Characters that it lacks
/// become "?".
[[nodiscard]] QByteArray templateBytes(const Template& content);

/// The template that a file's bytes hold, without the white space around its two parts. Nothing when the
/// separator is not there exactly once; so a text that holds the separator makes a template that can't be
/// loaded.
[[nodiscard]] std::optional<Template> parseTemplate(const QByteArray& bytes);

/// The folder that keeps templates, one file each; its name is the template's with ".tpl" behind it.
class TemplateFolder {
 public:
  explicit TemplateFolder(QString path) : path_(std::move(path)) {}

  /// The names of all templates, in alphabetical order; none when the folder can't be read.
  [[nodiscard]] QStringList names() const;

  /// Writes a template in the place of an older one of that name, which stays whole when the writing fails.
  /// False when it fails, and for a name that is empty or holds "/", "\" or a zero character.
  [[nodiscard]] bool save(const QString& name, const Template& content) const;

  /// Nothing when the file can't be read, is larger than any template or is not one (see parseTemplate()).
  [[nodiscard]] std::optional<Template> load(const QString& name) const;

  /// True when there is no such template any more.
  [[nodiscard]] bool remove(const QString& name) const;

 private:
  [[nodiscard]] QString fileOf(const QString& name) const;

  QString path_;
};

}  // namespace parlexo
