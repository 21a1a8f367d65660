// The user of a run with a fault: does a little of everything in each dialog that opens, and ends it.
#pragma once

#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/User.h"

namespace orx::test {

class FaultScript final : public DesktopHook {
 public:
  enum class Ending { OK, Cancel };

  /// Files are picked from that folder, under that name.
  FaultScript(User& user, Picked file) : mUser(user), mFile(std::move(file)) {}

  /// How dialogs are ended. With Cancel nothing is applied before.
  Ending End = Ending::OK;

  /// The dialog in front that the user can reach, null while there is none.
  Form* Top() const;
  /// A few acts in the dialog in front, whatever comes.
  void ActAtRandom(std::mt19937& random);

  void ModalRunning(const Modal& modal) override;
  bool HelpRequested(const HelpRequest&) override { return true; }

 private:
  void Visit(Form& form);
  void Edit(Form& form);
  void PressOthers(Form& form);
  void Touch(Control& control, std::mt19937& random);
  void Press(Form& form, const std::string& button);

  User& mUser;
  Picked mFile;
  std::vector<Form*> mForms;
};

}  // namespace orx::test
