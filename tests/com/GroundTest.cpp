// Maps of hosts, moved on the ground by the dialog through the slots.
#include "forms/Button.h"
#include "forms/TextBox.h"
#include "tests/com/support/MapDialogsTest.h"

namespace orx::com::test {
namespace {

/// A map of a script, with an extent of 100 by 50.
struct ScriptMap {
  ScriptMap() {
    std::map<std::string, Variant> ground;
    ground.emplace("Left", Variant(0.0));
    ground.emplace("Right", Variant(100.0));
    ground.emplace("Bottom", Variant(0.0));
    ground.emplace("Top", Variant(50.0));
    Extent = MakeCounted<ScriptObject>(std::move(ground));
    std::map<std::string, Variant> fields;
    fields.emplace("LayerCount", Variant(std::int32_t{0}));
    fields.emplace("Layer", Variant());
    fields.emplace("Extent", Variant(Extent.Get()));
    Object = MakeCounted<ScriptObject>(std::move(fields));
  }

  ComPtr<ScriptObject> Extent;
  ComPtr<ScriptObject> Object;
};

class GroundDialog : public MapDialogsTest {
 protected:
  HRESULT Move(IDispatch* object) {
    return dialogs->ShowGeoReference(&object, nullptr, nullptr, nullptr, nullptr, &result);
  }
  /// The user types a right edge and presses the button.
  void Answer(const char* button) {
    answer = [button](Form& form) {
      auto& field = dynamic_cast<TextBox&>(*form.Find("txtInput(1)"));
      field.SetFocus();
      field.UserText("200", 3, 0);
      dynamic_cast<Button&>(*form.Find(button)).UserPress();
    };
  }

  ScriptMap map;
};

TEST_F(GroundDialog, TheEdgesAreWrittenToTheExtentOfTheMap) {
  Answer("cmdOK");
  EXPECT_EQ(Move(map.Object.Get()), S_OK);
  EXPECT_EQ(result, -1);
  EXPECT_EQ(map.Extent->Written, (std::vector<std::string>{"Left", "Right", "Bottom", "Top"}));
  EXPECT_EQ(map.Extent->Field("Right").dblVal, 200);
  EXPECT_EQ(map.Extent->Field("Top").dblVal, 100);
  EXPECT_EQ(ReferencesOf(map.Object.Get()), 1u);
  EXPECT_EQ(shown, std::vector<std::string>{"frmGeoreference: Georeference"});
}

TEST_F(GroundDialog, CancelWritesNothingAndIsNoError) {
  Answer("cmdCancel");
  EXPECT_EQ(Move(map.Object.Get()), S_OK);
  EXPECT_EQ(result, -1);
  EXPECT_TRUE(map.Extent->Written.empty());
}

TEST_F(GroundDialog, RatioFormatAndCaptionAreTakenAndHaveNoEffect) {
  IDispatch* object = map.Object.Get();
  auto ratio = ::CheckState{};
  Bstr format("0");
  Bstr caption("A title");
  BSTR formatGiven = format.Get();
  BSTR captionGiven = caption.Get();
  EXPECT_EQ(dialogs->ShowGeoReference(&object, &ratio, &formatGiven, &captionGiven, nullptr, &result), S_OK);
  EXPECT_EQ(object, map.Object.Get());
  EXPECT_EQ(result, -1);
  EXPECT_EQ(shown, std::vector<std::string>{"frmGeoreference: Georeference"});
}

TEST_F(GroundDialog, AMemberThatFailsIsNoErrorButAResultOfZero) {
  map.Extent->Broken = "Bottom";
  EXPECT_EQ(Move(map.Object.Get()), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_TRUE(shown.empty());
}

TEST_F(GroundDialog, AnEdgeThatCannotBeWrittenIsPassedOver) {
  answer = [this](Form& form) {
    map.Extent->Broken = "Left";
    dynamic_cast<Button&>(*form.Find("cmdOK")).UserPress();
  };
  EXPECT_EQ(Move(map.Object.Get()), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(map.Extent->Written, (std::vector<std::string>{"Right", "Bottom", "Top"}));
}

TEST_F(GroundDialog, OtherObjectsShowNothing) {
  const auto other = MakeCounted<ScriptObject>();
  for (IDispatch* const object : {static_cast<IDispatch*>(other.Get()), static_cast<IDispatch*>(map.Extent.Get()),
                                  static_cast<IDispatch*>(nullptr)}) {
    result = 77;
    EXPECT_EQ(Move(object), S_OK);
    EXPECT_EQ(result, 0);
  }
  EXPECT_TRUE(shown.empty());
}

TEST_F(GroundDialog, PlacesForTheObjectAndTheResultAreRequired) {
  IDispatch* object = map.Object.Get();
  EXPECT_EQ(dialogs->ShowGeoReference(nullptr, nullptr, nullptr, nullptr, nullptr, &result), E_POINTER);
  EXPECT_EQ(dialogs->ShowGeoReference(&object, nullptr, nullptr, nullptr, nullptr, nullptr), E_POINTER);
  EXPECT_TRUE(shown.empty());
}

TEST_F(GroundDialog, ANumberAsOwnerWillDoAndATextWillNot) {
  IDispatch* object = map.Object.Get();
  Variant text("Main window");
  EXPECT_EQ(dialogs->ShowGeoReference(&object, nullptr, nullptr, nullptr, &text, &result), CodeOf(kErrorTypeMismatch));
  EXPECT_NE(TakenErrorText().find("OwnerForm"), std::string::npos);
  EXPECT_TRUE(shown.empty());
  Variant none(std::int32_t{0});
  EXPECT_EQ(dialogs->ShowGeoReference(&object, nullptr, nullptr, nullptr, &none, &result), S_OK);
  EXPECT_EQ(shown.size(), 1u);
}

}  // namespace
}  // namespace orx::com::test
