#include "dialogframe/DialogForm.h"

#include <cmath>
#include <limits>
#include <optional>

#include "dialogframe/Help.h"
#include "numbers/Numbers.h"

namespace orx {

void DialogForm::Language(ILanguage* value) {
  mLanguage = value;
  Hold(value);
  AskLanguage();
}

void DialogForm::Form_Unload() {
  mLanguage = nullptr;
  mHeld.clear();
}

void DialogForm::Hold(const BorrowedObject* lent) {
  if (std::shared_ptr<const void> lifetime = lent ? lent->Lifetime() : nullptr) mHeld.push_back(std::move(lifetime));
}

void DialogForm::TakeHelpNumber(const std::string& helpKey) {
  if (!mLanguageActive) return;
  const std::optional<double> number =
      numbers::ToDouble(mLanguage->TranslateText(helpKey), OwnerDesktop().Separators());
  if (number && std::abs(*number) < std::numeric_limits<std::int32_t>::max())
    HelpContextId(numbers::RoundToLong(*number));
}

void DialogForm::Translate() {
  TranslateControls();
  TranslateCaption();
}

void DialogForm::TranslateControls() {
  if (mLanguageActive) mLanguage->TranslateForm(*this);
}

void DialogForm::TranslateCaption() {
  if (mLanguageActive) Caption(mLanguage->TranslateText(Caption()));
}

void DialogForm::ShowHelp() {
  modMain::ShowHelpFinder(*this, modMain::HelpFile(), HelpContextId());
}

}  // namespace orx
