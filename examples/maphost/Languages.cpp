#include "examples/maphost/Languages.h"

#include <algorithm>

#include "forms/Control.h"
#include "languages/PseudoLanguage.h"
#include "languages/TextLanguage.h"

namespace maphost {

Languages::Languages(const std::filesystem::path& folder) {
  mEntries.push_back({"English", nullptr});
  std::vector<std::filesystem::path> files;
  std::error_code missing;
  for (const auto& entry : std::filesystem::directory_iterator(folder, missing))
    if (entry.path().extension() == ".txt") files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  for (const auto& file : files) {
    auto language = std::make_unique<orx::languages::TextLanguage>(file);
    const std::string named = language->TranslateText("_LanguageName");
    mEntries.push_back({named.empty() ? file.stem().string() : named, std::move(language)});
  }
  mEntries.push_back({"Pseudo (for layouts)", std::make_unique<orx::languages::PseudoLanguage>()});
  mEntries.push_back({"Pseudo, right to left", std::make_unique<orx::languages::PseudoLanguage>(true)});
}

DesignedCaptions::DesignedCaptions(const orx::Form& form) : mCaption(form.Caption()) {
  for (const orx::Control* control : form.All()) mCaptions[control] = control->Caption();
}

void DesignedCaptions::Translate(orx::Form& form, orx::ILanguage* language) const {
  form.Caption(mCaption);
  for (orx::Control* control : form.All()) control->Caption(mCaptions.at(control));
  if (!orx::IsActive(language)) return;
  language->TranslateForm(form);
  form.Caption(language->TranslateText(mCaption));
}

}  // namespace maphost
