#include <QApplication>
#include <gmock/gmock.h>

#include "ui/look.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  parlexo::applyLook(application);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
