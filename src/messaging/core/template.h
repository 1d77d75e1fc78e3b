// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <utility>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace parlexo {

/// A reusable text with its recipients.
struct Template {
  QString displayList;  ///< entries "Name [number]" separated by commas; empty for none
  QString message;      ///< the text in its wire form

  bool operator==(const Template&) const = default;
};

/// The contents of a template's file: recipients, separator and text in the code page. Characters that it
/// lacks become "?".
[[nodiscard]] QByteArray toTemplateBytes(const Template& content);

/// Parses the contents of a file and trims white space from both parts. Returns nullopt unless the separator
/// occurs exactly once; a text that contains the separator can't be loaded again.
[[nodiscard]] std::optional<Template> parseTemplate(const QByteArray& bytes);

/// The folder with the templates. Each is a file named after the template with the suffix ".tpl".
class TemplateFolder {
 public:
  explicit TemplateFolder(QString path) : path_(std::move(path)) {}

  /// The names of all templates in alphabetical order; empty if the folder can't be read.
  [[nodiscard]] QStringList names() const;

  /// Writes a template, replacing one with the same name. Returns false if writing fails, and the old file
  /// stays, or if the name is empty or contains "/", "\" or a null character.
  [[nodiscard]] bool save(const QString& name, const Template& content) const;

  /// Returns nullopt if the file can't be read, is too large, or is not a template (see parseTemplate()).
  [[nodiscard]] std::optional<Template> load(const QString& name) const;

  /// Deletes a template. Returns true if no template with this name exists afterwards.
  [[nodiscard]] bool remove(const QString& name) const;

 private:
  [[nodiscard]] QString filePath(const QString& name) const;

  QString path_;
};

}  // namespace parlexo
