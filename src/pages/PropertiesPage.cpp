#include "pages/PropertiesPage.h"

#include "hostobjects/IMap.h"
#include "text/CharacterText.h"

namespace orx::pages {

PropertiesPage::PropertiesPage(const PageSite& site) : PageBase(site) {
  for (const char* name : kCommonFonts) cboFont.AddItem(name);
  for (CheckedField* field : std::initializer_list<CheckedField*>{&mName, &mCharacter, &mRotation, &mSize})
    Watch(*field);
  cboFont.Click = [this] { Edited(); };
  cboFont.Change = [this] { Edited(); };
  mCharacter.Accepted = [this] { Edited(); };
  mRotation.Accepted = [this] { Edited(); };
  mSize.Accepted = [this] { Edited(); };
  cmdCharacter.Click = [this] { cmdCharacter_Click(); };
}

bool PropertiesPage::IsSupported() const {
  return QueryKind<ILayer>(Client()) != nullptr;
}

void PropertiesPage::ReadClient() {
  const ILayer& layer = *QueryKind<ILayer>(Client());
  mRead = Values{layer.Name(),           layer.Visible(),   layer.Source(), layer.SymbolFont(), layer.SymbolCharacter(),
                 layer.SymbolRotation(), layer.SymbolSize()};
}

void PropertiesPage::ShowValues() {
  const Values values = mRead.value_or(Values{});
  mName.Value(values.Name);
  chkVisible.Value(CheckedIf(values.Visible));
  txtSource.Text(values.Source);
  txtSource.ToolTipText(values.Source);
  cboFont.Text(values.SymbolFont);
  if (mRead) {
    mCharacter.Value(values.SymbolCharacter);
    mRotation.Value(values.SymbolRotation);
    mSize.Value(values.SymbolSize);
  } else {
    mCharacter.Clear();
    mRotation.Clear();
    mSize.Clear();
  }
  cmdCharacter.Visible(CharacterRequested.HasHandler());
  ShowPreview();
}

void PropertiesPage::WriteClient() {
  ILayer& layer = *QueryKind<ILayer>(Client());
  Values& read = *mRead;
  const std::string nameBefore = read.Name;
  Write(read.Name, mName.Value(), [&](const std::string& name) { layer.Name(name); });
  if (read.Name != nameBefore) NameChanged.Raise(read.Name);
  Write(read.Visible, chkVisible.IsChecked(), [&](bool visible) { layer.Visible(visible); });
  Write(read.SymbolFont, cboFont.Text(), [&](const std::string& font) { layer.SymbolFont(font); });
  Write(read.SymbolCharacter, mCharacter.Value(), [&](std::int32_t code) { layer.SymbolCharacter(code); });
  Write(read.SymbolRotation, mRotation.Value(), [&](double degrees) { layer.SymbolRotation(degrees); });
  Write(read.SymbolSize, mSize.Value(), [&](double points) { layer.SymbolSize(points); });
}

void PropertiesPage::cmdCharacter_Click() {
  const std::int32_t character = mCharacter.Value();
  CharacterRequest request{cboFont.Text(), FontCode(character), mRotation.Value()};
  CharacterRequested.Raise(request);
  if (!request.Changed) return;
  cboFont.Text(request.FontName);
  mCharacter.Value(CharacterOf(request.Character, character));
  mRotation.Value(request.Rotation);
  ShowPreview();
}

void PropertiesPage::Edited() {
  if (!IsBusy()) ShowPreview();
}

void PropertiesPage::ShowPreview() {
  const Font font{.Name = cboFont.Text(), .Size = mSize.Value()};
  DrawPreview(pctSymbol, mRead ? CharacterText(mCharacter.Value()) : std::string(), font, Color{}, mRotation.Value());
}

}  // namespace orx::pages
