// Events of a page control, answered by the page's dialog.
#include <gtest/gtest.h>

#include <OrvexMapDialogs2.h>

#include "com/PageControlFactory.h"
#include "tests/com/pagecontrols/TestRegistration.h"
#include "tests/com/pagecontrols/TestTypeLibrary.h"
#include "tests/com/support/ScriptObject.h"
#include "tests/support/DesktopTest.h"

namespace orx::test {
namespace {

// {1B7D6C52-7C1E-4B8E-8F0B-5B1E7D6A1C11}
const IID kOwnEvents = {0x1b7d6c52, 0x7c1e, 0x4b8e, {0x8f, 0x0b, 0x5b, 0x1e, 0x7d, 0x6a, 0x1c, 0x11}};

class PageEventsTest : public DesktopTest {
 protected:
  PageEventsTest() { state.Source = __uuidof(_IMapPropertyPageEvents); }

  PropertyPage& Page() {
    if (!page) page = pages.CreatePage(PageKind::Properties, {*form, "Properties1", {0, 0, 3000, 3000}});
    return *page;
  }
  TestPageControl& Control() { return *state.Last; }

  const Apartment apartment;
  PageControlState state;
  const RegisteredClass registeredClass{state};
  const RegisteredProgId registered{"OrvexMapControls.Properties"};
  RecordingPages embedded{state.Log};
  com::PageControlFactory pages{embedded};
  std::shared_ptr<Form> form = std::make_shared<Form>(desktop(), "Form", FormDesign{});
  std::unique_ptr<PropertyPage> page;
};

/// The arguments of CharacterRequested, passed by reference.
struct CharacterArguments {
  com::Bstr Font{"Symbol"};
  LONG Character = 65;
  double Rotation = 10;
  VARIANT_BOOL Changed = VARIANT_FALSE;

