// The settings file TARNVIK.CFG: general parameter ranges, file viewer, exit prompt.
#pragma once

namespace tarnvik {

// Reads it from the program's folder or, when there is none that can be written, from the user's
// configuration folder. Sets GPYearMin, GPYearMax, GPAgeMax, GPSurveyMax, FileViewerPath, ExitPrompt and its
// two menu entries. No file is no fault.
void ReadSettingsFile();
// Rewrites it whole; in the user's configuration folder when the program's cannot be written. Raises the
// error of a file that cannot be written in either.
void WriteSettingsFile();

}  // namespace tarnvik
