#include "desktop/run_window.h"

#include <QCloseEvent>
#include <QDialog>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <atomic>
#include <mutex>
#include <thread>

#include "charts/text.h"
#include "platform/process.h"

namespace tarnvik {

namespace {

constexpr int kShownLines = 10000;  // of a program that writes without end the last ones
constexpr int kTenTimesASecond = 100;

// What the program has written since the last look. Written by the thread that watches it.
class Written {
 public:
  void Add(std::string_view piece) {
    const std::lock_guard lock(mutex_);
    text_ += piece;
  }
  std::string Take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(text_, {});
  }

 private:
  std::mutex mutex_;
  std::string text_;
};

// The end of a text, with no more lines than are shown: inserting what goes at once would hold up the window.
std::string_view ShownEnd(std::string_view text) {
  std::size_t start = text.size();
  for (int line = 0; line < kShownLines && start > 0; ++line) {
    start = text.rfind('\n', start - 1);
    if (start == std::string_view::npos) return text;
  }
  return text.substr(start);
}

// "tarnvik.exe", of the command line that starts it.
QString ProgramName(const std::string& command) {
  const CommandLine line = TakeApart(command);
  const std::string path = line.words.empty() ? command : line.words[0];
  return ShownText(path.substr(path.find_last_of("/\\") + 1));
}

class RunWindow : public QDialog {
 public:
  RunWindow(const std::string& command, QWidget* parent)
      : QDialog(parent),
        says_(tr("%1 is running").arg(ProgramName(command))),
        time_(new QLabel(this)),
        output_(new QPlainTextEdit(this)),
        end_(new QPushButton(tr("&End the Program"), this)) {
    setWindowTitle(says_);
    setModal(true);
    resize(720, 420);
    output_->setReadOnly(true);
    output_->setMaximumBlockCount(kShownLines);
    output_->setLineWrapMode(QPlainTextEdit::NoWrap);
    output_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    output_->setAccessibleName(tr("What the program writes"));
    auto* row = new QHBoxLayout;
    row->addWidget(time_);
    row->addStretch();
    row->addWidget(end_);
    auto* column = new QVBoxLayout(this);
    column->addWidget(output_);
    column->addLayout(row);
    connect(end_, &QPushButton::clicked, this, [this] {
      stop = true;
      end_->setEnabled(false);
    });
    connect(&clock_, &QTimer::timeout, this, [this] { Look(); });
    clock_.start(kTenTimesASecond);
    passed_.start();
    Look();
  }

  void Look() {
    const qint64 seconds = passed_.elapsed() / 1000;
    time_->setText(tr("%1, %2:%3 minutes").arg(says_).arg(seconds / 60).arg(seconds % 60, 2, 10, QChar('0')));
    const std::string piece = written.Take();
    if (piece.empty()) return;
    output_->moveCursor(QTextCursor::End);
    output_->insertPlainText(ShownText(ShownEnd(piece)));
    output_->ensureCursorVisible();
  }

  Written written;
  std::atomic<bool> stop = false;

 protected:
  void closeEvent(QCloseEvent* event) override { event->ignore(); }  // it goes when the program has ended
  void reject() override {}

 private:
  QString says_;
  QLabel* time_;
  QPlainTextEdit* output_;
  QPushButton* end_;
  QTimer clock_;
  QElapsedTimer passed_;
};

}  // namespace

std::int32_t RunInWindow(const std::string& command, QWidget* parent) {
  RunWindow window(command, parent);
  std::int32_t result = 0;
  std::thread watcher([&] {
    result = RunConsoleProcess(command, {[&](std::string_view piece) { window.written.Add(piece); },
                                         [&] { return window.stop.load(); }});
    QMetaObject::invokeMethod(
        &window, [&] { window.accept(); }, Qt::QueuedConnection);
  });
  window.exec();
  watcher.join();
  return result;
}

}  // namespace tarnvik
