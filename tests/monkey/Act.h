// What a monkey does: small values that come from a seed, so that a seed and a number of acts replay a session.
#pragma once

#include <cstdint>
#include <optional>
#include <random>

namespace orx::test {

enum class Deed {
  Work,
  TypeHere,
  PressKey,
  DialogKey,
  Mnemonic,
  CloseBox,
  CloseBehind,
  Size,
  Move,
  Wait,
  SwitchLocale,
  SwitchLanguage,
  HostFails,
  HostChanges
};

/// One act. The numbers say with what and how, among all that is there when its turn comes.
struct Act {
  Deed What;
  std::uint32_t With;
  std::uint32_t How;

  /// One of so many.
  int AnyWith(int count) const { return static_cast<int>(With % static_cast<std::uint32_t>(count)); }
  int AnyHow(int count) const { return static_cast<int>(How % static_cast<std::uint32_t>(count)); }
};

/// The acts of a session, one after the other.
class Acts {
 public:
  /// At most `limit` of them; those of a shorter session are the first ones of a longer one. A kind host neither fails
  /// nor changes anything by itself.
  Acts(std::mt19937::result_type seed, int limit, bool hostIsKind)
      : mRandom(seed), mLeft(limit), mHostIsKind(hostIsKind) {}

  std::optional<Act> Next();
  int Taken() const { return mTaken; }
  int Left() const { return mLeft; }
  /// No more of them.
  void End() { mLeft = 0; }

 private:
  std::mt19937 mRandom;
  int mLeft;
  int mTaken = 0;
  bool mHostIsKind;
};

}  // namespace orx::test
