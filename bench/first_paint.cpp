// Loaded into the window program from outside (LD_PRELOAD): ends the process as soon as its main window has
// been painted, so that the life of the process is the time from its start to its first paint.
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

namespace {

class EndsAtFirstPaint : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint && object->objectName() == "frmMain") {
      // The children are painted in the same pass; what is posted now comes after it.
      QTimer::singleShot(0, [] { _exit(0); });
    }
    return false;
  }
};

void Watch() { qApp->installEventFilter(new EndsAtFirstPaint(qApp)); }

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(Watch)
