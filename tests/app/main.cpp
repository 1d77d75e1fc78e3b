#include <QCoreApplication>
#include <gtest/gtest.h>

// The locator's download waits in an event loop, which needs an application object.
int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
