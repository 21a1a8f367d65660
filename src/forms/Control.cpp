#include "forms/Control.h"

#include <algorithm>

#include "forms/Form.h"
#include "forms/Label.h"
#include "text/Utf8Text.h"

namespace orx {

void ControlPeer::UpdateAll() {
  // A list needs its entries before it can show which of them is selected.
  for (const Aspect aspect :
       {Aspect::Items, Aspect::Text, Aspect::Value, Aspect::Selection, Aspect::Colors, Aspect::Place, Aspect::Enabled,
        Aspect::Visible, Aspect::ToolTip, Aspect::Drawing, Aspect::Accessible})
    Update(aspect);
}

std::string WithoutMnemonic(std::string_view caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    text += caption[i];
  }
  return text;
}

std::string AsCaption(std::string_view text) {
  std::string caption;
  for (const char letter : text) caption += letter == '&' ? "&&" : std::string(1, letter);
  return caption;
}

Control::Control(Container& parent, std::string name, Design design)
    : mParent(parent), mName(std::move(name)), mDesign(std::move(design)) {
  mParent.Add(*this);
}

Control::~Control() {
  Form& form = OwnerForm();
  if (mPeer) form.DropWindow();
  if (form.mActive == this) form.mActive = nullptr;
  mParent.Remove(*this);
}

Form& Control::OwnerForm() const {
  return mParent.ContainingForm();
}

void Control::Changed(Aspect aspect, Urgency urgency) {
  Form& form = OwnerForm();
  form.OwnerDesktop().RequireThread();
  if (mPeer && !form.TakesOver(*this, aspect, urgency)) mPeer->Update(aspect);
}

void Control::Caption(const std::string& value) {
  if (mDesign.Caption == value) return;
  mDesign.Caption = value;
  Changed(Aspect::Text);
  // A label gives the control behind it its name.
  const std::vector<Control*>& siblings = mParent.Children();
  const auto self = std::find(siblings.begin(), siblings.end(), this);
  if (self != siblings.end() && self + 1 != siblings.end()) (*(self + 1))->Changed(Aspect::Accessible);
}

void Control::Place(const Rect& value) {
  if (mDesign.Place == value) return;
  mDesign.Place = value;
  Changed(Aspect::Place);
  Placed();
}

void Control::Left(int value) {
  Place({value, Top(), mDesign.Place.Width, mDesign.Place.Height});
}

void Control::Top(int value) {
  Place({Left(), value, mDesign.Place.Width, mDesign.Place.Height});
}

void Control::Visible(bool value) {
  if (mDesign.Visible == value) return;
  mDesign.Visible = value;
  Changed(Aspect::Visible);
  OwnerForm().LeaveUnreachable();
}

void Control::Enabled(bool value) {
  if (mDesign.Enabled == value) return;
  mDesign.Enabled = value;
  Changed(Aspect::Enabled);
  OwnerForm().LeaveUnreachable();
}

void Control::ToolTipText(const std::string& value) {
  mDesign.ToolTipText = value;
  Changed(Aspect::ToolTip);
}

void Control::GivenName(const std::string& value) {
  mDesign.AccessibleName = value;
  Changed(Aspect::Accessible);
}

bool Control::IsShown() const {
  const Control* const outer = mParent.ContainerControl();
  return mDesign.Visible && mParent.ShowsChildren() && (!outer || outer->IsShown());
}

bool Control::IsReachable() const {
  const Control* const outer = mParent.ContainerControl();
  return mDesign.Enabled && IsShown() && (outer ? outer->IsReachable() : OwnerForm().Enabled());
}

bool Control::IsTabStop() const {
  return TakesFocus() && mDesign.TabStop && IsReachable();
}

void Control::SetFocus() {
  Form& form = OwnerForm();
  if (form.Visible()) {
    form.MoveFocus(*this);
  } else {
    form.mActive = this;
  }
}

bool Control::HasFocus() const {
  return OwnerForm().ActiveControl() == this;
}

std::string Control::AccessibleName() const {
  if (!mDesign.AccessibleName.empty()) return mDesign.AccessibleName;
  if (ShowsCaption() && !mDesign.Caption.empty()) return WithoutMnemonic(mDesign.Caption);
  const std::vector<Control*>& siblings = mParent.Children();
  const auto self = std::find(siblings.begin(), siblings.end(), this);
  if (self != siblings.begin() && self != siblings.end())
    if (const auto* label = dynamic_cast<const Label*>(*(self - 1))) return WithoutMnemonic(label->Caption());
  if (!mDesign.ToolTipText.empty()) return mDesign.ToolTipText;
  const Control* const outer = mParent.ContainerControl();
  return outer ? outer->AccessibleName() : std::string();
}

char32_t Control::Mnemonic() const {
  const std::string& caption = mDesign.Caption;
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] != '&') return LowerCase(FirstCharacter(std::string_view(caption).substr(i + 1)));
    ++i;
  }
  return 0;
}

void Control::UserMnemonic() {
  Form& form = OwnerForm();
  if (TakesFocus()) {
    form.UserAct([&] { form.MoveFocus(*this); });
    return;
  }
  const std::vector<Control*> all = form.All();
  const auto behind = std::find_if(std::find(all.begin(), all.end(), this), all.end(),
                                   [](const Control* control) { return control->IsTabStop(); });
  if (behind != all.end()) form.UserAct([&] { form.MoveFocus(**behind); });
}

}  // namespace orx
