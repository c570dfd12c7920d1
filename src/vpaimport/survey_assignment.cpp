#include "vpaimport/survey_assignment.h"

#include <algorithm>
#include <string>
#include <vector>

#include "vpaimport/frmvpaindices.h"

namespace tarnvik {

namespace {

std::string Heading(int survey) {
  return "========= Tarnvik Survey " + std::to_string(survey) + ": " +
         frmVPAIndices->ORVFlexGrid1.TextMatrix(survey, kTitleColumn) + " =========";
}

// Where the heading of a survey stands, the end of the list when there is none.
int HeadingPosition(int survey) {
  const ListBox& list = frmVPAIndices->lstTARNVIK;
  int item = 0;
  for (; item < list.ListCount(); ++item) {
    if (IsHeading(list.List(item)) && --survey == 0) break;
  }
  return item;
}

// Where an index that is dropped on an entry stands once it has been taken out of its old place.
int DropPosition(int from, int to) {
  const std::string& target = frmVPAIndices->lstTARNVIK.List(to);
  const bool down = to > from;
  if (target.empty()) return down ? to - 1 : to;
  if (!IsHeading(target) || down) return to;
  // Up on a heading: the end of the survey above, ahead of its empty entry. There is none above the first.
  return std::max(to - 1, 1);
}

}  // namespace

bool IsHeading(std::string_view entry) { return entry.starts_with('='); }

bool IsIndex(int entry) {
  const ListBox& list = frmVPAIndices->lstTARNVIK;
  if (entry < 0 || entry >= list.ListCount()) return false;
  return !list.List(entry).empty() && !IsHeading(list.List(entry));
}

void AddSurveys(int first, int last) {
  ListBox& list = frmVPAIndices->lstTARNVIK;
  for (int survey = first; survey <= last; ++survey) {
    list.AddItem(Heading(survey));
    list.AddItem("");
  }
}

void DropSurveys(int remaining) {
  ListBox& list = frmVPAIndices->lstTARNVIK;
  const int first_dropped = HeadingPosition(remaining + 1);
  std::vector<std::string> put_aside;
  for (int item = first_dropped; item < list.ListCount(); ++item) {
    if (IsIndex(item)) put_aside.push_back(list.List(item));
  }
  // With the empty entry of the last survey that remains.
  while (list.ListCount() >= first_dropped) list.RemoveItem(list.ListCount() - 1);
  for (const std::string& entry : put_aside) list.AddItem(entry);
  list.AddItem("");
}

void RewriteHeadings() {
  ListBox& list = frmVPAIndices->lstTARNVIK;
  int survey = 0;
  for (int item = 0; item < list.ListCount(); ++item) {
    if (IsHeading(list.List(item))) list.SetList(item, Heading(++survey));
  }
}

void AssignIndex(int entry) {
  IndicesForm& form = *frmVPAIndices;
  const int index = form.lstVPA.ListIndex();
  const bool ahead = form.lstTARNVIK.List(entry).empty();
  form.lstTARNVIK.InsertItem(ahead ? entry : entry + 1, form.lstVPA.List(index));
  form.lstVPA.RemoveItem(index);
}

void GiveIndexBack(int entry) {
  if (!IsIndex(entry)) return;
  IndicesForm& form = *frmVPAIndices;
  form.lstVPA.AddItem(form.lstTARNVIK.List(entry));
  form.lstTARNVIK.RemoveItem(entry);
}

void MoveIndex(int from, int to) {
  ListBox& list = frmVPAIndices->lstTARNVIK;
  const int position = DropPosition(from, to);
  const std::string entry = list.List(from);
  list.RemoveItem(from);
  list.InsertItem(position, entry);
  list.UserPoint(position);
}

}  // namespace tarnvik
