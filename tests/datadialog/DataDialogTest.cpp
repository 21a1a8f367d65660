// The dialog for the data of a layer: its placement, its sizing strip, and its layout at every height.
#include <algorithm>

#include "propertydialogs/frmDataDialog.h"
#include "tests/support/KeptPlacement.h"
#include "tests/support/PageHostTest.h"
#include "tests/support/RecordedData.h"

namespace orx::test {
namespace {

class DataDialog : public PageHostTest {
 protected:
  using Action = std::function<void(frmDataDialog&)>;
  std::int32_t Show(const Action& act) {
    script.ExpectForm("frmDataDialog", [this, act](Form& form) {
      log.Calls.clear();
      script.Pointers.clear();
      act(dynamic_cast<frmDataDialog&>(form));
      if (form.Visible()) Press(form, "cmdCancel");
    });
    return service.ShowDataProperties(&object);
  }
  int FrameHeight() { return desktop().Metrics(BorderStyle::SizableHeight).Frame.Height; }
  /// A pixel more or less, as the screen counts.
  int Pixel() { return desktop().ToTwips(1); }
  Rect WorkArea() { return desktop().Metrics(BorderStyle::SizableHeight).WorkArea; }
  Control& PagePanel(Form& form) { return *form.Find("DataProperties1"); }

