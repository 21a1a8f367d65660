#include "tests/layout/LayoutCheck.h"

#include "forms/Container.h"
#include "forms/Control.h"

namespace orx::test {
namespace {

std::string Describe(Size size) {
  return std::to_string(size.Width) + " x " + std::to_string(size.Height);
}

bool Meet(const Rect& one, const Rect& two) {
  return one.Left < two.Right() && two.Left < one.Right() && one.Top < two.Bottom() && two.Top < one.Bottom();
}

class LayoutInspector {
 public:
  explicit LayoutInspector(const Form& form) : mForm(form) { Inspect(form, form.Name()); }

  std::vector<std::string> Problems;

 private:
  void Inspect(const Container& container, const std::string& path) {
    std::vector<Control*> seen;
    for (Control* const control : container.Children())
      if (mLayout.IsSeen(*control)) seen.push_back(control);
    for (Control* const control : seen) {
      const std::string name = path + "." + control->Name();
      InspectAlone(*control, name);
      InspectNeighbours(*control, name, seen);
      if (const Container* const inner = control->AsContainer()) Inspect(*inner, name);
    }
  }

  void InspectAlone(const Control& control, const std::string& name) {
    const TextFit fit = mLayout.FitOf(control, mForm);
    if (!fit.Holds())
      Problems.push_back(name + ": text needs " + Describe(fit.Need) + " and has " + Describe(fit.Room));
    // In a form that is larger than the screen, what is scrolled away stands outside.
    const bool scrolls = !control.Parent().ContainerControl() && mForm.ShownClientSize() != mForm.ClientSize();
    if (!scrolls && !mLayout.StandsInParent(control)) Problems.push_back(name + ": stands outside of its parent");
    if (mLayout.CoversTitleOfParent(control)) Problems.push_back(name + ": covers the title of its frame");
  }

  void InspectNeighbours(const Control& control, const std::string& name, const std::vector<Control*>& seen) {
    for (const Control* const other : seen) {
      if (other == &control) return;
      // Pinned controls may cover what is scrolled away below them.
      if (control.Pinned() == other->Pinned() && Meet(mLayout.PlaceOf(control), mLayout.PlaceOf(*other)))
        Problems.push_back(name + ": stands upon " + other->Name());
    }
  }

  const Form& mForm;
  const NativeLayout& mLayout = LayoutOfDesktop();
};

}  // namespace

std::vector<std::string> LayoutProblems(const Form& form) {
  return LayoutInspector(form).Problems;
}

}  // namespace orx::test
