// A host's map of which only the extent counts.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "hostobjects/IMap.h"
#include "numbers/Numbers.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {

/// Writes down each call that reaches the extent and the asking for it: "Extent", "Left", "Left=(200)".
class GroundMap final : public HostObject, public IMap {
 public:
  std::int32_t LayerCount() override { return 0; }
  std::string LayerName(std::int32_t) override { return {}; }
  HostObject* Layer(std::int32_t) override { return nullptr; }
  HostObject* AddLayer(const std::string&, const std::string&) override { return nullptr; }
  bool RemoveLayer(std::int32_t) override { return false; }
  bool MoveLayerUp(std::int32_t) override { return false; }
  bool MoveLayerDown(std::int32_t) override { return false; }
  IExtent* Extent() override {
    Log.Call("Extent");
    const bool answers = !Log.Faults || Log.Faults->Answers("Extent");
    return HasExtent && answers ? &mGround : nullptr;
  }

  /// The setters that were called since the edges were given.
  std::vector<std::string> Writes() const {
    std::vector<std::string> writes;
    for (const std::string& call : Log.Calls)
      if (call.find('=') != std::string::npos) writes.push_back(call);
    return writes;
  }
  void Edges(double left, double right, double bottom, double top) {
    Left = left;
    Right = right;
    Bottom = bottom;
    Top = top;
  }

  double Left = 0;
  double Right = 100;
  double Bottom = 0;
  double Top = 50;
  bool HasExtent = true;
  /// False once a setter has put an edge at or past the opposite one.
  bool IsInOrder = true;
  CallLog Log;

 private:
  class Ground final : public IExtent {
   public:
    explicit Ground(GroundMap& map) : mMap(map) {}
    double Left() const override { return mMap.Get("Left", mMap.Left); }
    void Left(double value) override { mMap.Set("Left", mMap.Left, value); }
    double Right() const override { return mMap.Get("Right", mMap.Right); }
    void Right(double value) override { mMap.Set("Right", mMap.Right, value); }
    double Bottom() const override { return mMap.Get("Bottom", mMap.Bottom); }
    void Bottom(double value) override { mMap.Set("Bottom", mMap.Bottom, value); }
    double Top() const override { return mMap.Get("Top", mMap.Top); }
    void Top(double value) override { mMap.Set("Top", mMap.Top, value); }

   private:
    GroundMap& mMap;
  };

  double Get(const std::string& member, double value) {
    Log.Call(member);
    return value;
  }
  void Set(const std::string& member, double& held, double value) {
    Log.Call(member + "=(" + numbers::ShortestText(value) + ")");
    held = value;
    IsInOrder = IsInOrder && Left < Right && Bottom < Top;
  }

  Ground mGround{*this};
};

}  // namespace orx::test
