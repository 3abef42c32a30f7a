// The language that the system runs in, as far as it matters here.
#pragma once

namespace pvw {

// False when the system profile's language, section "intl", key "sLanguage", is "jpn" in any case; true for
// every other language and for none.
bool IsLanguageNotJapanese();

}  // namespace pvw
