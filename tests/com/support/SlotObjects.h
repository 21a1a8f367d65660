// Objects of a host in a compiled language: they have the published interfaces and answer by their slots alone. By name
// they have nothing at all.
#pragma once

#include <OrvexMapDialogs2.h>

#include <string>

#include "com/Counted.h"
#include "com/Errors.h"

namespace orx::com::test {

/// What a slot holds: texts as the library has them, anything else as it is.
template <class Slot>
struct HeldBySlot {
  using Type = Slot;
  static Slot Give(const Type& held) { return held; }
  static Type Take(Slot given) { return given; }
};
template <>
struct HeldBySlot<BSTR> {
  using Type = std::string;
  static BSTR Give(const Type& held) { return Given(held); }
  static Type Take(BSTR given) { return TextOf(given); }
};
template <>
struct HeldBySlot<IDispatch*> {
  using Type = ComPtr<IDispatch>;
  static IDispatch* Give(const Type& held) { return Given(held); }
};

// Types and names cannot stand in parentheses.
// NOLINTBEGIN(bugprone-macro-parentheses)
/// A property that can be read, with the variable behind it.
#define ORX_READ_SLOT(Slot, Name)                                       \
  HeldBySlot<Slot>::Type Name{};                                        \
  HRESULT STDMETHODCALLTYPE get_##Name(Slot* value) noexcept override { \
    *value = HeldBySlot<Slot>::Give(Name);                              \
    return S_OK;                                                        \
  }
/// A property that can be read and written.
#define ORX_SLOT(Slot, Name)                                           \
  ORX_READ_SLOT(Slot, Name)                                            \
  HRESULT STDMETHODCALLTYPE put_##Name(Slot value) noexcept override { \
    Name = HeldBySlot<Slot>::Take(value);                              \
    return S_OK;                                                       \
  }
// NOLINTEND(bugprone-macro-parentheses)

/// The base of such an object: an IDispatch that can do nothing.
template <class Published, class... Bases>
class SlotObject : public Counted<Published> {
 public:
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) noexcept override {
    return E_NOTIMPL;
  }

 protected:
  void* Find(REFIID iid) noexcept override {
    if (IsEqualIID(iid, IID_IDispatch) || (IsEqualIID(iid, __uuidof(Bases)) || ...))
      return static_cast<Published*>(this);
    return Counted<Published>::Find(iid);
  }
};

class SlotLayer : public SlotObject<::ILayer> {
 public:
  ORX_SLOT(BSTR, Name)
  ORX_SLOT(VARIANT_BOOL, Visible)
  ORX_READ_SLOT(BSTR, Source)
  ORX_SLOT(BSTR, SymbolFont)
  ORX_SLOT(long, SymbolCharacter)
  ORX_SLOT(double, SymbolRotation)
  ORX_SLOT(double, SymbolSize)
  ORX_READ_SLOT(IDispatch*, Data)
};

/// A map with one layer.
class SlotMap final : public SlotObject<::IMap> {
 public:
  /// The layer, and the acts on it in their order.
  ComPtr<IDispatch> Only;
  std::string Acts;
  ORX_READ_SLOT(IDispatch*, Extent)

  HRESULT STDMETHODCALLTYPE get_LayerCount(long* value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_LayerName(long index, BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Layer(long index, IDispatch** value) noexcept override;
  HRESULT STDMETHODCALLTYPE AddLayer(BSTR path, BSTR options, IDispatch** result) noexcept override;
  HRESULT STDMETHODCALLTYPE RemoveLayer(long index, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE MoveLayerUp(long index, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE MoveLayerDown(long index, VARIANT_BOOL* result) noexcept override;

 private:
  HRESULT Note(const char* act, long index, VARIANT_BOOL* result);
};

class SlotFont final : public SlotObject<::ILabelFont> {
 public:
  ORX_SLOT(BSTR, Name)
  ORX_SLOT(float, Size)
  ORX_SLOT(VARIANT_BOOL, Bold)
  ORX_SLOT(VARIANT_BOOL, Italic)
  ORX_SLOT(VARIANT_BOOL, Underline)
  ORX_SLOT(VARIANT_BOOL, Strikethrough)
  ORX_SLOT(OLE_COLOR, Color)
};

class SlotLabels final : public SlotObject<::ILabels> {
 public:
  ORX_SLOT(VARIANT_BOOL, ShowLabels)
  ORX_SLOT(::LabelContent, Content)
  ORX_SLOT(::LabelPosition, Position)
  ORX_READ_SLOT(IDispatch*, LabelFont)
  ORX_SLOT(double, LabelRotation)
};

class SlotShade final : public SlotObject<::ShadeSettings2, ::ShadeSettings> {
 public:
  ORX_SLOT(VARIANT_BOOL, ScaleAutomatic)
  ORX_SLOT(short, CombineColors)
  ORX_SLOT(long, Altitude)
  ORX_SLOT(long, FirstShadeIndex)
  ORX_SLOT(long, ShadeCount)
  ORX_SLOT(long, Azimuth)
  ORX_SLOT(long, NrOfShades)
  ORX_SLOT(double, MinIntensity)
  ORX_SLOT(double, ScaleFactor)
  ORX_SLOT(double, ScaleMultiplier)
  ORX_SLOT(long, AltitudeDefault)
  ORX_SLOT(VARIANT_BOOL, MidIndexAutomatic)
  ORX_SLOT(double, MaxIntensity)
  ORX_SLOT(double, MidIntensity)
  ORX_SLOT(long, ShadeVersion)

  HRESULT STDMETHODCALLTYPE SuggestScaleFactor(double* value, VARIANT_BOOL* success) noexcept override;
};

class SlotData final : public SlotObject<::IData> {
 public:
  ORX_READ_SLOT(long, ClassCount)
  ORX_READ_SLOT(IDispatch*, Classification)
  ORX_READ_SLOT(IDispatch*, Options)
  ORX_READ_SLOT(IDispatch*, Shade)
  ORX_READ_SLOT(IDispatch*, Isolines)
  ORX_SLOT(BSTR, FileName)
  ORX_READ_SLOT(double, MinimumOfData)
  ORX_READ_SLOT(double, MaximumOfData)
};

class SlotCallBack final : public SlotObject<::IDialogCallBack> {
 public:
  /// What was heard, in its order.
  std::string Heard;

  HRESULT STDMETHODCALLTYPE ApplyNotify(VARIANT_BOOL) noexcept override { return Note("apply "); }
  HRESULT STDMETHODCALLTYPE CancelNotify(VARIANT_BOOL) noexcept override { return Note("cancel "); }
  HRESULT STDMETHODCALLTYPE OKNotify(VARIANT_BOOL) noexcept override { return Note("ok "); }
  HRESULT STDMETHODCALLTYPE Reserved1() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reserved2() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RegisterNotify(long* result) noexcept override {
    *result = 0;
    return Note("register ");
  }

 private:
  HRESULT Note(const char* what) {
    Heard += what;
    return S_OK;
  }
};

/// A language that has one text for every key.
class SlotLanguage final : public SlotObject<::ILanguage> {
 public:
  std::string Text;
  int Forms = 0;
  ORX_READ_SLOT(long, EntryCount)

  HRESULT STDMETHODCALLTYPE TranslateText(BSTR, BSTR* result) noexcept override {
    *result = Given(Text);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE TranslateForm(IDispatch*) noexcept override {
    ++Forms;
    return S_OK;
  }
};

}  // namespace orx::com::test
