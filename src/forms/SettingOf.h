// A setting, declared once: its control, the property that it edits, and its rule.
#pragma once

#include <cmath>
#include <functional>
#include <optional>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "forms/CheckedNumberField.h"
#include "forms/Fields.h"
#include "forms/NumberField.h"
#include "forms/Part.h"

namespace orx {

/// A field that knows which property of the host's object it edits:
///
///     Settings mSettings{WriteRule::WhenTheHostDiffers};
///     Part<ShadeSettings> mBasic{mSettings, mShade};
///     NumberSetting mAltitude{txtAltitude, mBasic(&ShadeSettings::Altitude, &ShadeSettings::Altitude), {0, 90}};
///
/// Nothing else has to name it: the list reads, shows, checks and writes. A setting that nobody has edited stands for
/// the exact value that was read. The property may have another type than the field: a number is rounded for a whole
/// one, and compared as the host would hold it.
template <class FieldKind>
class SettingOf final : public Setting, public FieldKind {
 public:
  /// The type of the field's value.
  using Type = typename FieldKind::Type;
  using FieldKind::Show;

  /// Joins the list of the property. The field shows what it has for no value once the list is shown.
  template <class Interface, class Getter, class Setter>
  SettingOf(typename FieldKind::Shown control, const Property<Interface, Getter, Setter>& property,
            typename FieldKind::Rule rule = {})
      : Setting(property.List()), FieldKind(control, std::move(rule)), mCanSet(property.CanSet()) {
    using Held = typename Property<Interface, Getter, Setter>::Held;
    mGet = [property]() -> std::optional<Type> {
      const std::optional<Held> held = property.Get();
      return held ? std::optional<Type>(Converted<Type>(*held)) : std::nullopt;
    };
    mSet = [property](const Type& value) { return property.Set(Converted<Held>(value)); };
    mFit = [](const Type& value) { return Converted<Type>(Converted<Held>(value)); };
    if constexpr (requires { this->Translate; })
      this->Translate = [&list = property.List()](const std::string& text) {
        return list.Translate ? list.Translate(text) : text;
      };
  }

  /// The value to be written, as the property holds it; none where the field has none that fits.
  std::optional<Type> Fitting() const {
    const std::optional<Type> value(FieldKind::Value());
    try {
      return value ? std::optional<Type>(mFit(*value)) : std::nullopt;
    } catch (const std::overflow_error&) {
      return std::nullopt;
    }
  }
  /// The same, and throws InvalidEntry where there is none.
  Type Entry() const {
    std::optional<Type> value = Fitting();
    if (!value) throw InvalidEntry{Field()};
    return *std::move(value);
  }

  /// The host's value as it was read or written last; none when it could not be read.
  const std::optional<Type>& HostValue() const { return mRead; }

  Control* Field() const override {
    if constexpr (requires { FieldKind::Box(); })
      return &FieldKind::Box();
    else
      return nullptr;
  }
  std::vector<Control*> Controls() const override {
    if constexpr (requires { FieldKind::Boxes(); })
      return FieldKind::Boxes();
    else
      return Field() ? std::vector{Field()} : std::vector<Control*>();
  }
  void Fetch() override {
    mFetched.reset();
    mFetched = mGet();
  }
  void Forget() override { mFetched.reset(); }
  void Show() override {
    mRead = mFetched;
    if (mRead)
      FieldKind::Show(*mRead);
    else
      FieldKind::Clear();
  }
  bool IsRead() const override { return mRead.has_value(); }
  bool IsEdited() const override { return FieldKind::IsEdited(); }
  bool Differs() const override { return mRead ? !IsSame(Fitting(), mRead) : IsEdited(); }
  bool Check() override {
    if constexpr (requires { FieldKind::Check(); })
      return FieldKind::Check();
    else
      return true;
  }
  void RequireEntry() const override {
    if (mCanSet) Entry();
  }
  bool Write(WriteRule rule) override {
    if (!mCanSet || (rule == WriteRule::WhenEdited && !Differs())) return false;
    if (rule == WriteRule::WhenTheHostDiffers) {
      const std::optional<Type> held = mGet();
      if (!held || IsSame(Fitting(), held)) return false;
    }
    const Type entry = Entry();
    if (!mSet(entry)) return false;
    mRead = entry;
    return true;
  }

 private:
  /// A NaN that is still one is no difference.
  static bool IsSame(const std::optional<Type>& one, const std::optional<Type>& other) {
    if constexpr (std::is_floating_point_v<Type>)
      if (one && other && std::isnan(*one) && std::isnan(*other)) return true;
    return one == other;
  }

  std::function<std::optional<Type>()> mGet;
  std::function<bool(const Type&)> mSet;
  Type (*mFit)(const Type& value) = nullptr;
  bool mCanSet;
  std::optional<Type> mFetched;
  std::optional<Type> mRead;
};

/// The kinds of settings, named after their fields (see Fields.h).
using FlagSetting = SettingOf<FlagField>;
using ChoiceSetting = SettingOf<ChoiceField>;
using ColorSetting = SettingOf<ColorField>;
using TextSetting = SettingOf<TextField>;
using NumberSetting = SettingOf<NumberField>;
using CheckedNumberSetting = SettingOf<CheckedNumberField>;
template <class Held>
using HeldSetting = SettingOf<HeldValue<Held>>;

}  // namespace orx
