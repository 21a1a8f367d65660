// The frame that all dialogs share: the order of loading, the language with help number and captions, the Help button,
// and the hourglass.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "dialogframe/PointerScope.h"
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

  /// The language, null for none. A plain pointer that is not reference-counted; unloading clears it.
  ILanguage* Language() const { return mLanguage; }
  void Language(ILanguage* value);

 protected:
  /// Loads every dialog in the same order: Arrange, TakeLanguage, Fill, the translation of the controls and of the
  /// caption, Ready. A form that unloads itself in one of these steps skips the rest.
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Release() override;

  /// F1 opens the topic of the dialog, if it has one.
  bool Form_Help() override;

  /// Puts the form where it is to open.
  virtual void Arrange() { Center(); }
  /// Takes the direction and the help context number from an active language: the number under the help key, rounded. A
  /// text that is not a number, or is too large, leaves the designed one.
  virtual void TakeLanguage();
  /// Fills the controls. A form that has nothing to edit unloads itself here.
  virtual void Fill() {}
  /// Runs last, for whatever has to wait for the translation.
  virtual void Ready() {}
  /// Runs one of these steps. An error ends the loading, unless the dialog overrides this to go on with the next step.
  virtual void LoadStep(const std::function<void()>& step) { step(); }

  /// Keeps a borrowed object usable until the form is released, however often it is handed over. Null is ignored.
  void Hold(const BorrowedObject* lent);
  /// True if there is a language that had entries the last time it was asked, by Language or by AskLanguage.
  bool LanguageActive() const { return mLanguage && mLanguageActive; }
  /// Asks the language again whether it has entries.
  void AskLanguage() { mLanguageActive = IsActive(mLanguage); }
  /// What every Help button does.
  void ShowHelp();

  /// Shows the hourglass while `work` runs, and the default pointer afterwards, also when an error leaves it.
  template <class Work>
  void WithHourglass(Work&& work) {
    const PointerScope hourglass(OwnerDesktop(), Pointer::Hourglass, Pointer::Default);
    work();
  }

 private:
  void TranslateControls();
  void TranslateCaption();

  const char* mHelpKey;
  ILanguage* mLanguage = nullptr;
  bool mLanguageActive = false;
  std::vector<std::shared_ptr<const void>> mHeld;
};

}  // namespace orx
