// What a host object is asked for: its own interfaces by type, and those of its parts as views.
#include "hostobjects/HostObject.h"

#include <gtest/gtest.h>

#include <vector>

namespace orx::test {
namespace {

struct IHeight : HostInterface {
  int Metres = 100;
};
struct IName : HostInterface {};
struct IColor : HostInterface {};

struct Asked : HostObject {
  HostInterface* ViewFor(const std::type_info& wanted) override {
    Wanted.push_back(&wanted);
    return View;
  }
  std::vector<const std::type_info*> Wanted;
  HostInterface* View = nullptr;
};

struct Hill final : Asked, IHeight, IName {};

struct Mound final : HostObject, private IHeight {
  bool IsHigh = true;
  HostInterface* ViewFor(const std::type_info&) override { return IsHigh ? static_cast<IHeight*>(this) : nullptr; }
};

TEST(HostObjects, OwnInterfacesAreFoundByTypeWithoutAskingForAView) {
  Hill hill;
  EXPECT_EQ(static_cast<IHeight*>(&hill), QueryKind<IHeight>(&hill));
  EXPECT_EQ(static_cast<IName*>(&hill), QueryKind<IName>(&hill));
  EXPECT_TRUE(hill.Wanted.empty());
}

TEST(HostObjects, AnotherInterfaceIsAskedForOnce) {
  Hill hill;
  EXPECT_FALSE(QueryKind<IColor>(&hill));
  ASSERT_EQ(1U, hill.Wanted.size());
  EXPECT_TRUE(*hill.Wanted.front() == typeid(IColor));
}

TEST(HostObjects, APartAnswersAsAView) {
  IColor part;
  Hill hill;
  hill.View = &part;
  EXPECT_EQ(&part, QueryKind<IColor>(&hill));
}

TEST(HostObjects, AViewWithoutTheWantedInterfaceIsNone) {
  Hill hill;
  IName part;
  hill.View = &part;
  EXPECT_FALSE(QueryKind<IColor>(&hill));
}

TEST(HostObjects, AnInterfaceOfItsOwnThatAnObjectHasAtTimesIsAView) {
  Mound mound;
  ASSERT_TRUE(QueryKind<IHeight>(&mound));
  EXPECT_EQ(100, QueryKind<IHeight>(&mound)->Metres);
  mound.IsHigh = false;
  EXPECT_FALSE(QueryKind<IHeight>(&mound));
}

TEST(HostObjects, NoObjectHasNoInterface) {
  EXPECT_FALSE(QueryKind<IHeight>(nullptr));
}

TEST(HostObjects, AnObjectThatSaysNothingOfViewsHasNone) {
  struct Bare final : HostObject {
  } bare;
  EXPECT_FALSE(QueryKind<IHeight>(&bare));
}

}  // namespace
}  // namespace orx::test
