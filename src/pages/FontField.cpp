#include "pages/FontField.h"

#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/TextBox.h"
#include "pages/Preview.h"

namespace orx::pages {

FontField::FontField(const FontControls& controls, NoRule)
    : mControls(controls), mSize(controls.Size, {kMinimumSize, kMaximumSize}) {
  mSize.Translate = [this](const std::string& text) { return Translate ? Translate(text) : text; };
  mSize.Accepted = [this] { Accepted.Raise(); };
}

std::vector<Control*> FontField::Boxes() const {
  return {&mControls.Name, &mControls.Size, &mControls.Bold, &mControls.Italic, &mControls.Underline};
}

void FontField::Show(const Font& value) {
  mShown = value;
  mControls.Name.Text(value.Name);
  mControls.Bold.Value(CheckedIf(value.Bold));
  mControls.Italic.Value(CheckedIf(value.Italic));
  mControls.Underline.Value(CheckedIf(value.Underline));
  mSize.Show(value.Size);
}

void FontField::Clear() {
  Show({});
  mSize.Clear();
}

Font FontField::Value() const {
  Font font = mShown;
  font.Name = mControls.Name.Text();
  font.Size = mSize.Value();
  font.Bold = mControls.Bold.IsChecked();
  font.Italic = mControls.Italic.IsChecked();
  font.Underline = mControls.Underline.IsChecked();
  return font;
}

}  // namespace orx::pages
