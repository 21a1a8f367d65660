// Objects of hosts behind the library's interfaces, known by the names of their members.
#include <gtest/gtest.h>

#include <functional>

#include "com/HostAdapters.h"
#include "hostobjects/IMap.h"
#include "hostobjects/RunTimeError.h"
#include "tests/com/support/MapDialogsTest.h"

namespace orx::com::test {
namespace {

using Fields = std::map<std::string, Variant>;

template <class... Pairs>
Fields FieldsOf(Pairs&&... pairs) {
  Fields fields;
  (fields.emplace(pairs.first, std::move(pairs.second)), ...);
  return fields;
}

template <class Value>
std::pair<const char*, Variant> Field(const char* name, Value value) {
  return {name, Variant(value)};
}

ComPtr<ScriptObject> MakeLayer(Naming naming = Naming::Plain) {
  return MakeCounted<ScriptObject>(
      FieldsOf(Field("Name", "Relief"), Field("Visible", true), Field("Source", "relief.bil"),
               Field("SymbolFont", "Wingdings"), Field("SymbolCharacter", std::int32_t{108}),
               Field("SymbolRotation", 0.5), Field("SymbolSize", 12.0)),
      naming);
}

ComPtr<ScriptObject> MakeExtent() {
  return MakeCounted<ScriptObject>(
      FieldsOf(Field("Left", 1.0), Field("Right", 2.0), Field("Bottom", 3.0), Field("Top", 4.0)));
}

ComPtr<ScriptObject> MakeFont() {
  return MakeCounted<ScriptObject>(FieldsOf(Field("Name", "Arial"), Field("Size", 9.0), Field("Bold", false),
                                            Field("Italic", false), Field("Underline", false),
                                            Field("Strikethrough", false), Field("Color", std::int32_t{0x0000FF})));
}

ComPtr<ScriptObject> MakeLabels(IDispatch* font) {
  return MakeCounted<ScriptObject>(FieldsOf(Field("ShowLabels", true), Field("Content", std::int32_t{1}),
                                            Field("Position", std::int32_t{2}), Field("LabelFont", font),
                                            Field("LabelRotation", 0.0)));
}

/// The number and the text of the error that an act ends in; 0 without one.
std::pair<std::int32_t, std::string> ErrorOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const RunTimeError& error) {
    return {error.Number(), error.what()};
  }
  return {0, ""};
}

TEST(HostAdapter, NothingIsNoObject) {
  EXPECT_EQ(AdaptHostObject(nullptr), nullptr);
}

TEST(HostAdapter, TheKindOfAnObjectIsKnownByItsMembers) {
  const auto layer = AdaptHostObject(MakeLayer().Get());
  EXPECT_TRUE(QueryKind<ILayer>(layer.get()));
  EXPECT_FALSE(QueryKind<IExtent>(layer.get()));
  EXPECT_FALSE(QueryKind<IMap>(layer.get()));
  const auto extent = AdaptHostObject(MakeExtent().Get());
  EXPECT_TRUE(QueryKind<IExtent>(extent.get()));
  EXPECT_FALSE(QueryKind<ILayer>(extent.get()));
}

TEST(HostAdapter, MembersAreReadAndWritten) {
  const auto object = MakeLayer();
  const auto adapter = AdaptHostObject(object.Get());
  auto& layer = *QueryKind<ILayer>(adapter.get());
  EXPECT_EQ(layer.Name(), "Relief");
  EXPECT_TRUE(layer.Visible());
  EXPECT_EQ(layer.SymbolCharacter(), 108);
  EXPECT_EQ(layer.SymbolSize(), 12);
  layer.Name("H\xC3\xBCgel");
  layer.Visible(false);
  layer.SymbolRotation(45);
  EXPECT_EQ(object->Written, (std::vector<std::string>{"Name", "Visible", "SymbolRotation"}));
  EXPECT_EQ(TextOf(object->Field("Name").bstrVal), "H\xC3\xBCgel");
  EXPECT_EQ(object->Field("Visible").boolVal, VARIANT_FALSE);
}

TEST(HostAdapter, ObjectsThatTellTheirNamesInTheExtendedWayOnlyServe) {
  const auto adapter = AdaptHostObject(MakeLayer(Naming::ExtendedOnly).Get());
  ASSERT_TRUE(QueryKind<ILayer>(adapter.get()));
  EXPECT_EQ(QueryKind<ILayer>(adapter.get())->Name(), "Relief");
}

