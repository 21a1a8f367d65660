// What property pages ask their dialogs for, answered the same way in every dialog: each request opens the dialog that
// it is about.
#pragma once

#include "dialogframe/DialogForm.h"
#include "hostobjects/PropertyPage.h"

namespace orx {

/// Answers the requests of a page for the data of a layer: a data file, classification, special values, shading,
/// isolines, data style, colour schemes. The form, whose language they speak, must outlive the page.
void AnswerDataRequests(PropertyPage& page, DialogForm& form);

/// Answers the request of a page for the symbol of a layer.
void AnswerCharacterRequest(PropertyPage& page, DialogForm& form);

/// Answers the request of a page for the place of a map on the ground.
void AnswerGeoreferenceRequest(PropertyPage& page, DialogForm& form);

}  // namespace orx
