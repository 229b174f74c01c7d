#pragma once

#include "base/texts/text_tables.h"

namespace nocturo {

/// Has all texts read in another language, as setLanguageOfTexts() does, until it is destroyed.
class TextsInLanguage {
  public:
    explicit TextsInLanguage(std::string_view language);
    ~TextsInLanguage();
    TextsInLanguage(const TextsInLanguage&) = delete;
    TextsInLanguage& operator=(const TextsInLanguage&) = delete;

  private:
    std::span<const Translation> before_;
};

} // namespace nocturo
