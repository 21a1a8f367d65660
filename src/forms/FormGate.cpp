#include "forms/FormGate.h"

#include <memory>

#include "forms/Form.h"

namespace orx {

void FormGate::Report(const std::function<void()>& act) {
  if (!mIsRetired && mQuiet == 0 && mForm.Visible() && mForm.Enabled()) Tell(act);
}

void FormGate::Tell(const std::function<void()>& act) {
  if (mIsRetired) return;
  const Busy busy(*this);
  const std::shared_ptr<Form> keep = mForm.weak_from_this().lock();
  act();
}

void FormGate::CutOff() {
  mIsRetired = true;
  if (mDepth == 0) LetGo();
}

void FormGate::Leave() {
  if (--mDepth == 0 && mIsRetired) LetGo();
}

}  // namespace orx
