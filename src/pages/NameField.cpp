#include "pages/NameField.h"

#include "forms/FieldTexts.h"
#include "forms/TextBox.h"
#include "pages/PageTexts.h"
#include "text/Trimmed.h"

namespace orx::pages {

std::optional<Message> NameField::Take(const std::string& text) {
  if (Trimmed(text, kSpaces).empty())
    return MakeMessage(fieldtexts::kWrongValue, pagetexts::kBlankName, {FieldName(Box())});
  Become(text);
  return std::nullopt;
}

}  // namespace orx::pages
