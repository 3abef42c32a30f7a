#include "support/language.h"

#include "platform/base/system.h"
#include "platform/base/text.h"

namespace pvw {

bool IsLanguageNotJapanese() {
  return !platform::EqualNoCase(platform::GetProfileString("intl", "sLanguage", "eng", 9), "jpn");
}

}  // namespace pvw
