// The frame that all dialogs share: the order of loading, the language with help number and captions, the Help button,
// and the hourglass.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "hostobjects/ILanguage.h"

namespace orx {

/// What a dialog is, apart from its controls.
struct DialogDesign {
  const char* Name;
  const char* Caption;
  /// The key under which the language has the help context number.
  const char* HelpKey;
  /// The client area, in twips.
  Size Client;
  BorderStyle Border = BorderStyle::Fixed;
};

/// The base of the library's dialogs.
class DialogForm : public Form {
 public:
  /// Without a language.
  DialogForm(Desktop& desktop, const DialogDesign& design);

  /// The language, null for none. A plain pointer: nothing is counted, and unloading clears it.
  ILanguage* Language() const { return mLanguage; }
  void Language(ILanguage* value);

 protected:
  /// Every dialog is loaded in the same order: Arrange, TakeLanguage, Fill, the translation of the controls and of the
  /// caption, Ready. The steps behind Fill are left out when the form has unloaded itself there.
  void Form_Load() override;
  void Form_Unload() override;

  /// Puts the form where it is to open.
  virtual void Arrange() { Center(); }
  /// Takes the help context number from an active language: the number under the help key, rounded to a whole one. A
  /// text that is no number, or one that does not fit, leaves the designed number.
  virtual void TakeLanguage();
  /// Fills the controls. A form that has nothing to edit unloads itself here.
  virtual void Fill() {}
  /// Does what has to wait for the translation.
  virtual void Ready() {}
  /// Runs one of these steps. What it throws ends the loading, unless a dialog goes on with the next step.
  virtual void LoadStep(const std::function<void()>& step) { step(); }

  /// Holds on to what keeps a lent object usable, until the form is unloaded; null is nothing.
  void Hold(const BorrowedObject* lent);
  /// True when the language had entries when it was last asked, by Language or by AskLanguage.
  bool LanguageActive() const { return mLanguageActive; }
  /// Asks the language again whether it has entries.
  void AskLanguage() { mLanguageActive = IsActive(mLanguage); }
  /// What every Help button does.
  void ShowHelp();

  /// Shows the hourglass while `work` runs. What it throws travels, and then the hourglass stays.
  template <class Work>
  void WithHourglass(Work&& work) {
    OwnerDesktop().Pointer(Pointer::Hourglass);
    work();
    OwnerDesktop().Pointer(Pointer::Default);
  }

 private:
  const char* mHelpKey;
  ILanguage* mLanguage = nullptr;
  bool mLanguageActive = false;
  std::vector<std::shared_ptr<const void>> mHeld;
};

}  // namespace orx
