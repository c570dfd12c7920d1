#include "desktop/forms/form_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>

#include "core/frmmain.h"
#include "desktop/forms/events.h"
#include "inputedit/frminput.h"
#include "platform/lists.h"
#include "plots/frmplotcollect.h"
#include "results/frmoutput.h"
#include "support/test_program.h"

namespace tarnvik {

namespace {

std::vector<std::string> heard;  // what reached the logic, in order
void Hear(const std::string& what) { heard.push_back(what); }
std::vector<std::string> TakeHeard() { return std::exchange(heard, {}); }

// A form with one control of each kind.
struct SmallForm : Form {
  SmallForm() : Form("frmSmall", "Small Form") {
    label.SetCaption("Number");
    text.SetCaption("Number");
    combo.SetCaption("Year");
    check.SetCaption("Fit");
    link.SetCaption("A title");
    for (Control* control : std::initializer_list<Control*>{&label, &text, &combo, &check, &link, &list,
                                                            &other, &option(0), &option(1)}) {
      control->SetContainer(&tabs, 0);
    }
    tabs.SetPages({"One", "Two", "Three"});
    tabs.SetTabEnabled(1, false);
    combo.FillNumbers(2001, 2005);
    for (const char* entry : {"a", "b", "c"}) list.AddItem(entry);
    option(0).SetValue(true);
    cmdOK.SetCaption("OK");
    cmdCancel.SetCaption("Cancel");
    late.SetCaption("Late");
    late.SetContainer(&tabs, 2);
    text.OnLostFocus = [](int) { Hear("left"); };
    combo.OnClick = [](int) { Hear("combo"); };
    check.OnClick = [](int) { Hear("check"); };
    link.OnClick = [](int) { Hear("link"); };
    list.OnClick = [](int) { Hear("click"); };
    list.OnDblClick = [](int) { Hear("double"); };
    list.OnMouseDown = [](int entry) { Hear("down " + std::to_string(entry)); };
    list.OnMouseUp = [](int entry) { Hear("up " + std::to_string(entry)); };
    option.SetHandler(&OptionButton::OnClick, [](int index) { Hear("option " + std::to_string(index)); });
    cmdOK.OnClick = [](int) { Hear("ok"); };
    cmdCancel.OnClick = [](int) { Hear("cancel"); };
    tabs.OnClick = [](int) { Hear("tab"); };
  }
  TabStrip tabs{this, "tabs"};
  Label label{this, "label"};
  TextBox text{this, "text"};
  TextBox other{this, "other"};
  ComboBox combo{this, "combo"};
  CheckBox check{this, "check"};
  ControlArray<OptionButton> option{this, "option", {0, 1}};
  ListBox list{this, "list"};
  Label link{this, "link"};
  CheckBox late{this, "late"};
  CommandButton cmdOK{this, "cmdOK"};
  CommandButton cmdCancel{this, "cmdCancel"};
};

class FormViewTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    view = std::make_unique<FormView>(form);
    view->resize(600, 500);
    view->show();
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    TakeHeard();
  }
  void TearDown() override {
    view.reset();
    ProgramTest::TearDown();
  }
  template <class W>
  W* Find(const Control& control) const {
    auto* widget = qobject_cast<W*>(view->WidgetOf(control));
    EXPECT_NE(widget, nullptr) << control.FullName();
    return widget;
  }
  SmallForm form;
  std::unique_ptr<FormView> view;
};

using Texts = std::vector<std::string>;

