// What the user will do at the next thing that opens.

#include <exception>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ioview/script/command_table.h"
#include "ioview/script/dialog_steps.h"
#include "ioview/script/opened_rows.h"
#include "platform/headless/user.h"

namespace ioview {

namespace {

using platform::CDialog;

// A step is carried out inside the component, where nothing may be thrown: a failure ends the command, and
// the steps behind it aren't carried out.
platform::DialogStep StepOf(ScriptRun& run, DialogAct act) {
  return [&run, act = std::move(act)](CDialog& dialog) {
    if (run.HasFailed()) return;
    try {
      act(run, dialog);
    } catch (const std::exception& error) {
      run.Fail(ScriptError::kWrong, error.what());
    }
  };
}

// The rows that are opened are those of the dialog's owner.
std::size_t OpenedRowsBehind(const CDialog& dialog, OpenedRows& opened) {
  const platform::CWnd* const owner = platform::CWnd::FromHandle(dialog.GetOwner());
  if (owner == nullptr) return 0;
  for (platform::CWnd* const child : owner->GetChildren()) {
    if (const auto* const grid = dynamic_cast<platform::SECTreeCtrl*>(child)) return opened.Count(*grid);
  }
  return 0;
}

platform::DialogAnswer CancelProgressAfter(ScriptRun& run, std::uint32_t rows) {
  const auto opened = std::make_shared<OpenedRows>();
  platform::DialogAnswer answer;
  answer.runs_by_itself = true;
  answer.steps.emplace_back(
      [opened, rows](CDialog& dialog) { return OpenedRowsBehind(dialog, *opened) >= rows; },
      [&run](CDialog& dialog) {
        run.out.Line("(cancelled)");
        platform::user::PressCancel(dialog);
      });
  return answer;
}

// An answer of a single step that isn't one of an ordinary dialog; nothing for other words.
std::optional<platform::Answer> ParseWholeAnswer(ScriptRun& run, Arguments words) {
  const std::string& verb = words.Text();
  std::optional<platform::Answer> answer;
  if (verb == "file") {
    answer = platform::FileAnswer{run.places.ForComponent(words.Text())};
  } else if (verb == "print") {
    answer = platform::PrintAnswer{run.places.Native(words.Text())};
  } else if (verb == "menu") {
    answer = platform::MenuAnswer{words.Number()};
  } else if (verb == "progress") {
    words.Choice<bool>({{"cancel", true}});
    answer = CancelProgressAfter(run, words.Number());
  } else if (verb == "cancel") {
    answer = platform::CancelAnswer();
  } else {
    return std::nullopt;
  }
  words.End();
  return answer;
}

// Cut at the ";" between them; an empty step is wrong.
std::vector<std::vector<ScriptWord>> Steps(Arguments& arguments) {
  std::vector<std::vector<ScriptWord>> steps(1);
  while (arguments.HasMore()) {
    const ScriptWord word = arguments.Word();
    if (word.ends_step) {
      steps.emplace_back();
    } else {
      steps.back().push_back(word);
    }
  }
  for (const std::vector<ScriptWord>& step : steps) {
    if (step.empty()) throw WrongArgument("a step is empty");
  }
  return steps;
}

void Answer(ScriptRun& run, Arguments& arguments) {
  const std::vector<std::vector<ScriptWord>> steps = Steps(arguments);
  if (steps.size() == 1) {
    if (std::optional<platform::Answer> whole = ParseWholeAnswer(run, Arguments(steps.front()))) {
      return run.Display().Give(*std::move(whole));
    }
  }
  platform::DialogAnswer answer;
  for (const std::vector<ScriptWord>& step : steps) {
    Arguments words(step);
    answer.steps.push_back(StepOf(run, ParseDialogStep(words)));
  }
  run.Display().Give(std::move(answer));
}

constexpr ScriptCommand kCommands[] = {
    {.name = "answer",
     .form = "STEP; STEP..., file PATH, print FILE, menu INDEX, or progress cancel N",
     .run = Answer,
     .keeps_answers = true},
};

}  // namespace

std::span<const ScriptCommand> AnswerCommands() {
  return kCommands;
}

}  // namespace ioview
