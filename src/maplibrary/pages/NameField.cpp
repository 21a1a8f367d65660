#include "maplibrary/pages/NameField.h"

#include "forms/FieldTexts.h"
#include "forms/Letters.h"
#include "maplibrary/pages/PageTexts.h"

namespace orx::maplibrary {

std::optional<Message> NameField::Take(const std::string& text) {
  if (WithoutBlanksAround(text).empty()) return MakeMessage(fieldtexts::kWrongValue, pagetexts::kBlankName, {Name()});
  Become(text);
  return std::nullopt;
}

}  // namespace orx::maplibrary
