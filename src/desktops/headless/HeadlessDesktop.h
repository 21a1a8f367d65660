// A desktop without a screen, for tests and servers. Forms live in memory, and the hook answers them.
#pragma once

#include "forms/Desktop.h"
#include "forms/Frame.h"

namespace orx::headless {

class HeadlessDesktop final : public Desktop {
 public:
  HeadlessDesktop();
  ~HeadlessDesktop() override;

  ScreenMetrics Metrics(BorderStyle border) const override;
  std::vector<Rect> WorkAreas() const override;
  double Scale() const override { return mScale; }
  std::vector<std::string> ScreenFonts() const override { return mScreenFonts; }
  Color SystemColor(orx::SystemColor which) const override;
  /// All but the control codes below 32, in every font.
  CharacterCodes CharactersOf(const Font&) const override { return CharacterCodes().set() << 32; }
  numbers::Separators Separators() const override { return mSeparators; }
  /// Of the Latin, Greek and Cyrillic alphabets.
  std::string LowerCase(const std::string& text) const override;
  SettingsStore& Settings() override { return *mSettings; }
  /// Replaces the store, which is in memory at first. Never null.
  void Settings(std::unique_ptr<SettingsStore> value) { mSettings = std::move(value); }

  /// The size of the screen in twips; 1920 x 1080 pixels unless set.
  void ScreenSize(Size value) { mScreen = value; }
  /// Sets the work areas of further screens beside the main one, in twips.
  void FurtherScreens(std::vector<Rect> value) { mFurtherScreens = std::move(value); }
  void Separators(const numbers::Separators& value) { mSeparators = value; }
  /// Pixels in 15 twips; 1 unless set.
  void Scale(double value) { mScale = value; }
  int FrameLine(bool hasCaption) const override { return hasCaption ? mCaptionLine : mPlainLine; }
  /// Sets where the lines of frames with a caption and without one run, which is as designed unless set.
  void FrameLines(int withCaption, int withoutCaption) {
    mCaptionLine = withCaption;
    mPlainLine = withoutCaption;
  }
  /// Replaces the screen's fonts, which are a handful of well-known ones at first.
  void ScreenFonts(std::vector<std::string> value) { mScreenFonts = std::move(value); }

 protected:
  std::unique_ptr<FormWindow> OpenWindow(Form& form) override;
  MessageAnswer DoShowMessage(const Message& message, FormWindow* owner) override;
  bool DoOpenFiles(OpenFileRequest& request) override;
  bool DoChooseColor(ColorRequest& request) override;
  bool DoChooseFont(FontRequest& request) override;
  void DoProcessPendingEvents() override {}
  void DoBeep() override {}
  void DoSetPointer(orx::Pointer) override {}
  void DoShowHelp(const HelpRequest&) override {}

 private:
  std::unique_ptr<SettingsStore> mSettings;
  numbers::Separators mSeparators;
  std::vector<Rect> mFurtherScreens;
  std::vector<std::string> mScreenFonts{"System", "Courier", "Arial", "Courier New", "Symbol", "Times New Roman"};
  double mScale = 1;
  int mCaptionLine = kFrameLine;
  int mPlainLine = 0;
  Size mScreen{1920 * kTwipsPerPixel, 1080 * kTwipsPerPixel};
};

}  // namespace orx::headless
