#include "forms/Container.h"

#include <algorithm>

#include "forms/Control.h"

namespace orx {

void Container::Remove(const Control& child) {
  std::erase(mChildren, &child);
}

std::vector<Control*> Container::All() const {
  std::vector<Control*> all;
  for (Control* const child : mChildren) {
    all.push_back(child);
    if (const Container* const inner = child->AsContainer()) {
      const std::vector<Control*> below = inner->All();
      all.insert(all.end(), below.begin(), below.end());
    }
  }
  return all;
}

Control* Container::Find(std::string_view name) const {
  for (Control* const control : All())
    if (control->Name() == name) return control;
  return nullptr;
}

void Container::PutFirst(const std::vector<Control*>& children) {
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    const auto found = std::ranges::find(mChildren, *child);
    if (found != mChildren.end()) std::rotate(mChildren.begin(), found, found + 1);
  }
}

}  // namespace orx
