// Settings of the process that a test changes and gets back at its end.
#pragma once

#include "platform/base/system.h"
#include "platform/base/text.h"

namespace pvw::test {

struct CodePage {
  explicit CodePage(unsigned page) { platform::SetAnsiCodePage(page); }
  CodePage(const CodePage&) = delete;
  CodePage& operator=(const CodePage&) = delete;
  ~CodePage() { platform::SetAnsiCodePage(before); }

  const unsigned before = platform::AnsiCodePage();
};

struct SystemAnswers {
  SystemAnswers() = default;
  SystemAnswers(const SystemAnswers&) = delete;
  SystemAnswers& operator=(const SystemAnswers&) = delete;
  ~SystemAnswers() { platform::System() = before; }
  platform::SystemRecord* operator->() { return &platform::System(); }

  const platform::SystemRecord before = platform::System();
};

}  // namespace pvw::test
