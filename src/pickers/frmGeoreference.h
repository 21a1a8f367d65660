// The dialog for the extent of a map: the user types the left, right and bottom edges, and the top one follows.
#pragma once

#include <optional>
#include <string>

#include "dialogframe/OkCancelForm.h"
#include "forms/CheckBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/Panel.h"
#include "forms/TextBox.h"

namespace orx {

/// Keeps the ratio of width to height that the edges had when the form was loaded: whichever edge is typed, the top one
/// moves. An edge that the user leaves alone keeps exactly the number it was given, and so does the top edge until
/// another one is typed. A refused OK counts as cancelled, and so does unloading the form, as the close box does.
class frmGeoreference final : public OkCancelForm {
 public:
  explicit frmGeoreference(Desktop& desktop);

  /// The edges, in the map's own unit: set them before the form is loaded, to an extent with a width and a height, and
  /// read them after OK. (Left and Top are the place of the window.)
  double LeftEdge() const { return mLeft; }
  void LeftEdge(double value) { mLeft = value; }
  double RightEdge() const { return mRight; }
  void RightEdge(double value) { mRight = value; }
  double BottomEdge() const { return mBottom; }
  void BottomEdge(double value) { mBottom = value; }
  double TopEdge() const { return mTop; }
  void TopEdge(double value) { mTop = value; }

  static constexpr int kEdges = 4;
  Frame fraGeoreference{*this, "fraGeoreference", {.Place = {120, 90, 4590, 2955}}};
  /// One row per edge, so that each label comes right before its field and names it for assistive software.
  Panel Row[kEdges]{{fraGeoreference, "Row(0)", {.Place = {150, 210, 4290, 330}}},
                    {fraGeoreference, "Row(1)", {.Place = {150, 630, 4290, 330}}},
                    {fraGeoreference, "Row(2)", {.Place = {150, 1050, 4290, 330}}},
                    {fraGeoreference, "Row(3)", {.Place = {150, 1470, 4290, 330}}}};
  Label lblHelp[kEdges]{{Row[0], "lblHelp(0)", {.Caption = "Left", .Place = kLabel}},
                        {Row[1], "lblHelp(1)", {.Caption = "Right", .Place = kLabel}},
                        {Row[2], "lblHelp(2)", {.Caption = "Bottom", .Place = kLabel}},
                        {Row[3], "lblHelp(3)", {.Caption = "Top", .Place = kLabel}}};
  TextBox txtInput[kEdges]{{Row[0], "txtInput(0)", {.Place = kField}},
                           {Row[1], "txtInput(1)", {.Place = kField}},
                           {Row[2], "txtInput(2)", {.Place = kField}},
                           {Row[3], "txtInput(3)", {.Place = kField}}};
  /// Shows that the ratio is kept. The user cannot change it.
  CheckBox chkAspectRatio{fraGeoreference,
                          "chkAspectRatio",
                          {.Caption = "Keep aspect ratio", .Place = {1350, 1905, 3090, 300}, .Enabled = false},
                          CheckState::Grayed};
  OKButton cmdOK{*this, fraGeoreference, {.Place = {1335, 2430, 1500, 375}}};
  CancelButton cmdCancel{*this, fraGeoreference, {.Place = {2940, 2430, 1500, 375}}};

 protected:
  void Fill() override;
  bool Check() override;
  void Form_Unload() override;

 private:
  // Places within each row.
  static constexpr Rect kLabel{0, 60, 1110, 240};
  static constexpr Rect kField{1200, 0, 3090, 330};

  void txtInput_GotFocus(int index);
  void txtInput_LostFocus(int index);
  /// Takes a typed number as the edge of that index, unless it is the top one, and recalculates the top edge. Returns
  /// false and changes nothing if that is not finite.
  bool Take(int index, double value);

  double mLeft = 0;
  double mRight = 0;
  double mTop = 0;
  double mBottom = 0;
  /// Width to height.
  double mRatio = 1;
  /// As they were when the form was loaded.
  double mFirstWidth = 0;
  double mFirstBottom = 0;
  double mFirstTop = 0;
  /// The trimmed text that the focused field had when it got the focus.
  std::string mTextOnEntry;
};

}  // namespace orx
