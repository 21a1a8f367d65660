// The prompt for a missing file: browse for another one, skip this one, or skip all the rest.
#pragma once

#include <string>

#include "dialogframe/DialogForm.h"
#include "dialogframe/FileChoice.h"
#include "forms/Button.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"

namespace orx {

class frmMsgBox final : public DialogForm {
 public:
  /// For a layer; without a file, a message or a caption.
  explicit frmMsgBox(Desktop& desktop);

  /// The path of the missing file, UTF-8.
  const std::string& FileName() const { return mFileName; }
  void FileName(const std::string& value) { mFileName = value; }
  /// True if the user wants to skip all other missing files as well.
  bool CancelAll() const { return mCancelAll; }
  /// The path that the user chose instead; empty for none.
  const std::string& NewFileName() const { return mNewFileName; }
  /// The message, set before the form is loaded. An empty one becomes "File not found...".
  const std::string& Message() const { return mMessage; }
  void Message(const std::string& value) { mMessage = value; }
  /// The title, set before the form is loaded. An empty one becomes the library's name.
  const std::string& Caption() const { return mCaption; }
  void Caption(const std::string& value) { mCaption = value; }
  /// What kind of file is missing, which decides the filters that Browse offers.
  modDialog::FileKind Kind() const { return mKind; }
  void Kind(modDialog::FileKind value) { mKind = value; }

  PictureBox imgIcon{*this, "imgIcon", {.Place = {180, 180, 480, 480}}};
  Label lblMsg{*this, "lblMsg", {.Caption = "Message...", .Place = {840, 180, 5640, 1020}}, Alignment::Left, true};
  Button cmdBrowse{
      *this, "cmdBrowse", {.Caption = "&Browse...", .Place = {1770, 1320, 1500, 375}}, ButtonRole::Default};
  Button cmdCancel{*this, "cmdCancel", {.Caption = "&Cancel", .Place = {3375, 1320, 1500, 375}}, ButtonRole::Cancel};
  Button cmdCancelAll{*this, "cmdCancelAll", {.Caption = "Cancel &All", .Place = {4980, 1320, 1500, 375}}};
  Button cmdHelp{*this, "cmdHelp", {.Caption = "&Help", .Place = {120, 1320, 1500, 375}}};

 protected:
  void Fill() override;
  void Ready() override;

 private:
  void ShowMessageText();
  void cmdBrowse_Click();

  modDialog::FileKind mKind = modDialog::FileKind::Layers;
  std::string mFileName;
  std::string mMessage;
  std::string mCaption;
  std::string mNewFileName;
  bool mCancelAll = false;
};

}  // namespace orx
