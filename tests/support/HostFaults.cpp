#include "tests/support/HostFaults.h"

namespace orx::test {
namespace {

/// What the host does in the call. Nothing for faults of the call itself.
std::function<void()> HappeningOf(Fault fault, const FaultScene& scene) {
  switch (fault) {
    case Fault::Closes:
      return [&scene] {
        if (Form* const top = scene.Top()) scene.Person.CloseBox(*top);
      };
    case Fault::LosesItsOwner:
      return [&scene] {
        const std::shared_ptr<Form> loading = scene.Host.Pages.Loading.lock();
        if (Form* const top = scene.Top() ? scene.Top() : loading.get()) top->WindowLost();
      };
    case Fault::Nests:
      return [&scene] {
        // Not without a service, which an earlier fault may have destroyed.
        if (scene.Host.Service) scene.Dialog.Show(scene.Host);
      };
    case Fault::Removes:
      return [&scene] { scene.Host.Remove(); };
    case Fault::ActsAtRandom:
      return scene.ActAtRandom;
    case Fault::Destroys:
      return [&scene] { scene.Host.Service.reset(); };
    default:
      return nullptr;
  }
}

}  // namespace

const char* NameOf(Fault fault) {
  constexpr const char* kNames[] = {"throws",          "throws an int",  "closes",
                                    "loses its owner", "opens the same", "removes",
                                    "answers null",    "acts at random", "destroys the service"};
  return kNames[static_cast<int>(fault)];
}

FaultPlan PlanOf(Fault fault, int at, const FaultScene& scene) {
  const bool isNull = fault == Fault::AnswersNull;
  const Failure failure = isNull ? Failure::Null : fault == Fault::ThrowsAnInt ? Failure::Number : Failure::Error;
  FaultPlan plan(at, failure, isNull);
  plan.WhenReached = HappeningOf(fault, scene);
  return plan;
}

}  // namespace orx::test
