#include "charts/application.h"

#include <QApplication>
#include <clocale>
#include <cstdio>

namespace tarnvik {

namespace {

// A program without windows says nothing about the look of the user's screen, locale or runtime folder.
void TellFaultsAlone(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", text.toUtf8().constData());
}

}  // namespace

void EnsureApplication() {
  if (QCoreApplication::instance()) return;
  static char program[] = "tarnvik";
  static char option[] = "-platform";
  static char platform[] = "offscreen";
  static char* arguments[] = {program, option, platform, nullptr};
  static int count = 3;
  qInstallMessageHandler(TellFaultsAlone);
  // Destroyed at the end of the process, before the libraries that it stands on.
  static const QApplication application(count, arguments);
  // The application takes over the user's locale; numbers are written with a point all the same.
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace tarnvik
