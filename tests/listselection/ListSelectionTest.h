// The fixture of the list selection dialog, as the service opens it.
#pragma once

#include "pickers/frmListSelection.h"
#include "service/CCommonMapDialogs.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {

class ListSelectionTest : public DesktopTest {
 protected:
  using Indexes = std::vector<std::int32_t>;

  /// What the host hands over.
  struct Task {
    TextArray Items{{"Roads", "Rivers", "Towns", "Relief"}, 1};
    bool Several = false;
    std::int32_t ListIndex = 0;
    std::string Caption = "Select Layer";
    bool Asks = false;
    std::string Question = "Remove what is selected?";
  };

  /// Opens the dialog, where the user does `acts`, which close it; gives the result.
  template <class Acts>
  std::int32_t Ask(const Task& task, Acts acts) {
    script.ExpectForm("frmListSelection", [this, acts](Form& shown) {
      form = dynamic_cast<frmListSelection*>(&shown);
      acts();
      form = nullptr;
    });
    return Show(task);
  }
  std::int32_t Show(const Task& task) {
    return service.ShowListSelection(task.Items, task.Several, task.ListIndex, task.Caption, task.Asks, task.Question,
                                     selected);
  }

  ListBox& List() { return form->lstSingleSelect.Visible() ? form->lstSingleSelect : form->lstMultiSelect; }
  /// What the list shows, in the order of its rows.
  std::vector<std::string> Entries() {
    std::vector<std::string> texts;
    for (int row = 0; row < List().ListCount(); ++row) texts.push_back(List().List(row));
    return texts;
  }
  void OK() { user.Click(form->cmdOK); }
  void Cancel() { user.Click(form->cmdCancel); }
  void ExpectQuestion(const Task& task, MessageAnswer answer) {
    script.ExpectMessage({task.Question, task.Caption, MessageIcon::Exclamation, MessageButtons::YesNo}, answer);
  }

  /// What the host has in its array before the call.
  const Indexes kBefore{77};
  Indexes selected = kBefore;
  CallLog log;
  RecordingPages pages{log};
  CCommonMapDialogs service{desktop(), pages};
  frmListSelection* form = nullptr;
};

}  // namespace orx::test
