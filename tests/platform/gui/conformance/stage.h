// What the scenarios of this folder ask of a display: its user's hands, and the story of what happened. They
// use public names only and run on every display; each test program has a MakeStage of its own.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/gui/dialog.h"
#include "platform/gui/dialog_template.h"
#include "platform/gui/display.h"
#include "platform/gui/window.h"

namespace platform::conformance {

// The lines of the story so far: messages of traced windows, "dialog: TITLE", "message: TEXT" and "beep" as a
// user meets them, and what a scenario notes itself.
std::vector<std::string>& Trace();
void Note(std::string line);
// The story as text, a line feed behind each line; it starts anew.
std::string Story();

using Steps = std::vector<std::function<void(CDialog&)>>;

// Sets its display at construction and takes it back at the end.
class Stage {
 public:
  virtual ~Stage() = default;

  // The mouse, in client coordinates.
  virtual void Press(CWnd& window, POINT at) = 0;
  virtual void Release(CWnd& window, POINT at) = 0;
  // Keys, to whatever has the focus.
  virtual void KeyDown(UINT key, UINT modifiers) = 0;
  virtual void KeyUp(UINT key, UINT modifiers) = 0;
  virtual void Type(std::string_view text) = 0;
  // To something in the program that isn't ours, and back.
  virtual void Leave() = 0;
  virtual void ComeBack() = 0;
  // Lets time pass; lets everything happen that waits to.
  virtual void Wait(UINT milliseconds) = 0;
  virtual void Settle() = 0;
  // What the user does in the dialog that opens next; each step once the one before is done.
  virtual void InNextDialog(Steps steps) = 0;
  // Runs while the message box that opens next shows; others are acknowledged at once.
  virtual void InNextBox(std::function<void()> then) = 0;

  void Click(CWnd& window, POINT at = {3, 3}) {
    Press(window, at);
    Release(window, at);
  }
  void Key(UINT key, UINT modifiers = 0) {
    KeyDown(key, modifiers);
    KeyUp(key, modifiers);
  }
};

std::unique_ptr<Stage> MakeStage();

// Notes the message as "NAME MESSAGE …", if it is one that all displays send alike.
void NoteMessage(const std::string& name, const MSG& msg);

// A window that notes the messages it gets, before it handles them, and goes with its object.
template <typename Base>
class Traced : public Base {
 public:
  template <typename... Arguments>
  explicit Traced(std::string window_name, Arguments&&... arguments)
      : Base(std::forward<Arguments>(arguments)...), name(std::move(window_name)) {}
  ~Traced() override { this->DestroyWindow(); }

  LRESULT WindowProc(const MSG& msg) override {
    NoteMessage(name, msg);
    const auto handler = handlers.find(msg.message);
    if (handler != handlers.end()) {
      const std::function<LRESULT()> call = handler->second;
      if (const LRESULT result = call()) return result;
    }
    return Base::WindowProc(msg);
  }

  // What the window does with a message ahead of the rest; a result of 0 lets the rest go on.
  void On(UINT message, std::function<LRESULT()> call) { handlers[message] = std::move(call); }

  // The same for something that happens and lets the rest go on.
  void During(UINT message, std::function<void()> act) {
    On(message, [act = std::move(act)] { return act(), LRESULT{0}; });
  }

  std::string name;
  std::map<UINT, std::function<LRESULT()>> handlers;
};

// A stage with a main window that has room for controls.
class Scenario : public testing::Test {
 protected:
  Scenario();
  ~Scenario() override;

  // Makes a control in the main window, one below the other.
  void Add(CWnd& control, UINT id, std::string text = {}, UINT style = 0);
  // Gives the control the focus and forgets the story of it.
  void Focus(CWnd& control);
  // The story once everything has happened that waits to.
  std::string Settled() {
    stage->Settle();
    return Story();
  }

  std::unique_ptr<Stage> stage = MakeStage();
  Traced<CWnd> main{"main"};

 private:
  int m_next_top = 5;
};

// Templates of the scenarios' dialogs.
inline constexpr UINT kNameDialog = 501;  // label "&Name:", edit kName, check box kAll "&All", OK, Cancel
inline constexpr UINT kPickDialog =
    502;  // a combo box kPick, a button kMore "&More", default OK 21 and Cancel 22
inline constexpr UINT kEmptyDialog = 503;  // nothing in it
inline constexpr UINT kName = 11, kAll = 12, kPick = 13, kMore = 14, kOwnOk = 21, kOwnCancel = 22;

}  // namespace platform::conformance
