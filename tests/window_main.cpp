// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the tests that open windows: on no display unless the environment names one, in the program's look.

#include <QApplication>
#include <gmock/gmock.h>

#include "base/program.h"
#include "ui/look.h"

namespace {

int runTests(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  parlexo::applyLook(application);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}

}  // namespace

int main(int argc, char** argv) {
  return parlexo::endProcess(runTests(argc, argv));
}
