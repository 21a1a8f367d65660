// Data objects of hosts: known by their members or the views that they give, and edited by the dialogs through the
// slots.
#include <gtest/gtest.h>

#include "com/HostAdapters.h"
#include "forms/Button.h"
#include "forms/ComboBox.h"
#include "forms/TextBox.h"
#include "hostobjects/IData.h"
#include "hostobjects/IMap.h"
#include "hostobjects/RunTimeError.h"
#include "tests/com/support/MapDialogsTest.h"

namespace orx::com::test {
namespace {

using DataFields = std::map<std::string, Variant>;

void Put(DataFields& fields, const char* name, Variant value) {
  fields[name] = std::move(value);
}

DataFields ClassificationFields() {
  DataFields fields;
  Put(fields, "ValueFormat", Variant("0.00"));
  Put(fields, "ShowParameterName", Variant(false));
  Put(fields, "ClassifyMethod", Variant(std::int32_t{0}));
  Put(fields, "NumberOfClasses", Variant(std::int32_t{4}));
  Put(fields, "MinValue", Variant(0.0));
  Put(fields, "MaxValue", Variant(100.0));
  Put(fields, "StepSize", Variant(25.0));
  Put(fields, "OutsideAsMissing", Variant(false));
  Put(fields, "LegendStyle", Variant(std::int32_t{0}));
  Put(fields, "FirstClassSize", Variant(2.0));
  Put(fields, "LastClassSize", Variant(40.0));
  return fields;
}

ComPtr<ScriptObject> MakeSpecial() {
  DataFields fields;
  Put(fields, "Color", Variant(std::int32_t{0x0000FF}));
  Put(fields, "Enabled", Variant(true));
  Put(fields, "InLegend", Variant(false));
  Put(fields, "UpperBound", Variant(2.0));
  Put(fields, "LowerBound", Variant(1.0));
  Put(fields, "TextValue", Variant("own"));
  Put(fields, "Transparent", Variant(false));
  return MakeCounted<ScriptObject>(std::move(fields));
}

/// A data object with everything on itself.
struct ScriptData {
  ScriptData() {
    DataFields fields = ClassificationFields();
    Put(fields, "ClassCount", Variant(std::int32_t{4}));
    Put(fields, "MissingValue", Variant(Missing.Get()));
    Put(fields, "ZeroValue", Variant(Zero.Get()));
    Put(fields, "NoDataValue", Variant(NoData.Get()));
    Object = MakeCounted<ScriptObject>(std::move(fields));
  }

