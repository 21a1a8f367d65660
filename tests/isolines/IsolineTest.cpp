// The isoline dialog: what it shows, what OK writes, colours and fonts, texts that are no numbers.
#include "griddialogs/frmDataIsoline.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordedGrid.h"

namespace orx::test {
namespace {

using Calls = std::vector<std::string>;
/// A font beside Arial that every desktop has.
const std::string kOtherFont = "DejaVu Sans";

/// What OK writes when everything but the font was changed.
const Calls kAllWrites = {
    "RangeStep=", "Line.Color=",   "Line.Width=",       "Line.Style=",         "UseRangeColor=", "UseRangeWidth=",
    "MaxWidth=",  "LabelVisible=", "LabelAllIsolines=", "LabelUseRangeColor=", "LabelDistance="};

class Isolines : public DesktopTest {
 protected:
  template <class Acts>
  bool Edit(Acts acts) {
    script.ExpectForm("frmDataIsoline", [this, acts](Form& shown) {
      form = dynamic_cast<frmDataIsoline*>(&shown);
      lines.Log.Calls.clear();
      acts();
      if (form->Visible()) user.Click(form->cmdOK);
      form = nullptr;
    });
    return modMain::ShowIsolineDialog(desktop(), &lines, changed, language);
  }
  std::string Seen(Control& control) { return user.See(control).Text; }
  bool IsTicked(CheckBox& box) { return user.See(box).Value == 1; }
  void Cancel() { user.Click(form->cmdCancel); }
  Calls Writes() const { return WritesIn(lines.Log); }

  /// Changes every setting but the font, and OK.
  bool EditEverything() {
    return Edit([this] {
      user.Choose(form->cmbRangeStep, 6);
      script.ExpectColor([this](ColorRequest& request) { user.PickColor(request, {1, 2, 3}); });
      user.Click(form->pctColor);
      user.Type(form->txtLineWidth, "7");
      user.Choose(form->cmbLineStyle, 4);
      for (CheckBox* const box : {&form->chkLineUseRangeColor, &form->chkLineUseRangeWidth, &form->chkLabelVisible,
                                  &form->chkLabelAllIsolines, &form->chkLabelUseRangeColor})
        user.Toggle(*box);
      user.Type(form->txtLineMaxWidth, "9");
      user.Type(form->cmbLabelDistance, "0.7");
    });
  }
  /// The settings that EditEverything changes, so that it can change them again.
  void PutBack() {
    lines.HeldRangeStep = 2;
    lines.Pen.HeldColor = {10, 20, 30};
    lines.Pen.HeldWidth = 3;
    lines.Pen.HeldStyle = 2;
    lines.HeldMaxWidth = 5;
    lines.HeldLabelDistance = 0.25;
  }

