#include "console/properties.h"

#include <vector>

#include "console/json_text.h"
#include "console/outcome.h"
#include "console/targets.h"
#include "console/words.h"

namespace tarnvik {

namespace {

using Kind = ControlKind;

constexpr unsigned Bit(Kind kind) { return 1u << static_cast<unsigned>(kind); }

constexpr unsigned kAll = ~0u;
constexpr unsigned kMenu = Bit(Kind::MenuItem);
constexpr unsigned kStatus = Bit(Kind::StatusBar);
constexpr unsigned kTabs = Bit(Kind::TabStrip);
constexpr unsigned kGrid = Bit(Kind::Grid);
constexpr unsigned kCheck = Bit(Kind::CheckBox);
constexpr unsigned kOption = Bit(Kind::OptionButton);
constexpr unsigned kListBox = Bit(Kind::ListBox);
constexpr unsigned kLists = Bit(Kind::ComboBox) | kListBox;
constexpr unsigned kTexts = Bit(Kind::TextBox) | Bit(Kind::RichText) | kLists;
constexpr unsigned kCaptions =
    Bit(Kind::Label) | Bit(Kind::CommandButton) | Bit(Kind::Frame) | kCheck | kOption | kMenu;
constexpr unsigned kColors = kAll & ~(kMenu | kStatus);

template <class T>
const T& As(const Control& control) {
  return static_cast<const T&>(control);
}

const ListControl& AsList(const Control& control) { return static_cast<const ListControl&>(control); }

std::string TextOf(const Control& control) {
  switch (control.Kind()) {
    case Kind::TextBox:
      return JsonText(As<TextBox>(control).Text());
    case Kind::RichText:
      return JsonText(As<RichText>(control).Text());
    default:
      break;
  }
  const ListControl& list = AsList(control);
  return JsonText(list.ListIndex() < 0 ? std::string() : list.List(list.ListIndex()));
}

std::string CheckOrOption(const Control& control) {
  return control.Kind() == Kind::CheckBox ? JsonNumber(As<CheckBox>(control).Value())
                                          : JsonFlag(As<OptionButton>(control).Value());
}

// The indices of a property: from first, count of them.
struct Span {
  int first;
  int count;
};
Span Pages(const Control& c) { return {0, As<TabStrip>(c).Tabs()}; }
Span Columns(const Control& c) { return {0, As<Grid>(c).Cols()}; }
Span RowsOf(const Control& c) { return {0, As<Grid>(c).Rows()}; }
Span PanelsOf(const Control& c) { return {1, As<StatusBar>(c).Panels()}; }

struct Property {
  const char* name;
  unsigned kinds;
  std::string (*value)(const Control& c, const int* at);
  std::vector<Span (*)(const Control& c)> indices = {};
};

const Property kProperties[] = {
    {"Enabled", kAll, [](auto& c, auto) { return JsonFlag(c.Enabled()); }},
    {"Visible", kAll, [](auto& c, auto) { return JsonFlag(c.Visible()); }},
    {"Caption", kCaptions, [](auto& c, auto) { return JsonText(c.Caption()); }},
    {"Text", kTexts, [](auto& c, auto) { return TextOf(c); }},
    {"Value", kCheck | kOption, [](auto& c, auto) { return CheckOrOption(c); }},
    {"ForeColor", kColors, [](auto& c, auto) { return JsonText(ColorText(c.ForeColor())); }},
    {"BackColor", kColors, [](auto& c, auto) { return JsonText(ColorText(c.BackColor())); }},
    {"ToolTipText", kAll & ~kMenu, [](auto& c, auto) { return JsonText(c.Tip()); }},
    {"Checked", kMenu, [](auto& c, auto) { return JsonFlag(As<MenuItem>(c).Checked()); }},
    {"ListIndex", kLists, [](auto& c, auto) { return JsonNumber(AsList(c).ListIndex()); }},
    {"ListCount", kLists, [](auto& c, auto) { return JsonNumber(AsList(c).ListCount()); }},
    {"List", kLists,
     [](auto& c, auto) {
       const ListControl& list = AsList(c);
       return JsonArray(0, list.ListCount() - 1, [&](int i) { return JsonText(list.List(i)); });
     }},
    {"Selected", kListBox,
     [](auto& c, auto) {
       const auto& list = As<ListBox>(c);
       return JsonArray(0, list.ListCount() - 1, [&](int i) { return JsonFlag(list.Selected(i)); });
     }},
    {"Rows", kGrid, [](auto& c, auto) { return JsonNumber(As<Grid>(c).Rows()); }},
    {"Cols", kGrid, [](auto& c, auto) { return JsonNumber(As<Grid>(c).Cols()); }},
    {"ColWidth", kGrid, [](auto& c, auto at) { return JsonNumber(As<Grid>(c).ColWidth(at[0])); }, {Columns}},
    {"RowHeight", kGrid, [](auto& c, auto at) { return JsonNumber(As<Grid>(c).RowHeight(at[0])); }, {RowsOf}},
    {"CellBackColor",
     kGrid,
     [](auto& c, auto at) { return JsonText(ColorText(As<Grid>(c).CellBackColor(at[0], at[1]))); },
     {RowsOf, Columns}},
    {"CellForeColor",
     kGrid,
     [](auto& c, auto at) { return JsonText(ColorText(As<Grid>(c).CellForeColor(at[0], at[1]))); },
     {RowsOf, Columns}},
    {"TopRow", kGrid, [](auto& c, auto) { return JsonNumber(As<Grid>(c).TopRow); }},
    {"Row", kGrid, [](auto& c, auto) { return JsonNumber(As<Grid>(c).Row); }},
    {"Col", kGrid, [](auto& c, auto) { return JsonNumber(As<Grid>(c).Col); }},
    {"RowSel", kGrid, [](auto& c, auto) { return JsonNumber(As<Grid>(c).RowSel); }},
    {"ColSel", kGrid, [](auto& c, auto) { return JsonNumber(As<Grid>(c).ColSel); }},
    {"Tab", kTabs, [](auto& c, auto) { return JsonNumber(As<TabStrip>(c).Tab()); }},
    {"Tabs", kTabs, [](auto& c, auto) { return JsonNumber(As<TabStrip>(c).Tabs()); }},
    {"TabEnabled",
     kTabs,
     [](auto& c, auto at) { return JsonFlag(As<TabStrip>(c).TabEnabled(at[0])); },
     {Pages}},
    {"TabCaption",
     kTabs,
     [](auto& c, auto at) { return JsonText(As<TabStrip>(c).TabCaption(at[0])); },
     {Pages}},
    {"Panel", kStatus, [](auto& c, auto at) { return JsonText(As<StatusBar>(c).Panel(at[0])); }, {PanelsOf}},
};

bool Has(const Property& property, const Control& control) {
  return (property.kinds & Bit(control.Kind())) != 0;
}

}  // namespace

std::string ControlValue(const Control& control) {
  switch (control.Kind()) {
    case Kind::Label:
    case Kind::CommandButton:
    case Kind::Frame:
    case Kind::MenuItem:
      return JsonText(control.Caption());
    case Kind::TextBox:
    case Kind::RichText:
    case Kind::ComboBox:
    case Kind::ListBox:
      return TextOf(control);
    case Kind::CheckBox:
    case Kind::OptionButton:
      return CheckOrOption(control);
    case Kind::TabStrip:
      return JsonNumber(As<TabStrip>(control).Tab());
    case Kind::Grid:
    case Kind::Chart:
    case Kind::StatusBar:
      break;
  }
  StopWithError(ControlName(control) + " is " + KindText(control.Kind()) + " and has no single value");
}

std::string PropertyValue(const Control& control, std::string_view word) {
  const auto asked = ReadIndexedName(word);
  for (const Property& property : kProperties) {
    if (!asked || asked->name != property.name || !Has(property, control)) continue;
    bool fits = asked->at.size() == property.indices.size();
    for (std::size_t i = 0; fits && i < asked->at.size(); ++i) {
      const Span span = property.indices[i](control);
      fits = asked->at[i] >= span.first && asked->at[i] < span.first + span.count;
    }
    if (!fits) break;
    return property.value(control, asked->at.data());
  }
  StopWithError(ControlName(control) + " has no property " + std::string(word));
}

std::string PropertiesOf(const Control& control) {
  std::string json;
  for (const Property& property : kProperties) {
    if (!Has(property, control) || property.indices.size() > 1) continue;
    json += json.empty() ? "{" : ",";
    json += JsonText(property.name);
    json += ':';
    if (property.indices.empty()) {
      json += property.value(control, nullptr);
    } else {
      const Span span = property.indices[0](control);
      json += JsonArray(span.first, span.first + span.count - 1,
                        [&](int i) { return property.value(control, &i); });
    }
  }
  return json + "}";
}

}  // namespace tarnvik
