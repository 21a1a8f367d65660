#include "griddialogs/frmDataIsoline.h"

#include <stdexcept>
#include <type_traits>

#include "dialogframe/SelectAllText.h"
#include "forms/Desktop.h"
#include "hostobjects/ErrorTrap.h"
#include "numbers/Numbers.h"

namespace orx {
namespace {

constexpr double kDistances[] = {0.1, 0.15, 0.2, 0.25, 0.3, 0.4, 0.5};
constexpr double kUsualDistance = 0.25;
constexpr int kListedSteps = 10;
/// The pen styles of the platform, by their numbers.
constexpr const char* kLineStyles[] = {"Solid", "Dash", "Dot", "Dash-Dot", "Dash-Dot-Dot", "Invisible", "Inside Solid"};

/// Ends OK at a text that is no number, or none that fits.
struct NoNumber {
  Control* Field;
};

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
  cmdFont.Click = [this] { cmdFont_Click(); };
}

std::string frmDataIsoline::NumberText(double value) const {
  return numbers::ShortestText(value, OwnerDesktop().Separators());
}

void frmDataIsoline::Fill() {
  mColor.DrawEdge();
  FillLists();
  mIsolines = QueryKind<IIsolines>(Subject());
  if (mIsolines) ReadObject();
}

void frmDataIsoline::FillLists() {
  cmbLabelDistance.Clear();
  for (const double distance : kDistances) cmbLabelDistance.AddItem(NumberText(distance));
  cmbLabelDistance.Text(NumberText(kUsualDistance));
  cmbRangeStep.Clear();
  for (int step = 1; step <= kListedSteps; ++step) cmbRangeStep.AddItem(std::to_string(step));
  cmbRangeStep.Text("1");
  cmbLineStyle.Clear();
  for (const char* const style : kLineStyles) cmbLineStyle.AddItem(style, cmbLineStyle.ListCount());
  cmbLineStyle.ListIndex(0);
  txtLineWidth.Text("1");
  txtLineMaxWidth.Text("1");
}

void frmDataIsoline::ReadObject() {
  IIsolines& lines = *mIsolines;
  ErrorTrap trap;
  trap.Step([&] { cmbRangeStep.Text(NumberText(lines.RangeStep())); });
  trap.Step([&] { pctColor.BackColor(lines.Line().Color()); });
  trap.Step([&] { txtLineWidth.Text(NumberText(lines.Line().Width())); });
  trap.Step([&] { mStyle.Show(lines.Line().Style(), 0); });
  trap.Step([&] { chkLineUseRangeColor.Value(CheckedIf(lines.UseRangeColor())); });
  trap.Step([&] { chkLineUseRangeWidth.Value(CheckedIf(lines.UseRangeWidth())); });
  trap.Step([&] { txtLineMaxWidth.Text(NumberText(lines.MaxWidth())); });
  trap.Step([&] { chkLabelVisible.Value(CheckedIf(lines.LabelVisible())); });
  trap.Step([&] { chkLabelAllIsolines.Value(CheckedIf(lines.LabelAllIsolines())); });
  trap.Step([&] { chkLabelUseRangeColor.Value(CheckedIf(lines.LabelUseRangeColor())); });
  trap.Step([&] { cmbLabelDistance.Text(NumberText(lines.LabelDistance())); });
  ReadFont();
}

void frmDataIsoline::ReadFont() {
  ColoredFont& font = mFont.emplace();
  ErrorTrap trap;
  trap.Step([&] { font.Face.Name = mIsolines->LabelFont().Name(); });
  trap.Step([&] { font.Face.Size = mIsolines->LabelFont().Size(); });
  trap.Step([&] { font.Face.Bold = mIsolines->LabelFont().Bold(); });
  trap.Step([&] { font.Face.Italic = mIsolines->LabelFont().Italic(); });
  trap.Step([&] { font.Face.Underline = mIsolines->LabelFont().Underline(); });
  trap.Step([&] { font.Face.Strikethrough = mIsolines->LabelFont().Strikethrough(); });
  trap.Step([&] { font.Color = mIsolines->LabelFont().Color(); });
}

void frmDataIsoline::cmdFont_Click() {
  if (!mFont) mFont.emplace();
  FontRequest request{NativeHandle(), kScreenAndPrinterFonts, *mFont};
  if (OwnerDesktop().ChooseFont(request)) mFont = request.Chosen;
  cmdFont.SetFocus();
}

template <class Field>
double frmDataIsoline::NumberOf(Field& field) const {
  const std::optional<double> value = numbers::ToDouble(field.Text(), OwnerDesktop().Separators());
  if (!value) throw NoNumber{&field};
  return *value;
}

std::int32_t frmDataIsoline::LongOf(double value, Control& field) const {
  try {
    return numbers::RoundToLong(value);
  } catch (const std::overflow_error&) {
    throw NoNumber{&field};
  }
}

/// Writes a setting when it differs from what the object holds. One that cannot be read or written is passed over.
template <class Object, class Value, class Given>
void frmDataIsoline::Write(Object& object, const Given& now, Value (Object::*read)() const,
                           void (Object::*write)(Given)) {
  ErrorTrap trap;
  trap.Step([&] {
    if ((object.*read)() == now) return;
    (object.*write)(now);
    IsDirty(true);
  });
}

void frmDataIsoline::Apply() {
  if (!mIsolines) return;
  Write(*mIsolines, LongOf(NumberOf(cmbRangeStep), cmbRangeStep), &IIsolines::RangeStep, &IIsolines::RangeStep);
  ApplyLine();
  Write(*mIsolines, chkLineUseRangeColor.IsChecked(), &IIsolines::UseRangeColor, &IIsolines::UseRangeColor);
  Write(*mIsolines, chkLineUseRangeWidth.IsChecked(), &IIsolines::UseRangeWidth, &IIsolines::UseRangeWidth);
  Write(*mIsolines, LongOf(NumberOf(txtLineMaxWidth), txtLineMaxWidth), &IIsolines::MaxWidth, &IIsolines::MaxWidth);
  ApplyLabels();
  ApplyFont();
}

void frmDataIsoline::ApplyLine() {
  ILineStyle* line = nullptr;
  ErrorTrap trap;
  trap.Step([&] { line = &mIsolines->Line(); });
  const std::int32_t width = LongOf(NumberOf(txtLineWidth), txtLineWidth);
  if (!line) return;
  Write(*line, pctColor.BackColor(), &ILineStyle::Color, &ILineStyle::Color);
  Write(*line, width, &ILineStyle::Width, &ILineStyle::Width);
  Write(*line, mStyle.Value(), &ILineStyle::Style, &ILineStyle::Style);
}

void frmDataIsoline::ApplyLabels() {
  Write(*mIsolines, chkLabelVisible.IsChecked(), &IIsolines::LabelVisible, &IIsolines::LabelVisible);
  Write(*mIsolines, chkLabelAllIsolines.IsChecked(), &IIsolines::LabelAllIsolines, &IIsolines::LabelAllIsolines);
  Write(*mIsolines, chkLabelUseRangeColor.IsChecked(), &IIsolines::LabelUseRangeColor, &IIsolines::LabelUseRangeColor);
  Write(*mIsolines, NumberOf(cmbLabelDistance), &IIsolines::LabelDistance, &IIsolines::LabelDistance);
}

void frmDataIsoline::ApplyFont() {
  ILabelFont* font = nullptr;
  ErrorTrap trap;
  trap.Step([&] { font = &mIsolines->LabelFont(); });
  if (!font || !mFont) return;
  const Font& face = mFont->Face;
  Write<ILabelFont, std::string, const std::string&>(*font, face.Name, &ILabelFont::Name, &ILabelFont::Name);
  Write(*font, static_cast<float>(face.Size), &ILabelFont::Size, &ILabelFont::Size);
  Write(*font, face.Bold, &ILabelFont::Bold, &ILabelFont::Bold);
  Write(*font, face.Italic, &ILabelFont::Italic, &ILabelFont::Italic);
  Write(*font, face.Underline, &ILabelFont::Underline, &ILabelFont::Underline);
  Write(*font, face.Strikethrough, &ILabelFont::Strikethrough, &ILabelFont::Strikethrough);
  Write(*font, mFont->Color, &ILabelFont::Color, &ILabelFont::Color);
}

bool frmDataIsoline::Save() {
  try {
    Apply();
    return true;
  } catch (const NoNumber& refused) {
    OwnerDesktop().Beep();
    refused.Field->SetFocus();
    SelectAll(*refused.Field);
    return false;
  }
}

void frmDataIsoline::Form_Release() {
  mIsolines = nullptr;
  mFont.reset();
  EditForm::Form_Release();
}

}  // namespace orx
