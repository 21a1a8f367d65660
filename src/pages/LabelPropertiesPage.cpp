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
  const auto edited = [this] { Edited(); };
  chkShowLabels.Click = [this] {
    if (IsBusy()) return;
    EnableControls();
    ShowPreview();
  };
  cboContent.Click = edited;
  cboFont.Click = edited;
  cboFont.Change = edited;
  for (CheckBox* box : {&chkBold, &chkItalic, &chkUnderline}) box->Click = edited;
  mRotation.Accepted = edited;
  mFont.Accepted = edited;
  cboColor.Click = [this] { cboColor_Click(); };
  mColor.Accepted = [this] { ColorEdited(); };
  Follow(cboColor, {&mColor});
}

bool LabelPropertiesPage::IsSupported() const {
  return As<ILabels>(Client()) != nullptr;
}

void LabelPropertiesPage::ShowValues() {
  PageBase::ShowValues();
  ShowColorName();
  ShowPreview();
}

bool LabelPropertiesPage::ShowsLabels() const {
  // Where nobody knows, all can be edited.
  return mShowLabels.IsLocked() || chkShowLabels.IsChecked();
}

void LabelPropertiesPage::cboColor_Click() {
  const auto named = static_cast<std::size_t>(cboColor.SelectedData(-1));
  if (IsBusy() || named >= kNamedColors.size()) return;
  mColor.Enter(kNamedColors[named]);
  ShowColorName();
  ShowPreview();
}

void LabelPropertiesPage::ColorEdited() {
  WhileBusy([this] { ShowColorName(); });
  ShowPreview();
}

void LabelPropertiesPage::ShowColorName() {
  const auto found = std::find(kNamedColors.begin(), kNamedColors.end(), mColor.Value());
  Select(cboColor, mColor.IsRead() ? static_cast<std::int32_t>(found - kNamedColors.begin()) : -1);
  pctColor.BackColor(mColor.IsRead() ? mColor.Value() : Color{255, 255, 255});
}

void LabelPropertiesPage::Edited() {
  if (!IsBusy()) ShowPreview();
}

void LabelPropertiesPage::ShowPreview() {
  const bool isShown = HasRead() && ShowsLabels();
  constexpr const char* kSamples[] = {"Abc", "123", "Abc 123"};
  const auto content = static_cast<std::size_t>(cboContent.SelectedData(0));
  DrawPreview(pctPreview, isShown ? kSamples[content] : "", mFont.Value(), mColor.Value(), mRotation.Value());
}

}  // namespace orx::pages
