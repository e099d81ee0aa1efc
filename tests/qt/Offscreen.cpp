#include <gtest/gtest.h>

#include <QApplication>

#include "qt/Spanish.h"
#include "qt/Watchdog.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setApplicationDisplayName("Fidaleon");
  fidaleon::qt::speakSpanish(application);
  const fidaleon::tests::Watchdog watchdog;
  return RUN_ALL_TESTS();
}
