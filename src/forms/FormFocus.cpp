// The keyboard focus of a form and the keys that belong to the dialog as a whole.
#include <algorithm>

#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/TabControl.h"

namespace orx {
namespace {

/// The neighbour of `from` in a ring; for a control outside the ring, its first or last element.
Control* Neighbour(const std::vector<Control*>& ring, const Control* from, bool backwards) {
  if (ring.empty()) return nullptr;
  const auto found = std::find(ring.begin(), ring.end(), from);
  if (found == ring.end()) return backwards ? ring.back() : ring.front();
  if (backwards) return found == ring.begin() ? ring.back() : *(found - 1);
  return found + 1 == ring.end() ? ring.front() : *(found + 1);
}

}  // namespace

std::vector<Control*> Form::TabOrder() const {
  std::vector<Control*> order = All();
  std::erase_if(order, [](const Control* control) { return !control->IsTabStop(); });
  return order;
}

Button* Form::ButtonFor(ButtonRole role) const {
  for (Control* control : All())
    if (auto* button = dynamic_cast<Button*>(control); button && button->Role() == role) return button;
  return nullptr;
}

bool Form::MoveFocus(Control& to) {
  if (!mVisible || !to.IsReachable()) return false;
  if (mActive == &to && !mSettlingFocus) return true;
  if (to.Peer()) to.Peer()->TakeFocus();
  SettleFocus(&to);
  return mFocusTarget == &to;
}

void Form::UserFocus(Control& control) {
  if (!mVisible || (mActive == &control && !mSettlingFocus)) return;
  UserAct([&] { SettleFocus(&control); });
}

void Form::SettleFocus(Control* to) {
  mFocusTarget = to;
  if (mSettlingFocus) return;
  mSettlingFocus = true;
  Control* left = mActive;
  try {
    // A handler may move the focus again; the loop then continues from there.
    while (left || mActive != mFocusTarget) {
      mActive = mFocusTarget;
      if (Control* const leaving = std::exchange(left, nullptr)) {
        if (leaving != mActive) leaving->LostFocus.Raise();
        if (mActive != mFocusTarget) continue;
      }
      if (mActive) mActive->GotFocus.Raise();
      if (mActive != mFocusTarget) left = mActive;
    }
  } catch (...) {
    mSettlingFocus = false;
    throw;
  }
  mSettlingFocus = false;
}

void Form::FocusFirst() {
  Control* first = mActive;
  mActive = nullptr;
  if (!first || !first->IsReachable()) {
    const std::vector<Control*> order = TabOrder();
    const auto found = std::ranges::find_if(order, [](const Control* control) { return control->StartsFocus(); });
    first = order.empty() ? nullptr : found == order.end() ? order.front() : *found;
  }
  if (first) MoveFocus(*first);
}

void Form::LeaveUnreachable() {
  if (!mVisible || mSettlingFocus || !mActive || mActive->IsReachable()) return;
  TabAway(false);
}

void Form::TabAway(bool backwards) {
  std::vector<Control*> order = All();
  std::erase_if(order, [this](const Control* control) { return control != mActive && !control->IsTabStop(); });
  if (Control* const next = Neighbour(order, mActive, backwards); next && next != mActive) MoveFocus(*next);
}

bool Form::PressByKey(Button* button) {
  if (!button || !button->IsReachable()) return false;
  button->UserPress();
  return true;
}

bool Form::PressMnemonic(char32_t letter) {
  std::vector<Control*> order = All();
  std::erase_if(order, [&](const Control* control) {
    return control != mActive && (!control->IsReachable() || control->Mnemonic() != letter);
  });
  Control* const found = Neighbour(order, mActive, false);
  const auto hasLetter = [letter](const Control* control) {
    return control->IsReachable() && control->Mnemonic() == letter;
  };
  if (!found || !hasLetter(found)) return false;
  if (std::ranges::count_if(order, hasLetter) == 1)
    found->UserMnemonic();
  else
    found->Control::UserMnemonic();
  return true;
}

bool Form::TurnTab(bool backwards) {
  for (Control* const control : All()) {
    auto* const tabs = dynamic_cast<TabControl*>(control);
    if (!tabs || !tabs->IsReachable() || tabs->TabCount() < 2) continue;
    tabs->UserSelect((tabs->Tab() + (backwards ? tabs->TabCount() - 1 : 1)) % tabs->TabCount());
    return true;
  }
  return false;
}

bool Form::UserKey(const KeyStroke& stroke) {
  bool handled = false;
  if (!mEnabled) return false;
  UserAct([&] {
    switch (stroke.Key) {
      case Key::Tab:
        TabAway(stroke.Shift);
        handled = true;
        break;
      case Key::Enter: {
        auto* const focused = dynamic_cast<Button*>(mActive);
        handled = PressByKey(focused ? focused : ButtonFor(ButtonRole::Default));
        break;
      }
      case Key::Escape:
        handled = PressByKey(ButtonFor(ButtonRole::Cancel));
        break;
      case Key::Help:
        handled = (!mActive || !mActive->HandlesKeys()) && Form_Help();
        break;
      case Key::NextTab:
      case Key::PreviousTab:
        handled = TurnTab(stroke.Key == Key::PreviousTab);
        break;
      case Key::Character:
        handled = stroke.Alt && PressMnemonic(stroke.Character);
        break;
    }
  });
  return handled;
}

}  // namespace orx
