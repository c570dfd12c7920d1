#include "desktop/forms/form_layout.h"

#include <QEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>
#include <algorithm>
#include <map>

#include "charts/text.h"
#include "desktop/forms/arrangement.h"
#include "desktop/forms/layouts.h"
#include "desktop/forms/look.h"
#include "desktop/forms/page_views.h"

namespace tarnvik {

namespace {

constexpr int kGap = 8;
constexpr int kColumnGap = 12;
constexpr int kIndent = 16;

// Beside or above what it describes; seen and greyed with it.
class SideText : public QLabel {
 public:
  using QLabel::QLabel;
  void Describe(QWidget& described) {
    setBuddy(&described);
    described.installEventFilter(this);
    Follow(described);
  }

 protected:
  bool eventFilter(QObject* target, QEvent* event) override {
    const QEvent::Type type = event->type();
    if (target == buddy() &&
        (type == QEvent::ShowToParent || type == QEvent::HideToParent || type == QEvent::EnabledChange)) {
      Follow(*buddy());
    }
    return QLabel::eventFilter(target, event);
  }

 private:
  void Follow(const QWidget& described) {
    setVisible(!described.isHidden());
    setEnabled(described.isEnabled());
  }
};

// What stands at one place of the grid that a row is part of.
struct Piece {
  QWidget* widget = nullptr;
  QLayout* layout = nullptr;  // in place of a widget
  Label* label = nullptr;     // the label that it is
  SideText* text = nullptr;   // the text that it is
  std::string caption;        // of a check box, a label or a text
  bool natural = false;       // never larger than it needs to be
  bool button = false;
  bool frame = false;
  bool gap = false;
  bool empty = false;
  int grow_x = 0;
  int grow_y = 0;
};

using Line = std::vector<Piece>;

struct Growth {
  int x = 0;
  int y = 0;
};

QGridLayout* MakeGrid(QWidget* parent = nullptr) {
  auto* grid = new QGridLayout(parent);
  grid->setHorizontalSpacing(kColumnGap);
  grid->setVerticalSpacing(kGap);
  return grid;
}

QString WithoutColon(const std::string& caption) {
  QString text = ShownText(caption).simplified();
  if (text.endsWith(':')) text.chop(1);
  return text;
}

bool IsLineField(const Control& control) {
  return control.Kind() == ControlKind::TextBox || control.Kind() == ControlKind::ComboBox;
}

bool IsField(const Control& control) {
  return IsLineField(control) || control.Kind() == ControlKind::ListBox ||
         control.Kind() == ControlKind::Grid || control.Kind() == ControlKind::Chart ||
         control.Kind() == ControlKind::RichText;
}

class Layouter {
 public:
  Layouter(FormParts& parts, QWidget& widget, Control* container, int page, AltLetters& letters)
      : parts_(parts), widget_(widget), container_(container), page_(page), letters_(letters) {
    for (Control* control : parts.form.Controls()) {
      if (LiesHere(*control)) unplaced_.push_back(control);
    }
    PairLabels();
  }

  Growth Run() {
    Rows rows;
    if (const char* text = ArrangementOf(parts_.form.Name(), PlaceName())) rows = ReadArrangement(text);
    QGridLayout* grid = MakeGrid(&widget_);
    std::vector<Line> lines = MakeLines(rows);
    AddTheRest(lines);
    const Growth growth = Fill(*grid, lines);
    for (PagesView* pages : pages_) {
      pages->SetFill([&parts = parts_, pages, letters = letters_](int page, QWidget& place) {
        AltLetters taken = letters;
        const std::size_t first = parts.views.size();
        LayOut(parts, place, pages->Shown(), page, taken);
        pages->OrderTabs(parts.views, first);
      });
      pages->Refresh();
    }
    return growth;
  }

 private:
  // --- What lies here

  bool LiesHere(const Control& control) const {
    if (control.Kind() == ControlKind::MenuItem || control.Kind() == ControlKind::StatusBar) return false;
    if (control.Container() != container_) return false;
    return !container_ || container_->Kind() != ControlKind::TabStrip || control.Page() == page_;
  }
  std::string PlaceName() const {
    if (!container_) return "";
    if (container_->Kind() != ControlKind::TabStrip) return container_->FullName();
    return container_->FullName() + " " + std::to_string(page_);
  }
  std::string PlaceCaption() const {
    if (!container_) return parts_.form.Caption();
    if (container_->Kind() != ControlKind::TabStrip) return container_->Caption();
    return static_cast<TabStrip*>(container_)->TabCaption(page_);
  }

