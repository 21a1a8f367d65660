// What makes two colours different enough to be told apart.
#include <gtest/gtest.h>

#include "forms/Contrast.h"

namespace orx::test {
namespace {

TEST(Contrast, IsThatOfTheEye) {
  EXPECT_DOUBLE_EQ(1, Contrast({90, 90, 90}, {90, 90, 90}));
  EXPECT_NEAR(21, Contrast({0, 0, 0}, {255, 255, 255}), 0.001);
  EXPECT_DOUBLE_EQ(Contrast({255, 0, 0}, {0, 0, 255}), Contrast({0, 0, 255}, {255, 0, 0}));
  // Gray values that are known to stand at the limits for large and for small text.
  EXPECT_NEAR(3, Contrast({255, 255, 255}, {148, 148, 148}), 0.05);
  EXPECT_NEAR(4.5, Contrast({255, 255, 255}, {118, 118, 118}), 0.05);
}

TEST(Contrast, FadedInkIsPalerAndCanStillBeRead) {
  for (const Color ground : {Color{240, 240, 240}, Color{255, 255, 255}, Color{53, 53, 53}, Color{0, 0, 0}}) {
    const Color ink = ground.Red > 128 ? Color{0, 0, 0} : Color{255, 255, 255};
    const double faded = Contrast(FadedInk(ink, ground), ground);
    EXPECT_GE(faded, 4.5);
    EXPECT_LE(faded, Contrast(ink, ground) / 2);
  }
}

TEST(Contrast, AnInkThatCanHardlyBeReadStaysAsItIs) {
  EXPECT_EQ((Color{120, 120, 120}), FadedInk({120, 120, 120}, {128, 128, 128}));
}

}  // namespace
}  // namespace orx::test