TEST_F(FormViewTest, a_text_reaches_the_logic_as_it_is_typed_and_the_handler_when_the_box_is_left) {
  auto* box = Find<QLineEdit>(form.text);
  box->setFocus();
  QTest::keyClicks(box, "12");
  EXPECT_EQ(form.text.Text(), "12");
  EXPECT_EQ(TakeHeard(), Texts{});
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_EQ(TakeHeard(), Texts{"left"});
  box->setFocus();
  QTest::keyClicks(box, "3");
  CommitPendingEdits();
  EXPECT_EQ(TakeHeard(), Texts{"left"});
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(FormViewTest, a_button_pressed_by_its_letter_comes_after_the_text_still_being_typed) {
  auto* box = Find<QLineEdit>(form.text);
  box->setFocus();
  QTest::keyClicks(box, "7");
  QTest::keyClick(box, Qt::Key_Return);
  EXPECT_EQ(TakeHeard(), (Texts{"left", "ok"}));
  QTest::keyClick(box, Qt::Key_Escape);
  EXPECT_EQ(TakeHeard().back(), "cancel");
}

TEST_F(FormViewTest, choosing_the_same_entry_again_reaches_the_handler) {
  auto* combo = Find<QComboBox>(form.combo);
  combo->setFocus();
  QTest::keyClick(combo, Qt::Key_Down);
  EXPECT_EQ(form.combo.Text(), "2001");
  combo->showPopup();
  QTest::keyClick(combo->view(), Qt::Key_Return);
  EXPECT_EQ(TakeHeard(), (Texts{"combo", "combo"}));
}

TEST_F(FormViewTest, checks_and_options_pass_the_users_clicks_on) {
  QTest::mouseClick(Find<QCheckBox>(form.check), Qt::LeftButton);
  EXPECT_EQ(form.check.Value(), 1);
  QTest::mouseClick(Find<QRadioButton>(form.option(1)), Qt::LeftButton);
  QTest::mouseClick(Find<QRadioButton>(form.option(1)), Qt::LeftButton);
  EXPECT_FALSE(form.option(0).Value());
  EXPECT_EQ(TakeHeard(), (Texts{"check", "option 1", "option 1"}));
}

TEST_F(FormViewTest, what_the_logic_changes_is_shown_and_not_heard) {
  form.combo.SetListIndex(3);
  form.check.SetValue(1);
  form.option(1).SetValue(true);
  form.text.SetText("5");
  form.label.SetEnabled(false);
  form.other.SetVisible(false);
  form.list.UserPoint(2);
  TakeHeard();
  RefreshViews();
  EXPECT_EQ(Find<QComboBox>(form.combo)->currentText(), "2004");
  EXPECT_TRUE(Find<QCheckBox>(form.check)->isChecked());
  EXPECT_TRUE(Find<QRadioButton>(form.option(1))->isChecked());
  EXPECT_FALSE(Find<QRadioButton>(form.option(0))->isChecked());
  EXPECT_EQ(Find<QLineEdit>(form.text)->text(), "5");
  EXPECT_FALSE(Find<QLabel>(form.label)->isEnabled());
  EXPECT_FALSE(Find<QLineEdit>(form.other)->isVisible());
  EXPECT_EQ(Find<QListWidget>(form.list)->currentRow(), 2);
  EXPECT_EQ(TakeHeard(), Texts{});
}

TEST_F(FormViewTest, a_list_tells_presses_drags_clicks_and_double_clicks) {
  auto* list = Find<QListWidget>(form.list);
  const auto place = [&](int row) { return list->visualItemRect(list->item(row)).center(); };
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place(1));
  EXPECT_EQ(TakeHeard(), (Texts{"down 1", "up 1", "click"}));
  QTest::mousePress(list->viewport(), Qt::LeftButton, {}, place(0));
  QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, place(2));
  EXPECT_EQ(TakeHeard(), (Texts{"down 0", "up 2"}));
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place(2));
  EXPECT_EQ(TakeHeard().back(), "double");
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Up);
  EXPECT_EQ(form.list.ListIndex(), 1);
  QTest::keyClick(list, Qt::Key_Space);
  QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(TakeHeard(), (Texts{"click", "down 1", "up 2"}));
}

TEST_F(FormViewTest, a_label_with_an_effect_is_reached_by_mouse_and_keys) {
  auto* link = Find<QLabel>(form.link);
  QTest::mouseClick(link, Qt::LeftButton);
  link->setFocus();
  QTest::keyClick(link, Qt::Key_Space);
  EXPECT_EQ(TakeHeard(), (Texts{"link", "link"}));
}

