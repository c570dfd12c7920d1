#include "platform/form.h"

#include <algorithm>
#include <utility>

#include "platform/host.h"

namespace tarnvik {

namespace {

// Never destroyed: the slots are objects of namespace scope in many files, in no known order.
std::vector<FormSlot*>& AllSlots() {
  static auto* slots = new std::vector<FormSlot*>;
  return *slots;
}

std::vector<FormSlot*>& LoadedSlots() {
  static auto* slots = new std::vector<FormSlot*>;
  return *slots;
}

int event_depth = 0;
FormSlot* front_form = nullptr;
std::vector<std::unique_ptr<Form>> unloaded_records;

}  // namespace

Form::Form(std::string name, std::string caption) : name_(std::move(name)), caption_(std::move(caption)) {}

Control* Form::Find(std::string_view name, int index) const {
  for (Control* control : controls_) {
    if (control->Index() == index && control->Name() == name) return control;
  }
  return nullptr;
}

FormSlot::FormSlot(const char* name) : name_(name) { AllSlots().push_back(this); }

Form& FormSlot::Touch() {
  if (!record_) {
    record_ = Create();
    LoadedSlots().push_back(this);
    record_->Load();
  }
  return *record_;
}

const std::vector<FormSlot*>& AllForms() { return AllSlots(); }
const std::vector<FormSlot*>& LoadedForms() { return LoadedSlots(); }

FormSlot* FindForm(std::string_view name) {
  for (FormSlot* slot : AllSlots()) {
    if (slot->Name() == name) return slot;
  }
  return nullptr;
}

bool AskToUnload(FormSlot& slot, UnloadMode mode) {
  Form* record = slot.Record();
  if (!record || slot.Unloading()) return true;
  EventScope event;
  bool cancel = false;
  record->QueryUnload(cancel, mode);
  return !cancel;
}

void UnloadWithoutAsking(FormSlot& slot) {
  Form* record = slot.Record();
  if (!record || slot.Unloading()) return;  // forms of one family unload one another
  EventScope event;
  {
    slot.unloading_ = true;
    const struct EndOfUnload {
      bool& unloading;
      ~EndOfUnload() { unloading = false; }
    } end{slot.unloading_};
    record->Unload();
  }
  std::erase(LoadedSlots(), &slot);
  if (front_form == &slot) {
    front_form = nullptr;
    for (FormSlot* other : LoadedSlots()) {
      if (other->Record()->Shown) front_form = other;
    }
  }
  TheHost().FormUnloaded(*record);
  record->Shown = false;
  unloaded_records.push_back(std::move(slot.record_));
}

bool UnloadForm(FormSlot& slot, UnloadMode mode) {
  EventScope event;
  const Form* record = slot.Record();
  if (!AskToUnload(slot, mode)) return slot.Record() != record;
  // The question may have led to the form being unloaded, or even loaded anew.
  if (slot.Record() == record) UnloadWithoutAsking(slot);
  return true;
}

namespace {

void PutInFront(FormSlot& slot) {
  Form& form = slot.Touch();
  form.Shown = true;
  front_form = &slot;
  TheHost().BringToFront(form);
}

}  // namespace

void ActivateForm(FormSlot& slot) {
  EventScope event;
  PutInFront(slot);
  slot.Touch().Activate();
}

void BringFormToFront(FormSlot& slot) {
  EventScope event;
  const bool was_front = front_form == &slot;
  PutInFront(slot);
  if (!was_front) slot.Touch().Activate();
}

void ShowFormModal(FormSlot& slot) {
  EventScope event;
  FormSlot* behind = front_form;
  Form& form = slot.Touch();
  form.Shown = true;
  form.Modal = true;
  front_form = &slot;
  form.Activate();
  TheHost().ShowModal(slot);
  if (slot.Loaded()) UnloadForm(slot);
  if (behind && behind->Loaded()) front_form = behind;
}

FormSlot* FrontForm() { return front_form; }

EventScope::EventScope() { ++event_depth; }

EventScope::~EventScope() {
  if (--event_depth > 0) return;
  // Destroying a record runs no handlers, but let it happen on a list that nobody else sees.
  auto gone = std::move(unloaded_records);
  unloaded_records.clear();
}

}  // namespace tarnvik
