#include "dialogframe/SelectAllText.h"

#include "forms/TextBox.h"
#include "hostobjects/ErrorTrap.h"
#include "text/CharacterCount.h"

namespace orx::modMain {

void SelectAllText(TextBox& box) noexcept {
  ErrorTrap trap;
  trap.Step([&] { box.SelStart(0); });
  trap.Step([&] { box.SelLength(CharacterCount(box.Text())); });
}

}  // namespace orx::modMain
