// Host services: what the logic asks of the program that it runs in. Implemented by the console, by the
// desktop and by the tests.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnvik {

class Form;
class FormSlot;
class Control;
class Chart;

inline constexpr const char* kLineBreak = "\r\n";

enum class Icon { None, Information, Exclamation, Question };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer : int { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct FileDialog {
  bool save = false;
  std::string title;
  std::string filter;                    // "Control Files (*.ctl)|*.ctl"
  std::string default_extension;         // without dot; "" for none
  bool moves_current_folder = true;      // choosing a file makes its folder the current one
  bool logic_asks_to_overwrite = false;  // else a dialog for saving asks before it gives an existing file
};

struct DateTime {
  int year, month, day, hour, minute;
};

enum class Pointer { Default, Hourglass, IndexInHand };

class Host {
 public:
  virtual ~Host() = default;
  // Every box has the title "Tarnvik".
  virtual Answer ShowMessage(const std::string& text, Icon icon, Buttons buttons, Answer default_answer) = 0;
  // The chosen path, as the user gave it; nothing when the dialog was cancelled.
  virtual std::optional<std::string> ShowFileDialog(const FileDialog& dialog) = 0;
  virtual void BringToFront(Form& form) = 0;
  virtual void ShowModal(FormSlot& slot) = 0;  // returns when the form is no longer loaded
  virtual void FormUnloaded(Form& form) = 0;   // its window, if any, goes; the record still exists
  virtual void PopUpMenu(Control& menu) = 0;   // a menu entry whose children are offered at the pointer
  virtual void ProcessEvents() = 0;
  virtual void SetPointer(Pointer pointer) = 0;
  virtual void SetClipboard(std::string text) = 0;
  // Draws a chart into a picture file of 900 x 600, as it would stand on the screen. Raises 70, 75 or 76.
  virtual void ExportChart(const Chart& chart, const std::string& path) = 0;
  // Runs a command line to its end; 0 when the process could not be started, else another number.
  virtual std::int32_t CreateConsoleProcess(const std::string& command) = 0;
  // Starts a command line and does not wait; raises a run-time error when it cannot be started.
  virtual void StartProgram(const std::string& command) = 0;
  // Opens a document with the program that the system has for it; 32 or less means that it failed.
  virtual int OpenDocument(const std::string& path) = 0;
  virtual DateTime Now() = 0;
  // Where the executables and TARNVIK.CFG lie, without a final separator.
  virtual std::string ProgramFolder() = 0;
};

// The host in use. A program sets it before anything else.
Host& TheHost();
void SetHost(Host* host);

Answer ShowMessage(const std::string& text, Icon icon = Icon::None, Buttons buttons = Buttons::Ok,
                   Answer default_answer = Answer::Ok);

// Sets the shape of the mouse pointer; `state MousePointer` of the console reads it back.
void SetMousePointer(Pointer pointer);
Pointer MousePointer();

// The hourglass until the end of the block, or until Done: some boxes want the default pointer over them.
class HourglassPointer {
 public:
  HourglassPointer() { SetMousePointer(Pointer::Hourglass); }
  ~HourglassPointer() { Done(); }
  HourglassPointer(const HourglassPointer&) = delete;
  HourglassPointer& operator=(const HourglassPointer&) = delete;
  void Done() { SetMousePointer(Pointer::Default); }
};

}  // namespace tarnvik
