// The list of surveys on frmVPAIndices: for each survey a heading, its indices, and an empty entry.
// Everything here keeps that order, whatever is put where.
#pragma once

#include <string_view>

namespace tarnvik {

bool IsHeading(std::string_view entry);

// Add heading and empty entry for surveys first to last at the end of lstTARNVIK.
void AddSurveys(int first, int last);
// Drop the surveys beyond remaining (at least 1); their indices join the last one that remains.
void DropSurveys(int remaining);
// Write the titles of ORVFlexGrid1 into the headings; the selection stays.
void RewriteHeadings();

// Move the current entry of lstVPA to an entry of lstTARNVIK: ahead of an empty one, behind any other.
void AssignIndex(int entry);
// Give an index of lstTARNVIK back to lstVPA, at its end. Headings and empty entries stay.
void GiveIndexBack(int entry);
// Move an index of lstTARNVIK to another entry of the list and make it the current one. Moved up it comes to
// stand ahead of that entry, moved down behind it; on a heading it so joins the survey above or below. It
// always stands ahead of the empty entry of its survey and behind its heading.
void MoveIndex(int from, int to);
// Whether an entry of lstTARNVIK is there and is an index.
bool IsIndex(int entry);

}  // namespace tarnvik
