// How test and automation tools find the controls: by number and by name.
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

class Win32Names : public Win32FormsTest {
 protected:
  static std::string NameOf(HWND window) {
    const auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(GetPropW(window, L"ControlName")));
    wchar_t name[200] = {};
    GlobalGetAtomNameW(atom, name, 200);
    return win32::Narrowed(name);
  }
};

TEST_F(Win32Names, ControlsAreNumberedInTheOrderOfTheirDesignFromAHundredOn) {
  ShowForm();
  // Controls of containers follow their container; the pages of the tab control are containers of their own.
  const Control* const designed[] = {&form->lblName,  &form->txtName,  &form->txtSize,       &form->chkShow,
                                     &form->cboKind,  &form->cboFree,  &form->ssTab,         &form->ssTab.Page(0),
                                     &form->fraFirst, &form->txtFirst, &form->ssTab.Page(1), &form->pctSecond,
                                     &form->txtSecond};
  int id = 100;
  for (const Control* const control : designed) EXPECT_EQ(GetDlgCtrlID(WindowOf(*control)), id++) << control->Name();
}

TEST_F(Win32Names, TheDefaultAndTheCancelButtonHaveTheNumbersOfThePlatform) {
  ShowForm();
  EXPECT_EQ(GetDlgItem(WindowOf(*form), IDOK), WindowOf(form->cmdOK));
  EXPECT_EQ(GetDlgItem(WindowOf(*form), IDCANCEL), WindowOf(form->cmdCancel));
}

TEST_F(Win32Names, EachWindowCarriesTheNameOfItsControl) {
  ShowForm();
  for (const Control* const control : form->All()) EXPECT_EQ(NameOf(WindowOf(*control)), control->Name());
}

TEST_F(Win32Names, NamesAreTakenBackWithTheWindows) {
  wchar_t name[] = L"orxTakenBack";
  {
    struct Lone final : Form {
      explicit Lone(Desktop& desktop) : Form(desktop, "frmLone", {.Caption = "Lone", .Client = {3000, 1500}}) {}
      TextBox txtLone{*this, "orxTakenBack", {.Place = {120, 120, 1200, 330}}};
    };
    const auto lone = std::make_shared<Lone>(desktop());
    lone->Show(ShowMode::Modeless);
    EXPECT_NE(GlobalFindAtomW(name), 0);
    lone->Unload();
  }
  EXPECT_EQ(GlobalFindAtomW(name), 0);
}

}  // namespace
}  // namespace orx::test
