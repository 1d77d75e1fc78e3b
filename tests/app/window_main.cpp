#include <QApplication>
#include <gtest/gtest.h>

#include "ui/look.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  parlexo::applyLook(application);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