  ComPtr<ScriptObject> Missing = MakeSpecial();
  ComPtr<ScriptObject> Zero = MakeSpecial();
  ComPtr<ScriptObject> NoData = MakeSpecial();
  ComPtr<ScriptObject> Object;
};

/// The control of that name, as the user meets it.
template <class Kind>
Kind& In(Form& form, const char* name) {
  return dynamic_cast<Kind&>(*form.Find(name));
}

TEST(DataAdapter, AnObjectWithAClassificationIsADataObject) {
  const ScriptData data;
  const auto adapter = AdaptHostObject(data.Object.Get());
  ASSERT_TRUE(QueryKind<orx::IData>(adapter.get()));
  EXPECT_EQ(QueryKind<orx::IData>(adapter.get())->ClassCount(), 4);
  EXPECT_EQ(QueryKind<orx::IData>(adapter.get())->FileName(), "");
  EXPECT_EQ(QueryKind<orx::IData>(adapter.get())->MinimumOfData(), kUnknownRangeEnd);
  EXPECT_EQ(QueryKind<orx::IClassification>(adapter.get())->MaxValue(), 100);
  EXPECT_EQ(QueryKind<orx::IDataOptions>(adapter.get())->ZeroValue().TextValue(), "own");
  EXPECT_FALSE(QueryKind<orx::ILayer>(adapter.get()));
}

TEST(DataAdapter, ViewsMayBeObjectsOfTheirOwn) {
  const auto classes = MakeCounted<ScriptObject>(ClassificationFields());
  DataFields options;
  const auto special = MakeSpecial();
  for (const char* const kind : {"MissingValue", "ZeroValue", "NoDataValue"})
    Put(options, kind, Variant(special.Get()));
  const auto kinds = MakeCounted<ScriptObject>(std::move(options));
  DataFields fields;
  Put(fields, "ClassCount", Variant(std::int32_t{3}));
  Put(fields, "Classification", Variant(classes.Get()));
  Put(fields, "Options", Variant(kinds.Get()));
  Put(fields, "FileName", Variant("old.bil"));
  Put(fields, "MinimumOfData", Variant(-7.0));
  const auto object = MakeCounted<ScriptObject>(std::move(fields));
  const auto adapter = AdaptHostObject(object.Get());
  orx::IData& data = *QueryKind<orx::IData>(adapter.get());
  EXPECT_EQ(data.ClassCount(), 3);
  EXPECT_EQ(data.FileName(), "old.bil");
  data.FileName("new.bil");
  EXPECT_EQ(TextOf(object->Field("FileName").bstrVal), "new.bil");
  EXPECT_EQ(data.MinimumOfData(), -7);
  QueryKind<orx::IClassification>(adapter.get())->MinValue(5);
  EXPECT_EQ(classes->Field("MinValue").dblVal, 5);
  QueryKind<orx::IDataOptions>(adapter.get())->NoDataValue().Enabled(false);
  EXPECT_EQ(special->Field("Enabled").boolVal, VARIANT_FALSE);
}

TEST(DataAdapter, ALayerGivesItsData) {
  const ScriptData data;
  DataFields bareFields;
  Put(bareFields, "SymbolFont", Variant("Arial"));
  const auto bare = MakeCounted<ScriptObject>(std::move(bareFields));
  DataFields fields;
  Put(fields, "SymbolFont", Variant("Arial"));
  Put(fields, "Data", Variant(data.Object.Get()));
  const auto layer = MakeCounted<ScriptObject>(std::move(fields));
  const auto adapter = AdaptHostObject(layer.Get());
  EXPECT_TRUE(QueryKind<orx::IData>(QueryKind<orx::ILayer>(adapter.get())->Data()));
  EXPECT_FALSE(QueryKind<orx::ILayer>(AdaptHostObject(bare.Get()).get())->Data());
}

TEST(DataAdapter, EachMemberIsReadWrittenAndNamedWhenItFails) {
  const ScriptData data;
  const auto adapter = AdaptHostObject(data.Object.Get());
  auto& classes = *QueryKind<orx::IClassification>(adapter.get());
  const std::pair<const char*, std::function<void()>> acts[] = {
      {"ValueFormat", [&] { classes.ValueFormat("0"); }},
      {"ShowParameterName", [&] { classes.ShowParameterName(true); }},
      {"ClassifyMethod", [&] { classes.ClassifyMethod(7); }},
      {"NumberOfClasses", [&] { classes.NumberOfClasses(5); }},
      {"MinValue", [&] { classes.MinValue(1); }},
      {"MaxValue", [&] { classes.MaxValue(2); }},
      {"OutsideAsMissing", [&] { classes.OutsideAsMissing(true); }},
      {"LegendStyle", [&] { classes.LegendStyle(2); }},
      {"FirstClassSize", [&] { classes.FirstClassSize(3); }},
      {"LastClassSize", [&] { classes.LastClassSize(4); }},
      {"StepSize", [&] { static_cast<void>(classes.StepSize()); }},
  };
  for (const auto& [member, act] : acts) {
    data.Object->Broken = member;
    try {
      act();
      ADD_FAILURE() << member;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), kErrorFileFormat);
      EXPECT_EQ(std::string(error.what()), std::string(member) + " is broken");
    }
    data.Object->Broken.clear();
    act();
  }
  EXPECT_EQ(data.Object->Written.size(), 10u);
  EXPECT_EQ(classes.NumberOfClasses(), 5);
}

TEST(DataAdapter, AColourOfTheSystemStaysOneWhileItIsNotChanged) {
  const ScriptData data;
  const auto system = static_cast<std::int32_t>(0x80000000 | COLOR_WINDOW);
  data.Zero->Field("Color") = Variant(system);
  const auto adapter = AdaptHostObject(data.Object.Get());
  orx::ISpecialValue& zero = QueryKind<orx::IDataOptions>(adapter.get())->ZeroValue();
  const Color shown = zero.Color();
  zero.Color(shown);
  EXPECT_EQ(data.Zero->Field("Color").lVal, system);
  zero.Color({1, 2, 3});
  EXPECT_EQ(data.Zero->Field("Color").lVal, 0x030201);
}