  // The caption of the nearest frame or page that has one, else that of the form.
  std::string CaptionAround(const Control& control) const {
    for (const Control* inner = &control; inner->Container(); inner = inner->Container()) {
      const Control* around = inner->Container();
      const bool page = around->Kind() == ControlKind::TabStrip;
      const std::string& caption =
          page ? static_cast<const TabStrip*>(around)->TabCaption(inner->Page()) : around->Caption();
      if (!caption.empty()) return caption;
    }
    return parts_.form.Caption();
  }

  // A label describes the field with its caption: of several the one of the same index, else the one that the
  // record names last before the field.
  void PairLabels() {
    std::vector<Label*> labels;
    for (Control* control : unplaced_) {
      if (control->Kind() == ControlKind::Label && !control->Caption().empty()) {
        labels.push_back(static_cast<Label*>(control));
      } else if (IsField(*control)) {
        Label* best = nullptr;
        for (Label* label : labels) {
          if (!label || label->Caption() != control->Caption()) continue;
          if (!best || label->Index() == control->Index() || best->Index() != control->Index()) best = label;
        }
        if (!best) continue;
        label_of_[control] = best;
        std::replace(labels.begin(), labels.end(), best, static_cast<Label*>(nullptr));
      }
    }
  }

  bool Take(const Control& control) { return std::erase(unplaced_, &control) > 0; }

  Control* Named(const std::string& name) const {
    for (Control* control : unplaced_) {
      if (control->FullName() == name) return control;
    }
    return nullptr;
  }

  // --- Pieces

  void GiveLetter(ControlView& view, const std::string& caption) {
    letters_.GiveTo(*view.Widget(), caption);
    view.Refresh();
  }

  // The label or text that a field follows in its row leads to it.
  void Describe(Piece& description, QWidget& described, const QString& before) {
    const QString name = WithoutColon(description.caption);
    GiveSpokenName(described, before.isEmpty() ? name : before + ", " + name);
    letters_.GiveTo(*description.widget, description.caption);
    if (description.text) {
      description.text->Describe(described);
      description.text->setText(MarkedCaption(*description.text, description.caption));
    } else {
      static_cast<QLabel*>(description.widget)->setBuddy(&described);
      parts_.Find(*description.label)->Refresh();
    }
  }

  Piece TextPiece(const std::string& text) {
    Piece piece;
    piece.widget = piece.text = new SideText(ShownText(text), &widget_);
    piece.text->setContentsMargins(0, 0, kMarkRoom, 0);
    piece.text->setTextFormat(Qt::PlainText);
    piece.caption = text;
    piece.natural = true;
    return piece;
  }

  Piece LabelPiece(Label& label) {
    Take(label);
    Piece piece;
    piece.widget = parts_.Add(MakeView(label, &widget_)).Widget();
    piece.label = &label;
    piece.caption = label.Caption();
    const Look look = LookOf(label);
    piece.grow_x = look == Look::Path || look == Look::Note ? 1 : 0;
    piece.natural = piece.grow_x == 0 && look != Look::Value;
    return piece;
  }

  // A label, check box, option or button: it has its caption on it.
  Piece CaptionedPiece(Control& control, Line& line) {
    if (control.Kind() == ControlKind::Label) {
      Piece piece = LabelPiece(static_cast<Label&>(control));
      // A value stands behind its caption.
      const bool value = LookOf(control) != Look::Plain || control.OnClick;
      if (value) piece.label = nullptr;
      if (value && !line.empty() && !line.back().caption.empty()) {
        GiveSpokenName(*piece.widget, WithoutColon(line.back().caption));
        if (control.OnClick) Describe(line.back(), *piece.widget, QString());
        parts_.Find(control)->Refresh();
        piece.caption = line.back().caption;
      }
      return piece;
    }
    Piece piece;
    ControlView& view = parts_.Add(MakeView(control, &widget_));
    GiveLetter(view, control.Caption());
    piece.widget = view.Widget();
    piece.caption = control.Kind() == ControlKind::CommandButton ? "" : control.Caption();
    piece.natural = true;
    piece.button = control.Kind() == ControlKind::CommandButton;
    return piece;
  }

