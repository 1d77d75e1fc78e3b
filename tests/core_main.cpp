// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the tests that open no window. Downloads and servers wait in event loops, which need an application.

#include <QCoreApplication>
#include <gmock/gmock.h>

#include "base/program.h"

namespace {

int runTests(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}

}  // namespace

int main(int argc, char** argv) {
  return parlexo::endProcess(runTests(argc, argv));
}
