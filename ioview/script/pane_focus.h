// A pane as the user who works in it has it: its page on top, the focus inside, and answers to what it opens.
#pragma once

#include "ioview/script/script_run.h"
#include "platform/headless/headless_display.h"

namespace ioview {

// Brings the pane's page to the top. ScriptError for a pane that isn't there.
ScriptPane ShownPane(ScriptRun& run, PaneIndex pane);

// Gives the focus to the pane's grid unless something in the pane has it: an open edit keeps it.
void FocusPane(const ScriptPane& pane);

// The answer of a command that says itself what the user does; taken back where nothing asked for it.
class OwnAnswer {
 public:
  OwnAnswer(platform::HeadlessDisplay& display, platform::Answer answer);
  OwnAnswer(const OwnAnswer&) = delete;
  OwnAnswer& operator=(const OwnAnswer&) = delete;
  ~OwnAnswer();

 private:
  platform::HeadlessDisplay& display_;
  const bool alone_;  // with others before it, these are what is left unused
};

}  // namespace ioview
