// A language that translates forms text by text.
#pragma once

#include "hostobjects/ILanguage.h"

namespace orx::languages {

/// Translates captions, tool tips, accessible names and tab captions of all controls of a form, and the entries of
/// lists that have words (ListControl::HasWords). Texts that the user edits and the entries of other lists are not
/// touched. A translated form can be translated again, as long as no translation is the key of another.
class FormLanguage : public ILanguage {
 public:
  void TranslateForm(Form& form) override;
};

}  // namespace orx::languages
