// A language that notices which texts another one lacks.
#pragma once

#include <set>
#include <string>

#include "languages/TextLanguage.h"
#include "text/Trimmed.h"

namespace orx::test {

/// Asks a language, and keeps the keys that it has no text for.
class CheckedLanguage final : public languages::FormLanguage {
 public:
  explicit CheckedLanguage(languages::TextLanguage& language) : mLanguage(language) {}
  std::int32_t EntryCount() override { return mLanguage.EntryCount(); }
  std::string TranslateText(const std::string& key) override {
    if (!mLanguage.HasText(std::string(Trimmed(key))) && !key.starts_with('_')) Missing.insert(key);
    return mLanguage.TranslateText(key);
  }

  std::set<std::string> Missing;

 private:
  languages::TextLanguage& mLanguage;
};

}  // namespace orx::test
