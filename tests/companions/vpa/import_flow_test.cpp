// The whole way of a user: import, assign the indices, run the model, see its results.

#include <gtest/gtest.h>

#include <cstdlib>

#include "vpa_folder.h"

#ifdef TARNVIK_PROGRAMS
TEST(ImportFlow, north_sea_cod_is_imported_validated_and_run_from_the_console) {
  const VpaFolder folder{VPA_EXAMPLE};
  std::filesystem::create_directories(folder.path / "programs");
  for (const char* program : {"scanvpasurvey.exe", "vpa2tarnvik.exe", "tarnvik.exe"})
    std::filesystem::copy(std::filesystem::path(TARNVIK_PROGRAMS) / program, folder.path / "programs");
  std::string script = "file cod-vpa.dat\nmenu mnuFileImportVPA\n";
  for (int index = 1; index <= 9; ++index)
    script += "select frmVPAIndices.lstVPA 0\nselect frmVPAIndices.lstTARNVIK 0\n";
  script +=
      "click frmVPAIndices.cmdImport\nget frmInput.txtModel\nanswer ok\nmenu mnuModelRun\nstate ModelRunOK\n"
      "state StdFileRead\n";
  folder.Write("script", script);
  const std::string run = "cd " + folder.path.string() +
                          " && " TARNVIK_PROGRAMS
                          "/tarnvik-console --app-dir programs script >out.txt 2>err.txt";
  ASSERT_EQ(std::system(run.c_str()), 0);
  const std::string answers = folder.Text("out.txt");
  EXPECT_EQ(folder.Text("vpa2tarnvik_error.log"), "");
  EXPECT_EQ(folder.Text("cod-vpa_tarnvik.log"), "");
  EXPECT_NE(answers.find("{\"value\":\"North Sea cod\"}\n"), std::string::npos);
  EXPECT_TRUE(answers.ends_with("{\"value\":-1}\n{\"value\":-1}\n")) << answers;
  // No message between the import and the question before the run.
  EXPECT_EQ(answers.find("\"message\""), answers.find("\"message\":{\"text\":\"Before Running Tarnvik"));
}
#endif
