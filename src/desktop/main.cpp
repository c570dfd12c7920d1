// tarnvik-desktop [CASE.ctl]: the window program.
#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <clocale>
#include <cstdio>

#include "desktop/desktop_host.h"
#include "desktop/main_window.h"
#include "platform/process.h"
#include "program/program.h"

namespace {

QIcon OwnIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 128, 256}) icon.addFile(QString(":/icon/tarnvik-%1.png").arg(size));
  return icon;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");  // Qt has taken the user's; numbers in files are written one way
  QApplication::setOrganizationName("Tarnvik");
  QApplication::setApplicationName("Tarnvik");
  QApplication::setWindowIcon(OwnIcon());
  QApplication::setDesktopFileName("tarnvik");
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() > 2) {
    std::fputs("usage: tarnvik-desktop [CASE.ctl]\n", stderr);
    return 2;
  }

  tarnvik::DesktopHost host(tarnvik::ExecutableFolder());
  tarnvik::StartProgram(host);
  int status = 0;
  {
    tarnvik::MainWindow window(host);
    window.show();
    if (arguments.size() == 2) window.OpenCase(QFileInfo(arguments[1]).absoluteFilePath());
    if (tarnvik::ProgramRunning()) status = QApplication::exec();
  }
  tarnvik::EndProgram();
  return status;
}
