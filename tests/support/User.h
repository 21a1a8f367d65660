// What a person does with a dialog and sees of it, the same on every desktop. Headless acts on the controls, the other
// desktops send real input events to the native controls and read those back.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Desktop.h"
#include "forms/DesktopHook.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/PictureBox.h"
#include "forms/ProgressBar.h"
#include "forms/Requests.h"
#include "forms/TabControl.h"
#include "forms/TextBox.h"
#include "forms/TreeList.h"

namespace orx::test {

/// What the screen shows of a control.
struct Seen {
  bool Visible = false;
  bool Enabled = false;
  bool Focused = false;
  /// Caption or text; of a list that of the current entry or row, of a tab control the caption of the selected tab.
  std::string Text;
  /// Check state, index of the current entry, row or tab, filled pixels of a bar; otherwise 0.
  int Value = 0;
  bool operator==(const Seen&) const = default;
};

/// Files that the user picks in the platform's dialog.
struct Picked {
  /// As the platform writes it.
  std::string Folder;
  std::vector<std::string> Names;
  /// The filter that the user selects first, counted from 1; 0: none.
  int Filter = 0;
};

class User {
 public:
  virtual ~User() = default;
  virtual void Click(Button& button) = 0;
  virtual void Toggle(CheckBox& box) = 0;
  /// Clicks into a control that takes the focus.
  virtual void ClickInto(Control& control) = 0;
  /// Clicks into the field, selects all and types the text.
  virtual void Type(TextBox& field, const std::string& text) = 0;
  virtual void Type(ComboBox& box, const std::string& text) = 0;
  /// Clicks into the field, selects all and pastes the text over it in one step.
  virtual void Paste(TextBox& field, const std::string& text) = 0;
  virtual void Paste(ComboBox& box, const std::string& text) = 0;
  /// Opens the list and goes to an entry by keys.
  virtual void Choose(ComboBox& box, int index) = 0;
  /// Opens the list and clicks on an entry.
  virtual void Pick(ComboBox& box, int index) = 0;
  /// Goes to an entry by keys, from the first one on.
  virtual void Choose(ListBox& box, int index) = 0;
  /// Clicks on an entry that can be scrolled to, once or twice.
  virtual void Click(ListBox& box, int row) = 0;
  virtual void DoubleClick(ListBox& box, int row) = 0;
  virtual void Click(PictureBox& box) = 0;
  /// Clicks at a pixel of the box, once or twice.
  virtual void ClickAt(PictureBox& box, Point at) = 0;
  virtual void DoubleClickAt(PictureBox& box, Point at) = 0;
  /// Presses a key where the focus is, by its code (forms/Keys.h).
  virtual void PressKey(Form& form, int keyCode) = 0;
  /// Clicks on a row that can be seen or scrolled to, or on the mark before it that folds it.
  virtual void Click(TreeList& list, int row) = 0;
  virtual void Fold(TreeList& list, int row) = 0;
  /// Types characters where the focus is.
  virtual void TypeCharacters(Form& form, const std::string& text) = 0;
  /// Presses the mouse in the middle of the window, so many pixels above its lower edge, drags and releases it.
  virtual void DragFromBottom(Form& form, int above, int by) = 0;
  virtual void SelectTab(TabControl& tabs, int tab) = 0;
  /// Presses a dialog key where the focus is in that form.
  virtual void Press(Form& form, const KeyStroke& stroke) = 0;
  virtual void CloseBox(Form& form) = 0;
  /// Picks files in the dialog for files that is open, or presses its Cancel.
  virtual void PickFiles(OpenFileRequest& request, const Picked& files) = 0;
  virtual void CancelFiles(OpenFileRequest& request) = 0;
  /// Picks a colour in the dialog for colours that is open, or presses its Cancel.
  virtual void PickColor(ColorRequest& request, Color color) = 0;
  virtual void CancelColor(ColorRequest& request) = 0;
  /// Picks a font and its colour in the dialog for fonts that is open, or presses its Cancel.
  virtual void PickFont(FontRequest& request, const ColoredFont& font) = 0;
  virtual void CancelFont(FontRequest& request) = 0;
  /// Presses a button of the message box that is open.
  virtual void AnswerMessage(const Modal& box, MessageAnswer answer) = 0;
  virtual Seen See(Control& control) = 0;
  /// The texts of all rows that are not folded away, whether scrolled to or not.
  virtual std::vector<std::string> SeeRows(TreeList& list) = 0;
  /// True when the row is in view.
  virtual bool SeesRow(TreeList& list, int row) = 0;
  /// The entries that the screen shows as selected, and whether one is in view.
  virtual std::set<int> SeeSelected(ListBox& box) = 0;
  virtual bool SeesRow(ListBox& box, int row) = 0;
  /// The title that the form's window shows.
  virtual std::string SeeCaption(Form& form) = 0;
};

/// A desktop under test with its user.
class TestDesktop {
 public:
  virtual ~TestDesktop() = default;
  virtual Desktop& Get() = 0;
  virtual User& Person() = 0;
  /// How many acts in a row a test may ask of this user, depending on its speed.
  virtual int Patience() const { return 10000; }
  /// True when dialogs cost next to nothing, so that a test may open thousands of them.
  virtual bool IsQuick() const { return false; }
  /// True when an act takes some hundredths of a second.
  bool IsSlow() const { return Patience() < 10000; }
  /// True when the native windows around the dialogs are as a host wants them: none is disabled, or kept from the user.
  virtual bool IsHostInOrder() { return true; }
  /// The number of objects of the platform that are in use: pens and fonts, or widgets.
  virtual int NativeObjects() { return 0; }
  /// Gives the number separators of the user's locale for this test.
  virtual void Separators(const numbers::Separators& value) = 0;
};

/// Made by the desktop that the test program is linked with.
std::unique_ptr<TestDesktop> MakeTestDesktop();

inline constexpr KeyStroke kTab{Key::Tab, 0, false, false};
inline constexpr KeyStroke kShiftTab{Key::Tab, 0, true, false};
inline constexpr KeyStroke kEnter{Key::Enter, 0, false, false};
inline constexpr KeyStroke kEscape{Key::Escape, 0, false, false};
inline KeyStroke AltKey(char32_t letter) {
  return {Key::Character, letter, false, true};
}

}  // namespace orx::test
