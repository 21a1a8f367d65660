// The page for the data of a layer (IData, or an ILayer that has data): where they come from, how they are divided into
// classes, and the way to the dialogs that change them.
#pragma once

#include <string>

#include "forms/Button.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "hostobjects/IData.h"
#include "pages/PageBase.h"

namespace orx::pages {

/// Drawn for a panel of 6135 x 4545 twips. The dialogs that the buttons request write to the data by themselves; what
/// they changed counts as changed at once. Another file is read when the page is saved.
class DataPropertiesPage final : public PageBase {
 public:
  explicit DataPropertiesPage(const PageSite& site);

  Label lblFile{Surface, "lblFile", {.Caption = "Data &file:", .Place = {120, 180, 1620, 240}}};
  TextBox txtFile{Surface, "txtFile", {.Place = {1860, 120, 2520, 330}}, TextLines::Single, true};
  Button cmdBrowse{Surface, "cmdBrowse", {.Caption = "&Browse...", .Place = {4485, 90, 1530, 375}, .Visible = false}};

  Frame fraClasses{Surface, "fraClasses", {.Caption = "Classification", .Place = {120, 600, 5895, 2040}}};
  Label lblMethod{fraClasses, "lblMethod", {.Caption = "Method:", .Place = {150, 360, 1740, 240}}};
  TextBox txtMethod{fraClasses, "txtMethod", {.Place = {1950, 300, 2250, 330}}, TextLines::Single, true};
  Label lblRange{fraClasses, "lblRange", {.Caption = "Range:", .Place = {150, 780, 1740, 240}}};
  TextBox txtRange{fraClasses, "txtRange", {.Place = {1950, 720, 2250, 330}}, TextLines::Single, true};
  Label lblCount{fraClasses, "lblCount", {.Caption = "Classes:", .Place = {150, 1200, 1740, 240}}};
  TextBox txtCount{fraClasses, "txtCount", {.Place = {1950, 1140, 2250, 330}}, TextLines::Single, true};
  Label lblFormat{fraClasses, "lblFormat", {.Caption = "Value format:", .Place = {150, 1620, 1740, 240}}};
  TextBox txtFormat{fraClasses, "txtFormat", {.Place = {1950, 1560, 2250, 330}}, TextLines::Single, true};
  Button cmdClassify{
      fraClasses, "cmdClassify", {.Caption = "C&lassify...", .Place = {4290, 270, 1455, 375}, .Visible = false}};

  Button cmdOptions{
      Surface, "cmdOptions", {.Caption = "Data op&tions...", .Place = {120, 2820, 2850, 375}, .Visible = false}};
  Button cmdShade{
      Surface, "cmdShade", {.Caption = "&Relief shading...", .Place = {3165, 2820, 2850, 375}, .Visible = false}};
  Button cmdIsolines{
      Surface, "cmdIsolines", {.Caption = "&Isolines...", .Place = {120, 3330, 2850, 375}, .Visible = false}};
  Button cmdColors{
      Surface, "cmdColors", {.Caption = "Color sche&mes...", .Place = {3165, 3330, 2850, 375}, .Visible = false}};
  Button cmdDataStyle{
      Surface, "cmdDataStyle", {.Caption = "Data &style...", .Place = {120, 3840, 2850, 375}, .Visible = false}};

 protected:
  bool IsSupported() const override { return As<IData>(DataObject()) != nullptr; }
  void ShowValues() override;
  std::vector<std::string> Refused() const override;

 private:
  /// The data object behind the client, null when there is none.
  HostObject* DataObject() const;
  std::string MethodText() const;
  std::string RangeText() const;
  void ShowFile(const std::string& file);
  void ShowClasses();
  void ShowButtons();
  void cmdBrowse_Click();
  void cmdClassify_Click();
  void RequestChange(const Event<DataRequest&>& event);
  /// A dialog has written to the data: shows what they are now.
  void DataChanged(bool changed);

  std::int32_t mMethod = 0;
  double mMinimum = kUnknownRangeEnd;
  double mMaximum = kUnknownRangeEnd;
  std::int32_t mCount = 0;
  std::string mValueFormat = "General";

  Part<IData> mData{List(), Asked<IData>([this] { return As<IData>(DataObject()); })};
  Part<IClassification> mClasses{List(), Asked<IClassification>([this] { return As<IClassification>(DataObject()); })};
  using C = IClassification;
  /// Differs while the user has chosen a file that is not read yet.
  TextSetting mFile{txtFile, mData(&IData::FileName, &IData::FileName)};
  HeldSetting<std::int32_t> mClassMethod{mMethod, mClasses(&C::ClassifyMethod)};
  HeldSetting<double> mClassMinimum{mMinimum, mClasses(&C::MinValue)};
  HeldSetting<double> mClassMaximum{mMaximum, mClasses(&C::MaxValue)};
  HeldSetting<std::int32_t> mClassCount{mCount, mClasses(&C::NumberOfClasses)};
  HeldSetting<std::string> mClassFormat{mValueFormat, mClasses(&C::ValueFormat)};
};

}  // namespace orx::pages
