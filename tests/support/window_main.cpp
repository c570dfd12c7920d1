// The window tests need an application, and run the same without a display.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
  qputenv("QT_FONT_DPI", "96");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
