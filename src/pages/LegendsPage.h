// The page for the legends of a map (ILegends): one is chosen from a list and edited below it.
#pragma once

#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/NumberField.h"
#include "forms/TextBox.h"
#include "hostobjects/IMap.h"
#include "pages/PageBase.h"
#include "pages/Preview.h"

namespace orx::pages {

/// Drawn for a panel of 5835 x 3525 twips. The legend of StartUpIndex (from 0) is shown first, the first one when there
/// is none of that index. Edits of all legends are kept while others are looked at, and written together.
class LegendsPage final : public PageBase {
 public:
  explicit LegendsPage(const PageSite& site);

  /// Also has the next RefreshContents show that legend.
  void StartUpIndex(std::int32_t value) override;
  using PageBase::StartUpIndex;
  void Client(HostObject* value) override;
  using PageBase::Client;

  Label lblLegend{Surface, "lblLegend", {.Caption = "&Legend:", .Place = {120, 180, 1620, 240}}};
  ComboBox cboLegend{Surface, "cboLegend", {.Place = {1860, 120, 3855, 330}}};

  Frame fraLegend{Surface, "fraLegend", {.Caption = "Selected legend", .Place = {120, 570, 5595, 2835}}};
  Label lblTitle{fraLegend, "lblTitle", {.Caption = "&Title:", .Place = {150, 420, 1500, 240}}};
  TextBox txtTitle{fraLegend, "txtTitle", {.Place = {1740, 360, 3705, 330}}};
  Label lblCorner{fraLegend, "lblCorner", {.Caption = "Co&rner:", .Place = {150, 840, 1500, 240}}};
  ComboBox cboCorner{fraLegend, "cboCorner", {.Place = {1740, 780, 2280, 330}}};
  Label lblTextSize{fraLegend, "lblTextSize", {.Caption = "Text &size:", .Place = {150, 1260, 1560, 240}}};
  TextBox txtTextSize{fraLegend, "txtTextSize", {.Place = {1740, 1200, 1080, 330}}};
  Label lblPoints{fraLegend, "lblPoints", {.Caption = "points", .Place = {2910, 1260, 1200, 240}}};
  CheckBox chkVisible{fraLegend, "chkVisible", {.Caption = "&Visible", .Place = {1740, 1680, 3705, 255}}};
  CheckBox chkFramed{fraLegend, "chkFramed", {.Caption = "With a &frame", .Place = {1740, 2070, 3705, 255}}};

 protected:
  bool IsSupported() const override;
  void ReadClient() override;
  void ForgetClient() override;
  void ShowValues() override;
  void WriteClient() override;

 private:
  struct Values {
    std::string Title;
    bool Visible = false;
    LegendCorner Corner = LegendCorner::TopLeft;
    bool Framed = false;
    double TextSize = 0;
  };

  void cboLegend_Click();
  void KeepEdits();
  void ShowLegend();
  /// The entry of a legend in the list: "2: Elevation".
  std::string Entry(std::size_t legend) const;

  NumberField mTextSize{txtTextSize, {.Minimum = kMinimumSize, .Maximum = kMaximumSize}};
  std::vector<Values> mRead;
  std::vector<Values> mEdited;
  std::size_t mShown = 0;
  bool mStartsUp = true;
};

}  // namespace orx::pages
