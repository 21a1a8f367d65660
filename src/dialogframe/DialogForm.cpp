#include "dialogframe/DialogForm.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "dialogframe/Help.h"
#include "numbers/Numbers.h"

namespace orx {

DialogForm::DialogForm(Desktop& desktop, const DialogDesign& design)
    : Form(desktop, design.Name, {.Caption = design.Caption, .Client = design.Client, .Border = design.Border}),
      mHelpKey(design.HelpKey) {
}

void DialogForm::Language(ILanguage* value) {
  mLanguage = value;
  Hold(value);
  AskLanguage();
}

void DialogForm::Form_Load() {
  for (const auto step : {&DialogForm::Arrange, &DialogForm::TakeLanguage, &DialogForm::Fill,
                          &DialogForm::TranslateControls, &DialogForm::TranslateCaption, &DialogForm::Ready})
    if (IsLoaded()) LoadStep([&] { (this->*step)(); });
}

void DialogForm::TranslateControls() {
  if (LanguageActive()) mLanguage->TranslateForm(*this);
}

void DialogForm::TranslateCaption() {
  if (LanguageActive()) Caption(mLanguage->TranslateText(Caption()));
}

void DialogForm::TakeLanguage() {
  RightToLeft(LanguageActive() && mLanguage->IsRightToLeft());
  if (!LanguageActive()) return;
  const std::optional<double> number =
      numbers::ToDouble(mLanguage->TranslateText(mHelpKey), OwnerDesktop().Separators());
  if (!number) return;
  try {
    HelpContextId(numbers::RoundToLong(*number));
  } catch (const std::overflow_error&) {
    // No topic has a number of more than 32 bits; the designed one stays.
  }
}

void DialogForm::Form_Unload() {
  mLanguage = nullptr;
  mLanguageActive = false;
}

void DialogForm::Form_Release() {
  mHeld.clear();
}

void DialogForm::Hold(const BorrowedObject* lent) {
  std::shared_ptr<const void> lifetime = lent ? lent->Lifetime() : nullptr;
  // The layer manager hands the same objects over again and again.
  if (lifetime && std::ranges::find(mHeld, lifetime) == mHeld.end()) mHeld.push_back(std::move(lifetime));
}

bool DialogForm::Form_Help() {
  if (HelpContextId() == 0) return false;
  ShowHelp();
  return true;
}

void DialogForm::ShowHelp() {
  modMain::ShowHelpFinder(*this, modMain::HelpFile(), HelpContextId());
}

}  // namespace orx
