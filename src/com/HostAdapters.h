// A host's automation objects as the host interfaces of the library.
#pragma once

#include <memory>

#include "com/Handles.h"
#include "hostobjects/HostObject.h"
#include "hostobjects/IDialogCallBack.h"
#include "hostobjects/IFileCheck.h"
#include "hostobjects/ILanguage.h"

namespace orx::com {

/// Adapts a map or a part of one; null for null. The result holds a reference and everything that was asked of it, and
/// the dialogs that show it keep it alive (BorrowedObject::Lifetime). What the object supports is decided by the
/// published interfaces, or by the names of its members.
std::shared_ptr<HostObject> AdaptHostObject(IDispatch* object);

/// Adapt the language and the call-back. These are plain pointers to the host's objects: no reference is held between
/// calls. Null for null.
std::shared_ptr<ILanguage> AdaptLanguage(IDispatch* language);
std::shared_ptr<IDialogCallBack> AdaptCallBack(IDispatch* callBack);

/// Adapts the check of data files, which is asked on the calling thread alone; on others it throws WrongThread. Holds a
/// reference. Null for null; throws RunTimeError (kErrorTypeMismatch) for an object that is none.
std::shared_ptr<IFileCheck> AdaptFileCheck(IDispatch* check);

/// The host's own object behind an adapter, without a reference; null when the object is not an adapter.
IDispatch* AutomationOf(HostObject* object);
IDispatch* AutomationOf(ILanguage* language);
/// On the thread of the check only.
IDispatch* AutomationOf(IFileCheck* check);

}  // namespace orx::com