  Piece FramePiece(Frame& frame, int share) {
    Piece piece;
    ControlView& view = parts_.Add(std::make_unique<FrameView>(frame, &widget_));
    for (const Control* control : parts_.form.Controls()) {
      const bool describes = control->Container() == &frame && control->Kind() == ControlKind::Grid;
      if (describes && !frame.Caption().empty()) {
        GiveLetter(view, frame.Caption());
        break;
      }
    }
    piece.widget = view.Widget();
    piece.frame = true;
    const Growth growth = Layouter(parts_, *piece.widget, &frame, 0, letters_).Run();
    piece.grow_x = growth.x > 0 ? share : 0;
    piece.grow_y = growth.y > 0 ? share : 0;
    return piece;
  }

  Piece TabPiece(TabStrip& tabs) {
    auto view = std::make_unique<PagesView>(tabs, &widget_);
    pages_.push_back(view.get());
    Piece piece;
    piece.widget = parts_.Add(std::move(view)).Widget();
    piece.grow_x = piece.grow_y = 1;
    return piece;
  }

  // The widget of a field, its size bounded by what its kind needs.
  Piece FieldPiece(Control& field, int share) {
    Piece piece;
    piece.widget = parts_.Add(MakeView(field, &widget_)).Widget();
    QWidget& widget = *piece.widget;
    const int line = widget.fontMetrics().height() + 8;
    if (IsLineField(field)) {
      QSizePolicy policy = widget.sizePolicy();
      policy.setRetainSizeWhenHidden(keep_place_);
      widget.setSizePolicy(policy);
      piece.grow_x = LookOf(field) == Look::Wide ? share : 0;
      piece.natural = piece.grow_x == 0;
      return piece;
    }
    piece.grow_x = piece.grow_y = share;
    if (field.Kind() == ControlKind::Chart) {
      widget.setMinimumSize(320, 240);
    } else if (LookOf(field) == Look::Short) {
      const int rows = static_cast<const Grid&>(field).Rows();
      widget.setFixedHeight((rows + 1) * line + QScrollBar(Qt::Horizontal).sizeHint().height() + 4);
      piece.grow_y = 0;
    } else {
      widget.setMinimumSize(140, 5 * line);
    }
    return piece;
  }

  // A field, and, unless the row has just said it, the text that describes it: before a field of one line,
  // above the others.
  void AddField(Line& line, Control& field, int share) {
    Piece described;
    const bool follows = !line.empty() && (line.back().label || line.back().text) &&
                         !line.back().widget->property("describes").toBool();
    bool has_description = follows;
    Piece description;
    const auto paired = label_of_.find(&field);
    if (!follows && paired != label_of_.end() && Take(*paired->second)) {
      description = LabelPiece(*paired->second);
      has_description = true;
    } else if (!follows && !field.Caption().empty() && field.Caption() != PlaceCaption()) {
      description = TextPiece(field.Caption());
      has_description = true;
    }
    QString before;
    for (const Piece& piece : line) {
      if (!piece.label && !piece.text && !piece.caption.empty()) before = WithoutColon(piece.caption);
    }
    described = FieldPiece(field, share);
    if (has_description) {
      Piece& said = follows ? line.back() : description;
      Describe(said, *described.widget, before);
      said.widget->setProperty("describes", true);
    } else if (described.widget->accessibleName().isEmpty()) {
      GiveSpokenName(*described.widget, WithoutColon(CaptionAround(field)));
    }
    if (follows || !has_description) {
      line.push_back(described);
    } else if (IsLineField(field)) {
      line.push_back(description);
      line.push_back(described);
    } else {
      auto* both = new QVBoxLayout;
      both->setSpacing(kGap / 2);
      both->addWidget(description.widget);
      both->addWidget(described.widget, 1);
      described.layout = both;
      described.widget = nullptr;
      line.push_back(described);
    }
  }

  void AddControl(Line& line, Control& control, int share) {
    if (!Take(control)) return;
    if (control.Kind() == ControlKind::Frame) {
      line.push_back(FramePiece(static_cast<Frame&>(control), share));
    } else if (control.Kind() == ControlKind::TabStrip) {
      line.push_back(TabPiece(static_cast<TabStrip&>(control)));
    } else if (IsField(control)) {
      AddField(line, control, share);
    } else {
      line.push_back(CaptionedPiece(control, line));
    }
  }

