#include "forms/Control.h"

#include <algorithm>

#include "forms/Form.h"
#include "forms/Label.h"

namespace orx {
namespace {

/// The character at the start of a UTF-8 text, 0 when it is empty.
char32_t FirstCharacter(std::string_view text) {
  if (text.empty()) return 0;
  const auto byte = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
  if (byte(0) < 0x80) return byte(0);
  if (byte(0) < 0xE0) return ((byte(0) & 0x1FU) << 6) | (byte(1) & 0x3FU);
  if (byte(0) < 0xF0) return ((byte(0) & 0x0FU) << 12) | ((byte(1) & 0x3FU) << 6) | (byte(2) & 0x3FU);
  return ((byte(0) & 0x07U) << 18) | ((byte(1) & 0x3FU) << 12) | ((byte(2) & 0x3FU) << 6) | (byte(3) & 0x3FU);
}

/// Lower case of the alphabets that dialog texts are written in: Latin, Greek, Cyrillic.
char32_t Lower(char32_t c) {
  const bool plain = (c >= U'A' && c <= U'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
  const bool greekOrCyrillic = (c >= 0x391 && c <= 0x3A9) || (c >= 0x410 && c <= 0x42F);
  if (plain || greekOrCyrillic) return c + 32;
  return c >= 0x400 && c <= 0x40F ? c + 80 : c;
}

}  // namespace

std::string WithoutMnemonic(std::string_view caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    text += caption[i];
  }
  return text;
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

void Control::Changed(Aspect aspect) {
  if (mPeer) mPeer->Update(aspect);
}

void Control::Caption(const std::string& value) {
  if (mDesign.Caption == value) return;
  mDesign.Caption = value;
  Changed(Aspect::Text);
}

void Control::Place(const Rect& value) {
  if (mDesign.Place == value) return;
  mDesign.Place = value;
  Changed(Aspect::Place);
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

bool Control::IsShown() const {
  const Control* const outer = mParent.ContainerControl();
  return mDesign.Visible && mParent.ShowsChildren() && (!outer || outer->IsShown());
}

bool Control::IsReachable() const {
  const Control* const outer = mParent.ContainerControl();
  return mDesign.Enabled && IsShown() && (!outer || outer->IsReachable());
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
  if (!mDesign.Caption.empty()) return WithoutMnemonic(mDesign.Caption);
  const std::vector<Control*>& siblings = mParent.Children();
  const auto self = std::find(siblings.begin(), siblings.end(), this);
  if (self != siblings.begin() && self != siblings.end())
    if (const auto* label = dynamic_cast<const Label*>(*(self - 1))) return WithoutMnemonic(label->Caption());
  const Control* const outer = mParent.ContainerControl();
  return outer ? outer->AccessibleName() : std::string();
}

char32_t Control::Mnemonic() const {
  const std::string& caption = mDesign.Caption;
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] != '&') return Lower(FirstCharacter(std::string_view(caption).substr(i + 1)));
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
