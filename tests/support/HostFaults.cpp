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
      return scene.LoseOwner;
    case Fault::Nests:
      return scene.OpenTheSame;
    case Fault::Removes:
      return scene.Remove;
    case Fault::ActsAtRandom:
      return scene.ActAtRandom;
    case Fault::Destroys:
      return scene.DestroyService;
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

std::string TestNameOf(const testing::TestParamInfo<Fault>& each) {
  std::string name = NameOf(each.param);
  std::erase(name, ' ');
  return name;
}

FaultScene SceneOf(DialogHost& host, const DialogCase& dialog, User& person, std::function<Form*()> top,
                   std::function<void()> actAtRandom) {
  const auto loseOwner = [&host, top] {
    const std::shared_ptr<Form> loading = host.Pages.Loading.lock();
    if (Form* const lost = top() ? top() : loading.get()) lost->WindowLost();
  };
  const auto openTheSame = [&host, &dialog] {
    // Not without a service, which an earlier fault may have destroyed.
    if (host.Service) dialog.Show(host);
  };
  return {person,
          std::move(top),
          std::move(actAtRandom),
          loseOwner,
          openTheSame,
          [&host] { host.Remove(); },
          [&host] { host.Service.reset(); }};
}

FaultPlan PlanOf(Fault fault, int at, const FaultScene& scene) {
  const bool isNull = fault == Fault::AnswersNull;
  const Failure failure = isNull ? Failure::Null : fault == Fault::ThrowsAnInt ? Failure::Number : Failure::Error;
  FaultPlan plan(at, failure, isNull);
  plan.WhenReached = HappeningOf(fault, scene);
  return plan;
}

}  // namespace orx::test
