// Where the settings of a list are found: one interface of the host's object, and its properties.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <type_traits>
#include <utility>

#include "forms/Settings.h"
#include "numbers/Numbers.h"

namespace orx {

/// A value in another type. Floating point becomes a whole number by rounding, halves to even; throws
/// std::overflow_error where it does not fit.
template <class To, class From>
To Converted(const From& value) {
  if constexpr (std::is_floating_point_v<From> && std::is_integral_v<To> && !std::is_same_v<To, bool>)
    return static_cast<To>(numbers::RoundToLong(value));
  else
    return static_cast<To>(value);
}

/// One property, as members of its interface: a getter with or without a setter, or a variable. It finds the object
/// anew for each access. Made by Part.
template <class Interface, class Getter, class Setter>
class Property {
 public:
  /// The type that the host holds.
  using Held = std::decay_t<std::invoke_result_t<Getter, Interface&>>;
  /// Keeps the list that a setting of the property joins.
  Property(Settings& list, std::function<Interface*()> find, Getter get, Setter set)
      : mList(list), mFind(std::move(find)), mGet(get), mSet(set) {}

  /// The list that a setting of the property joins.
  Settings& List() const { return mList; }
  /// The host's value; none without the object.
  std::optional<Held> Get() const {
    Interface* const object = mFind();
    return object ? std::optional<Held>(std::invoke(mGet, *object)) : std::nullopt;
  }
  /// Sets the host's value; false without the object.
  bool Set(const Held& value) const {
    Interface* const object = mFind();
    if (!object) return false;
    if constexpr (std::is_member_object_pointer_v<Getter>)
      object->*mGet = value;
    else if constexpr (CanSet())
      std::invoke(mSet, *object, value);
    return true;
  }
  /// False for a property that is only read.
  static constexpr bool CanSet() {
    return std::is_member_object_pointer_v<Getter> || !std::is_same_v<Setter, std::nullptr_t>;
  }

 private:
  Settings& mList;
  std::function<Interface*()> mFind;
  Getter mGet;
  Setter mSet;
};

/// The object, or the part of it, that some settings of a list belong to. Called with members it makes properties:
/// `mShade(&ShadeSettings::Altitude, &ShadeSettings::Altitude)`. A null object has none: its settings are neither read
/// nor written.
template <class Interface>
class Part {
 public:
  /// `find` gives the object whenever it is needed.
  Part(Settings& list, std::function<Interface*()> find) : mList(list), mFind(std::move(find)) {}
  /// The object that a variable points to; the variable must live as long.
  Part(Settings& list, Interface*& object) : Part(list, [&object] { return object; }) {}
  /// An object that another one gives, such as the line of isolines.
  template <class Whole>
  Part(const Part<Whole>& whole, Interface& (Whole::*give)())
      : Part(whole.List(), [find = whole.Find(), give]() -> Interface* {
          Whole* const object = find();
          return object ? &(object->*give)() : nullptr;
        }) {}

  /// The list that settings join, and what finds the object.
  Settings& List() const { return mList; }
  const std::function<Interface*()>& Find() const { return mFind; }

  /// A property that is read and written.
  template <class Owner, class Held, class Given>
  auto operator()(Held (Owner::*get)() const, void (Owner::*set)(Given)) const {
    return Made(get, set);
  }
  template <class Owner, class Held, class Given>
  auto operator()(Held (Owner::*get)(), void (Owner::*set)(Given)) const {
    return Made(get, set);
  }
  /// One that is only read.
  template <class Owner, class Held>
  auto operator()(Held (Owner::*get)() const) const {
    return Made(get, nullptr);
  }
  /// A variable of a plain struct.
  template <class Owner, class Held>
  requires(!std::is_function_v<Held>) auto operator()(Held Owner::*variable) const { return Made(variable, nullptr); }

 private:
  template <class Getter, class Setter>
  Property<Interface, Getter, Setter> Made(Getter get, Setter set) const {
    return {mList, mFind, get, set};
  }

  Settings& mList;
  std::function<Interface*()> mFind;
};

}  // namespace orx