  std::vector<VARIANTARG> ByReference() {
    std::vector<VARIANTARG> arguments(4);
    arguments[0].vt = VT_BYREF | VT_BSTR;
    arguments[0].pbstrVal = Font.InOut();
    arguments[1].vt = VT_BYREF | VT_I4;
    arguments[1].plVal = &Character;
    arguments[2].vt = VT_BYREF | VT_R8;
    arguments[2].pdblVal = &Rotation;
    arguments[3].vt = VT_BYREF | VT_BOOL;
    arguments[3].pboolVal = &Changed;
    return arguments;
  }
};

TEST_F(PageEventsTest, ACharacterRequestIsAnsweredThroughItsArguments) {
  Page().CharacterRequested = [](CharacterRequest& request) {
    EXPECT_EQ("Symbol", request.FontName);
    EXPECT_EQ(65, request.Character);
    EXPECT_EQ(10, request.Rotation);
    request = {"Wingdings", 0x2713, 45, true};
  };
  CharacterArguments arguments;
  EXPECT_EQ(S_OK, Control().Raise(1, arguments.ByReference()));
  EXPECT_EQ("Wingdings", arguments.Font.Text());
  EXPECT_EQ(0x2713, arguments.Character);
  EXPECT_EQ(45, arguments.Rotation);
  EXPECT_EQ(VARIANT_TRUE, arguments.Changed);
}

TEST_F(PageEventsTest, ARequestThatNobodyHandlesLeavesItsArgumentsAsTheyAre) {
  Page();
  CharacterArguments arguments;
  EXPECT_EQ(S_OK, Control().Raise(1, arguments.ByReference()));
  EXPECT_EQ(65, arguments.Character);
  EXPECT_EQ(VARIANT_FALSE, arguments.Changed);
}

TEST_F(PageEventsTest, AChangedNameReachesThePage) {
  std::string changed;
  Page().NameChanged = [&](const std::string& name) { changed = name; };
  const com::Variant name("Relief");
  EXPECT_EQ(S_OK, Control().Raise(2, {name}));
  EXPECT_EQ("Relief", changed);
}

TEST_F(PageEventsTest, AnEventFromTheControlsWindowIsHandledInTheSurroundingsOfTheHost) {
  const DPI_AWARENESS_CONTEXT before = SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_UNAWARE);
  int seen = -1;
  Page().NameChanged = [&](const std::string&) {
    seen = GetAwarenessFromDpiAwarenessContext(GetThreadDpiAwarenessContext());
  };
  form->Show(ShowMode::Modeless);
  Control().Pressed = [&] { Control().Raise(2, {com::Variant("Relief")}); };
  SendMessageW(Control().Button(), BM_CLICK, 0, 0);
  form->Unload();
  SetThreadDpiAwarenessContext(before);
  EXPECT_EQ(DPI_AWARENESS_UNAWARE, seen);
}

/// Arguments by reference for the flags and texts that come back.
VARIANTARG Reference(VARIANT_BOOL& flag) {
  VARIANTARG argument = {};
  argument.vt = VT_BYREF | VT_BOOL;
  argument.pboolVal = &flag;
  return argument;
}
VARIANTARG Reference(BSTR& text) {
  VARIANTARG argument = {};
  argument.vt = VT_BYREF | VT_BSTR;
  argument.pbstrVal = &text;
  return argument;
}

TEST_F(PageEventsTest, ABrowseRequestIsAnsweredThroughItsArguments) {
  Page().BrowseRequested = [](BrowseRequest& request) {
    EXPECT_EQ("old.bil", request.FileName);
    EXPECT_TRUE(request.Cancel);
    request = {"new.bil", false};
  };
  com::Bstr file("old.bil");
  VARIANT_BOOL cancel = VARIANT_TRUE;
  EXPECT_EQ(S_OK, Control().Raise(3, {Reference(*file.InOut()), Reference(cancel)}));
  EXPECT_EQ("new.bil", file.Text());
  EXPECT_EQ(VARIANT_FALSE, cancel);
}

TEST_F(PageEventsTest, AClassifyRequestBringsTheDataItsRangeAndTheFlags) {
  Page().ClassifyRequested = [](ClassifyRequest& request) {
    EXPECT_NE(nullptr, request.Data);
    EXPECT_EQ(-5, request.Minimum);
    EXPECT_EQ(7.5, request.Maximum);
    EXPECT_EQ(0x20, request.Flags);
    request.Changed = true;
  };
  const com::Variant data(static_cast<IDispatch*>(&Control()));
  VARIANT_BOOL changed = VARIANT_FALSE;
  EXPECT_EQ(S_OK, Control().Raise(4, {data, com::Variant(-5.0), com::Variant(7.5), com::Variant(std::int32_t{0x20}),
                                      Reference(changed)}));
  EXPECT_EQ(VARIANT_TRUE, changed);
}

TEST_F(PageEventsTest, RequestsForADataObjectAreAnsweredThroughTheirFlag) {
  Event<DataRequest&> PropertyPage::*const events[] = {&PropertyPage::OptionsRequested, &PropertyPage::ShadeRequested,
                                                       &PropertyPage::IsolineRequested};
  for (DISPID id = 5; id <= 7; ++id) {
    Page().*events[id - 5] = [](DataRequest& request) {
      EXPECT_EQ(nullptr, request.Data);
      request.Changed = true;
    };
    VARIANT_BOOL changed = VARIANT_FALSE;
    EXPECT_EQ(S_OK, Control().Raise(id, {com::Variant(static_cast<IDispatch*>(nullptr)), Reference(changed)}));
    EXPECT_EQ(VARIANT_TRUE, changed) << id;
  }
}

TEST_F(PageEventsTest, AGeoreferenceRequestBringsTheMapAndIsAnsweredThroughItsFlag) {
  Page().GeoreferenceRequested = [](GeoreferenceRequest& request) {
    EXPECT_NE(nullptr, request.Map);
    EXPECT_FALSE(request.Changed);
    request.Changed = true;
  };
  VARIANT_BOOL changed = VARIANT_FALSE;
  EXPECT_EQ(S_OK, Control().Raise(10, {com::Variant(static_cast<IDispatch*>(&Control())), Reference(changed)}));
  EXPECT_EQ(VARIANT_TRUE, changed);
}

TEST_F(PageEventsTest, RequestsWithoutAnAnswerReachThePage) {
  int styles = 0;
  bool hasLanguage = false;
  Page().DataStyleRequested = [&] { ++styles; };
  Page().ColorsRequested = [&](ILanguage* language) { hasLanguage = language != nullptr; };
  EXPECT_EQ(S_OK, Control().Raise(8, {}));
  EXPECT_EQ(S_OK, Control().Raise(9, {com::Variant(static_cast<IDispatch*>(&Control()))}));
  EXPECT_EQ(1, styles);
  EXPECT_TRUE(hasLanguage);
}

TEST_F(PageEventsTest, EventsThatThePageDoesNotKnowAreRefused) {
  Page();
  EXPECT_EQ(DISP_E_MEMBERNOTFOUND, Control().Raise(99, {}));
}

TEST_F(PageEventsTest, WhatAHandlerThrowsComesBackAsErrorWithDescription) {
  Page().NameChanged = [](const std::string&) { throw RunTimeError(1001, "This name is taken."); };
  const com::Variant name("Relief");
  com::ExceptionInfo exception;
  EXPECT_EQ(DISP_E_EXCEPTION, Control().Raise(2, {name}, &exception));
  EXPECT_EQ(com::test::CodeOf(1001), exception.scode);
  EXPECT_EQ("This name is taken.", com::TextOf(exception.bstrDescription));
}

TEST_F(PageEventsTest, WithoutRoomForADescriptionTheCodeItselfComesBack) {
  Page().NameChanged = [](const std::string&) { throw RunTimeError(1001, "This name is taken."); };
  const com::Variant name("Relief");
  EXPECT_EQ(com::test::CodeOf(1001), Control().Raise(2, {name}));
  com::ComPtr<IErrorInfo> info;
  com::Bstr description;
  ASSERT_EQ(S_OK, GetErrorInfo(0, info.Out()));
  info->GetDescription(description.Out());
  EXPECT_EQ("This name is taken.", description.Text());
}

TEST_F(PageEventsTest, EventsOfAnInterfaceOfItsOwnAreKnownByTheirNames) {
  state.Source = kOwnEvents;
  state.ClassInfo = DescribeClass(kOwnEvents, {"namechanged", 77});
  std::string changed;
  Page().NameChanged = [&](const std::string& name) { changed = name; };
  const com::Variant name("Relief");
  EXPECT_EQ(DISP_E_MEMBERNOTFOUND, Control().Raise(2, {name}));
  EXPECT_EQ(S_OK, Control().Raise(77, {name}));
  EXPECT_EQ("Relief", changed);
}

TEST_F(PageEventsTest, AControlWithoutKnownEventsServesAllTheSame) {
  state.Source = kOwnEvents;
  Page().RefreshContents();
  EXPECT_EQ(S_FALSE, Control().Raise(2, {}));
}

TEST_F(PageEventsTest, NobodyListensWhenThePageIsGone) {
  Page();
  const com::ComPtr<TestPageControl> control(&Control());
  page.reset();
  EXPECT_EQ(S_FALSE, control->Raise(2, {}));
}

}  // namespace
}  // namespace orx::test
