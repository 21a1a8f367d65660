#include "griddialogs/frmDataIsoline.h"

#include "dialogframe/FocusMark.h"
#include "dialogframe/SelectAllText.h"
#include "forms/ColorRequest.h"
#include "forms/Desktop.h"
#include "numbers/Numbers.h"

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
    : DialogForm(desktop, "frmDataIsoline", {.Caption = "Isoline properties", .Client = {7140, 4815}}) {
  for (TextBox* const field : {&txtLineWidth, &txtLineMaxWidth})
    field->GotFocus = [field] { modMain::SelectAllText(*field); };
  pctColor.Click = [this] { pctColor_Click(); };
  pctColor.GotFocus = [this] { modMain::DrawInsetFocusRect(pctColor, modMain::kColorBoxInset); };
  pctColor.LostFocus = [this] { modMain::DrawInsetFocusRect(pctColor, modMain::kColorBoxInset); };
  pctColor.KeyDown = [this](int keyCode) {
    if (keyCode != kKeyCodeShift) pctColor_Click();
  };
  mSettings.Written = [this](Setting&) { mChanged = true; };
  cmdFont.Click = [this] { cmdFont_Click(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmDataIsoline::IsolineObject(HostObject* value) {
  mObject = value;
  Hold(value);
}

void frmDataIsoline::Form_Load() {
  mChanged = false;
  Center();
  TakeHelpNumber("_HelpLayerIsolines");
  modMain::DrawEdge(pctColor);
  FillLists();
  mIsolines = QueryKind<IIsolines>(mObject);
  mSettings.Read();
  Translate();
}

void frmDataIsoline::FillLists() {
  cmbLabelDistance.Clear();
  for (const double distance : kDistances) cmbLabelDistance.AddItem(PlainNumber(cmbLabelDistance, distance));
  cmbRangeStep.Clear();
  for (int step = 1; step <= kListedSteps; ++step) cmbRangeStep.AddItem(std::to_string(step));
  cmbLineStyle.Clear();
  for (const char* const style : kLineStyles) cmbLineStyle.AddItem(style, cmbLineStyle.ListCount());
}

void frmDataIsoline::pctColor_Click() {
  ColorRequest request{NativeHandle(), kStartFromColor, pctColor.BackColor()};
  if (OwnerDesktop().ChooseColor(request)) pctColor.BackColor(request.Color);
}

void frmDataIsoline::cmdFont_Click() {
  FontRequest request{NativeHandle(), kScreenAndPrinterFonts, mFont};
  if (OwnerDesktop().ChooseFont(request)) mFont = request.Chosen;
  cmdFont.SetFocus();
}

void frmDataIsoline::cmdOK_Click() {
  OwnerDesktop().Pointer(Pointer::Hourglass);
  try {
    if (mIsolines) mSettings.Write();
    Hide();
  } catch (const InvalidEntry& refused) {
    OwnerDesktop().Beep();
    refused.Field->SetFocus();
    SelectAll(*refused.Field);
  }
  OwnerDesktop().Pointer(Pointer::Default);
}

void frmDataIsoline::cmdCancel_Click() {
  mChanged = false;
  Hide();
}

void frmDataIsoline::Form_Unload() {
  mObject = nullptr;
  mIsolines = nullptr;
  mChanged = false;
  DialogForm::Form_Unload();
}

}  // namespace orx
