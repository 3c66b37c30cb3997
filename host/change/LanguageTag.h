#pragma once

#include <string>

namespace host {

/// Whether the text has the form of a language tag (BCP 47): "en", "zh-Hant-TW", "de-CH-1996", "x-klingon".
/// Which languages there are is not looked up.
bool isLanguageTag(const std::string& text);

} // namespace host
