// What holds controls: a form, a frame, a panel, a page of a tab control.
#pragma once

#include <string_view>
#include <vector>

namespace orx {

class Control;
class Form;

/// The controls directly in a container, in the order of their declaration. It does not own them.
class Container {
 public:
  Container() = default;
  virtual ~Container() = default;
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;

  /// The controls directly in here, never null, owned by their form or page.
  const std::vector<Control*>& Children() const { return mChildren; }
  /// The first control of that name here or below, null when there is none.
  Control* Find(std::string_view name) const;
  /// All controls here and below, each container before its children.
  std::vector<Control*> All() const;

  /// Moves some of the children to the front of the order, before a window is opened: Tab comes to them first.
  void PutFirst(const std::vector<Control*>& children);

  /// The form that this is or stands in.
  virtual Form& ContainingForm() = 0;
  /// The control that this container is; null for a form.
  virtual Control* ContainerControl() = 0;
  /// False where a child cannot be seen although it is visible itself: a page of a tab control that is not open.
  virtual bool ShowsChildren() const { return true; }

 private:
  friend class Control;
  void Add(Control& child) { mChildren.push_back(&child); }
  void Remove(const Control& child);

  std::vector<Control*> mChildren;
};

}  // namespace orx