  RecordedIsolines lines;
  bool changed = false;
  ILanguage* language = nullptr;
  frmDataIsoline* form = nullptr;
};

TEST_F(Isolines, ShowsTheSettingsOfTheObject) {
  Edit([this] {
    EXPECT_EQ("Isoline properties", user.SeeCaption(*form));
    EXPECT_EQ("2", Seen(form->cmbRangeStep));
    EXPECT_EQ("3", Seen(form->txtLineWidth));
    EXPECT_EQ("5", Seen(form->txtLineMaxWidth));
    EXPECT_EQ("Dot", Seen(form->cmbLineStyle));
    EXPECT_EQ((Color{10, 20, 30}), form->pctColor.BackColor());
    EXPECT_TRUE(IsTicked(form->chkLineUseRangeColor));
    EXPECT_FALSE(IsTicked(form->chkLineUseRangeWidth));
    EXPECT_TRUE(IsTicked(form->chkLabelVisible));
    EXPECT_FALSE(IsTicked(form->chkLabelAllIsolines));
    EXPECT_EQ("0.3333333333333333", Seen(form->cmbLabelDistance));
    Cancel();
  });
}

TEST_F(Isolines, TheListsHaveTheirEntriesInOrder) {
  const auto entries = [](const ListControl& list) {
    Calls texts;
    for (int i = 0; i < list.ListCount(); ++i) texts.push_back(list.List(i));
    return texts;
  };
  Edit([&] {
    EXPECT_EQ((Calls{"0.1", "0.15", "0.2", "0.25", "0.3", "0.4", "0.5"}), entries(form->cmbLabelDistance));
    EXPECT_EQ((Calls{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}), entries(form->cmbRangeStep));
    EXPECT_EQ((Calls{"Solid", "Dash", "Dot", "Dash-Dot", "Dash-Dot-Dot", "Invisible", "Inside Solid"}),
              entries(form->cmbLineStyle));
    Cancel();
  });
}

TEST_F(Isolines, OKAsLoadedWritesNothing) {
  EXPECT_FALSE(Edit([] {}));
  EXPECT_FALSE(changed);
  EXPECT_EQ(Calls{}, Writes());
}

TEST_F(Isolines, EverySettingIsWrittenInOrder) {
  EXPECT_TRUE(EditEverything());
  EXPECT_EQ(kAllWrites, Writes());
  EXPECT_EQ(7, lines.HeldRangeStep);
  EXPECT_EQ((Color{1, 2, 3}), lines.Pen.HeldColor);
  EXPECT_EQ(4, lines.Pen.HeldStyle);
  EXPECT_EQ(0.7, lines.HeldLabelDistance);
}

TEST_F(Isolines, AStepThatIsNotListedIsShownAndStays) {
  lines.HeldRangeStep = 25;
  EXPECT_FALSE(Edit([this] { EXPECT_EQ("25", Seen(form->cmbRangeStep)); }));
  EXPECT_EQ(25, lines.HeldRangeStep);
}

TEST_F(Isolines, AStyleThatIsNotListedStaysUntilAnotherIsChosen) {
  lines.Pen.HeldStyle = 8;
  EXPECT_FALSE(Edit([this] { EXPECT_EQ("Solid", Seen(form->cmbLineStyle)); }));
  EXPECT_EQ(8, lines.Pen.HeldStyle);
}

TEST_F(Isolines, WholeNumbersAreRoundedHalvesToEven) {
  Edit([this] {
    user.Type(form->txtLineWidth, "2.5");
    user.Type(form->txtLineMaxWidth, "7.5");
    user.Type(form->cmbRangeStep, "3.5");
  });
  EXPECT_EQ(2, lines.Pen.HeldWidth);
  EXPECT_EQ(8, lines.HeldMaxWidth);
  EXPECT_EQ(4, lines.HeldRangeStep);
}

TEST_F(Isolines, TheSameColorOrACancelledChoiceChangesNothing) {
  EXPECT_FALSE(Edit([this] {
    script.ExpectColor([this](ColorRequest& request) {
      EXPECT_EQ(1U, request.Flags);
      user.PickColor(request, {10, 20, 30});
    });
    user.Click(form->pctColor);
    script.ExpectColor([this](ColorRequest& request) { user.CancelColor(request); });
    user.Click(form->pctColor);
  }));
  EXPECT_EQ(Calls{}, Writes());
}

TEST_F(Isolines, AChosenFontIsWrittenAttributeByAttribute) {
  lines.Face.HeldSize = 9;
  EXPECT_TRUE(Edit([this] {
    script.ExpectFont([this](FontRequest& request) {
      EXPECT_EQ(3U, request.Flags);
      EXPECT_EQ("Arial", request.Chosen.Face.Name);
      EXPECT_EQ(9, request.Chosen.Face.Size);
      EXPECT_TRUE(request.Chosen.Face.Italic);
      EXPECT_EQ((Color{0, 0, 255}), request.Chosen.Color);
      ColoredFont chosen = request.Chosen;
      chosen.Face.Size = 12;
      chosen.Face.Bold = true;
      chosen.Face.Italic = false;
      chosen.Face.Underline = true;
      chosen.Face.Strikethrough = true;
      chosen.Color = {255, 0, 0};
      chosen.Face.Name = kOtherFont;
      user.PickFont(request, chosen);
    });
    user.Click(form->cmdFont);
    EXPECT_TRUE(user.See(form->cmdFont).Focused);
  }));
  EXPECT_EQ((Calls{"LabelFont.Name=", "LabelFont.Size=", "LabelFont.Bold=", "LabelFont.Italic=", "LabelFont.Underline=",
                   "LabelFont.Strikethrough=", "LabelFont.Color="}),
            Writes());
  EXPECT_EQ(kOtherFont, lines.Face.HeldName);
  EXPECT_EQ(12, lines.Face.HeldSize);
  EXPECT_TRUE(lines.Face.HeldBold && lines.Face.HeldUnderline && lines.Face.HeldStrikethrough);
  EXPECT_FALSE(lines.Face.HeldItalic);
  EXPECT_EQ((Color{255, 0, 0}), lines.Face.HeldColor);
}

TEST_F(Isolines, ACancelledFontChangesNothing) {
  EXPECT_FALSE(Edit([this] {
    script.ExpectFont([this](FontRequest& request) { user.CancelFont(request); });
    user.Click(form->cmdFont);
  }));
  EXPECT_EQ(Calls{}, Writes());
}

TEST_F(Isolines, ATextThatIsNoNumberKeepsTheDialogWithWhatWasWrittenBefore) {
  Edit([this] {
    user.Type(form->cmbRangeStep, "5");
    user.Type(form->txtLineMaxWidth, "wide");
    user.Toggle(form->chkLabelVisible);
    user.Click(form->cmdOK);
    EXPECT_TRUE(form->Visible());
    EXPECT_EQ(1, script.Beeps);
    EXPECT_TRUE(user.See(form->txtLineMaxWidth).Focused);
    EXPECT_EQ(4, form->txtLineMaxWidth.SelLength());
    EXPECT_EQ((Calls{"RangeStep="}), Writes());
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
    user.Type(form->txtLineMaxWidth, "6");
  });
  EXPECT_TRUE(changed);
  EXPECT_EQ(5, lines.HeldRangeStep);
  EXPECT_EQ(6, lines.HeldMaxWidth);
  EXPECT_FALSE(lines.HeldLabelVisible);
}

TEST_F(Isolines, WhatStandsBeforeATextThatIsNoNumberIsWritten) {
  Edit([this] {
    script.ExpectColor([this](ColorRequest& request) { user.PickColor(request, {1, 2, 3}); });
    user.Click(form->pctColor);
    user.Type(form->txtLineWidth, "thin");
    user.Choose(form->cmbLineStyle, 4);
    user.Click(form->cmdOK);
    EXPECT_EQ(Calls{"Line.Color="}, Writes());
    Cancel();
  });
}

TEST_F(Isolines, EachNumberFieldIsPointedOut) {
  for (int field = 0; field < 4; ++field) {
    Edit([this, field] {
      const std::string text = field == 1 ? "1E99" : "none";
      Control& wrong = field == 0   ? static_cast<Control&>(form->cmbRangeStep)
                       : field == 1 ? static_cast<Control&>(form->txtLineWidth)
                       : field == 2 ? static_cast<Control&>(form->txtLineMaxWidth)
                                    : static_cast<Control&>(form->cmbLabelDistance);
      if (auto* const box = dynamic_cast<TextBox*>(&wrong)) user.Type(*box, text);
      if (auto* const list = dynamic_cast<ComboBox*>(&wrong)) user.Type(*list, text);
      user.Click(form->cmdOK);
      EXPECT_TRUE(form->Visible()) << wrong.Name();
      EXPECT_TRUE(user.See(wrong).Focused) << wrong.Name();
      EXPECT_EQ(Calls{}, Writes()) << wrong.Name();
      Cancel();
    });
    EXPECT_EQ(field + 1, script.Beeps);
  }
}

const char* const kSettings[] = {"RangeStep",          "Line.Color",
                                 "Line.Width",         "Line.Style",
                                 "UseRangeColor",      "UseRangeWidth",
                                 "MaxWidth",           "LabelVisible",
                                 "LabelAllIsolines",   "LabelDistance",
                                 "LabelUseRangeColor", "LabelFont.Name",
                                 "LabelFont.Size",     "LabelFont.Bold",
                                 "LabelFont.Italic",   "LabelFont.Underline",
                                 "LabelFont.Color",    "LabelFont.Strikethrough"};

TEST_F(Isolines, ASettingThatCannotBeReadIsSkippedAndTheRestWorks) {
  for (const std::string setting : kSettings) {
    lines.Log.Failing = {setting};
    lines.HeldMaxWidth = 5;
    lines.Pen.HeldWidth = 3;
    const bool editsWidth = setting == "MaxWidth";
    EXPECT_TRUE(Edit([this, editsWidth] { user.Type(editsWidth ? form->txtLineWidth : form->txtLineMaxWidth, "8"); }))
        << setting;
    EXPECT_EQ(Calls{editsWidth ? "Line.Width=" : "MaxWidth="}, Writes()) << setting;
  }
}

TEST_F(Isolines, ASettingThatCannotBeWrittenIsPassedOver) {
  for (const std::string& write : kAllWrites) {
    PutBack();
    lines.Log.Failing = {write};
    EXPECT_TRUE(EditEverything()) << write;
    EXPECT_EQ(kAllWrites, Writes()) << write;
    EXPECT_EQ(write == "LabelDistance=" ? 0.25 : 0.7, lines.HeldLabelDistance) << write;
  }
}

TEST_F(Isolines, CancelAndTheCloseBoxReportNoChange) {
  for (const bool byBox : {false, true}) {
    EXPECT_FALSE(Edit([this, byBox] {
      user.Type(form->txtLineWidth, "1");
      if (byBox) return user.CloseBox(*form);
      user.Press(*form, kEscape);
    }));
    EXPECT_EQ(Calls{}, Writes());
  }
}

TEST_F(Isolines, AnObjectWithoutIsolinesShowsTheDesignAndWritesNothing) {
  PlainObject other;
  script.ExpectForm("frmDataIsoline", [this](Form& shown) {
    EXPECT_EQ("0.25", user.See(*shown.Find("cmbLabelDistance")).Text);
    EXPECT_EQ("1", user.See(*shown.Find("cmbRangeStep")).Text);
    user.Click(dynamic_cast<Button&>(*shown.Find("cmdOK")));
  });
  EXPECT_FALSE(modMain::ShowIsolineDialog(desktop(), &other, changed, nullptr));
  EXPECT_FALSE(modMain::ShowIsolineDialog(desktop(), nullptr, changed, nullptr));
  EXPECT_EQ(1, script.Beeps);
}

TEST_F(Isolines, TheLocaleHasItsOwnSeparators) {
  testDesktop().Separators({",", ".", "€"});
  lines.HeldLabelDistance = 0.15;
  EXPECT_TRUE(Edit([this] {
    EXPECT_EQ("0,15", Seen(form->cmbLabelDistance));
    EXPECT_EQ("0,25", form->cmbLabelDistance.List(3));
    user.Choose(form->cmbLabelDistance, 4);
  }));
  EXPECT_EQ(0.3, lines.HeldLabelDistance);
}

TEST_F(Isolines, TheLanguageTranslatesAndGivesTheHelpNumber) {
  CallLog log;
  RecordingLanguage words(log);
  words.Texts = {{"_HelpLayerIsolines", "44"}};
  language = &words;
  Edit([this] {
    EXPECT_EQ(44, form->HelpContextId());
    EXPECT_EQ("<Isoline properties>", user.SeeCaption(*form));
    Cancel();
  });
}

TEST_F(Isolines, PickingTheLineStyleThatStandsInForAnotherIsAPick) {
  constexpr std::int32_t kUnknown = 77;
  lines.Pen.HeldStyle = kUnknown;
  Edit([] {});
  EXPECT_EQ(kUnknown, lines.Pen.HeldStyle);
  for (const bool isByMouse : {true, false}) {
    lines.Pen.HeldStyle = kUnknown;
    EXPECT_TRUE(Edit([this, isByMouse] {
      EXPECT_EQ("Solid", Seen(form->cmbLineStyle));
      isByMouse ? user.Pick(form->cmbLineStyle, 0) : user.Choose(form->cmbLineStyle, 0);
    }));
    EXPECT_EQ(0, lines.Pen.HeldStyle) << isByMouse;
  }
}

}  // namespace
}  // namespace orx::test
