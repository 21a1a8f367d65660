#include "desktops/headless/HeadlessDesktop.h"

#include <stdexcept>

#include "desktops/headless/MemorySettings.h"
#include "forms/Form.h"
#include "forms/Requests.h"
#include "text/Utf8Text.h"

namespace orx::headless {
namespace {

/// What a window's frame adds: a border of 3 pixels and a title bar of 24.
constexpr Size kFrame{6 * kTwipsPerPixel, 30 * kTwipsPerPixel};

class HeadlessWindow final : public FormWindow {
 public:
  HeadlessWindow(Desktop& desktop, Form& form) : mDesktop(desktop), mForm(form) {}

  void Show(ShowMode, OwnerWindow) override { mEnded = false; }
  void Hide() override {}
  void RunModal() override {
    if (mEnded) return;
    mDesktop.ModalIsRunning({.ShownForm = &mForm});
    if (!mEnded)
      throw std::runtime_error("The dialog \"" + mForm.Caption() +
                               "\" was shown where nobody answers it. Give the desktop a hook that does.");
  }
  void EndModal() override { mEnded = true; }
  void UpdateCaption() override {}
  void UpdatePlace() override {}
  void UpdateEnabled() override {}
  void Repaint() override {}
  void PaintChanges() override {}
  void CallShowUpdates(std::chrono::milliseconds) override {}
  void DragBottomEdge() override {}
  std::uintptr_t NativeHandle() const override { return 0; }
  void Abandon() override {}

 private:
  Desktop& mDesktop;
  Form& mForm;
  bool mEnded = false;
};

}  // namespace

HeadlessDesktop::HeadlessDesktop() : mSettings(std::make_unique<MemorySettings>()) {
}

HeadlessDesktop::~HeadlessDesktop() {
  CloseOpenForms();
}

ScreenMetrics HeadlessDesktop::Metrics(BorderStyle) const {
  return {mScreen, {0, 0, mScreen.Width, mScreen.Height}, kFrame};
}

std::vector<Rect> HeadlessDesktop::WorkAreas() const {
  std::vector<Rect> areas = Desktop::WorkAreas();
  areas.insert(areas.end(), mFurtherScreens.begin(), mFurtherScreens.end());
  return areas;
}

Color HeadlessDesktop::SystemColor(orx::SystemColor which) const {
  switch (which) {
    case orx::SystemColor::Window:
    case orx::SystemColor::HighlightText:
      return {255, 255, 255};
    case orx::SystemColor::Highlight:
      return {0, 120, 215};
    case orx::SystemColor::DialogFace:
      return {240, 240, 240};
    case orx::SystemColor::WindowText:
      break;
  }
  return {0, 0, 0};
}

std::string HeadlessDesktop::LowerCase(const std::string& text) const {
  return orx::LowerCase(text);
}

std::unique_ptr<FormWindow> HeadlessDesktop::OpenWindow(Form& form) {
  return std::make_unique<HeadlessWindow>(*this, form);
}

MessageAnswer HeadlessDesktop::DoShowMessage(const Message& message, FormWindow*) {
  // The message counts as read when the hook returns.
  MessageAnswer answer = message.Harmless();
  ModalIsRunning({.ShownMessage = &message, .Answer = &answer});
  return answer;
}

bool HeadlessDesktop::DoOpenFiles(OpenFileRequest& request) {
  const std::string before = request.Buffer;
  ModalIsRunning({.ShownFiles = &request});
  return request.Buffer != before;
}

bool HeadlessDesktop::DoChooseColor(ColorRequest& request) {
  ModalIsRunning({.ShownColor = &request});
  if (request.Answer) request.Color = *request.Answer;
  return request.Answer.has_value();
}

bool HeadlessDesktop::DoChooseFont(FontRequest& request) {
  ModalIsRunning({.ShownFont = &request});
  if (request.Answer) request.Chosen = *request.Answer;
  return request.Answer.has_value();
}

}  // namespace orx::headless
