// A desktop without a screen, for tests and servers. Forms live in memory; whoever answers does so in the hook.
#pragma once

#include "desktops/headless/MemorySettings.h"
#include "forms/Desktop.h"

namespace orx::headless {

class HeadlessDesktop final : public Desktop {
 public:
  HeadlessDesktop() = default;
  ~HeadlessDesktop() override;

  ScreenMetrics Metrics(BorderStyle border) const override;
  std::vector<Rect> WorkAreas() const override;
  double Scale() const override { return 1; }
  numbers::Separators Separators() const override { return mSeparators; }
  SettingsStore& Settings() override { return mSettings; }
  void ProcessPendingEvents() override {}

  /// The size of the screen in twips; 1920 x 1080 pixels unless set.
  void ScreenSize(Size value) { mScreen = value; }
  /// Further screens beside the main one, by the places of their work areas in twips.
  void FurtherScreens(std::vector<Rect> value) { mFurtherScreens = std::move(value); }
  void Separators(const numbers::Separators& value) { mSeparators = value; }

 protected:
  std::unique_ptr<FormWindow> OpenWindow(Form& form) override;
  void DoShowMessage(const Message& message, FormWindow* owner) override;
  bool DoOpenFiles(OpenFileRequest& request) override;
  bool DoChooseColor(ColorRequest& request) override;
  bool DoChooseFont(FontRequest& request) override;
  void DoBeep() override {}
  void DoSetPointer(orx::Pointer) override {}
  void DoShowHelp(const HelpRequest&) override {}

 private:
  MemorySettings mSettings;
  numbers::Separators mSeparators;
  std::vector<Rect> mFurtherScreens;
  Size mScreen{1920 * kTwipsPerPixel, 1080 * kTwipsPerPixel};
};

}  // namespace orx::headless
