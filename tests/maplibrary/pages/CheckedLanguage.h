// A language that notices which texts another one lacks.
#pragma once

#include <set>
#include <string>

#include "maplibrary/TextLanguage.h"
#include "maplibrary/Trimmed.h"

namespace orx::test {

/// Asks a language, and keeps the keys that it has no text for.
class CheckedLanguage final : public maplibrary::FormLanguage {
 public:
  explicit CheckedLanguage(maplibrary::TextLanguage& language) : mLanguage(language) {}
  std::int32_t EntryCount() override { return mLanguage.EntryCount(); }
  std::string TranslateText(const std::string& key) override {
    if (!mLanguage.HasText(std::string(maplibrary::Trimmed(key))) && !key.starts_with('_')) Missing.insert(key);
    return mLanguage.TranslateText(key);
  }

  std::set<std::string> Missing;

 private:
  maplibrary::TextLanguage& mLanguage;
};

}  // namespace orx::test
