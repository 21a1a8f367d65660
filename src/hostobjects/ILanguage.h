// The host's language: translates captions and gives help file and help numbers by key.
#pragma once

#include <cstdint>
#include <string>

#include "hostobjects/BorrowedObject.h"

namespace orx {

class Form;

/// A language is active when it has entries. The library keeps plain pointers to languages and releases none.
class ILanguage : public BorrowedObject {
 public:
  /// The number of texts; 0 means that nothing is translated.
  virtual std::int32_t EntryCount() = 0;
  /// The text for a key, UTF-8. A caption is its own key; a key without an entry gives the key for a caption, and an
  /// empty text for keys that start with an underscore (help file, help numbers).
  virtual std::string TranslateText(const std::string& key) = 0;
  /// Translates captions, tool tips and tab captions of the form's controls (Form::All), and the entries of lists that
  /// have words (ListControl::HasWords); the form's own caption is translated by the form through TranslateText.
  virtual void TranslateForm(Form& form) = 0;
  /// True for a language that is read from right to left; dialogs are mirrored then.
  virtual bool IsRightToLeft() { return false; }
};

/// The key under which languages of texts say how they are read: "rtl" means from right to left.
inline constexpr char kDirectionKey[] = "_Direction";
inline constexpr char kRightToLeft[] = "rtl";

/// True when there is a language with entries.
inline bool IsActive(ILanguage* language) {
  return language && language->EntryCount() > 0;
}

/// The translation of `text` by an active language, else the text itself.
inline std::string Translated(ILanguage* language, const std::string& text) {
  return IsActive(language) ? language->TranslateText(text) : text;
}

}  // namespace orx
