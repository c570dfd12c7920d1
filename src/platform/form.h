// Forms and their lifecycle.
//
// A form is a struct of named controls. Its only instance is an object of the form's name, reached by ->.
// The first touch loads it: the record is built with its design values, then its Form_Load runs. Unloading
// runs the query and unload handlers and destroys the record, which is what resets its fields.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/control.h"

namespace tarnvik {

enum class UnloadMode : int {
  ByUser = 0,       // the user closes the window
  ByCode = 1,       // the program unloads the form
  MainClosing = 4,  // the main window is closing
};

class Form {
 public:
  Form(std::string name, std::string caption);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption) { caption_ = caption; }
  // Whether a window of it is on the screen, and whether that window is modal.
  bool Shown = false;
  bool Modal = false;

  // In the order in which the record names them.
  const std::vector<Control*>& Controls() const { return controls_; }
  // By name and index, -1 for a control outside an array; null when there is none.
  Control* Find(std::string_view name, int index) const;

  // The handlers of the lifecycle.
  virtual void Load() {}
  virtual void Activate() {}
  virtual void QueryUnload(bool& /*cancel*/, UnloadMode /*mode*/) {}
  virtual void Unload() {}
  // True while settings made by code shall not reach the click handlers of this form.
  virtual bool CodeClicksRest() const { return false; }

 private:
  friend class Control;
  void Register(Control* control) { controls_.push_back(control); }
  std::string name_;
  std::string caption_;
  std::vector<Control*> controls_;
};

// The place of a form's only instance, whatever its type.
class FormSlot {
 public:
  explicit FormSlot(const char* name);
  FormSlot(const FormSlot&) = delete;
  FormSlot& operator=(const FormSlot&) = delete;
  const std::string& Name() const { return name_; }
  // Asking does not load.
  bool Loaded() const { return record_ != nullptr; }
  Form* Record() const { return record_.get(); }
  Form& Touch();                                 // loads the form when it is not loaded
  bool Unloading() const { return unloading_; }  // its unload handler is running

 protected:
  virtual ~FormSlot() = default;
  virtual std::unique_ptr<Form> Create() const = 0;

 private:
  friend void UnloadWithoutAsking(FormSlot& slot);
  std::string name_;
  std::unique_ptr<Form> record_;
  bool unloading_ = false;
};

template <class T>
class FormOf final : public FormSlot {
 public:
  using FormSlot::FormSlot;
  T* operator->() { return static_cast<T*>(&Touch()); }
  T& operator*() { return static_cast<T&>(Touch()); }
  // The record if the form is loaded, else null; does not load.
  T* IfLoaded() const { return static_cast<T*>(Record()); }

 private:
  std::unique_ptr<Form> Create() const override { return std::make_unique<T>(); }
};

// All forms that the program has, loaded or not, and the loaded ones in the order in which they were loaded.
const std::vector<FormSlot*>& AllForms();
const std::vector<FormSlot*>& LoadedForms();
FormSlot* FindForm(std::string_view name);

// Unloads a form: its query handler, which may cancel, its unload handler, then the record goes. Of a form
// that is not loaded nothing happens, nor of one whose unload handler is running: forms that go together
// unload one another. False when the query handler cancelled. A record that is unloaded during an event stays
// in memory until the outermost event has ended, since a handler of its own may be running.
bool UnloadForm(FormSlot& slot, UnloadMode mode = UnloadMode::ByCode);

// The two halves of the above, for the main window: it asks every child before it unloads the first.
bool AskToUnload(FormSlot& slot, UnloadMode mode);  // false when the query handler cancelled
void UnloadWithoutAsking(FormSlot& slot);

// Shows a form, loading it if need be, brings it to the front and runs its Activate handler.
void ActivateForm(FormSlot& slot);
// Brings a form to the front, showing it if need be; its Activate handler runs when another form was in
// front.
void BringFormToFront(FormSlot& slot);
// Shows a form modally: returns when it has been unloaded.
void ShowFormModal(FormSlot& slot);
// The form in front, null when there is none.
FormSlot* FrontForm();

// One event: everything that a user's act sets off. Events nest.
class EventScope {
 public:
  EventScope();
  ~EventScope();
  EventScope(const EventScope&) = delete;
  EventScope& operator=(const EventScope&) = delete;
};

}  // namespace tarnvik
