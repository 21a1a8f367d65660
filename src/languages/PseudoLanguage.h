// A language that exists only to try layouts: it shows which texts are not translated and which do not fit.
#pragma once

#include "languages/FormLanguage.h"

namespace orx::languages {

/// Computes a text from its key: accented letters between brackets, 35 % longer. The mnemonic letter, the places {1},
/// {2}, ... and a text that is pseudo-translated already stay as they are. Help keys give an empty text.
class PseudoLanguage final : public FormLanguage {
 public:
  explicit PseudoLanguage(bool rightToLeft = false) : mRightToLeft(rightToLeft) {}

  std::int32_t EntryCount() override { return 1; }
  std::string TranslateText(const std::string& key) override;
  /// As given when the language was made.
  bool IsRightToLeft() override { return mRightToLeft; }

 private:
  bool mRightToLeft;
};

}  // namespace orx::languages
