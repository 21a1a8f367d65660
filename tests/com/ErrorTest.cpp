// The numbers of run-time errors as hosts see them.
#include "com/Errors.h"

#include <gtest/gtest.h>

#include "forms/Desktop.h"
#include "hostobjects/RunTimeError.h"

namespace orx::com::test {
namespace {

TEST(Errors, ReachHostsByTheNumbersThatTheyKnow) {
  const std::pair<std::int32_t, unsigned> codes[] = {
      {kErrorOverflow, 0x800A0006},     {kErrorSubscript, 0x800A0009},  {kErrorFixedArray, 0x800A000A},
      {kErrorTypeMismatch, 0x800A000D}, {kErrorNoSuchFile, 0x800A0035}, {kErrorFileAccess, 0x800A004B},
      {kErrorNotLoaded, 0x800A005B},    {kErrorFileFormat, 0x800A0141}, {kErrorInvalidValue, 0x800A017C},
      {kErrorNotAvailable, 0x800A018E}, {kErrorNoSuchPage, 0x800A01AE}, {kErrorNoSuchMember, 0x800A01B6},
  };
  for (const auto& error : codes)
    EXPECT_EQ(Guarded("Errors", [&] { throw RunTimeError(error.first, "It failed."); }),
              static_cast<HRESULT>(error.second))
        << error.first;
}

TEST(Errors, NumbersOfFailedCallsStayTheirCodes) {
  EXPECT_EQ(Guarded("Errors", [] { Check(STG_E_ACCESSDENIED, "The file"); }), STG_E_ACCESSDENIED);
  EXPECT_EQ(Guarded("Errors", [] { throw std::bad_alloc(); }), E_OUTOFMEMORY);
  EXPECT_EQ(Guarded("Errors", [] { throw WrongThread(); }), RPC_E_WRONG_THREAD);
  EXPECT_EQ(Guarded("Errors", [] { throw RunTimeError(0x10000, "No number of theirs."); }), E_FAIL);
}

TEST(Errors, WhatALateBoundMemberRaisesIsAnErrorWhateverItsNumber) {
  const struct {
    SCODE Code;
    WORD Number;
    unsigned Expected;
  } raised[] = {
      {STG_E_ACCESSDENIED, 0, 0x80030005},
      {0, 13, 0x800A000D},
      {13, 0, 0x800A000D},
      {1, 13, 0x800A000D},
      {0x10000, 0, 0x80020009},
      {0, 0, 0x80020009},
  };
  for (const auto& one : raised) {
    ExceptionInfo error;
    error.scode = one.Code;
    error.wCode = one.Number;
    EXPECT_EQ(error.Code(), static_cast<HRESULT>(one.Expected)) << one.Code << " " << one.Number;
  }
}

}  // namespace
}  // namespace orx::com::test
