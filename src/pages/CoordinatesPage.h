// The page for the extent of a layer or a map (IExtent, or the extent of an IMap): four edges and what they enclose.
#pragma once

#include "forms/Button.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "hostobjects/IMap.h"
#include "pages/PageBase.h"

namespace orx::pages {

/// Drawn for a panel of 6135 x 4545 twips. Opposite edges are compared when the focus leaves the two (NumberSpan), so
/// an extent can be moved by typing one edge after the other; an extent without width or height is refused. The edges
/// are written so that the client's extent is in order at each step. For a map the page asks for the georeference
/// dialog, which writes to the map by itself; what it changed counts as changed at once, and takes the place of pending
/// edits.
class CoordinatesPage final : public PageBase {
 public:
  explicit CoordinatesPage(const PageSite& site);

  Frame fraHorizontal{Surface, "fraHorizontal", {.Caption = "West to east", .Place = {120, 120, 5895, 1725}}};
  Label lblLeft{fraHorizontal, "lblLeft", {.Caption = "&Left:", .Place = {150, 420, 1500, 240}}};
  TextBox txtLeft{fraHorizontal, "txtLeft", {.Place = {1740, 360, 3000, 330}}};
  Label lblRight{fraHorizontal, "lblRight", {.Caption = "&Right:", .Place = {150, 840, 1500, 240}}};
  TextBox txtRight{fraHorizontal, "txtRight", {.Place = {1740, 780, 3000, 330}}};
  Label lblWidth{fraHorizontal, "lblWidth", {.Caption = "Wi&dth:", .Place = {150, 1260, 1500, 240}}};
  TextBox txtWidth{fraHorizontal, "txtWidth", {.Place = {1740, 1200, 3000, 330}}, TextLines::Single, true};

  Frame fraVertical{Surface, "fraVertical", {.Caption = "South to north", .Place = {120, 1965, 5895, 1725}}};
  Label lblBottom{fraVertical, "lblBottom", {.Caption = "&Bottom:", .Place = {150, 420, 1500, 240}}};
  TextBox txtBottom{fraVertical, "txtBottom", {.Place = {1740, 360, 3000, 330}}};
  Label lblTop{fraVertical, "lblTop", {.Caption = "&Top:", .Place = {150, 840, 1500, 240}}};
  TextBox txtTop{fraVertical, "txtTop", {.Place = {1740, 780, 3000, 330}}};
  Label lblHeight{fraVertical, "lblHeight", {.Caption = "Hei&ght:", .Place = {150, 1260, 1500, 240}}};
  TextBox txtHeight{fraVertical, "txtHeight", {.Place = {1740, 1200, 3000, 330}}, TextLines::Single, true};

  Label lblUnit{
      Surface,
      "lblUnit",
      {.Caption = "All values are in the unit of the map: degrees or meters.", .Place = {120, 3765, 3600, 660}},
      Alignment::Left,
      true};
  Button cmdGeoreference{
      Surface, "cmdGeoreference", {.Caption = "Geore&ference...", .Place = {3840, 3825, 2175, 375}, .Visible = false}};

 protected:
  bool IsSupported() const override { return Extent() != nullptr; }
  void ShowValues() override;
  void WriteClient() override;
  bool CheckTogether() override { return mHorizontal.Check() && mVertical.Check(); }

 private:
  IExtent* Extent() const;
  void ShowSizes();
  void cmdGeoreference_Click();

  Part<IExtent> mExtent{List(), Asked<IExtent>([this] { return Extent(); })};
  CheckedNumberSetting mLeft{txtLeft, mExtent(&IExtent::Left, &IExtent::Left)};
  CheckedNumberSetting mRight{txtRight, mExtent(&IExtent::Right, &IExtent::Right)};
  CheckedNumberSetting mBottom{txtBottom, mExtent(&IExtent::Bottom, &IExtent::Bottom)};
  CheckedNumberSetting mTop{txtTop, mExtent(&IExtent::Top, &IExtent::Top)};
  NumberSpan mHorizontal{mLeft, mRight};
  NumberSpan mVertical{mBottom, mTop};
};

}  // namespace orx::pages
