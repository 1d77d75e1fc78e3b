// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>

#include <QByteArray>
#include <QString>

namespace parlexo {

/// Overwrites `memory` with zeros in a way that the compiler may not optimise away. For passwords that are no
/// longer needed. Copies made earlier are not affected, so pass passwords by reference.
void wipe(std::span<std::byte> memory);
/// Wipes the characters and leaves the string empty. Memory that an implicitly shared string shares with
/// another one is not wiped.
void wipe(std::string& text);
void wipe(QByteArray& bytes);
void wipe(QString& text);

/// A password encoded in the code page. Copies share the bytes, which are wiped with the last copy.
class Secret {
 public:
  explicit Secret(const QString& text);
  operator const std::string&() const { return *bytes_; }

 private:
  std::shared_ptr<const std::string> bytes_;
};

}  // namespace parlexo
