// The fields of the family: each binds one control to one value, and stands for exactly the value that it was given
// until the user edits it. They differ in the control, and in when an entry is looked at:
//
//   FlagField           a check box              bool
//   ChoiceField         a list of codes          the code, also one that the list lacks
//   ColorField          a colour box             Color
//   TextField           any text                 std::string
//   NumberField         a typed number           double; the dialog asks when it wants to know
//   CheckedNumberField  a typed number           double; checked, and refused, when the focus leaves
//   CheckedField        the base of the latter, for fields of other texts with rules
//   HeldValue           no control: a variable   any type
//
// All have Show (gives the value), Clear (there is none), Value, IsEdited and Box. A setting (SettingOf) is a field
// that also knows the property of the host's object that it edits.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "forms/Appearance.h"
#include "forms/TextEntry.h"

namespace orx {

class CheckBox;
class ListControl;
class PictureBox;

/// For fields that need nothing but their control.
struct NoRule {};

/// What a setting has to know of a field.
template <class Value, class ItsControl, class ItsRule = NoRule>
struct FieldTypes {
  /// The type of its value.
  using Type = Value;
  /// How it is given its control, as the first argument when it is made.
  using Shown = ItsControl;
  /// Its rule, the second one.
  using Rule = ItsRule;
};

/// A check box that is ticked or not.
class FlagField : public FieldTypes<bool, CheckBox&> {
 public:
  /// The box must live as long.
  explicit FlagField(CheckBox& box, NoRule = {}) : mBox(box) {}

  /// The control.
  CheckBox& Box() const { return mBox; }
  /// Ticks the box or not.
  void Show(bool value);
  /// Unticks the box.
  void Clear() { Show(false); }
  /// Whether the box is ticked now.
  bool Value() const;
  /// True when the box is other than shown.
  bool IsEdited() const { return Value() != mShown; }

 private:
  CheckBox& mBox;
  bool mShown = false;
};

/// How a list shows a code that it does not have.
struct ChoiceRule {
  /// The index of the entry that stands in for it; -1: none.
  int Otherwise = -1;
};

/// A list whose entries carry codes. It stands for the code that it was given until the user picks an entry, also for
/// a code that the list does not have. Picking the entry that is shown counts.
class ChoiceField : public FieldTypes<std::int32_t, ListControl&, ChoiceRule> {
 public:
  /// The list must live as long.
  explicit ChoiceField(ListControl& list, ChoiceRule rule = {}) : mList(list), mRule(rule) {}

  /// The control.
  ListControl& Box() const { return mList; }
  /// Selects the first entry with that code, else the one that stands in.
  void Show(std::int32_t code);
  /// Selects the entry that stands in; the field then stands for that entry's code.
  void Clear();
  /// The code that the list stands for; 0 when there is none.
  std::int32_t Value() const;
  /// True when an entry was picked since, or another one is selected than the one shown.
  bool IsEdited() const;

 private:
  /// What is selected now is what the field has been given.
  void TakeAsShown();

  ListControl& mList;
  ChoiceRule mRule;
  std::optional<std::int32_t> mCode;
  int mShown = -1;
  int mEdits = 0;
};

/// A box that shows a colour as its ground.
class ColorField : public FieldTypes<Color, PictureBox&> {
 public:
  /// The box must live as long.
  explicit ColorField(PictureBox& box, NoRule = {}) : mBox(box) {}

  /// The control.
  PictureBox& Box() const { return mBox; }
  /// Paints the box in that colour.
  void Show(Color value);
  /// Paints the box black.
  void Clear() { Show({}); }
  /// The colour of the box.
  Color Value() const;
  /// True when the box has another colour than shown.
  bool IsEdited() const { return Value() != mShown; }

 private:
  PictureBox& mBox;
  Color mShown;
};

/// A text of which nothing is refused.
class TextField : public FieldTypes<std::string, TextEntry> {
 public:
  /// The control must live as long.
  explicit TextField(TextEntry entry, NoRule = {}) : mEntry(entry) {}

  /// The control.
  Control& Box() const { return mEntry.Box(); }
  /// Shows the text.
  void Show(const std::string& value) { mEntry.Text(mShown = value); }
  /// Empties the control.
  void Clear() { Show({}); }
  /// The text as it is now.
  const std::string& Value() const { return mEntry.Text(); }
  /// True when the text is other than shown.
  bool IsEdited() const { return Value() != mShown; }

 private:
  TextEntry mEntry;
  std::string mShown;
};

/// A value that no control shows: a variable of the dialog or of its model.
template <class Held>
class HeldValue : public FieldTypes<Held, Held&> {
 public:
  /// The variable must live as long. What it holds now is what Clear brings back.
  explicit HeldValue(Held& variable, NoRule = {}) : mVariable(variable), mInitial(variable), mShown(variable) {}

  /// Sets the variable.
  void Show(const Held& value) { mVariable = mShown = value; }
  /// Gives the variable what it held at first.
  void Clear() { Show(mInitial); }
  /// The variable.
  const Held& Value() const { return mVariable; }
  /// True when the variable holds another value than shown.
  bool IsEdited() const { return !(mVariable == mShown); }

 private:
  Held& mVariable;
  Held mInitial;
  Held mShown;
};

}  // namespace orx
