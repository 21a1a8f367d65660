// The languages that the demo offers, and the switch between them.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "hostobjects/ILanguage.h"

namespace maphost {

/// English as designed, every text file of a folder (named by its file), and a pseudo-language for looking at layouts.
class Languages {
 public:
  /// Throws orx::RunTimeError when a file cannot be read as a language. A folder that is missing offers no files.
  explicit Languages(const std::filesystem::path& folder);

  int Count() const { return static_cast<int>(mEntries.size()); }
  const std::string& Name(int index) const { return mEntries.at(static_cast<std::size_t>(index)).Name; }
  /// Null for English.
  orx::ILanguage* Language(int index) const { return mEntries.at(static_cast<std::size_t>(index)).Language.get(); }

 private:
  struct Entry {
    std::string Name;
    std::unique_ptr<orx::ILanguage> Language;
  };

  std::vector<Entry> mEntries;
};

/// Remembers the designed captions of a form, so that it can be translated from one language into another.
class DesignedCaptions {
 public:
  explicit DesignedCaptions(const orx::Form& form);
  /// Puts the designed captions back and has the language translate them; null leaves them as designed.
  void Translate(orx::Form& form, orx::ILanguage* language) const;

 private:
  std::string mCaption;
  std::map<const orx::Control*, std::string> mCaptions;
};

}  // namespace maphost
