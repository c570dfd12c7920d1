#include "plots/plot_collection.h"

#include <string>
#include <vector>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/paths.h"
#include "plots/frmplotcollect.h"
#include "plots/output_plots.h"
#include "plots/plot_parts.h"
#include "results/frmoutput.h"
#include "results/frmstd.h"
#include "results/result_tables.h"

namespace tarnvik {

namespace {

constexpr int kPictureForDocuments = 5;
constexpr const char* kPictureEnding = ".mtf";

// --- The page and its figures

struct Collection {
  std::string page_path;
  std::string picture_folder;
  OutputFile page;
  int figures = 0;  // made so far
  int total = 0;
};

void NameFiles(Collection& collection, const std::string& control_path) {
  const std::string folder = DirOfPath(control_path);
  std::string name = control_path.substr(folder.size());
  const std::size_t root = name.size() < 4 ? 0 : name.size() - 4;
  const bool is_control_file = UCase(std::string_view(name).substr(root)) == ".CTL";
  name = is_control_file ? name.substr(0, root) + "_plots" : "plots";
  collection.picture_folder = folder + name;
  collection.page_path = folder + name + ".html";
}

// A text as HTML shows it.
std::string HtmlText(std::string_view text) {
  std::string html;
  for (const char c : text) {
    if (c == '&') {
      html += "&amp;";
    } else if (c == '<') {
      html += "&lt;";
    } else if (c == '>') {
      html += "&gt;";
    } else {
      html += c;
    }
  }
  return html;
}

// A path as the source of an image. What a browser would take for something else than a part of the path is
// written as its code; every other path stays as it is.
std::string ImageSource(std::string_view path) {
  constexpr std::string_view kMisread = kPathSeparator == '/' ? "\"#%&?\\" : "\"#%&?";
  constexpr const char* kHexDigits = "0123456789ABCDEF";
  std::string source;
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < ' ' || byte > '~' || kMisread.find(c) != std::string_view::npos) {
      source += '%';
      source += kHexDigits[byte >> 4];
      source += kHexDigits[byte & 15];
    } else {
      source += c;
    }
  }
  return source;
}

void PrintHead(OutputFile& page) {
  const std::string lines[] = {
      "<html>",
      "<body>",
      "<center><b>Plot Collection for <br>",
      HtmlText(frmInput->lblCTL.Caption()) + "</b><br>",
      PresentDate() + "</center>",
      "<br>",
      "Note: You may wish to embed the images in this file so it can be easily transported.",
      "<br><br>",
      "For Microsoft Word, choose <b>Select All</b> from the <b>Edit</b> menu, press <b>Ctrl-Shift-F9</b> to "
      "embed the images then use <b>Save As</b> to save this file as a Word Document.",
      "<br><br>",
      "For other word processors, consult your word processor's documentation for further instructions on "
      "how to embed or break the link to the image files. Be sure to use your word processor's <b>Save "
      "As</b> "
      "option to save this file as other than a HTML file.",
      "<br>",
      "<br>",
      "<br>",
  };
  for (const std::string& line : lines) page.PrintLine(line);
}

// The chart as it stands becomes the next figure.
void AddFigure(Collection& collection, const Chart& chart) {
  const std::string number = std::to_string(++collection.figures);
  frmMain->StatusBar1.SetPanel(kMessagePanel, "Figure " + number + " of " + std::to_string(collection.total));
  TheHost().ProcessEvents();
  const std::string picture = JoinPath(collection.picture_folder, "plot" + number + kPictureEnding);
  chart.Export(kPictureForDocuments, picture);
  collection.page.PrintLine("<img SRC=\"" + ImageSource(picture) + "\">");
  collection.page.PrintLine("<br>Figure # " + number + "<br><br>");
}

// --- Driving the charts

struct OptionRange {
  const ControlArray<OptionButton>* group =
      nullptr;  // null: the chart has no options, or they stay as they are
  int first = 0;
  int last = 0;
};