  // --- Rows

  // Controls of which the logic shows one at a time.
  Piece SharedPiece(const Cell& cell) {
    QGridLayout* grid = MakeGrid();
    Piece shared;
    shared.layout = grid;
    for (const std::string& name : cell.names) {
      Control* control = Named(name);
      if (!control) {
        qWarning("%s: no %s in \"%s\"", parts_.form.Name().c_str(), name.c_str(), PlaceName().c_str());
        continue;
      }
      std::vector<Line> lines(1);
      keep_place_ = false;
      AddControl(lines[0], *control, cell.share);
      keep_place_ = true;
      QGridLayout* one = MakeGrid();
      const Growth growth = Fill(*one, lines);
      grid->addLayout(one, 0, 0);
      shared.grow_x = std::max(shared.grow_x, growth.x);
      shared.grow_y = std::max(shared.grow_y, growth.y);
    }
    return shared;
  }

  void AddNamed(Line& line, const Cell& cell) {
    if (Control* control = Named(cell.names[0])) return AddControl(line, *control, cell.share);
    std::vector<Control*> elements;
    for (Control* control : unplaced_) {
      if (control->Name() == cell.names[0]) elements.push_back(control);
    }
    for (Control* control : elements) AddControl(line, *control, cell.share);
    if (elements.empty()) {
      qWarning("%s: no %s in \"%s\"", parts_.form.Name().c_str(), cell.names[0].c_str(), PlaceName().c_str());
    }
  }

  void AddCell(Line& line, const Cell& cell) {
    switch (cell.kind) {
      case Cell::Kind::Controls:
        if (cell.names.size() > 1) {
          line.push_back(SharedPiece(cell));
        } else {
          AddNamed(line, cell);
        }
        break;
      case Cell::Kind::Text:
        line.push_back(TextPiece(cell.text));
        break;
      case Cell::Kind::Rows: {
        QGridLayout* grid = MakeGrid();
        std::vector<Line> lines = MakeLines(cell.rows);
        const Growth growth = Fill(*grid, lines);
        Piece piece;
        piece.layout = grid;
        piece.grow_x = growth.x > 0 ? cell.share : 0;
        piece.grow_y = growth.y > 0 ? cell.share : 0;
        line.push_back(piece);
        break;
      }
      case Cell::Kind::Empty:
      case Cell::Kind::Gap:
        line.emplace_back();
        line.back().gap = cell.kind == Cell::Kind::Gap;
        line.back().empty = !line.back().gap;
        break;
    }
  }

  std::vector<Line> MakeLines(const Rows& rows) {
    std::vector<Line> lines;
    for (const auto& row : rows) {
      Line line;
      for (const Cell& cell : row) AddCell(line, cell);
      // A label that has a row to itself describes the table or list below it.
      const bool below_label = !lines.empty() && lines.back().size() == 1 && lines.back()[0].label;
      if (below_label && line.size() == 1 && line[0].widget && line[0].grow_y > 0 && !line[0].frame) {
        Describe(lines.back()[0], *line[0].widget, QString());
      }
      lines.push_back(std::move(line));
    }
    return lines;
  }

  // What no row has named: one below the other, buttons side by side.
  void AddTheRest(std::vector<Line>& lines) {
    std::vector<Control*> rest;
    for (Control* control : unplaced_) {
      const bool described = std::any_of(label_of_.begin(), label_of_.end(),
                                         [&](const auto& pair) { return pair.second == control; });
      if (!described) rest.push_back(control);
    }
    bool after_button = false;
    for (Control* control : rest) {
      const bool button = control->Kind() == ControlKind::CommandButton;
      if (!button || !after_button) lines.emplace_back();
      AddControl(lines.back(), *control, 1);
      after_button = button;
    }
  }

  // --- Placing

  static void PutInRow(QBoxLayout& row, const Line& line) {
    bool gap = false;
    for (const Piece& piece : line) {
      gap = gap || piece.gap;
      if (piece.widget) row.addWidget(piece.widget, piece.grow_x);
      if (piece.layout) row.addLayout(piece.layout, piece.grow_x);
      if (piece.gap) row.addStretch(1);
    }
    if (!gap) row.addStretch(1);
  }

