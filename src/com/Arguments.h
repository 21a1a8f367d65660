// Converts the arguments that script hosts send to what the parameters of a member need. Script hosts send variants for
// everything, also by reference for results, leave arguments out, and send arrays of variants.
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
  /// Only carries a result out; the value that comes in is ignored.
  bool IsOut = false;
  bool IsOptional = false;
  /// The value of an argument that is left out; null for nothing, zero or the empty text.
  const VARIANT* Default = nullptr;
};

/// Reads the description of a parameter. Enumerations are VT_I4, interfaces VT_DISPATCH.
Parameter ParameterOf(ITypeInfo& info, const ELEMDESC& description);

/// The arguments of one call, converted for its parameters.
class Arguments {
 public:
  /// `given` in the order of the parameters; null for those that were left out. It must outlive the call.
  explicit Arguments(std::vector<VARIANT*> given, LCID locale) : mGiven(std::move(given)), mLocale(locale) {}

  /// Converts all arguments. Returns S_OK or the error; `wrong` is then the index of the argument at fault.
  HRESULT Fit(const std::vector<Parameter>& parameters, UINT& wrong);
  /// What to hand over, in the order of the parameters.
  const std::vector<VARIANT>& Fitted() const { return mFitted; }
  /// After the call: writes results to the variables that the caller passed.
  HRESULT WriteBack();

 private:
  struct Temporary {
    ~Temporary();

    Parameter What;
    /// The caller's variable for the result; null when a value was passed.
    VARIANT* Origin = nullptr;
    Variant Value;
    /// The array that the callee gets. It gives a result by another one in its place.
    const SAFEARRAY* Handed = nullptr;
  };

  HRESULT FitOne(const Parameter& parameter, VARIANT* given);
  HRESULT FitVariant(const Parameter& parameter, VARIANT* given);
  HRESULT FillMissing(const Parameter& parameter, Variant& value) const;
  void HandOver(Temporary& temporary);
  HRESULT WriteBackArray(Temporary& temporary);

  std::vector<VARIANT*> mGiven;
  LCID mLocale;
  std::vector<VARIANT> mFitted;
  // The callee gets pointers into the temporaries, so they must not move.
  std::vector<std::unique_ptr<Temporary>> mTemporaries;
};

}  // namespace orx::com
