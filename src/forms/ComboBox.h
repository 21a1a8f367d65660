// A combo box: a drop-down list, or a text field with a list beside it.
#pragma once

#include "forms/ListControl.h"

namespace orx {

/// Whether the user can only pick one of the entries, or type any text as well.
enum class ComboStyle { DropDownList, Editable };

/// A field with a list that drops down.
class ComboBox final : public ListControl {
 public:
  /// As Control; the list is empty at first and the style is fixed.
  ComboBox(Container& parent, std::string name, Design design, ComboStyle style = ComboStyle::DropDownList)
      : ListControl(parent, std::move(name), std::move(design)), mStyle(style) {}

  /// The style that was given when the box was made.
  ComboStyle Style() const { return mStyle; }

  /// The text: of the selected entry, or as typed in an editable box.
  const std::string& Text() const { return mText; }
  /// Sets the text. An editable box raises Change when it differs; a drop-down list selects the entry with that text,
  /// or throws std::invalid_argument when there is none.
  void Text(const std::string& value);

  /// How often the user has picked an entry or edited the text, also to what was there before.
  int Edits() const override { return mEdits; }

  /// Raised when the text of an editable box is typed or set.
  Event<> Change;

  /// For desktops and test users: the user picks an entry, or types into an editable box. Picking the entry that is
  /// shown is a pick like any other, so that it raises Click.
  void UserPick(int index);
  void UserText(const std::string& text);
  void Accept(ControlVisitor& visitor) override;

 protected:
  void SelectionChanged() override { mText = ListIndex() < 0 ? std::string() : List(ListIndex()); }

 private:
  ComboStyle mStyle;
  std::string mText;
  int mEdits = 0;
};

}  // namespace orx
