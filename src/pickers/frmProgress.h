// The progress of a long operation of the host, with a button to cancel it. The host shows and hides it.
#pragma once

#include <string>

#include "dialogframe/DialogForm.h"
#include "forms/Button.h"
#include "forms/Label.h"
#include "forms/ProgressBar.h"

namespace orx {

/// What a busy host sets reaches the screen without any events being handled, at most 60 times a second.
class frmProgress final : public DialogForm {
 public:
  explicit frmProgress(Desktop& desktop);

  /// True once the user has asked to cancel, until the form is loaded again.
  bool CancelAction() const { return mCancelAction; }
  /// The text of lblMsg as the user reads it, without a mnemonic; UTF-8.
  std::string Message() const { return WithoutMnemonic(lblMsg.Caption()); }
  void Message(const std::string& value) { lblMsg.Caption(AsCaption(value)); }

  Button cmdCancel{*this, "cmdCancel", {.Caption = "Cancel", .Place = {4020, 1230, 1500, 375}}, ButtonRole::Cancel};
  ProgressBar prgBar{*this, "prgBar", {.Place = {180, 795, 5340, 270}, .AccessibleName = "Progress"}};
  /// Two lines.
  Label lblMsg{*this, "lblMsg", {.Caption = "Message ...", .Place = {180, 180, 5340, 510}}, Alignment::Left, true};

 protected:
  void TakeLanguage() override;
  void Fill() override;
  void Form_Unload() override;
  bool Form_QueryUnload() override;

 private:
  void cmdCancel_Click();

  bool mCancelAction = false;
};

}  // namespace orx
