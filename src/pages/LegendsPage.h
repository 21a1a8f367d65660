// The page for the legends of a map (ILegends): one is chosen from a list and edited below it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
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
  bool CheckTogether() override { return mFields.Check(); }
  void ReadClient() override;
  void ForgetClient() override { mLegends.clear(); }
  void ShowValues() override;
  void WriteClient() override;
  std::vector<std::string> Refused() const override;
  const Settings& Shown() const override { return mFields; }

 private:
  /// One legend as it is edited, and its settings with the host.
  struct Legend {
    /// `find` gives the host's legend.
    explicit Legend(std::function<ILegend*()> find) : Host(List, std::move(find)) {}

    std::string Title;
    bool Visible = false;
    std::int32_t Corner = 0;
    bool Framed = false;
    double TextSize = 0;

    Settings List{WriteRule::WhenEdited, KeepFault};
    Part<ILegend> Host;
    HeldSetting<std::string> HostTitle{Title, Host(&ILegend::Title, &ILegend::Title)};
    HeldSetting<bool> HostVisible{Visible, Host(&ILegend::Visible, &ILegend::Visible)};
    HeldSetting<std::int32_t> HostCorner{Corner, Host(&ILegend::Corner, &ILegend::Corner)};
    HeldSetting<bool> HostFramed{Framed, Host(&ILegend::Framed, &ILegend::Framed)};
    HeldSetting<double> HostTextSize{TextSize, Host(&ILegend::TextSize, &ILegend::TextSize)};
  };

  Legend* ShownLegend() { return mLegends.empty() ? nullptr : mLegends[mShown].get(); }
  void ShowLegend();
  void cboLegend_Click();
  void KeepEdits();
  /// The entry of a legend in the list: "2: Elevation".
  std::string Entry(std::size_t legend) const;

  std::vector<std::unique_ptr<Legend>> mLegends;
  std::size_t mShown = 0;
  bool mStartsUp = true;

  // What the fields show is the legend as it is edited; the host hears of it in WriteClient.
  Settings mFields{WriteRule::Always};
  Part<Legend> mLegend{mFields, [this] { return ShownLegend(); }};
  TextSetting mTitle{txtTitle, mLegend(&Legend::Title)};
  FlagSetting mVisible{chkVisible, mLegend(&Legend::Visible)};
  ChoiceSetting mCorner{cboCorner, mLegend(&Legend::Corner)};
  FlagSetting mFramed{chkFramed, mLegend(&Legend::Framed)};
  CheckedNumberSetting mTextSize{txtTextSize, mLegend(&Legend::TextSize), {kMinimumSize, kMaximumSize}};
};

}  // namespace orx::pages
