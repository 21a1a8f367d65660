// Where the layer manager opens.
#include "tests/layermanager/LayerManagerTest.h"
#include "tests/support/KeptPlacement.h"

namespace orx::test {
namespace {

class LayerManagerPlacement : public LayerManager {
 protected:
  LayerManagerPlacement() { Fill({"Roads"}); }
  int Pixel() { return desktop().ToTwips(1); }
  KeptPlacement kept{desktop(), "MapSettings"};
};

TEST_F(LayerManagerPlacement, WithoutAKeyItIsCenteredAndNothingIsKept) {
  Show([&](frmMapSettings& form) {
    const ScreenMetrics screen = desktop().Metrics(BorderStyle::Fixed);
    EXPECT_NEAR((screen.Screen.Width - form.Width()) / 2.0, form.Left(), Pixel());
    EXPECT_NEAR((screen.Screen.Height - form.Height()) / 2.0, form.Top(), Pixel());
  });
  EXPECT_EQ("(none)", kept.Read("Left"));
}

TEST_F(LayerManagerPlacement, OpensWhereItWasClosed) {
  service.RegistryKey(kept.Key());
  Show([&](frmMapSettings& form) { form.Move(150, 300); });
  EXPECT_EQ("150", kept.Read("Left"));
  EXPECT_EQ("300", kept.Read("Top"));
  EXPECT_EQ("(none)", kept.Read("Height"));
  Show([&](frmMapSettings& form) {
    EXPECT_EQ(150, form.Left());
    EXPECT_EQ(300, form.Top());
  });
}

TEST_F(LayerManagerPlacement, OneKnownValueLeavesTheOtherCentered) {
  service.RegistryKey(kept.Key());
  kept.Write("Top", "450");
  Show([&](frmMapSettings& form) {
    const Size screen = desktop().Metrics(BorderStyle::Fixed).Screen;
    EXPECT_NEAR((screen.Width - form.Width()) / 2.0, form.Left(), Pixel());
    EXPECT_EQ(450, form.Top());
  });
}

TEST_F(LayerManagerPlacement, HostileSettingsLeaveTheWholeWindowInReach) {
  service.RegistryKey(kept.Key());
  const Rect area = desktop().Metrics(BorderStyle::Fixed).WorkArea;
  for (const std::string& text : kHostileNumbers) {
    SCOPED_TRACE(text);
    for (const char* const name : {"Left", "Top"}) kept.Write(name, text);
    Show([&](frmMapSettings& form) {
      EXPECT_GE(form.Left(), area.Left - Pixel());
      EXPECT_GE(form.Top(), area.Top - Pixel());
      EXPECT_LE(form.Left() + form.Width(), area.Right() + Pixel());
      EXPECT_LE(form.Top() + form.Height(), area.Bottom() + Pixel());
    });
  }
}

}  // namespace
}  // namespace orx::test
