// The window for colour schemes: a list of schemes, four tools and five basic colours. It shows the layout only;
// nothing but OK and Cancel acts.
#pragma once

#include "dialogframe/Glyphs.h"
#include "dialogframe/OkCancelForm.h"
#include "forms/Button.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/PictureBox.h"

namespace orx {

/// Reads and writes no host object.
class frmManageColors final : public OkCancelForm {
 public:
  explicit frmManageColors(Desktop& desktop);

  ListBox lstScheme{*this, "lstScheme", {.Place = {120, 120, 2940, 2880}, .AccessibleName = "Color schemes"}};
  Button cmdNew{*this, "cmdNew", {.Place = {3180, 120, 480, 450}, .ToolTipText = "New scheme"}, glyphs::kPage};
  Button cmdSave{*this, "cmdSave", {.Place = {3180, 690, 480, 450}, .ToolTipText = "Save scheme"}, glyphs::kDisk};
  Button cmdRemove{
      *this, "cmdRemove", {.Place = {3180, 1260, 480, 450}, .ToolTipText = "Remove scheme"}, glyphs::kCross};
  Button cmdProperties{
      *this, "cmdProperties", {.Place = {3180, 1830, 480, 450}, .ToolTipText = "Scheme properties"}, glyphs::kSheet};

  Frame fraBasicColor{*this, "fraBasicColor", {.Caption = " &Basic Colors ", .Place = {3780, 60, 2340, 2940}}};
  /// The markers of the chosen colours, each beside its box.
  Label CheckColor[5]{
      {fraBasicColor, "CheckColor(1)", {.Caption = kMarker, .Place = MarkPlace(0)}},
      {fraBasicColor, "CheckColor(2)", {.Caption = kMarker, .Place = MarkPlace(1)}},
      {fraBasicColor, "CheckColor(3)", {.Caption = kMarker, .Place = MarkPlace(2)}},
      {fraBasicColor, "CheckColor(4)", {.Caption = kMarker, .Place = MarkPlace(3)}},
      {fraBasicColor, "CheckColor(5)", {.Caption = kMarker, .Place = MarkPlace(4)}},
  };
  PictureBox BasicColor[5]{
      {fraBasicColor, "BasicColor(1)", {.Place = ColorPlace(0)}, {192, 0, 0}},
      {fraBasicColor, "BasicColor(2)", {.Place = ColorPlace(1)}, {255, 192, 0}},
      {fraBasicColor, "BasicColor(3)", {.Place = ColorPlace(2)}, {255, 255, 128}},
      {fraBasicColor, "BasicColor(4)", {.Place = ColorPlace(3)}, {0, 160, 80}},
      {fraBasicColor, "BasicColor(5)", {.Place = ColorPlace(4)}, {0, 96, 192}},
  };
  OKButton cmdOK{*this};
  CancelButton cmdCancel{*this};

 private:
  /// A bullet.
  static constexpr const char* kMarker = "\xE2\x80\xA2";
  static constexpr Rect MarkPlace(int row) { return {180, 420 + 495 * row, 390, 240}; }
  static constexpr Rect ColorPlace(int row) { return {600, 360 + 495 * row, 1560, 360}; }
};

}  // namespace orx