// One kind of plots: the box that stands for it, the chart, and the states that the chart goes through: each
// option of a range and in it each entry of a list.
struct PlotGroup {
  int box;
  Chart* chart;
  OptionRange options = {};
  ComboBox* list = nullptr;
  // What puts the chart into these states, where that takes more than the above.
  void (*add)(Collection&, const PlotGroup&) = nullptr;
};

void AddEntries(Collection& collection, const PlotGroup& group) {
  if (!group.list) return AddFigure(collection, *group.chart);
  for (int entry = 0; entry < group.list->ListCount(); ++entry) {
    group.list->SetListIndex(entry);
    AddFigure(collection, *group.chart);
  }
}

void AddGroup(Collection& collection, const PlotGroup& group) {
  for (int option = group.options.first; option <= group.options.last; ++option) {
    if (group.options.group) (*group.options.group)(option).SetValue(true);
    AddEntries(collection, group);
  }
}

// Each year alone in the chart that can show five.
void AddNumbersAtAge(Collection& collection, const PlotGroup& group) {
  frmOutput->cmdClearPlot1.UserClick();
  for (int year = 0; year < group.list->ListCount(); ++year) {
    group.list->SetListIndex(year);
    frmOutput->cmdPlot1.UserClick();
    AddFigure(collection, *group.chart);
    frmOutput->cmdClearPlot1.UserClick();
  }
  group.list->SetListIndex(-1);
}

// The plots of one survey follow each other.
void AddSurveyIndex(Collection& collection, const PlotGroup& group) {
  for (int survey = 0; survey < group.list->ListCount(); ++survey) {
    group.list->SetListIndex(survey);
    for (int option = group.options.first; option <= group.options.last; ++option) {
      (*group.options.group)(option).SetValue(true);
      AddFigure(collection, *group.chart);
    }
  }
  if (group.list->ListCount() > 0) group.list->SetListIndex(0);
  (*group.options.group)(0).SetValue(true);
}

// With observed and predicted shares every year has a plot. The residuals limit the years by themselves, here
// and for the surveys.
void AddFisheryAges(Collection& collection, const PlotGroup& group) {
  frmOutput->Option4(0).SetValue(true);
  frmOutput->Check4.SetValue(0);
  AddEntries(collection, group);
}

void AddSurveyAges(Collection& collection, const PlotGroup& group) {
  (*group.options.group)(group.options.first).SetValue(true);
  if (group.options.first == 0) frmOutput->Check5.SetValue(0);
  for (int survey = 0; survey < frmOutput->cboPlot5a.ListCount(); ++survey) {
    frmOutput->cboPlot5a.SetListIndex(survey);
    AddEntries(collection, group);
  }
}

// In the order of the figures.
std::vector<PlotGroup> AllGroups() {
  OutputForm& f = *frmOutput;
  StdForm& s = *frmSTD;
  return {
      {0, &f.Chart1, {}, &f.cboPlot1, AddNumbersAtAge},
      {1, &f.Chart2, {}, &f.cboPlot2},
      {24, &f.Chart27, {&f.Option27, 0, 3}},
      {2, &f.Chart3, {&f.Option3a, 0, 3}, &f.cboPlot3, AddSurveyIndex},
      {3, &f.Chart4, {&f.Option4, 0, 0}, &f.cboPlot4, AddFisheryAges},
      {4, &f.Chart4, {&f.Option4, 1, 1}, &f.cboPlot4},
      {5, &f.Chart4, {&f.Option4, 2, 2}, &f.cboPlot4},
      {6, &f.Chart5, {&f.Option5, 0, 0}, &f.cboPlot5b, AddSurveyAges},
      {7, &f.Chart5, {&f.Option5, 1, 1}, &f.cboPlot5b, AddSurveyAges},
      {8, &f.Chart5, {&f.Option5, 2, 2}, &f.cboPlot5b, AddSurveyAges},
      {9, &f.Chart6, {&f.Option6, 0, 0}},
      {10, &f.Chart6, {&f.Option6, 1, 1}},
      {11, &f.Chart6, {&f.Option6, 2, 2}},
      {12, &f.Chart9, {&f.Option9, 0, 1}},
      {13, &f.Chart10, {&f.Option10, 0, 2}},
      {14, &f.Chart11},
      {15, &f.Chart12, {&f.Option12, 0, 1}},
      {26, &f.Chart25, {&f.Option25, 0, 1}},
      {27, &f.Chart26, {&f.Option26, 0, 1}},
      {16, &f.Chart13, {&f.Option13, 0, 0}, &f.cboPlot13(0)},
      {28, &f.Chart13, {&f.Option13, 1, 1}, &f.cboPlot13(1)},
      {17, &f.Chart14, {}, &f.cboPlot14},
      {18, &f.Chart15},
      {19, &f.Chart16},
      {20, &f.Chart17},
      {21, &s.Chart19},
      {22, &s.Chart20},
      {23, &f.Chart18, {}, &f.cboPlot18},
      {25, &f.Chart23, {&f.Option23, 0, 1}},
  };
}

