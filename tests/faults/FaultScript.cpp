#include "tests/faults/FaultScript.h"

namespace orx::test {
namespace {

/// Buttons that end a dialog, or open what has no part in it.
bool IsOther(const Button& button) {
  for (const char* const name : {"cmdOK", "cmdCancel", "cmdCancelAll", "cmdApply", "cmdHelp"})
    if (button.Name() == name) return false;
  return true;
}

}  // namespace

Form* FaultScript::Top() const {
  for (auto form = mForms.rbegin(); form != mForms.rend(); ++form)
    if ((*form)->Visible()) return *form;
  return nullptr;
}

void FaultScript::ModalRunning(const Modal& modal) {
  if (modal.ShownMessage) return mUser.AnswerMessage(modal, modal.ShownMessage->Harmless());
  if (modal.ShownFiles) return mUser.PickFiles(*modal.ShownFiles, mFile);
  if (modal.ShownColor) return mUser.CancelColor(*modal.ShownColor);
  if (modal.ShownFont) return mUser.CancelFont(*modal.ShownFont);
  Visit(*modal.ShownForm);
}

void FaultScript::Visit(Form& form) {
  const std::shared_ptr<Form> keep = form.shared_from_this();
  mForms.push_back(&form);
  Edit(form);
  if (End == Ending::OK) Press(form, "cmdApply");
  PressOthers(form);
  if (End == Ending::OK) Press(form, "cmdOK");
  Press(form, "cmdCancel");
  // A dialog whose loop an error has ended is left to its caller.
  form.Hide();
  mForms.pop_back();
}

void FaultScript::Press(Form& form, const std::string& button) {
  auto* const found = form.Visible() ? dynamic_cast<Button*>(form.Find(button)) : nullptr;
  if (found && found->IsReachable()) mUser.Click(*found);
}

void FaultScript::Edit(Form& form) {
  bool hasTyped = false;
  for (Control* const control : form.All()) {
    if (!form.Visible() || !control->IsReachable()) continue;
    if (auto* const box = dynamic_cast<CheckBox*>(control)) mUser.Toggle(*box);
    if (auto* const list = dynamic_cast<TreeList*>(control); list && list->ListCount() > 1) mUser.Click(*list, 1);
    if (auto* const field = dynamic_cast<TextBox*>(control); field && !hasTyped) {
      hasTyped = true;
      mUser.Type(*field, field->Text() + "1");
    }
  }
}

void FaultScript::PressOthers(Form& form) {
  // In front of another dialog only what ends it is pressed, so that no two open each other for ever.
  if (mForms.size() > 1) return;
  for (Control* const control : form.All())
    if (const auto* const button = dynamic_cast<Button*>(control); button && IsOther(*button))
      Press(form, button->Name());
}

void FaultScript::ActAtRandom(std::mt19937& random) {
  constexpr int kActs = 3;
  for (int i = 0; i < kActs; ++i) {
    Form* const form = Top();
    if (!form) return;
    const std::vector<Control*> controls = form->All();
    Touch(*controls.at(random() % controls.size()), random);
  }
}

void FaultScript::Touch(Control& control, std::mt19937& random) {
  if (!control.IsReachable()) return;
  const auto any = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
  if (auto* const button = dynamic_cast<Button*>(&control)) mUser.Click(*button);
  if (auto* const box = dynamic_cast<CheckBox*>(&control)) mUser.Toggle(*box);
  if (auto* const field = dynamic_cast<TextBox*>(&control)) mUser.Type(*field, "7");
  if (auto* const list = dynamic_cast<TreeList*>(&control); list && list->ListCount() > 0)
    mUser.Click(*list, any(list->ListCount()));
  if (auto* const tabs = dynamic_cast<TabControl*>(&control)) mUser.SelectTab(*tabs, any(tabs->TabCount()));
}

}  // namespace orx::test