TEST(DataAdapter, ASpecialValueThatIsNothingIsAnErrorThatNamesIt) {
  const ScriptData data;
  data.Object->Field("ZeroValue") = Variant(static_cast<IDispatch*>(nullptr));
  const auto adapter = AdaptHostObject(data.Object.Get());
  try {
    QueryKind<orx::IDataOptions>(adapter.get())->ZeroValue();
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(std::string(error.what()), "ZeroValue is Nothing.");
  }
}

class DataDialogs : public MapDialogsTest {
 protected:
  HRESULT Classify(IDispatch* object) {
    return dialogs->ShowDataClassify(&object, &low, &high, ::ClassifyClassCount, &isDirty, nullptr, nullptr, nullptr,
                                     &result);
  }
  HRESULT EditOptions(IDispatch* object) {
    return dialogs->ShowDataOptions(&object, nullptr, nullptr, nullptr, &result);
  }

  ScriptData data;
  double low = -999;
  double high = -999;
  VARIANT_BOOL isDirty = VARIANT_FALSE;
};

TEST_F(DataDialogs, ClassesAreEditedAndTheChangeIsReported) {
  answer = [](Form& form) {
    EXPECT_FALSE(In<Button>(form, "cmdDefault").Visible());
    EXPECT_TRUE(In<ComboBox>(form, "cboClasses").Enabled());
    In<ComboBox>(form, "cboClasses").UserText("8");
    In<Button>(form, "cmdOK").UserPress();
  };
  EXPECT_EQ(Classify(data.Object.Get()), S_OK);
  EXPECT_EQ(result, -1);
  EXPECT_EQ(isDirty, VARIANT_TRUE);
  EXPECT_EQ(data.Object->Field("NumberOfClasses").lVal, 8);
  EXPECT_EQ(
      data.Object->Written,
      (std::vector<std::string>{"ValueFormat", "ShowParameterName", "ClassifyMethod", "NumberOfClasses", "MinValue",
                                "MaxValue", "OutsideAsMissing", "LegendStyle", "FirstClassSize", "LastClassSize"}));
  EXPECT_EQ(ReferencesOf(data.Object.Get()), 1u);
}

TEST_F(DataDialogs, OKUntouchedWritesNothing) {
  answer = [](Form& form) { In<Button>(form, "cmdOK").UserPress(); };
  isDirty = VARIANT_TRUE;
  EXPECT_EQ(Classify(data.Object.Get()), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(isDirty, VARIANT_FALSE);
  EXPECT_TRUE(data.Object->Written.empty());
}

TEST_F(DataDialogs, SpecialValuesAreEditedAndTheChangeIsReported) {
  answer = [](Form& form) {
    In<TextBox>(form, "txtMinValue(1)").UserText("0.5", 3, 0);
    In<Button>(form, "cmdOK").UserPress();
  };
  EXPECT_EQ(EditOptions(data.Object.Get()), S_OK);
  EXPECT_EQ(result, -1);
  EXPECT_EQ(data.Zero->Field("LowerBound").dblVal, -0.5);
  EXPECT_EQ(data.Zero->Field("UpperBound").dblVal, 0.5);
  EXPECT_EQ(TextOf(data.Missing->Field("TextValue").bstrVal), "own");
}

TEST_F(DataDialogs, OtherObjectsShowNothing) {
  const auto other = MakeCounted<ScriptObject>();
  isDirty = VARIANT_TRUE;
  EXPECT_EQ(Classify(other.Get()), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(Classify(nullptr), S_OK);
  EXPECT_EQ(EditOptions(other.Get()), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(isDirty, VARIANT_TRUE);
  EXPECT_TRUE(shown.empty());
}

TEST_F(DataDialogs, PlacesForResultsAreRequired) {
  IDispatch* object = data.Object.Get();
  EXPECT_EQ(
      dialogs->ShowDataClassify(&object, nullptr, &high, ::ClassifyNone, &isDirty, nullptr, nullptr, nullptr, &result),
      E_POINTER);
  EXPECT_EQ(
      dialogs->ShowDataClassify(&object, &low, &high, ::ClassifyNone, nullptr, nullptr, nullptr, nullptr, &result),
      E_POINTER);
  EXPECT_EQ(dialogs->ShowDataOptions(&object, nullptr, nullptr, nullptr, nullptr), E_POINTER);
  EXPECT_TRUE(shown.empty());
}

}  // namespace
}  // namespace orx::com::test
