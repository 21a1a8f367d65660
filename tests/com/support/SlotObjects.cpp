#include "tests/com/support/SlotObjects.h"

namespace orx::com::test {

HRESULT SlotMap::get_LayerCount(long* value) noexcept {
  *value = 1;
  return S_OK;
}

HRESULT SlotMap::get_LayerName(long index, BSTR* value) noexcept {
  *value = Given("Layer " + std::to_string(index));
  return S_OK;
}

HRESULT SlotMap::get_Layer(long, IDispatch** value) noexcept {
  *value = Given(Only);
  return S_OK;
}

HRESULT SlotMap::AddLayer(BSTR path, BSTR options, IDispatch** result) noexcept {
  Acts += "add " + TextOf(path) + TextOf(options) + " ";
  *result = Given(Only);
  return S_OK;
}

HRESULT SlotMap::RemoveLayer(long index, VARIANT_BOOL* result) noexcept {
  return Note("remove", index, result);
}

HRESULT SlotMap::MoveLayerUp(long index, VARIANT_BOOL* result) noexcept {
  return Note("up", index, result);
}

HRESULT SlotMap::MoveLayerDown(long index, VARIANT_BOOL* result) noexcept {
  return Note("down", index, result);
}

HRESULT SlotMap::Note(const char* act, long index, VARIANT_BOOL* result) {
  Acts += std::string(act) + " " + std::to_string(index) + " ";
  *result = index == 1 ? VARIANT_TRUE : VARIANT_FALSE;
  return S_OK;
}

HRESULT SlotShade::SuggestScaleFactor(double* value, VARIANT_BOOL* success) noexcept {
  *value = 0.125;
  *success = VARIANT_TRUE;
  return S_OK;
}

}  // namespace orx::com::test
