#include "propertydialogs/frmSettings.h"

namespace orx {

frmSettings::frmSettings(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(
          desktop, pages,
          {.Name = "frmSettings", .Caption = "Properties", .HelpKey = "_HelpMapLayerSettings", .Pages = LayerPages()}) {
}

void frmSettings::Ready() {
  if (!LanguageActive()) return;
  // The first tab's caption is left to the translation of the form.
  for (int tab = 1; tab < ssTab.TabCount() && LanguageActive(); ++tab) {
    ssTab.Tab(tab);
    ssTab.TabCaption(tab, Language()->TranslateText(ssTab.TabCaption(tab)));
  }
  ssTab.Tab(0);
}

void frmSettings::Apply() {
  PageHostForm::Apply();
  IsDirty(false);
}

}  // namespace orx
