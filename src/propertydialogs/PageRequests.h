// Answers the requests of property pages, in the same way for every dialog: each one opens another dialog.
#pragma once

#include "dialogframe/DialogForm.h"
#include "hostobjects/PropertyPage.h"

namespace orx {

/// Answers the requests of a data page: a data file, classification, special values, shading, isolines, data style,
/// colour schemes. The dialogs use the language of the form, which must outlive the page.
void AnswerDataRequests(PropertyPage& page, DialogForm& form);

/// Answers the request for the symbol of a layer.
void AnswerCharacterRequest(PropertyPage& page, DialogForm& form);

/// Answers the request for the extent of a map.
void AnswerGeoreferenceRequest(PropertyPage& page, DialogForm& form);

}  // namespace orx
