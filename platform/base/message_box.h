// Message boxes. Stands in for the system's message box: the caller asks, a presenter shows.
#pragma once

#include <cstdint>
#include <string>

namespace platform {

inline constexpr std::uint32_t MB_OK = 0;
inline constexpr std::uint32_t MB_ICONSTOP = 0x10;
inline constexpr std::uint32_t MB_ICONEXCLAMATION = 0x30;

struct MessageBoxRequest {
  std::string text;     // ANSI code page; lines end in \n
  std::string caption;  // empty: the program's own
  std::uint32_t type = MB_OK;
};

// Shows message boxes and sounds beeps; a display, the command line or a test sets one.
class MessagePresenter {
 public:
  virtual ~MessagePresenter() = default;
  virtual void Show(const MessageBoxRequest& request) = 0;
  virtual void Beep() = 0;
};

// The presenter that counts from now on, not owned; null for none. Gives the one before.
MessagePresenter* SetMessagePresenter(MessagePresenter* presenter);

// Returns once the user has acknowledged it. Without a presenter nothing is shown.
void MessageBox(std::string text, std::uint32_t type = MB_OK, std::string caption = {});
void MessageBeep();

}  // namespace platform
