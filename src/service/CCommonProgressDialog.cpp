#include "service/CCommonProgressDialog.h"

#include <stdexcept>

#include "hostobjects/ErrorTrap.h"
#include "hostobjects/RunTimeError.h"
#include "pickers/frmProgress.h"

namespace orx {
namespace {

/// Turns what the bar, or the conversion of its value, refuses into the error numbers that hosts know.
template <class Action>
auto Numbered(Action&& action) {
  try {
    return action();
  } catch (const std::out_of_range& error) {
    throw RunTimeError(kErrorInvalidValue, error.what());
  } catch (const std::overflow_error&) {
    throw RunTimeError(kErrorOverflow, "The value of the progress bar does not fit 32 bits");
  }
}

}  // namespace

CCommonProgressDialog::CCommonProgressDialog(Desktop& desktop)
    : mDesktop(desktop), mForm(std::make_shared<frmProgress>(desktop)) {
  mForm->Load();
}

CCommonProgressDialog::~CCommonProgressDialog() {
  mForm->UnloadQuietly();
}

void CCommonProgressDialog::Init(std::int32_t Min, std::int32_t Max, std::int32_t Value) {
  const Form::Act act(*mForm);
  Numbered([&bar = mForm->prgBar, Min, Max, Value] {
    bar.Min(static_cast<float>(Min));
    bar.Max(static_cast<float>(Max));
    bar.Value(static_cast<float>(Value));
  });
}

bool CCommonProgressDialog::CancelAction() const {
  return mForm->CancelAction();
}

std::int32_t CCommonProgressDialog::Value() const {
  return Numbered([&] { return numbers::RoundToLong(static_cast<double>(mForm->prgBar.Value())); });
}

void CCommonProgressDialog::Value(std::int32_t value) {
  const Form::Act act(*mForm);
  Numbered([&bar = mForm->prgBar, value] { bar.Value(static_cast<float>(value)); });
}

std::string CCommonProgressDialog::Caption() const {
  return mForm->Caption();
}

void CCommonProgressDialog::Caption(const std::string& value) {
  const Form::Act act(*mForm);
  mForm->Caption(value);
}

std::string CCommonProgressDialog::Message() const {
  return mForm->Message();
}

void CCommonProgressDialog::Message(const std::string& value) {
  const Form::Act act(*mForm);
  mForm->Message(value);
}

void CCommonProgressDialog::Show(OwnerWindow OwnerForm) {
  frmProgress& form = *mForm;
  const Form::Act act(form);
  Desktop& desktop = mDesktop;
  ErrorTrap trap;
  trap.Step([&] { form.Show(ShowMode::Modeless, OwnerForm); });
  if (trap.IsPending()) trap.Step([&] { form.Show(ShowMode::Modal, OwnerForm); });
  desktop.ProcessPendingEvents();
}

void CCommonProgressDialog::Hide() {
  const Form::Act act(*mForm);
  Desktop& desktop = mDesktop;
  mForm->Hide();
  desktop.ProcessPendingEvents();
}

void CCommonProgressDialog::Refresh() {
  const Form::Act act(*mForm);
  mForm->Refresh();
}

}  // namespace orx
