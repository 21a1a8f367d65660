// A form with every kind of control, and a list of what happened in it.
#pragma once

#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "tests/support/DesktopTest.h"

namespace orx::test {

using Events = std::vector<std::string>;

struct SampleForm final : Form {
  explicit SampleForm(Desktop& desktop, Events& log)
      : Form(desktop, "frmSample", {.Caption = "Sample", .Client = {6000, 5400}}), Log(log) {
    for (Control* control : All()) {
      control->GotFocus = [this, control] { Log.push_back(control->Name() + "_GotFocus"); };
      control->LostFocus = [this, control] { Log.push_back(control->Name() + "_LostFocus"); };
    }
    txtName.Change = [this] { Log.push_back("txtName_Change"); };
    txtSize.Change = [this] { Log.push_back("txtSize_Change"); };
    chkShow.Click = [this] { Log.push_back("chkShow_Click"); };
    cboKind.Click = [this] { Log.push_back("cboKind_Click"); };
    cboFree.Click = [this] { Log.push_back("cboFree_Click"); };
    cboFree.Change = [this] { Log.push_back("cboFree_Change"); };
    ssTab.Click = [this](int before) { Log.push_back("ssTab_Click(" + std::to_string(before) + ")"); };
    cmdOK.Click = [this] { Log.push_back("cmdOK_Click"); };
    cmdCancel.Click = [this] { Log.push_back("cmdCancel_Click"); };
    for (const char* kind : {"Points", "Lines", "Areas"}) cboKind.AddItem(kind, 10 * cboKind.ListCount());
    for (const char* text : {"one", "two"}) cboFree.AddItem(text);
  }

  Events& Log;

  Label lblName{*this, "lblName", {.Caption = "&Name:", .Place = {120, 120, 1200, 240}}};
  TextBox txtName{*this, "txtName", {.Place = {1440, 120, 2400, 330}}};
  TextBox txtSize{*this, "txtSize", {.Place = {3960, 120, 1200, 330}, .AccessibleName = "Size"}};
  CheckBox chkShow{*this, "chkShow", {.Caption = "&Show", .Place = {120, 600, 2400, 330}}};
  ComboBox cboKind{*this, "cboKind", {.Place = {120, 1080, 2400, 330}, .AccessibleName = "Kind"}};
  ComboBox cboFree{
      *this, "cboFree", {.Place = {2640, 1080, 2400, 330}, .AccessibleName = "Free"}, ComboStyle::Editable};
  TabControl ssTab{*this, "ssTab", {.Place = {120, 1560, 5700, 3000}}, {"First", "Second"}};
  Frame fraFirst{ssTab.Page(0), "fraFirst", {.Caption = "Fra&me", .Place = {60, 60, 2700, 1500}}};
  TextBox txtFirst{fraFirst, "txtFirst", {.Place = {120, 360, 1200, 330}}};
  PictureBox pctSecond{ssTab.Page(1), "pctSecond", {.Place = {60, 60, 900, 600}}};
  TextBox txtSecond{ssTab.Page(1), "txtSecond", {.Place = {1200, 60, 1200, 330}, .AccessibleName = "Second"}};
  Button cmdOK{
      *this, "cmdOK", {.Caption = "&OK", .Place = {3120, 4680, 1275, 375}, .Pinned = true}, ButtonRole::Default};
  Button cmdCancel{
      *this, "cmdCancel", {.Caption = "&Cancel", .Place = {4500, 4680, 1275, 375}, .Pinned = true}, ButtonRole::Cancel};

  int Loads = 0;
  int Resizes = 0;
  int Unloads = 0;

 protected:
  void Form_Load() override { ++Loads; }
  void Form_Resize() override { ++Resizes; }
  void Form_Unload() override { ++Unloads; }
};

class FormsTest : public DesktopTest {
 protected:
  ~FormsTest() override { form->Unload(); }

  /// Shows the form modeless, with nothing in the list of events.
  void ShowForm() {
    form->Show(ShowMode::Modeless);
    events.clear();
  }
  Events NewEvents() { return std::exchange(events, {}); }

  Events events;
  std::shared_ptr<SampleForm> form = std::make_shared<SampleForm>(desktop(), events);
};

}  // namespace orx::test
