// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <gtest/gtest.h>

namespace parlexo {

/// Returns the path, so that the call can stand where the file is named.
inline QString writeBytes(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
  EXPECT_EQ(file.write(bytes), bytes.size()) << path.toStdString();
  return path;
}

/// The bytes of a file; a null array, other than an empty one, when there is no such file.
inline QByteArray readBytes(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  return bytes.isNull() ? QByteArray("") : bytes;
}

}  // namespace parlexo
