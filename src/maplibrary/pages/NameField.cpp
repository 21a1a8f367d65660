#include "maplibrary/pages/NameField.h"

#include "forms/FieldTexts.h"
#include "maplibrary/pages/PageTexts.h"

namespace orx::maplibrary {

std::optional<Message> NameField::Take(const std::string& text) {
  if (text.find_first_not_of(' ') == std::string::npos)
    return MakeMessage(fieldtexts::kWrongValue, pagetexts::kBlankName, {Name()});
  Become(text);
  return std::nullopt;
}

}  // namespace orx::maplibrary