  static bool IsRowOfItsOwn(const Line& line) {
    return std::any_of(line.begin(), line.end(), [](const Piece& piece) { return piece.gap; }) ||
           std::all_of(line.begin(), line.end(), [](const Piece& piece) { return piece.button; });
  }

  // Columns take the space that is left by what grows in them; the last piece of a row reaches to the end.
  static std::vector<int> ColumnShares(const std::vector<Line>& lines, std::size_t columns) {
    std::vector<int> shares(columns, 0);
    const auto none = [&](std::size_t from) {
      return std::all_of(shares.begin() + static_cast<std::ptrdiff_t>(from), shares.end(),
                         [](int share) { return share == 0; });
    };
    for (const bool last_ones : {false, true}) {
      for (const Line& line : lines) {
        if (IsRowOfItsOwn(line)) continue;
        for (std::size_t at = 0; at < line.size(); ++at) {
          const bool reaches = at + 1 == line.size() && line.size() < columns;
          if (reaches != last_ones || line[at].grow_x == 0) continue;
          if (!reaches) shares[at] = std::max(shares[at], line[at].grow_x);
          if (reaches && none(at)) shares[columns - 1] = line[at].grow_x;
        }
      }
    }
    // Frames without anything that grows share the width, so that their edges are in line.
    for (const Line& line : lines) {
      if (IsRowOfItsOwn(line)) continue;
      for (std::size_t at = 0; at < line.size() && none(0); ++at) {
        if (line[at].frame) shares.assign(columns, 1);
      }
    }
    return shares;
  }

  static int PutInColumns(QGridLayout& grid, const Line& line, int row, int columns) {
    int grows = 0;
    for (std::size_t at = 0; at < line.size(); ++at) {
      const Piece& piece = line[at];
      const int column = static_cast<int>(at);
      const int span = at + 1 == line.size() ? columns - column : 1;
      const Qt::Alignment side = piece.natural ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment();
      if (piece.widget) grid.addWidget(piece.widget, row, column, 1, span, side);
      if (piece.layout) grid.addLayout(piece.layout, row, column, 1, span);
      if (piece.empty) grid.addItem(new QSpacerItem(kIndent, 0), row, column, 1, span);
      grows = std::max(grows, piece.grow_y);
    }
    return grows;
  }

  // Space that nothing takes is left at the right and at the bottom, above a last row of buttons.
  static Growth Fill(QGridLayout& grid, const std::vector<Line>& lines) {
    std::size_t columns = 1;
    Growth growth;
    for (const Line& line : lines) {
      if (!IsRowOfItsOwn(line)) columns = std::max(columns, line.size());
      for (const Piece& piece : line) {
        growth.x = std::max(growth.x, piece.grow_x);
        growth.y = std::max(growth.y, piece.grow_y);
      }
    }
    std::vector<int> shares = ColumnShares(lines, columns);
    if (std::all_of(shares.begin(), shares.end(), [](int share) { return share == 0; })) shares.push_back(1);
    for (std::size_t at = 0; at < shares.size(); ++at) {
      grid.setColumnStretch(static_cast<int>(at), shares[at]);
    }
    int row = 0;
    bool space_left = growth.y == 0;
    for (const Line& line : lines) {
      if (!IsRowOfItsOwn(line)) {
        grid.setRowStretch(row, PutInColumns(grid, line, row, static_cast<int>(columns)));
      } else {
        if (space_left && &line == &lines.back() && row > 0) {
          space_left = false;
          grid.setRowStretch(row++, 1);
        }
        auto* box = new QHBoxLayout;
        box->setSpacing(kGap);
        PutInRow(*box, line);
        grid.addLayout(box, row, 0, 1, static_cast<int>(shares.size()));
      }
      ++row;
    }
    if (space_left) grid.setRowStretch(row, 1);
    return growth;
  }

  FormParts& parts_;
  QWidget& widget_;
  Control* container_;
  int page_;
  AltLetters& letters_;
  std::vector<Control*> unplaced_;
  std::map<const Control*, Label*> label_of_;
  std::vector<PagesView*> pages_;
  bool keep_place_ = true;  // a hidden field leaves its place empty: nothing else moves
};

}  // namespace

void LayOut(FormParts& parts, QWidget& widget, Control* container, int page, AltLetters& letters) {
  Layouter(parts, widget, container, page, letters).Run();
}

}  // namespace tarnvik
