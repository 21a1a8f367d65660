#include "forms/Form.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <utility>

#include "forms/FrameRoom.h"
#include "forms/ScreenUpdates.h"

namespace orx {
namespace {

/// Moves a form away from modeless ones that it would stand on exactly, so that all of them can be seen.
void StandApart(Form& form) {
  constexpr int kApart = 360;
  const auto isOn = [&](const std::shared_ptr<Form>& other) {
    return other.get() != &form && other->Visible() && other->Left() == form.Left() && other->Top() == form.Top();
  };
  while (std::ranges::any_of(form.OwnerDesktop().OpenForms(), isOn))
    form.Move(form.Left() + kApart, form.Top() + kApart);
}

}  // namespace

Form::Form(Desktop& desktop, std::string name, FormDesign design)
    : mDesktop(desktop), mName(std::move(name)), mDesign(std::move(design)) {
}

Form::~Form() {
  DropWindow();
}

void Form::PaceUpdates() {
  mUpdates = std::make_unique<ScreenUpdates>();
}

void Form::Caption(const std::string& value) {
  mDesktop.RequireThread();
  mDesign.Caption = value;
  if (mWindow) mWindow->UpdateCaption();
}

void Form::Move(int left, int top) {
  mDesktop.RequireThread();
  mLeft = left;
  mTop = top;
  if (mWindow) mWindow->UpdatePlace();
}

int Form::Width() const {
  return ShownClientSize().Width + mDesktop.Metrics(mDesign.Border).Frame.Width;
}

int Form::Height() const {
  return ShownClientSize().Height + mDesktop.Metrics(mDesign.Border).Frame.Height;
}

void Form::ClientSize(Size value) {
  mDesktop.RequireThread();
  if (value == mDesign.Client) return;
  mDesign.Client = value;
  if (mWindow) mWindow->UpdatePlace();
  if (mVisible) Form_Resize();
}

Size Form::ShownClientSize() const {
  const ScreenMetrics screen = mDesktop.Metrics(mDesign.Border);
  return {std::min(mDesign.Client.Width, screen.WorkArea.Width - screen.Frame.Width),
          std::min(mDesign.Client.Height + FrameRoom(*this).Growth(), screen.WorkArea.Height - screen.Frame.Height)};
}

void Form::Center() {
  const Size screen = mDesktop.Metrics(mDesign.Border).Screen;
  Move((screen.Width - Width()) / 2, (screen.Height - Height()) / 2);
}

Rect Form::NearestWorkArea() const {
  const std::int64_t right = std::int64_t{mLeft} + Width();
  const std::int64_t bottom = std::int64_t{mTop} + Height();
  // The length that two spans share; negative: the gap between them.
  const auto overlap = [](std::int64_t low, std::int64_t high, std::int64_t otherLow, std::int64_t otherHigh) {
    return std::min(high, otherHigh) - std::max(low, otherLow);
  };
  const auto nearness = [&](const Rect& area) {
    const std::int64_t across = overlap(mLeft, right, area.Left, area.Right());
    const std::int64_t down = overlap(mTop, bottom, area.Top, area.Bottom());
    if (across > 0 && down > 0) return across * down;
    return std::min(across, std::int64_t{0}) + std::min(down, std::int64_t{0});
  };
  const std::vector<Rect> areas = mDesktop.WorkAreas();
  return *std::ranges::max_element(areas, {}, nearness);
}

void Form::KeepOnScreen() {
  const Rect area = NearestWorkArea();
  const int left = std::max(area.Left, std::min(mLeft, area.Right() - Width()));
  const int top = std::max(area.Top, std::min(mTop, area.Bottom() - Height()));
  if (left != mLeft || top != mTop) Move(left, top);
}

Form::Act::Act(Form& form) : mKeep(form.weak_from_this().lock()), mForm(form) {
  mForm.mDesktop.RequireThread();
  ++mForm.mActs;
  mForm.mDesktop.EnterAct();
}

Form::Act::~Act() {
  Desktop& desktop = mForm.mDesktop;
  if (mForm.mActs == 1) mForm.EndActs();
  --mForm.mActs;
  desktop.LeaveAct();
}

void Form::EndActs() {
  if (mUnloadsWhenHidden && !mVisible) UnloadQuietly();
  if (!mRetired) return;
  // Still retired, since what is let go may be code of the host, and may want the form shown again.
  Form_Release();
  mRetired = false;
}

void Form::Load() {
  if (mLoaded || mRetired) return;
  const Act act(*this);
  mLoaded = true;
  Form_Load();
}

void Form::Show(ShowMode mode, OwnerWindow owner) {
  if (mVisible) throw std::logic_error(mName + " is shown already");
  if (mode == ShowMode::Modeless && mDesktop.HasModalForm())
    throw std::logic_error(mName + " cannot be modeless while a modal form is open");
  const Act act(*this);
  Load();
  // A form that has nothing to show unloads itself as it loads.
  if (!mLoaded) return;
  if (!mWindow) mWindow = mDesktop.OpenWindow(*this);
  Form_Resize();
  if (!mLoaded) return;
  if (mode == ShowMode::Modeless) StandApart(*this);
  KeepOnScreen();
  ShowUpdates();
  mVisible = true;
  mMode = mode;
  mWindow->Show(mode, owner);
  if (mode == ShowMode::Modal) return mDesktop.RunModal(*this);
  UserAct([this] { FocusFirst(); });
  if (mVisible) mDesktop.KeepOpen(shared_from_this());
}

void Form::Hide() {
  if (!mVisible) return;
  const Act act(*this);
  mVisible = false;
  mWindow->Hide();
  mDesktop.EndModal(*this);
}

void Form::Unload() {
  if (!mLoaded) return;
  const Act act(*this);
  Hide();
  mLoaded = false;
  mRetired = true;
  std::exception_ptr error;
  try {
    Form_Unload();
  } catch (...) {
    error = std::current_exception();
  }
  mActive = nullptr;
  DropWindow();
  if (error) std::rethrow_exception(error);
}

void Form::UnloadQuietly() noexcept {
  try {
    Unload();
  } catch (...) {
    // Nobody is left to be told.
  }
}

void Form::DropWindow() {
  if (!mWindow) return;
  mVisible = false;
  if (mUpdates) PaceUpdates();
  for (Control* control : All()) control->Peer(nullptr);
  mWindow->Abandon();
  mDesktop.Retire(*this, std::move(mWindow));
  mWindow = nullptr;
}

void Form::Enabled(bool value) {
  mDesktop.RequireThread();
  if (mEnabled == value) return;
  mEnabled = value;
  if (mWindow) mWindow->UpdateEnabled();
}

void Form::Refresh() {
  mDesktop.RequireThread();
  ShowUpdates();
  if (mWindow) mWindow->Repaint();
}

bool Form::TakesOver(Control& control, Aspect aspect, Urgency urgency) {
  if (!mUpdates || (aspect != Aspect::Value && aspect != Aspect::Text)) return false;
  const bool isWaited = !mUpdates->IsEmpty();
  if (mUpdates->Add({&control, aspect}, urgency, ScreenUpdates::Clock::now())) {
    ShowUpdates();
  } else if (!isWaited && mWindow) {
    mWindow->CallShowUpdates(ScreenUpdates::kPace);
  }
  return true;
}

void Form::ShowUpdates() {
  if (!mUpdates || mUpdates->IsEmpty()) return;
  for (const ScreenUpdates::Update& update : mUpdates->Take(ScreenUpdates::Clock::now()))
    if (ControlPeer* const peer = update.Changed->Peer()) peer->Update(update.What);
  if (mWindow) mWindow->PaintChanges();
}

void Form::UserAct(const std::function<void()>& act) {
  const Act running(*this);
  try {
    RunAsHost(act);
  } catch (...) {
    mDesktop.HandlerFailed(*this, std::current_exception());
  }
}

void Form::RunAsHost(const std::function<void()>& act) {
  if (mWindow) return mWindow->RunAsHost(act);
  act();
}

void Form::UserClose() {
  if (!mEnabled || mDesktop.IsBehindModal(*this)) return;
  UserAct([this] {
    if (Form_QueryUnload()) Unload();
  });
}

void Form::WindowLost() {
  UserAct([this] { Unload(); });
}

void Form::UserResize(Size client) {
  UserAct([&] {
    client.Height -= FrameRoom(*this).Growth();
    if (client == mDesign.Client) return;
    mDesign.Client = client;
    if (mVisible) Form_Resize();
  });
}

void Form::UserMove(int left, int top) {
  mLeft = left;
  mTop = top;
}

void Form::UserMouseMove(Point at) {
  if (mEnabled) UserAct([&] { Form_MouseMove(at); });
}

void Form::UserMouseDown(Point at) {
  if (mEnabled) UserAct([&] { Form_MouseDown(at); });
}

void Form::DragBottomEdge() {
  if (mWindow) mWindow->DragBottomEdge();
}

}  // namespace orx
