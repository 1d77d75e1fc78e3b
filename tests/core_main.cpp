// Runs the tests that open no window. Downloads and servers wait in event loops, which need an application.

#include <QCoreApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