  KeptPlacement kept{desktop(), "DataDialog"};
};

TEST_F(DataDialog, HasOneTabWithThePageOfTheData) {
  service.CallBack(&callBack);
  Show([&](frmDataDialog& form) {
    EXPECT_EQ("Data Classify", user.SeeCaption(form));
    EXPECT_EQ("Data", user.See(form.ssTab).Text);
    EXPECT_TRUE(pages.Made.contains(PageKind::DataProperties));
    EXPECT_TRUE(user.See(form.cmdApply).Visible);
  });
}

TEST_F(DataDialog, IsOpenedInItsOrderAndReturnsWhetherSomethingChanged) {
  service.Language(&language);
  service.CallBack(&callBack);
  language.Texts["_HelpLayerDataProperties"] = "31";
  log.Calls.clear();
  script.ExpectForm("frmDataDialog", [&](Form& form) {
    EXPECT_EQ(31, form.HelpContextId());
    EXPECT_EQ((Calls{"Language.EntryCount", "Pages.CreatePage(DataProperties, DataProperties1)", "Language.EntryCount",
                     "Language.TranslateText(_HelpLayerDataProperties)", "Page.Language(object)",
                     "Language.TranslateForm(frmDataDialog)", "Language.TranslateText(Data Classify)",
                     "Page.Client(object)", "CallBack.RegisterNotify", "Page.RefreshContents", "Page.RefreshContents"}),
              NewCalls());
    Edit(form, "x");
    Press(form, "cmdOK");
  });
  EXPECT_EQ(-1, service.ShowDataProperties(&object));
}

TEST_F(DataDialog, WithoutACallBackTheButtonsCloseUp) {
  Show([&](frmDataDialog& form) {
    EXPECT_FALSE(user.See(form.cmdApply).Visible);
    EXPECT_EQ(3720, form.cmdOK.Left());
    EXPECT_EQ(5100, form.cmdCancel.Left());
    form.ClientSize({form.ClientSize().Width, form.ClientSize().Height + 300});
    EXPECT_EQ(3720, form.cmdOK.Left());
  });
}

TEST_F(DataDialog, WithoutAKeyItIsCenteredAndNothingIsKept) {
  Show([&](frmDataDialog& form) {
    const Size screen = desktop().Metrics(BorderStyle::SizableHeight).Screen;
    EXPECT_NEAR((screen.Width - form.Width()) / 2.0, form.Left(), Pixel());
    EXPECT_NEAR((screen.Height - form.Height()) / 2.0, form.Top(), Pixel());
  });
  EXPECT_EQ("(none)", kept.Read("Left"));
}

TEST_F(DataDialog, OpensWhereAndAsHighAsItWasClosed) {
  service.RegistryKey(kept.Key());
  Show([&](frmDataDialog& form) {
    form.Move(300, 450);
    form.ClientSize({form.ClientSize().Width, 6900});
  });
  EXPECT_EQ("300", kept.Read("Left"));
  EXPECT_EQ("450", kept.Read("Top"));
  EXPECT_EQ(std::to_string(6900 + FrameHeight()), kept.Read("Height"));
  EXPECT_EQ("(none)", kept.Read("Width"));
  Show([&](frmDataDialog& form) {
    EXPECT_EQ(300, form.Left());
    EXPECT_EQ(450, form.Top());
    EXPECT_EQ((Size{6465, 6900}), form.ClientSize());
  });
}

TEST_F(DataDialog, TheFirstTimeUnderAKeyItIsCenteredAndKept) {
  service.RegistryKey(kept.Key());
  int left = 0;
  Show([&](frmDataDialog& form) { left = form.Left(); });
  EXPECT_EQ(std::to_string(left), kept.Read("Left"));
}

TEST_F(DataDialog, TheCloseBoxKeepsThePlacementToo) {
  service.RegistryKey(kept.Key());
  Show([&](frmDataDialog& form) {
    form.Move(600, 150);
    user.CloseBox(form);
  });
  EXPECT_EQ("600", kept.Read("Left"));
}

TEST_F(DataDialog, HostileSettingsLeaveTheWholeWindowInReach) {
  service.RegistryKey(kept.Key());
  for (const std::string& text : kHostileNumbers) {
    SCOPED_TRACE(text);
    for (const char* const name : {"Left", "Top", "Height"}) kept.Write(name, text);
    Show([&](frmDataDialog& form) {
      EXPECT_GE(form.Left(), WorkArea().Left - Pixel());
      EXPECT_GE(form.Top(), WorkArea().Top - Pixel());
      EXPECT_LE(form.Left() + form.Width(), WorkArea().Right() + Pixel());
      EXPECT_EQ(6465, form.ClientSize().Width);
      EXPECT_TRUE(form.Visible());
    });
  }
}

TEST_F(DataDialog, TextInASettingStandsForTheCenteredPlaceAndTheDesignedHeight) {
  service.RegistryKey(kept.Key());
  for (const char* const name : {"Left", "Top", "Height"}) kept.Write(name, "abc");
  Show([&](frmDataDialog& form) {
    EXPECT_NEAR((desktop().Metrics(BorderStyle::SizableHeight).Screen.Width - form.Width()) / 2.0, form.Left(),
                Pixel());
    EXPECT_EQ((Size{6465, 5910}), form.ClientSize());
  });
}

TEST_F(DataDialog, AHeightTooSmallForTheButtonsStillOpens) {
  service.RegistryKey(kept.Key());
  kept.Write("Height", std::to_string(FrameHeight() + 300));
  Show([&](frmDataDialog& form) {
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(0, form.ssTab.Place().Height);
    EXPECT_EQ(0, PagePanel(form).Place().Height);
    form.ClientSize({6465, 5910});
    EXPECT_EQ(5175, form.ssTab.Place().Height);
  });
}

TEST_F(DataDialog, EachHeightIsLaidOutAnew) {
  Show([&](frmDataDialog& form) {
    for (const int height : {5910, 6510, 4500}) {
      form.ClientSize({6465, height});
      const int top = height - 120 - 375;
      for (const Button* button :
           std::initializer_list<const Button*>{&form.cmdHelp, &form.cmdOK, &form.cmdCancel, &form.cmdApply})
        EXPECT_EQ(top, button->Top());
      EXPECT_EQ(top - 120 - 120, form.ssTab.Place().Height);
      EXPECT_EQ(form.ssTab.Place().Height - 120 - TabControl::kStrip - 120, PagePanel(form).Place().Height);
      const PixelEdges strip = form.SizingStrip();
      EXPECT_EQ(0, strip.Left);
      EXPECT_EQ(desktop().ToPixels(6465), strip.Right);
      EXPECT_EQ(desktop().ToPixels(form.ShownClientSize().Height), strip.Bottom);
      EXPECT_EQ(3, strip.Bottom - strip.Top);
    }
  });
}

TEST_F(DataDialog, EachResizeLoadsThePageAgain) {
  Show([&](frmDataDialog& form) {
    Edit(form, "x");
    log.Calls.clear();
    form.ClientSize({6465, 6000});
    EXPECT_EQ(Calls{"Page.RefreshContents"}, NewCalls());
  });
}

TEST_F(DataDialog, APageThatFailsToLoadDoesNotKeepTheDialogFromOpening) {
  log.Failing = {"Page.RefreshContents"};
  Show([&](frmDataDialog& form) { EXPECT_EQ(5415, form.cmdOK.Top()); });
}

TEST_F(DataDialog, DraggingTheStripChangesTheHeightAlone) {
  Show([&](frmDataDialog& form) {
    log.Calls.clear();
    user.DragFromBottom(form, 2, 30);
    EXPECT_NEAR(5910 + desktop().ToTwips(30), form.ClientSize().Height, Pixel());
    EXPECT_EQ(6465, form.ClientSize().Width);
    EXPECT_EQ(form.ClientSize().Height - 120 - 375, form.cmdOK.Top());
    EXPECT_GE(std::ranges::count(log.Calls, "Page.RefreshContents"), 2);
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
    EXPECT_TRUE(std::ranges::count(script.Pointers, Pointer::SizeNS) > 0);
  });
}

TEST_F(DataDialog, APressOnePixelAboveTheStripDoesNothing) {
  Show([&](frmDataDialog& form) {
    log.Calls.clear();
    user.DragFromBottom(form, 4, 30);
    EXPECT_EQ((Size{6465, 5910}), form.ClientSize());
    EXPECT_EQ(Calls{}, NewCalls());
    EXPECT_EQ(0, std::ranges::count(script.Pointers, Pointer::SizeNS));
  });
}

TEST_F(DataDialog, ThePointerIsPutBackOnlyWhenItIsAnother) {
  Show([&](frmDataDialog& form) {
    form.UserMouseMove({50, form.SizingStrip().Top});
    form.UserMouseMove({51, form.SizingStrip().Bottom});
    form.UserMouseMove({51, form.SizingStrip().Top - 1});
    form.UserMouseMove({51, 10});
    form.UserMouseMove({100000, 100000});
    EXPECT_EQ((std::vector<Pointer>{Pointer::SizeNS, Pointer::Default}), script.Pointers);
  });
}

TEST_F(DataDialog, ThePointerIsPutBackWhenTheDialogIsEndedByAKeyWithTheMouseOnTheStrip) {
  for (const KeyStroke& key : {kEscape, kEnter}) {
    Show([&](frmDataDialog& form) {
      form.UserMouseMove({50, form.SizingStrip().Top});
      EXPECT_EQ(Pointer::SizeNS, desktop().Pointer());
      user.Press(form, key);
    });
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
  }
}

TEST_F(DataDialog, TheRequestsOfThePageOpenTheirDialogs) {
  RecordedData data;
  Show([&](frmDataDialog&) {
    RecordingPage& page = *pages.Made.at(PageKind::DataProperties);
    script.ExpectForm("frmDataClassify", [&](Form& form) { user.CloseBox(form); });
    ClassifyRequest classify{&data, 0, 10, 0, true};
    page.ClassifyRequested.Raise(classify);
    EXPECT_FALSE(classify.Changed);
    script.ExpectForm("frmDataOptions", [&](Form& form) { user.CloseBox(form); });
    DataRequest options{&data, true};
    page.OptionsRequested.Raise(options);
    script.ExpectMessage({"Sorry, Data Style not yet supported", "Data Style", MessageIcon::Information});
    page.DataStyleRequested.Raise();
    script.ExpectForm("frmManageColors", [&](Form& form) { user.CloseBox(form); });
    page.ColorsRequested.Raise(&language);
  });
}

}  // namespace
}  // namespace orx::test
