#include "dialogframe/DialogForm.h"

#include <cmath>
#include <limits>
#include <optional>

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
  LoadStep([this] { Arrange(); });
  LoadStep([this] { TakeLanguage(); });
  LoadStep([this] { Fill(); });
  if (!IsLoaded()) return;
  if (mLanguageActive) {
    LoadStep([this] { mLanguage->TranslateForm(*this); });
    LoadStep([this] { Caption(mLanguage->TranslateText(Caption())); });
  }
  LoadStep([this] { Ready(); });
}

void DialogForm::TakeLanguage() {
  if (!mLanguageActive) return;
  const std::optional<double> number =
      numbers::ToDouble(mLanguage->TranslateText(mHelpKey), OwnerDesktop().Separators());
  if (number && std::abs(*number) < std::numeric_limits<std::int32_t>::max())
    HelpContextId(numbers::RoundToLong(*number));
}

void DialogForm::Form_Unload() {
  mLanguage = nullptr;
  mHeld.clear();
}

void DialogForm::Hold(const BorrowedObject* lent) {
  if (std::shared_ptr<const void> lifetime = lent ? lent->Lifetime() : nullptr) mHeld.push_back(std::move(lifetime));
}

void DialogForm::ShowHelp() {
  modMain::ShowHelpFinder(*this, modMain::HelpFile(), HelpContextId());
}

}  // namespace orx
