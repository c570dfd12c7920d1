#include "core/state_names.h"

#include "core/globals.h"
#include "core/text.h"

namespace tarnvik {

namespace {

#define WORD(name) \
  StateWord { #name, &name }
#define TEXT(name) \
  StateText { #name, &name }

const StateWord kWords[] = {
    WORD(GPYearMin),     WORD(GPYearMax),       WORD(GPAutoYear),      WORD(GPAgeMax),
    WORD(GPSurveyMax),   WORD(NFYear),          WORD(NXYear),          WORD(NYears),
    WORD(NAges),         WORD(RecYr),           WORD(NSelPer),         WORD(NIndex),
    WORD(FishAgeNYears), WORD(FishCPUENYears),  WORD(NewNFYear),       WORD(NewNXYear),
    WORD(NewNYears),     WORD(NewNAges),        WORD(NewRecYr),        WORD(NewNSelPer),
    WORD(NewNIndex),     WORD(ExitPrompt),      WORD(FilesSaved),      WORD(InputValid),
    WORD(LoadingForm),   WORD(OutputFormsOpen), WORD(ModelRunOK),      WORD(CtlFileOpen),
    WORD(PinFileOpen),   WORD(DatFileOpen),     WORD(CaseOpenPending), WORD(PlotInputOpen),
    WORD(StdFileRead),   WORD(ParFileRead),     WORD(BasicParmsMatch), WORD(PeriodEditWarned),
    WORD(PlotIndex),
};

const StateText kTexts[] = {
    TEXT(CtlFilePath), TEXT(PinFilePath), TEXT(DatFilePath), TEXT(FileViewerPath),
    TEXT(ReportPath),  TEXT(StdPath),     TEXT(ParPath),
};

#undef WORD
#undef TEXT

}  // namespace

std::span<const StateWord> StateWords() { return kWords; }
std::span<const StateText> StateTexts() { return kTexts; }

}  // namespace tarnvik
