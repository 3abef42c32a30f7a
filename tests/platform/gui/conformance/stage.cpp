#include "tests/platform/gui/conformance/stage.h"

#include <map>
#include <utility>

#include "platform/base/app.h"
#include "platform/base/resources.h"

namespace platform::conformance {

namespace {

constexpr DialogItem kNameItems[] = {
    {DialogItemKind::Label, 10, "&Name:", {7, 9, 40, 19}},
    {DialogItemKind::Edit, kName, "", {45, 7, 140, 21}},
    {DialogItemKind::CheckBox, kAll, "&All", {45, 28, 100, 40}},
    {DialogItemKind::Button, IDOK, "OK", {150, 7, 200, 21}, BS_DEFPUSHBUTTON},
    {DialogItemKind::Button, IDCANCEL, "Cancel", {150, 25, 200, 39}},
};
constexpr DialogTemplate kName_{"Name", {207, 50}, kNameItems};

constexpr DialogItem kPickItems[] = {
    {DialogItemKind::ComboBox, kPick, "", {7, 7, 140, 21}},
    {DialogItemKind::Button, kMore, "&More", {7, 25, 57, 39}},
    {DialogItemKind::Button, kOwnOk, "&OK", {150, 7, 200, 21}, BS_DEFPUSHBUTTON},
    {DialogItemKind::Button, kOwnCancel, "&Cancel", {150, 25, 200, 39}},
};
constexpr DialogTemplate kPick_{"Pick", {207, 50}, kPickItems};
constexpr DialogTemplate kEmpty_{"Empty", {100, 50}, {}};

constexpr DialogResource kDialogs[] = {
    {kNameDialog, &kName_}, {kPickDialog, &kPick_}, {kEmptyDialog, &kEmpty_}};
const ResourceTables kTables{{}, {}, {}, {}, kDialogs};
const ResourceRegistration kRegistration(kTables, ResourceRole::kComponent);

std::string KeyText(WPARAM key) {
  static const std::map<WPARAM, std::string> names = {
      {VK_ESCAPE, "Escape"}, {VK_HOME, "Home"}, {VK_UP, "Up"}, {VK_F1, "F1"}};
  const auto found = names.find(key);
  return found != names.end() ? found->second : std::string(1, static_cast<char>(key));
}

std::string CommandText(const MSG& msg) {
  static const std::map<UINT, std::string> codes = {
      {BN_CLICKED, "BN_CLICKED"},         {EN_UPDATE, "EN_UPDATE"},
      {EN_CHANGE, "EN_CHANGE"},           {CBN_SELCHANGE, "CBN_SELCHANGE"},
      {CBN_EDITUPDATE, "CBN_EDITUPDATE"}, {CBN_EDITCHANGE, "CBN_EDITCHANGE"}};
  const std::string id = std::to_string(msg.wParam & 0xFFFF);
  return msg.lParam != 0 ? codes.at(static_cast<UINT>(msg.wParam >> 16)) + " " + id : "COMMAND " + id;
}

}  // namespace

std::vector<std::string>& Trace() {
  static std::vector<std::string> trace;
  return trace;
}

void Note(std::string line) {
  Trace().push_back(std::move(line));
}

std::string Story() {
  std::string story;
  for (const std::string& line : std::exchange(Trace(), {})) story += line + "\n";
  return story;
}

void NoteMessage(const std::string& name, const MSG& msg) {
  static const std::map<UINT, std::string> plain = {
      {WM_CREATE, "CREATE"},       {WM_DESTROY, "DESTROY"},      {WM_SETFOCUS, "SETFOCUS"},
      {WM_KILLFOCUS, "KILLFOCUS"}, {WM_CLOSE, "CLOSE"},          {WM_LBUTTONDOWN, "DOWN"},
      {WM_LBUTTONUP, "UP"},        {WM_LBUTTONDBLCLK, "DBLCLK"}, {WM_HELP, "HELP"}};
  switch (msg.message) {
    case WM_KEYDOWN:
      return Note(name + " KEYDOWN " + KeyText(msg.wParam));
    case WM_KEYUP:
      return Note(name + " KEYUP " + KeyText(msg.wParam));
    case WM_CHAR:
      return Note(name + " CHAR " + static_cast<char>(msg.wParam));
    case WM_TIMER:
      return Note(name + " TIMER " + std::to_string(msg.wParam));
    case WM_COMMAND:
      return Note(name + " " + CommandText(msg));
    default:
      break;
  }
  if (msg.message >= WM_USER) return Note(name + " USER+" + std::to_string(msg.message - WM_USER));
  if (const auto found = plain.find(msg.message); found != plain.end()) Note(name + " " + found->second);
}

Scenario::Scenario() {
  main.Create({WS_POPUP | WS_VISIBLE, 0, {0, 0, 300, 200}, 0, 0, "Main"});
  SetMainWindow(main.GetHandle());
  stage->ComeBack();
  Settled();
}

Scenario::~Scenario() {
  main.DestroyWindow();
  SetMainWindow(0);
  Settled();
}

void Scenario::Add(CWnd& control, UINT id, std::string text, UINT style) {
  CreateParams params;
  params.style |= style;
  params.rect = {5, m_next_top, 205, m_next_top + 24};
  params.parent = main.GetHandle();
  params.id = id;
  params.text = std::move(text);
  m_next_top += 26;
  ASSERT_TRUE(control.Create(params));
  Settled();
}

void Scenario::Focus(CWnd& control) {
  SetFocus(control.GetHandle());
  Settled();
}

}  // namespace platform::conformance
