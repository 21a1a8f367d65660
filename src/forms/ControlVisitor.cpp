// Each kind of control calls the visitor's member for its kind.
#include "forms/ControlVisitor.h"

#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/NativeArea.h"
#include "forms/Panel.h"
#include "forms/PictureBox.h"
#include "forms/ProgressBar.h"
#include "forms/TabControl.h"
#include "forms/TextBox.h"
#include "forms/TreeList.h"

namespace orx {

void Button::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void CheckBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void ComboBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void Frame::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void Label::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void ListBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void NativeArea::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void Panel::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void PictureBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void ProgressBar::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void TabControl::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void TextBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

void TreeList::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
