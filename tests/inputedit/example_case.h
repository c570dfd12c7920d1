// The example case on the forms: years 1963 to 2014, 6 ages, 2 surveys (from 1983 and 1992 on), 4 periods.
// Fishery selectivity is parametric and flat-topped, survey selectivity nonparametric with 5 and 4 ages.
#pragma once

#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputfiles/datafile.h"
#include "inputfiles/paramfile.h"
#include "support/test_program.h"

namespace tarnvik {

class ExampleCase : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    CopyExample(folder);
    Read();
  }

  // Both files, as they lie in the test's folder, into the forms.
  void Read() {
    DatFilePath = InFolder("cod.dat");
    ReadDataFile();
    PinFilePath = InFolder("cod.pin");
    ReadParameterFile();
    ASSERT_EQ(DatFileOpen, kTrue);
    ASSERT_EQ(PinFileOpen, kTrue);
    host.TakeTexts();
  }

  Grid& InputGrid(int index) { return frmInput->ORVFlexGrid(index); }
  Grid& PinGrid(int index) { return frmPin->ORVFlexGrid1(index); }
};

}  // namespace tarnvik
