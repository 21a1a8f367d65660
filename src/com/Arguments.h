// Fits the arguments that script hosts send to the parameters of a member: variants for everything, by-reference
// results included, arguments left out, arrays of variants.
#pragma once

#include <memory>
#include <vector>

#include "com/Handles.h"

namespace orx::com {

/// A parameter, as its type library describes it.
struct Parameter {
  /// VT_I4, VT_BSTR, VT_DISPATCH, VT_VARIANT, ...; of an array its elements.
  VARTYPE Type = VT_EMPTY;
  bool IsArray = false;
  bool IsByReference = false;
  /// Gives a result only; what comes in is not looked at.
  bool IsOut = false;
  bool IsOptional = false;
  /// What stands in for an argument that is left out; null: nothing, zero, the empty text.
  const VARIANT* Default = nullptr;
};

/// Reads the description of a parameter. Enumerations are VT_I4, interfaces VT_DISPATCH.
Parameter ParameterOf(ITypeInfo& info, const ELEMDESC& description);

/// The arguments of one call, fit for its parameters.
class Arguments {
 public:
  /// `given` in the order of the parameters; null for those that were left out. It must outlive the call.
  explicit Arguments(std::vector<VARIANT*> given, LCID locale) : mGiven(std::move(given)), mLocale(locale) {}

  /// Fits all. S_OK, or the error, with `wrong` the index of the argument that cannot serve.
  HRESULT Fit(const std::vector<Parameter>& parameters, UINT& wrong);
  /// What to hand over, in the order of the parameters.
  const std::vector<VARIANT>& Fitted() const { return mFitted; }
  /// After the call: gives results back to the variables that the caller has sent.
  HRESULT WriteBack();

 private:
  struct Temporary {
    Parameter What;
    /// The caller's variable for the result, null when a value was sent.
    VARIANT* Origin = nullptr;
    Variant Value;
  };

  HRESULT FitOne(const Parameter& parameter, VARIANT* given);
  HRESULT FitVariant(const Parameter& parameter, VARIANT* given);
  HRESULT FillMissing(const Parameter& parameter, Variant& value) const;
  void HandOver(Temporary& temporary);

  std::vector<VARIANT*> mGiven;
  LCID mLocale;
  std::vector<VARIANT> mFitted;
  // Pointers into the temporaries are handed over, so they must not move.
  std::vector<std::unique_ptr<Temporary>> mTemporaries;
};

}  // namespace orx::com
