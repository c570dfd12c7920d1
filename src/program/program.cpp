#include "program/program.h"

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/utils.h"

namespace tarnvik {

void StartProgram(Host& host) {
  SetHost(&host);
  // The main window stands around the other forms: one of those is in front.
  RunEvent([] { frmMain->Shown = true; });
}

void EndProgram() {
  // The last loaded first: a form's unloading may rely on those that were there before it. Unloading may load
  // forms again (a caption of frmInput is set), so the state of the flags is gone first and the loop ends
  // with no form.
  for (int rounds = 0; !LoadedForms().empty() && rounds < 100; ++rounds) UnloadForm(*LoadedForms().back());
  File1.Close();
  LineBuf = LineBuffer{};
  ResetGlobals();
}

bool ProgramRunning() { return frmMain.Loaded(); }

void RunEvent(const std::function<void()>& act) {
  EventScope event;
  try {
    act();
  } catch (...) {
    ShowMessage(CurrentErrorText(), Icon::Exclamation);
  }
}

}  // namespace tarnvik
