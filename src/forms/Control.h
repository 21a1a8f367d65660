// The base of all controls. A control is its state (text, place, enabled, ...); while its form has a window a desktop
// mirrors that state in a native control and reports what the user does.
#pragma once

#include <string>
#include <string_view>

#include "forms/Event.h"
#include "forms/Geometry.h"

namespace orx {

class Container;
class ControlVisitor;
class Form;

/// A part of a control's state, as a desktop is told of its change.
enum class Aspect { Place, Visible, Enabled, Text, Value, Items, Selection, Colors, ToolTip, Drawing, Accessible };

/// Whether a change may wait for its turn where changes reach the screen at a pace (see Form::PaceUpdates).
enum class Urgency { AtOnce, CanWait };

/// The native mirror of one control. A desktop makes one for each control when the form gets its window, and keeps it
/// until the window goes.
class ControlPeer {
 public:
  virtual ~ControlPeer() = default;
  /// Brings one aspect of the native control up to the state of the control.
  virtual void Update(Aspect aspect) = 0;
  /// Brings all aspects up to the state of the control.
  void UpdateAll();
  /// Gives the native control the keyboard focus, without reporting back.
  virtual void TakeFocus() = 0;
};

/// How a control is designed. Places are in twips, from the upper left corner of the parent's client area.
struct Design {
  std::string Caption = {};
  Rect Place = {};
  bool Enabled = true;
  bool Visible = true;
  bool TabStop = true;
  /// Keeps the control visible at the bottom of the window when the form is too high for the screen and scrolls.
  bool Pinned = false;
  std::string ToolTipText = {};
  /// What assistive software reads; empty: derived, see Control::AccessibleName.
  std::string AccessibleName = {};
};

/// State, place in the form and focus events that all controls share. Controls are members of their form or page, which
/// outlives them; the order of their declaration is the tab order and the drawing order.
class Control {
 public:
  /// Makes the control in `parent`. `name` is the name by which tests, translation and automation find it.
  Control(Container& parent, std::string name, Design design);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  /// The name and the container that were given when the control was made.
  const std::string& Name() const { return mName; }
  Container& Parent() const { return mParent; }
  /// The form that the control stands in.
  Form& OwnerForm() const;

  /// The caption, with "&" in front of the mnemonic letter; "&&" stands for an ampersand. UTF-8, as all texts.
  const std::string& Caption() const { return mDesign.Caption; }
  void Caption(const std::string& value);

  /// The place in twips, from the upper left corner of the parent's client area.
  const Rect& Place() const { return mDesign.Place; }
  void Place(const Rect& value);
  /// One edge, in twips; setting it moves the control.
  int Left() const { return mDesign.Place.Left; }
  void Left(int value);
  int Top() const { return mDesign.Place.Top; }
  void Top(int value);

  /// Whether the control itself is visible and takes input, whatever it stands in; see IsShown and IsReachable. When
  /// the focus can no longer stay, it goes to the next tab stop.
  bool Visible() const { return mDesign.Visible; }
  void Visible(bool value);
  bool Enabled() const { return mDesign.Enabled; }
  void Enabled(bool value);
  /// True when the control and all that it stands in are visible, an open tab included.
  bool IsShown() const;
  /// True when the user can work with the control: shown and enabled, as all that it stands in.
  bool IsReachable() const;

  /// The text that is shown while the mouse rests on the control; empty for none.
  const std::string& ToolTipText() const { return mDesign.ToolTipText; }
  void ToolTipText(const std::string& value);
  /// Whether the control stays in reach at the bottom while the form scrolls.
  bool Pinned() const { return mDesign.Pinned; }

  /// What assistive software reads for the control: the name given to it, else the caption that it shows, without the
  /// mnemonic mark, else the caption of the label in front of it, its tool tip, or the name of what it stands in.
  std::string AccessibleName() const;
  /// The name given to it, empty for none.
  const std::string& GivenName() const { return mDesign.AccessibleName; }
  void GivenName(const std::string& value);
  /// The mnemonic letter of the caption in lower case, 0 when there is none.
  char32_t Mnemonic() const;

  /// True when Tab may stop at the control (a reachable control that takes the focus).
  bool IsTabStop() const;
  /// True when the control can take the keyboard focus at all; labels, frames and panels cannot.
  virtual bool TakesFocus() const { return true; }
  /// False where the focus does not start when a form is shown, as long as another control can have it.
  virtual bool StartsFocus() const { return true; }
  /// Moves the focus here. Does nothing on a control that is not reachable while the form is shown.
  void SetFocus();
  /// True when the focus is here. The form need not be the active window.
  bool HasFocus() const;

  /// Raised when the focus has come to the control, and when it has left for another control of the form.
  Event<> GotFocus;
  Event<> LostFocus;

  /// What the mnemonic of the caption does; by default the focus comes here, or to the next control for a label.
  virtual void UserMnemonic();
  /// True for a control whose keys, F1 among them, have a handler of the form's.
  virtual bool HandlesKeys() const { return false; }
  /// False where the caption stands for a mnemonic only.
  virtual bool ShowsCaption() const { return true; }
  /// The children when the control is a container, else null.
  virtual Container* AsContainer() { return nullptr; }
  /// Calls the Visit of the control's kind.
  virtual void Accept(ControlVisitor& visitor) = 0;

  /// For desktops: the native mirror, null while the form has no window. The desktop owns it.
  ControlPeer* Peer() const { return mPeer; }
  void Peer(ControlPeer* value) { mPeer = value; }

 protected:
  /// Tells the native mirror, when there is one.
  void Changed(Aspect aspect, Urgency urgency = Urgency::AtOnce);
  /// Runs when the control was moved or sized.
  virtual void Placed() {}
  /// The state that all kinds of controls share, as it is now.
  const Design& Drawn() const { return mDesign; }

 private:
  Container& mParent;
  std::string mName;
  Design mDesign;
  ControlPeer* mPeer = nullptr;
};

/// `caption` without mnemonic marks.
std::string WithoutMnemonic(std::string_view caption);
/// The caption without a mnemonic that shows `text`.
std::string AsCaption(std::string_view text);

}  // namespace orx
