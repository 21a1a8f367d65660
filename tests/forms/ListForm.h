// A form with a list of which one entry can be selected, and one of which several can.
#pragma once

#include "tests/forms/SampleForm.h"

namespace orx::test {

struct ListForm final : Form {
  ListForm(Desktop& desktop, Events& log)
      : Form(desktop, "frmList", {.Caption = "List", .Client = {6000, 4200}}), Log(log) {
    for (ListBox* const list : {&lstOne, &lstSome}) {
      for (const char* const name : {"Ash", "Birch", "Beech", "Cedar"}) list->AddItem(name, list->ListCount() * 10);
      list->Click = [this, list] { Log.push_back("Click(" + std::to_string(list->ListIndex()) + ")"); };
      list->DblClick = [this, list] { Log.push_back("DblClick(" + std::to_string(list->ListIndex()) + ")"); };
    }
    txtOther.LostFocus = [this] {
      if (Refuses) txtOther.SetFocus();
    };
  }

  Events& Log;
  bool Refuses = false;
  TextBox txtOther{*this, "txtOther", {.Place = {120, 120, 1800, 330}, .AccessibleName = "Other"}};
  ListBox lstOne{*this, "lstOne", {.Place = {120, 600, 2400, 1800}, .AccessibleName = "One"}};
  ListBox lstSome{
      *this, "lstSome", {.Place = {2700, 600, 2400, 1800}, .AccessibleName = "Some"}, ListSelection::Several};
};

}  // namespace orx::test
