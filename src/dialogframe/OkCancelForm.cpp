#include "dialogframe/OkCancelForm.h"

#include <utility>

#include "forms/TextBox.h"

namespace orx {
namespace {

constexpr Size kButton{1500, 375};
constexpr int kMargin = 120;
constexpr int kGap = 105;

/// The place in the lower right corner with that many buttons to the right of it.
Design InCorner(const Form& form, int buttonsBehind) {
  const Size client = form.ClientSize();
  const int left = client.Width - kMargin - kButton.Width - buttonsBehind * (kButton.Width + kGap);
  return {.Place = {left, client.Height - kMargin - kButton.Height, kButton.Width, kButton.Height}, .Pinned = true};
}

Design WithCaption(Design design, const char* caption) {
  design.Caption = caption;
  return design;
}

}  // namespace

void OkCancelForm::Form_Load() {
  Conclude(Outcome::Open);
  DialogForm::Form_Load();
}

void OkCancelForm::cmdOK_Click() {
  if (Check()) Accept();
}

void OkCancelForm::cmdCancel_Click() {
  Discard();
  Close(Outcome::Canceled);
}

void OkCancelForm::Close(Outcome outcome) {
  if (IsRetired()) return;
  Conclude(outcome);
  Hide();
}

bool OkCancelForm::Refuse(const Message& message, Control& field, First first) {
  if (first == First::Focus) field.SetFocus();
  OwnerDesktop().ShowMessage(message);
  if (first == First::Message) field.SetFocus();
  return false;
}

void OkCancelForm::PutBack(const Message& message, TextBox& field, const std::string& before) {
  // The message lets handlers run, which may note another text in place of the one given here.
  const auto putBack = [&field, before] {
    field.Text(before);
    field.SetFocus();
  };
  OwnerDesktop().ShowMessage(message);
  putBack();
}

OKButton::OKButton(OkCancelForm& form) : OKButton(form, form, InCorner(form, 1)) {
}

OKButton::OKButton(OkCancelForm& form, Container& parent, Design design)
    : Button(parent, "cmdOK", WithCaption(std::move(design), "&OK"), ButtonRole::Default) {
  Click = [&form] { form.PressOK(); };
}

CancelButton::CancelButton(OkCancelForm& form) : CancelButton(form, form, InCorner(form, 0)) {
}

CancelButton::CancelButton(OkCancelForm& form, Container& parent, Design design)
    : Button(parent, "cmdCancel", WithCaption(std::move(design), "&Cancel"), ButtonRole::Cancel) {
  Click = [&form] { form.OneAtATime([&form] { form.cmdCancel_Click(); }); };
}

}  // namespace orx
