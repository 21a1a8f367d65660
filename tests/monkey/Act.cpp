#include "tests/monkey/Act.h"

namespace orx::test {
namespace {

/// How often each deed comes, in a hundred acts.
struct Share {
  Deed What;
  std::uint32_t Percent;
};
constexpr Share kShares[] = {{Deed::Work, 56},       {Deed::TypeHere, 6},     {Deed::PressKey, 8},
                             {Deed::DialogKey, 8},   {Deed::Mnemonic, 4},     {Deed::CloseBox, 1},
                             {Deed::CloseBehind, 2}, {Deed::Size, 2},         {Deed::Move, 1},
                             {Deed::Wait, 1},        {Deed::SwitchLocale, 2}, {Deed::SwitchLanguage, 2},
                             {Deed::HostFails, 5},   {Deed::HostChanges, 2}};

Deed DeedAt(std::uint32_t percent) {
  for (const Share& share : kShares) {
    if (percent < share.Percent) return share.What;
    percent -= share.Percent;
  }
  return Deed::Work;
}

}  // namespace

std::optional<Act> Acts::Next() {
  if (mLeft == 0) return std::nullopt;
  --mLeft;
  ++mTaken;
  // In statements of their own, so that the order is the same everywhere.
  const auto percent = static_cast<std::uint32_t>(mRandom() % 100);
  const auto with = static_cast<std::uint32_t>(mRandom());
  const auto how = static_cast<std::uint32_t>(mRandom());
  const Deed what = DeedAt(percent);
  const bool isOfHost = what == Deed::HostFails || what == Deed::HostChanges;
  return Act{isOfHost && mHostIsKind ? Deed::Work : what, with, how};
}

}  // namespace orx::test