TEST_F(FormViewTest, pages_are_turned_past_those_that_rest) {
  QTest::keyClick(Find<QLineEdit>(form.text), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(form.tabs.Tab(), 2);
  EXPECT_TRUE(Find<QCheckBox>(form.late)->isVisible());
  EXPECT_EQ(TakeHeard(), Texts{"tab"});
}

TEST_F(FormViewTest, a_form_that_has_gone_hears_nothing) {
  auto* check = Find<QCheckBox>(form.check);
  auto* box = Find<QLineEdit>(form.text);
  box->setFocus();
  QTest::keyClicks(box, "1");
  view->LetGo();
  QTest::mouseClick(check, Qt::LeftButton);
  QTest::keyClicks(box, "2");
  view.reset();
  EXPECT_EQ(form.text.Text(), "1");
  EXPECT_EQ(TakeHeard(), Texts{});
}

// --- All forms of the program

QRect PlaceIn(const QWidget& widget, const QWidget& outer) {
  return {widget.mapTo(&outer, QPoint(0, 0)), widget.size()};
}

// The faults of the page in front: controls without a name, cut off, or one over the other.
Texts FaultsOf(const FormView& view) {
  Texts faults;
  std::vector<std::pair<const Control*, QWidget*>> seen;
  for (const Control* control : view.Shown()->Controls()) {
    QWidget* widget = view.WidgetOf(*control);
    if (!widget || !widget->isVisible()) continue;
    const std::string name = view.Shown()->Name() + "." + control->FullName();
    const bool box = control->Kind() == ControlKind::Frame || control->Kind() == ControlKind::TabStrip;
    const bool empty = control->Kind() == ControlKind::Label && control->Caption().empty();
    if (!box && !empty && widget->accessibleName().isEmpty()) faults.push_back(name + " has no name");
    if (!widget->parentWidget()->rect().contains(widget->geometry())) faults.push_back(name + " is cut off");
    const bool text = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget);
    if (text && widget->minimumSizeHint().width() > widget->width())
      faults.push_back(name + " is too narrow");
    if (widget->height() < widget->minimumSizeHint().height()) faults.push_back(name + " is too low");
    for (const auto& [other, over] : seen) {
      const bool nested = over->isAncestorOf(widget) || widget->isAncestorOf(over);
      if (!nested && PlaceIn(*over, view).intersects(PlaceIn(*widget, view))) {
        faults.push_back(name + " lies over " + other->FullName());
      }
    }
    seen.emplace_back(control, widget);
  }
  for (const QScrollArea* page : view.findChildren<QScrollArea*>()) {
    const bool wide = page->isVisible() && page->horizontalScrollBar()->maximum() > 0;
    if (wide) faults.push_back("the page is wider than the window");
  }
  return faults;
}

// Whether every control that the user could reach, were its page in front, is seen on it.
void CheckPage(FormView& view, const Control* container, int page, Texts& faults) {
  bool has_tabs = false;
  for (Control* control : view.Shown()->Controls()) {
    if (control->Container() != container || (container && control->Page() != page)) continue;
    if (control->Kind() != ControlKind::TabStrip) continue;
    has_tabs = true;
    auto& tabs = static_cast<TabStrip&>(*control);
    for (int tab = 0; tab < tabs.Tabs(); ++tab) {
      tabs.SetTab(tab);
      RefreshViews();
      QApplication::processEvents();
      CheckPage(view, &tabs, tab, faults);
    }
  }
  if (has_tabs) return;
  for (const std::string& fault : FaultsOf(view)) faults.push_back(fault);
  for (const Control* control : view.Shown()->Controls()) {
    const bool here = control->Container() == container &&
                      (!container || container->Kind() != ControlKind::TabStrip || control->Page() == page);
    if (!here || !control->Reachable()) continue;
    const QWidget* widget = view.WidgetOf(*control);
    if (!widget || !widget->isVisible()) faults.push_back(control->FullName() + " is not seen");
  }
}

class AllFormsTest : public ProgramTest {};

TEST_F(AllFormsTest, every_page_shows_its_controls_whole_and_by_name) {
  host.files.push_back(CopyExample(folder));
  RunEvent([] { frmMain->mnuFileOpen.UserClick(); });
  ASSERT_FALSE(frmInput->cmbNFYear.Text().empty());
  for (const char* name : {"frmInput", "frmPin", "frmOutputData", "frmSTD", "frmOutput", "frmPlotInput",
                           "frmPlotCollect", "frmView", "frmViewOpt", "frmEditGP", "frmFillNoData",
                           "frmEditTextBox", "frmVPAIndices", "frmAboutTARNVIK"}) {
    SCOPED_TRACE(name);
    FormSlot* slot = FindForm(name);
    ASSERT_NE(slot, nullptr);
    FormView view(slot->Touch());
    view.resize(view.sizeHint().boundedTo(QSize(1280, 800)));
    view.show();
    QApplication::processEvents();
    Texts faults;
    CheckPage(view, nullptr, 0, faults);
    EXPECT_EQ(faults, Texts{});
  }
}

TEST_F(AllFormsTest, red_and_blue_can_be_read_on_light_and_dark) {
  const QPalette light = QApplication::palette();
  frmInput->lblFile(0).SetForeColor(kRed);
  frmInput->lblFile(1).SetForeColor(kBlue);
  for (const int grey : {240, 45}) {
    QApplication::setPalette(QPalette(QColor(grey, grey, grey)));
    FormView view(*frmInput);
    for (const int file : {0, 1}) {
      const QWidget* path = view.WidgetOf(frmInput->lblFile(file));
      const QColor fore = path->palette().color(QPalette::Active, QPalette::WindowText);
      EXPECT_EQ(fore.hslHue(), file == 0 ? 0 : 240);
      EXPECT_GT(std::abs(fore.lightness() - grey), 100) << grey;
    }
  }
  QApplication::setPalette(light);
}

}  // namespace

}  // namespace tarnvik
