// Tells the kinds of controls apart. A desktop uses it to make the native mirror of each kind, so that the compiler
// reports a kind that a desktop has forgotten.
#pragma once

namespace orx {

class Button;
class CheckBox;
class ComboBox;
class Frame;
class Label;
class ListBox;
class NativeArea;
class Panel;
class PictureBox;
class ProgressBar;
class TabControl;
class TextBox;
class TreeList;

/// One member for each kind of control; Control::Accept calls the one that fits.
class ControlVisitor {
 public:
  virtual ~ControlVisitor() = default;
  /// Called with the control that was asked to accept.
  virtual void Visit(Button& control) = 0;
  virtual void Visit(CheckBox& control) = 0;
  virtual void Visit(ComboBox& control) = 0;
  virtual void Visit(Frame& control) = 0;
  virtual void Visit(Label& control) = 0;
  virtual void Visit(ListBox& control) = 0;
  virtual void Visit(NativeArea& control) = 0;
  virtual void Visit(Panel& control) = 0;
  virtual void Visit(PictureBox& control) = 0;
  virtual void Visit(ProgressBar& control) = 0;
  virtual void Visit(TabControl& control) = 0;
  virtual void Visit(TextBox& control) = 0;
  virtual void Visit(TreeList& control) = 0;
};

}  // namespace orx
