// SPDX-License-Identifier: GPL-3.0-or-later
// Included by every test: GoogleTest with the matchers in use, string literals, and what nearly all tests
// need of the standard library and Qt Core.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>
#include <gmock/gmock.h>

/// Prints the strings of a failed comparison as text.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace parlexo::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using testing::UnorderedElementsAre;

/// The rows of a table-driven test; the loop over them names the columns.
template <class... Columns>
using Cases = std::vector<std::tuple<Columns...>>;

}  // namespace parlexo::test
