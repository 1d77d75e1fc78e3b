// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/test.h"

namespace parlexo::test {

/// Writes a file and returns its path.
inline QString writeBytes(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
  EXPECT_EQ(file.write(bytes), bytes.size()) << path.toStdString();
  return path;
}

/// The bytes of a file; a null array if it cannot be opened, an empty one if it is empty.
inline QByteArray readBytes(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  return bytes.isNull() ? QByteArray("") : bytes;
}

}  // namespace parlexo::test
