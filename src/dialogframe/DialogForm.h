// The frame that all dialogs share: the language with help number and captions, and the Help button.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "hostobjects/ILanguage.h"

namespace orx {

/// The base of the library's dialogs.
class DialogForm : public Form {
 public:
  /// As Form; without a language.
  using Form::Form;

  /// The language, null for none. A plain pointer: nothing is counted, and unloading clears it.
  ILanguage* Language() const { return mLanguage; }
  void Language(ILanguage* value);

 protected:
  /// Holds on to what keeps a lent object usable, until the form is unloaded; null is nothing.
  void Hold(const BorrowedObject* lent);
  void Form_Unload() override;

  /// True when the language had entries when it was last asked, by Language or by AskLanguage.
  bool LanguageActive() const { return mLanguageActive; }
  /// Asks the language again whether it has entries.
  void AskLanguage() { mLanguageActive = IsActive(mLanguage); }
  /// Takes the help context number from an active language: the number under the key, rounded to a whole one. A text
  /// that is no number, or none that fits, leaves the designed one.
  void TakeHelpNumber(const std::string& helpKey);
  /// Has an active language translate the controls, and then the form's caption.
  void Translate();
  /// The two steps of that, for a dialog where one may fail without the other.
  void TranslateControls();
  void TranslateCaption();
  /// What every Help button does.
  void ShowHelp();

 private:
  ILanguage* mLanguage = nullptr;
  bool mLanguageActive = false;
  std::vector<std::shared_ptr<const void>> mHeld;
};

}  // namespace orx
