// A viewer for long plain texts in a font of one width. It draws the lines in view and nothing else, so that
// a file of a hundred megabytes opens at once.
#pragma once

#include <QAbstractScrollArea>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnvik {

class TextArea : public QAbstractScrollArea {
 public:
  explicit TextArea(QWidget* parent = nullptr);

  // The text stays where it is: it must outlive its showing.
  void SetText(const std::string& text);
  void ForgetText();

  std::size_t LineCount() const { return line_starts_.size(); }
  // The marked part, in bytes.
  std::size_t SelectionStart() const { return std::min(anchor_, caret_); }
  std::size_t SelectionEnd() const { return std::max(anchor_, caret_); }
  void Select(std::size_t start, std::size_t end);  // and scrolls there
  // Marks the next or previous place that holds the words, going on at the other end; false when there is
  // none.
  bool Find(const std::string& words, bool forward, bool match_case);

  std::function<void()> on_selection;  // the marked part has changed

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  // A line as it is drawn: its characters, and for each column the byte where its character begins.
  struct Drawn {
    QString characters;
    std::vector<std::size_t> bytes;  // one more than columns
  };
  Drawn DrawnLine(std::size_t line) const;
  std::string_view Line(std::size_t line) const;  // without its end
  std::size_t LineAt(std::size_t byte) const;
  std::size_t ColumnAt(std::size_t line, std::size_t byte) const;
  std::size_t ByteAt(std::size_t line, std::size_t column) const;
  std::size_t ByteAt(const QPoint& point) const;
  std::size_t VisibleLines() const;
  void MoveTo(std::size_t byte, bool keep_anchor);
  void ShowCaret();
  void FitScrollBars();

  const std::string* text_;
  std::vector<std::size_t> line_starts_;
  std::size_t longest_ = 0;  // bytes of the longest line
  std::size_t anchor_ = 0;
  std::size_t caret_ = 0;
};

}  // namespace tarnvik
