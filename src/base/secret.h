// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>

#include <QByteArray>
#include <QString>

namespace parlexo {

/// Passwords must not lie about in memory once they have done their work. These functions overwrite them with
/// zeros, which the compiler may not leave out. Copies made earlier are beyond their reach, so a password is
/// handed on by reference.

void wipe(std::span<std::byte> memory);
/// The text is empty afterwards. One whose memory is shared with another text keeps that memory as it is.
void wipe(std::string& text);
void wipe(QByteArray& bytes);
void wipe(QString& text);

/// A password in the bytes of the code page. Copies share the bytes; the last one wipes them.
class Secret {
 public:
  explicit Secret(const QString& text);
  operator const std::string&() const { return *bytes_; }

 private:
  std::shared_ptr<const std::string> bytes_;
};

}  // namespace parlexo
