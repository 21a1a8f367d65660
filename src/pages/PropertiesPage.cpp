#include "pages/PropertiesPage.h"

#include "text/CharacterText.h"

namespace orx::pages {

PropertiesPage::PropertiesPage(const PageSite& site) : PageBase(site) {
  for (const char* name : kCommonFonts) cboFont.AddItem(name);
  cboFont.Click = [this] { Edited(); };
  cboFont.Change = [this] { Edited(); };
  mCharacter.Accepted = [this] { Edited(); };
  mRotation.Accepted = [this] { Edited(); };
  mSize.Accepted = [this] { Edited(); };
  cmdCharacter.Click = [this] { cmdCharacter_Click(); };
  Follow(cmdCharacter, {&mFont, &mCharacter, &mRotation});
}

bool PropertiesPage::IsSupported() const {
  return As<ILayer>(Client()) != nullptr;
}

void PropertiesPage::ShowValues() {
  PageBase::ShowValues();
  txtSource.ToolTipText(txtSource.Text());
  cmdCharacter.Visible(CharacterRequested.HasHandler());
  ShowPreview();
}

void PropertiesPage::WasWritten(const Setting& setting) {
  if (&setting == &mName) NameChanged.Raise(mName.Value());
}

void PropertiesPage::cmdCharacter_Click() {
  const std::int32_t character = mCharacter.Value();
  CharacterRequest request{cboFont.Text(), FontCode(character), mRotation.Value()};
  CharacterRequested.Raise(request);
  if (!request.Changed) return;
  cboFont.Text(request.FontName);
  mCharacter.Enter(CharacterOf(request.Character, character));
  mRotation.Enter(request.Rotation);
  ShowPreview();
}

void PropertiesPage::Edited() {
  if (!IsBusy()) ShowPreview();
}

void PropertiesPage::ShowPreview() {
  const Font font{.Name = cboFont.Text(), .Size = mSize.Value()};
  DrawPreview(pctSymbol, mCharacter.IsRead() ? CharacterText(mCharacter.Value()) : std::string(), font, Color{},
              mRotation.Value());
}

}  // namespace orx::pages
