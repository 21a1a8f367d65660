// The dialog that gives a map its place on the ground: the left, right and bottom edges are typed, the top one follows.
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

/// Keeps the ratio of width to height that the edges have when the form is loaded: whichever edge is typed, the top one
/// moves. An edge that the user leaves alone stays exactly the number that was given, and the top one does until
/// another edge is typed.
class frmGeoreference final : public OkCancelForm {
 public:
  explicit frmGeoreference(Desktop& desktop);

  /// The edges in the map's own unit: given before the form is loaded, in such a way that they enclose a width and a
  /// height, and taken back after OK. Left and Top are the place of the window.
  double LeftEdge() const { return mLeft; }
  void LeftEdge(double value) { mLeft = value; }
  double RightEdge() const { return mRight; }
  void RightEdge(double value) { mRight = value; }
  double BottomEdge() const { return mBottom; }
  void BottomEdge(double value) { mBottom = value; }
  double TopEdge() const { return mTop; }
  void TopEdge(double value) { mTop = value; }
  // An OK that was refused counts as cancelled, and so does a form that is unloaded, as by its close box.

  static constexpr int kEdges = 4;
  Frame fraGeoreference{*this, "fraGeoreference", {.Place = {120, 90, 4590, 2955}}};
  /// Each edge in a row of its own, so that its label stands right in front of its field and gives it its name.
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
  /// Tells that the ratio is kept; the user has no say in it.
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
  // Places in each row.
  static constexpr Rect kLabel{0, 60, 1110, 240};
  static constexpr Rect kField{1200, 0, 3090, 330};

  void txtInput_GotFocus(int index);
  void txtInput_LostFocus(int index);
  /// Makes a typed number the edge of that index; a top edge is not kept. Then the top edge follows. False, and nothing
  /// is changed, when there is no such top edge.
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
  /// The text, without blanks around it, that the field with the focus had when the focus came.
  std::string mTextOnEntry;
};

}  // namespace orx