// --- How many figures there will be

int SurveyYearsObserved() {
  int years = 0;
  for (int survey = 0; survey < frmOutput->cboPlot5a.ListCount(); ++survey) {
    for (int year = 1; year <= NYears; ++year) {
      if (HasObservedShare(ResultTable(kTableSurveyAge), survey * 4 * NYears + year, 3)) ++years;
    }
  }
  return years;
}

int CountFigures(const PlotGroup& group) {
  // The lists of years of the two kinds of proportions change while their charts are driven.
  switch (group.box) {
    case 3:
      return NYears;
    case 4:
    case 5:
      return CountYearsObserved();
    case 6:
      return frmOutput->cboPlot5a.ListCount() * NYears;
    case 7:
    case 8:
      return SurveyYearsObserved();
    default:
      return (group.options.last - group.options.first + 1) * (group.list ? group.list->ListCount() : 1);
  }
}

// --- The whole

// False when the user wants to keep an older collection.
bool MayReplace(const Collection& collection) {
  if (!FolderExists(collection.picture_folder) && !FileExistsAsWritten(collection.page_path)) return true;
  return ShowMessage(std::string("A plot collection file and images already exist.") + kLineBreak +
                         "Do you wish to overwrite the existing files?",
                     Icon::Question, Buttons::YesNo) == Answer::Yes;
}

void ReadyPictureFolder(const std::string& folder) {
  if (FolderExists(folder)) {
    DeleteFilesEndingIn(folder, kPictureEnding);
  } else {
    CreateFolder(folder);
  }
}

struct ClearMessageAtEnd {
  ~ClearMessageAtEnd() { frmMain->StatusBar1.SetPanel(kMessagePanel, ""); }
};

void WriteCollection(Collection& collection) {
  ReadyPictureFolder(collection.picture_folder);
  RefreshOutputPlots();
  std::vector<PlotGroup> chosen = AllGroups();
  std::erase_if(chosen,
                [](const PlotGroup& group) { return !frmPlotCollect->chkPlots(group.box).IsChecked(); });
  for (const PlotGroup& group : chosen) collection.total += CountFigures(group);

  const ClearMessageAtEnd clear;
  collection.page.Open(collection.page_path);
  PrintHead(collection.page);
  for (const PlotGroup& group : chosen) (group.add ? group.add : AddGroup)(collection, group);
  collection.page.PrintLine("</body>");
  collection.page.PrintLine("</html>");
  collection.page.Close();
  RefreshOutputPlots();
}

}  // namespace

void GeneratePlotCollection() {
  const EventScope event;  // a form that is closed meanwhile stays in memory
  HourglassPointer wait;
  try {
    Collection collection;
    NameFiles(collection, frmInput->lblCTL.Caption());
    std::string outcome = "Plot Collection Terminated";
    if (MayReplace(collection)) {
      WriteCollection(collection);
      outcome =
          std::string("Plot Collection Has Completed") + kLineBreak + "See File " + collection.page_path;
    }
    wait.Done();
    ShowMessage(outcome, Icon::Information);
    UnloadForm(frmPlotCollect);
  } catch (const std::exception&) {
    // Silent: the page holds what was made, and frmPlotCollect stays for another try.
  }
}

}  // namespace tarnvik