TEST(HostAdapter, WhatAMemberRaisesKeepsItsNumberAndDescription) {
  const auto object = MakeLayer();
  const auto adapter = AdaptHostObject(object.Get());
  auto& layer = *QueryKind<ILayer>(adapter.get());
  const std::pair<const char*, std::function<void()>> acts[] = {
      {"Name", [&] { layer.Name(); }},
      {"Name", [&] { layer.Name("x"); }},
      {"Visible", [&] { layer.Visible(); }},
      {"Source", [&] { layer.Source(); }},
      {"SymbolFont", [&] { layer.SymbolFont("x"); }},
      {"SymbolCharacter", [&] { layer.SymbolCharacter(); }},
      {"SymbolSize", [&] { layer.SymbolSize(1); }},
  };
  for (const auto& [member, act] : acts) {
    object->Broken = member;
    EXPECT_EQ(ErrorOf(act),
              (std::pair<std::int32_t, std::string>{kErrorFileFormat, std::string(member) + " is broken"}));
  }
}

TEST(HostAdapter, AMemberThatIsMissingIsNamed) {
  const auto adapter = AdaptHostObject(MakeCounted<ScriptObject>(FieldsOf(Field("SymbolFont", "Arial"))).Get());
  const auto [number, text] = ErrorOf([&] { QueryKind<ILayer>(adapter.get())->SymbolSize(); });
  EXPECT_EQ(number, kErrorNoSuchMember);
  EXPECT_NE(text.find("\"SymbolSize\""), std::string::npos) << text;
}

TEST(HostAdapter, AValueOfTheWrongTypeIsAnErrorThatNamesItsMember) {
  const auto object = MakeLayer();
  object->Field("SymbolSize") = Variant("large");
  const auto adapter = AdaptHostObject(object.Get());
  const auto [number, text] = ErrorOf([&] { QueryKind<ILayer>(adapter.get())->SymbolSize(); });
  EXPECT_NE(number, 0);
  EXPECT_NE(text.find("SymbolSize"), std::string::npos) << text;
}

TEST(HostAdapter, AChoiceThatDoesNotExistIsAnErrorThatTellsTheRange) {
  const auto font = MakeFont();
  const auto object = MakeLabels(font.Get());
  object->Field("Position") = Variant(std::int32_t{99});
  const auto adapter = AdaptHostObject(object.Get());
  const auto [number, text] = ErrorOf([&] { static_cast<void>(QueryKind<ILabels>(adapter.get())->Position()); });
  EXPECT_EQ(number, kErrorInvalidValue);
  EXPECT_EQ(text, "Position is 99, but must be from 0 to 4.");
}

TEST(HostAdapter, OfAFontOnlyWhatDiffersIsWritten) {
  const auto font = MakeFont();
  const auto object = MakeLabels(font.Get());
  const auto adapter = AdaptHostObject(object.Get());
  auto& labels = *QueryKind<ILabels>(adapter.get());
  Font face = labels.LabelFont();
  labels.LabelFont(face);
  EXPECT_EQ(font->Written, std::vector<std::string>());
  face.Bold = true;
  labels.LabelFont(face);
  EXPECT_EQ(font->Written, std::vector<std::string>{"Bold"});
}

TEST(HostAdapter, ColoursTravelAsThePlatformWritesThem) {
  const auto font = MakeFont();
  const auto object = MakeLabels(font.Get());
  const auto adapter = AdaptHostObject(object.Get());
  auto& labels = *QueryKind<ILabels>(adapter.get());
  EXPECT_EQ(labels.LabelColor(), (Color{255, 0, 0}));
  labels.LabelColor({0, 0, 255});
  EXPECT_EQ(font->Field("Color").lVal, 0xFF0000);
}

TEST(HostAdapter, NoReferenceIsKeptWhenTheAdapterIsGone) {
  const auto font = MakeFont();
  const auto object = MakeLabels(font.Get());
  {
    const auto adapter = AdaptHostObject(object.Get());
    static_cast<void>(QueryKind<ILabels>(adapter.get())->LabelFont());
  }
  EXPECT_EQ(ReferencesOf(object.Get()), 1u);
  EXPECT_EQ(ReferencesOf(font.Get()), 2u);  // The field's own and this one.
}

using BrokenObjects = MapDialogsTest;

TEST_F(BrokenObjects, ADialogOnAnObjectThatRaisesAnErrorReturnsToTheHostAndKeepsNothing) {
  const auto object = MakeLayer();
  for (const char* member : {"Name", "Visible", "Source", "SymbolFont", "SymbolCharacter", "SymbolSize"}) {
    object->Broken = member;
    result = 77;
    EXPECT_EQ(ShowProperties(object.Get()), S_OK) << member;
    EXPECT_EQ(result, 0) << member;
    EXPECT_EQ(ReferencesOf(object.Get()), 1u) << member;
  }
}

TEST_F(BrokenObjects, AnObjectOfNoKindShowsAnEmptyDialog) {
  const auto object = MakeCounted<ScriptObject>();
  EXPECT_EQ(ShowProperties(object.Get()), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(ShowProperties(nullptr), S_OK);
  EXPECT_EQ(result, 0);
}

}  // namespace
}  // namespace orx::com::test
