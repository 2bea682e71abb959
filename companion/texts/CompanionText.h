#pragma once

#include <QString>

// The companion's own texts. Main thread only.

// The translation of an English text into the user's language; the English text where there is none.
QString companionText(const char* english);

// The language of these texts, for example "de" or "zh_CN".
QString companionLanguage();

// Marks an English text that is passed to companionText elsewhere, so that the check of the translations sees
// it.
constexpr const char* textKey(const char* english) {
  return english;
}
