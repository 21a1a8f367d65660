// Arguments of events as controls of all kinds pass them.
#include <gtest/gtest.h>

#include "com/EventArguments.h"
#include "hostobjects/RunTimeError.h"

namespace orx::test {
namespace {

template <class Value>
VARIANTARG Reference(VARTYPE type, Value* value) {
  VARIANTARG argument = {};
  argument.vt = type | VT_BYREF;
  argument.byref = value;
  return argument;
}

/// One event with one argument.
struct OneArgument {
  explicit OneArgument(VARIANTARG argument) : Argument(argument) {}
  VARIANTARG Argument;
  DISPPARAMS Given = {&Argument, nullptr, 1, 0};
  com::EventArguments Arguments{Given, 1};
};

TEST(EventArguments, PositionsAreThoseOfTheDeclaration) {
  const com::Variant second(std::int32_t{2});
  const com::Variant first(std::int32_t{1});
  VARIANTARG reversed[] = {second, first};
  const DISPPARAMS given = {reversed, nullptr, 2, 0};
  const com::EventArguments arguments(given, 2);
  EXPECT_EQ(1, arguments.Whole(0));
  EXPECT_EQ(2, arguments.Whole(1));
}

TEST(EventArguments, ReferencesAreAnsweredInTheirOwnType) {
  short whole = 7;
  OneArgument asShort(Reference(VT_I2, &whole));
  EXPECT_EQ(7, asShort.Arguments.Whole(0));
  asShort.Arguments.Answer(0, com::Variant(std::int32_t{300}));
  EXPECT_EQ(300, whole);

  float number = 0;
  OneArgument(Reference(VT_R4, &number)).Arguments.Answer(0, com::Variant(2.5));
  EXPECT_EQ(2.5F, number);

  VARIANT_BOOL flag = VARIANT_FALSE;
  OneArgument(Reference(VT_BOOL, &flag)).Arguments.Answer(0, com::Variant(true));
  EXPECT_EQ(VARIANT_TRUE, flag);
}

TEST(EventArguments, ReferencesToNothingAndVariantsThatReferToThemselvesAreRefused) {
  OneArgument nowhere(Reference<short>(VT_I2, nullptr));
  EXPECT_THROW(nowhere.Arguments.Whole(0), RunTimeError);
  EXPECT_THROW(nowhere.Arguments.Object(0), RunTimeError);
  EXPECT_THROW(nowhere.Arguments.Answer(0, com::Variant(std::int32_t{1})), RunTimeError);
  OneArgument itself(VARIANTARG{});
  itself.Argument = Reference(VT_VARIANT, &itself.Argument);
  EXPECT_THROW(itself.Arguments.Whole(0), RunTimeError);
  EXPECT_THROW(itself.Arguments.Answer(0, com::Variant(std::int32_t{1})), RunTimeError);
}

TEST(EventArguments, TextIsReplacedThroughItsReference) {
  com::Bstr text("old");
  OneArgument argument(Reference(VT_BSTR, text.InOut()));
  EXPECT_EQ("old", argument.Arguments.Text(0));
  argument.Arguments.Answer(0, com::Variant("new"));
  EXPECT_EQ("new", text.Text());
}

TEST(EventArguments, AVariableOfAScriptTakesTheAnswerAsItIs) {
  com::Variant variable(std::int32_t{1});
  OneArgument argument(Reference(VT_VARIANT, static_cast<VARIANT*>(&variable)));
  EXPECT_EQ("1", argument.Arguments.Text(0));
  argument.Arguments.Answer(0, com::Variant("text"));
  ASSERT_EQ(VT_BSTR, variable.vt);
  EXPECT_EQ("text", com::TextOf(variable.bstrVal));
}

TEST(EventArguments, AValueIsReadAndItsAnswerForgotten) {
  const com::Variant value(std::int32_t{4});
  OneArgument argument(value);
  argument.Arguments.Answer(0, com::Variant(std::int32_t{5}));
  EXPECT_EQ(4, argument.Arguments.Whole(0));
}

TEST(EventArguments, WhatCannotBeConvertedIsAnError) {
  const com::Variant words("no number");
  EXPECT_THROW(OneArgument(words).Arguments.Whole(0), RunTimeError);
  const DISPPARAMS none = {};
  EXPECT_THROW((com::EventArguments(none, 1)), RunTimeError);
}

}  // namespace
}  // namespace orx::test
