// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <unordered_map>

#include <QString>
#include <QTemporaryDir>

#include "base/progress.h"
#include "contacts/samples/sample_contacts.h"

namespace parlexo {

// Shared by the benchmarks of the contact store.

inline constexpr int groupTotal = 100;

class NoProgress final : public Progress {
 public:
  void show(const QString& /*text*/) override {}
  void setText(const QString& /*text*/) override {}
  void hide() override {}
};

/// A temporary contacts folder with sample contacts. Set TMPDIR to choose the disk.
class BenchFolder {
 public:
  /// Returns the folder with `contactTotal` contacts, which is written at the first call.
  static const BenchFolder& withContacts(int contactTotal) {
    static std::unordered_map<int, std::unique_ptr<BenchFolder>> folders;
    auto& folder = folders[contactTotal];
    if (!folder) folder = std::make_unique<BenchFolder>(contactTotal);
    return *folder;
  }

  explicit BenchFolder(int contactTotal)
      : problem_(writeSampleFolder(dir_.path(), contactTotal, groupTotal)) {}

  /// The error message; empty if the folder could be written.
  [[nodiscard]] const QString& problem() const { return problem_; }
  [[nodiscard]] QString path() const { return dir_.path(); }
  [[nodiscard]] QString file(const QString& name) const { return dir_.filePath(name); }

 private:
  QTemporaryDir dir_;
  QString problem_;
};

}  // namespace parlexo
