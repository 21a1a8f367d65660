// A host's automation objects as the host interfaces of the library.
#pragma once

#include <memory>

#include "com/Handles.h"
#include "hostobjects/HostObject.h"
#include "hostobjects/IDialogCallBack.h"
#include "hostobjects/ILanguage.h"

namespace orx::com {

/// The object of a map or a part of it; null for null. It keeps a counted reference and everything that it was asked
/// for, and is itself kept by the dialogs that show it (BorrowedObject::Lifetime). What it supports is decided by the
/// published interfaces, or by the names of its members.
std::shared_ptr<HostObject> AdaptHostObject(IDispatch* object);

/// The language and the call-back: plain pointers to the host's objects, of which no reference is kept between calls.
/// Null for null.
std::shared_ptr<ILanguage> AdaptLanguage(IDispatch* language);
std::shared_ptr<IDialogCallBack> AdaptCallBack(IDispatch* callBack);

/// The host's own object behind an adapter, not counted; null for objects that are none.
IDispatch* AutomationOf(HostObject* object);
IDispatch* AutomationOf(ILanguage* language);

}  // namespace orx::com
