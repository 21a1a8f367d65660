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
  mForm->Unload();
}

void CCommonProgressDialog::Init(std::int32_t Min, std::int32_t Max, std::int32_t Value) {
  Numbered([&] {
    ProgressBar& bar = mForm->prgBar;
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
  Numbered([&] { mForm->prgBar.Value(static_cast<float>(value)); });
}

std::string CCommonProgressDialog::Caption() const {
  return mForm->Caption();
}

void CCommonProgressDialog::Caption(const std::string& value) {
  mForm->Caption(value);
}

std::string CCommonProgressDialog::Message() const {
  return mForm->Message();
}

void CCommonProgressDialog::Message(const std::string& value) {
  mForm->Message(value);
}

void CCommonProgressDialog::Show(OwnerWindow OwnerForm) {
  // The host may release this object while events are handled.
  const std::shared_ptr<frmProgress> form = mForm;
  Desktop& desktop = mDesktop;
  ErrorTrap trap;
  trap.Step([&] { form->Show(ShowMode::Modeless, OwnerForm); });
  if (trap.IsPending()) trap.Step([&] { form->Show(ShowMode::Modal, OwnerForm); });
  desktop.ProcessPendingEvents();
}

void CCommonProgressDialog::Hide() {
  mForm->Hide();
  mDesktop.ProcessPendingEvents();
}

void CCommonProgressDialog::Refresh() {
  mForm->Refresh();
}

}  // namespace orx
