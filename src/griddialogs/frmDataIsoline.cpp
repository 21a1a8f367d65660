#include "griddialogs/frmDataIsoline.h"

#include "dialogframe/SelectAllText.h"
#include "forms/Desktop.h"

namespace orx {
namespace {

constexpr double kDistances[] = {0.1, 0.15, 0.2, 0.25, 0.3, 0.4, 0.5};
constexpr int kListedSteps = 10;
/// The pen styles of the platform, by their numbers.
constexpr const char* kLineStyles[] = {"Solid", "Dash", "Dot", "Dash-Dot", "Dash-Dot-Dot", "Invisible", "Inside Solid"};

void SelectAll(Control& control) {
  if (auto* const field = dynamic_cast<TextBox*>(&control)) modMain::SelectAllText(*field);
}

}  // namespace

frmDataIsoline::frmDataIsoline(Desktop& desktop)
    : EditForm(desktop, {.Name = "frmDataIsoline",
                         .Caption = "Isoline properties",
                         .HelpKey = "_HelpLayerIsolines",
                         .Client = {7140, 4815}}) {
  for (TextBox* const field : {&txtLineWidth, &txtLineMaxWidth})
    field->GotFocus = [field] { modMain::SelectAllText(*field); };
  cmbLineStyle.HasWords(true);
  mSettings.Written = [this](Setting&) { IsDirty(true); };
  cmdFont.Click = [this] { cmdFont_Click(); };
}

void frmDataIsoline::Fill() {
  mColorBox.DrawEdge();
  FillLists();
  mSettings.Read();
}

void frmDataIsoline::FillLists() {
  cmbLabelDistance.Clear();
  for (const double distance : kDistances) cmbLabelDistance.AddItem(PlainNumber(cmbLabelDistance, distance));
  cmbRangeStep.Clear();
  for (int step = 1; step <= kListedSteps; ++step) cmbRangeStep.AddItem(std::to_string(step));
  cmbLineStyle.Clear();
  for (const char* const style : kLineStyles) cmbLineStyle.AddItem(style, cmbLineStyle.ListCount());
}

void frmDataIsoline::cmdFont_Click() {
  FontRequest request{NativeHandle(), kScreenAndPrinterFonts, mFont};
  if (OwnerDesktop().ChooseFont(request)) mFont = request.Chosen;
  cmdFont.SetFocus();
}

bool frmDataIsoline::Save() {
  try {
    if (Edited<IIsolines>()) mSettings.Write();
    return true;
  } catch (const InvalidEntry& refused) {
    OwnerDesktop().Beep();
    refused.Field->SetFocus();
    SelectAll(*refused.Field);
    return false;
  }
}

}  // namespace orx
