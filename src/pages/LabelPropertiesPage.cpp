#include "pages/LabelPropertiesPage.h"

#include <algorithm>
#include <array>

namespace orx::pages {
namespace {

/// The named colours in the order of the list; the entry behind them stands for any other colour.
constexpr std::array<Color, 10> kNamedColors = {{{0, 0, 0},
                                                 {255, 255, 255},
                                                 {128, 128, 128},
                                                 {255, 0, 0},
                                                 {0, 128, 0},
                                                 {0, 0, 255},
                                                 {255, 255, 0},
                                                 {255, 128, 0},
                                                 {128, 0, 128},
                                                 {128, 64, 0}}};

/// Selects an entry by number, and none when there is no such entry.
void Select(ComboBox& box, std::int32_t data) {
  if (!box.SelectData(data)) box.ListIndex(-1);
}

}  // namespace

LabelPropertiesPage::LabelPropertiesPage(const PageSite& site) : PageBase(site) {
  FillList(cboContent, {"Name", "Value", "Name and value"});
  FillList(cboPosition, {"Centered", "Above", "Below", "To the left", "To the right"});
  FillList(cboColor,
           {"Black", "White", "Gray", "Red", "Green", "Blue", "Yellow", "Orange", "Purple", "Brown", "Custom"});
  for (const char* name : kCommonFonts) cboFont.AddItem(name);
  for (CheckedField* field : std::initializer_list<CheckedField*>{&mRotation, &mSize, &mColor}) Watch(*field);
  const auto edited = [this] { Edited(); };
  chkShowLabels.Click = [this] { EnableDependent(), Edited(); };
  cboContent.Click = edited;
  cboFont.Click = edited;
  cboFont.Change = edited;
  for (CheckBox* box : {&chkBold, &chkItalic, &chkUnderline}) box->Click = edited;
  mRotation.Accepted = edited;
  mSize.Accepted = edited;
  cboColor.Click = [this] { cboColor_Click(); };
  mColor.Accepted = [this] { ColorEdited(); };
}

bool LabelPropertiesPage::IsSupported() const {
  return QueryKind<ILabels>(Client()) != nullptr;
}

void LabelPropertiesPage::ReadClient() {
  const ILabels& labels = *QueryKind<ILabels>(Client());
  mRead = Values{labels.ShowLabels(),    labels.Content(),   labels.Position(),
                 labels.LabelRotation(), labels.LabelFont(), labels.LabelColor()};
}

void LabelPropertiesPage::ShowValues() {
  const Values values = mRead.value_or(Values{});
  chkShowLabels.Value(CheckedIf(values.ShowLabels));
  Select(cboContent, mRead ? static_cast<std::int32_t>(values.Content) : -1);
  Select(cboPosition, mRead ? static_cast<std::int32_t>(values.Position) : -1);
  cboFont.Text(values.Face.Name);
  chkBold.Value(CheckedIf(values.Face.Bold));
  chkItalic.Value(CheckedIf(values.Face.Italic));
  chkUnderline.Value(CheckedIf(values.Face.Underline));
  if (mRead) {
    mRotation.Value(values.Rotation);
    mSize.Value(values.Face.Size);
    mColor.Value(values.Pen);
  } else {
    mRotation.Clear();
    mSize.Clear();
    mColor.Clear();
  }
  ShowColorName();
  ShowPreview();
}

void LabelPropertiesPage::EnableDependent() {
  if (!mRead) return;
  const bool enabled = chkShowLabels.IsChecked();
  for (Control* const control : Surface.All())
    if (control != &chkShowLabels) control->Enabled(enabled);
}

void LabelPropertiesPage::WriteClient() {
  ILabels& labels = *QueryKind<ILabels>(Client());
  Values& read = *mRead;
  const auto content = static_cast<LabelContent>(cboContent.SelectedData(static_cast<std::int32_t>(read.Content)));
  const auto position = static_cast<LabelPosition>(cboPosition.SelectedData(static_cast<std::int32_t>(read.Position)));
  Write(read.ShowLabels, chkShowLabels.IsChecked(), [&](bool shown) { labels.ShowLabels(shown); });
  Write(read.Content, content, [&](LabelContent value) { labels.Content(value); });
  Write(read.Position, position, [&](LabelPosition value) { labels.Position(value); });
  Write(read.Rotation, mRotation.Value(), [&](double degrees) { labels.LabelRotation(degrees); });
  Write(read.Face, ShownFont(), [&](const Font& font) { labels.LabelFont(font); });
  Write(read.Pen, mColor.Value(), [&](Color color) { labels.LabelColor(color); });
}

Font LabelPropertiesPage::ShownFont() const {
  Font font = mRead->Face;
  font.Name = cboFont.Text();
  font.Size = mSize.Value();
  font.Bold = chkBold.IsChecked();
  font.Italic = chkItalic.IsChecked();
  font.Underline = chkUnderline.IsChecked();
  return font;
}

void LabelPropertiesPage::cboColor_Click() {
  const auto named = static_cast<std::size_t>(cboColor.SelectedData(-1));
  if (IsBusy() || named >= kNamedColors.size()) return;
  mColor.Value(kNamedColors[named]);
  ShowColorName();
  ShowPreview();
}

void LabelPropertiesPage::ColorEdited() {
  WhileBusy([this] { ShowColorName(); });
  ShowPreview();
}

void LabelPropertiesPage::ShowColorName() {
  const auto found = std::find(kNamedColors.begin(), kNamedColors.end(), mColor.Value());
  Select(cboColor, mRead ? static_cast<std::int32_t>(found - kNamedColors.begin()) : -1);
  pctColor.BackColor(mRead ? mColor.Value() : Color{255, 255, 255});
}

void LabelPropertiesPage::Edited() {
  if (!IsBusy()) ShowPreview();
}

void LabelPropertiesPage::ShowPreview() {
  const bool isShown = mRead && chkShowLabels.IsChecked();
  constexpr const char* kSamples[] = {"Abc", "123", "Abc 123"};
  const auto content = static_cast<std::size_t>(cboContent.SelectedData(0));
  DrawPreview(pctPreview, isShown ? kSamples[content] : "", mRead ? ShownFont() : Font{}, mColor.Value(),
              mRotation.Value());
}

}  // namespace orx::pages
