#include "languages/FormLanguage.h"

#include "forms/Form.h"
#include "forms/ListControl.h"
#include "forms/TabControl.h"

namespace orx::languages {

void FormLanguage::TranslateForm(Form& form) {
  for (Control* const control : form.All()) {
    if (!control->Caption().empty()) control->Caption(TranslateText(control->Caption()));
    if (!control->ToolTipText().empty()) control->ToolTipText(TranslateText(control->ToolTipText()));
    if (!control->GivenName().empty()) control->GivenName(TranslateText(control->GivenName()));
    if (auto* const list = dynamic_cast<ListControl*>(control); list && list->HasWords())
      for (int entry = 0; entry < list->ListCount(); ++entry) list->List(entry, TranslateText(list->List(entry)));
    if (auto* const tabs = dynamic_cast<TabControl*>(control))
      for (int tab = 0; tab < tabs->TabCount(); ++tab) tabs->TabCaption(tab, TranslateText(tabs->TabCaption(tab)));
  }
}

}  // namespace orx::languages
