#include "frame/controls/dlg_with_help.h"

#include <array>
#include <cstdio>
#include <string>
#include <utility>

#include "component/services/module_state.h"
#include "frame/controls/html_help.h"
#include "platform/base/app.h"
#include "platform/base/help.h"
#include "support/path_text.h"
#include "support/windows_version.h"

namespace pvw {

namespace {

// Code of the first system without the engine for ".hlp" files.
constexpr int kWithoutWinHelp = 9;

void Trace([[maybe_unused]] const char* engine, [[maybe_unused]] std::uint32_t dialog_id,
           [[maybe_unused]] std::uint32_t control_id) {
#ifndef NDEBUG
  std::fprintf(stderr, "%s: nDialogID = %d, nControlID = %d.\n", engine, static_cast<int>(dialog_id),
               static_cast<int>(control_id));
#endif
}

}  // namespace

const platform::MessageTable CDlgWithHelp::kMessages{
    &CDialog::kMessages,
    {
        platform::OnMessage<&CDlgWithHelp::OnHelpMessage>(platform::WM_HELP),
    }};

platform::LRESULT CDlgWithHelp::OnHelpMessage(const platform::MSG& msg) {
  const CModuleState state;
  if (OnHelpInfo(*reinterpret_cast<const platform::HELPINFO*>(msg.lParam))) return 1;
  return Default(msg, kMessages);
}

bool CDlgWithHelp::OnHelpInfo(const platform::HELPINFO& info) {
  if (static_cast<std::int32_t>(info.iCtrlId) < 1) return false;
  const platform::CWinApp* app = platform::CWinApp::Current();
  const std::string module =
      app != nullptr ? app->GetModuleFileName().value_or(std::string()) : std::string();
  if (module.empty()) return false;
  const std::string without_ending = JoinPath(GetDirectoryOf(module), GetFileLeafOf(module));

  const std::string chm = without_ending + ".chm";
  if (FileExistsAt(chm, nullptr)) return ShowChm(chm, info);
  const std::string hlp = without_ending + ".hlp";
  if (!FileExistsAt(hlp, nullptr)) return false;
  if (!IsWindowsVersionAtLeast(kWithoutWinHelp)) ShowHlp(hlp, info.iCtrlId);
  return true;
}

bool CDlgWithHelp::ShowChm(const std::string& chm, const platform::HELPINFO& info) {
  if (info.iContextType != platform::HELPINFO_WINDOW) return true;
  const std::array<std::uint32_t, 3> contexts = {info.iCtrlId, ContextNumber(info.iCtrlId), 0};
  const std::uintptr_t result = CallHtmlHelp(info.hItemHandle, chm + "::/CONTEXT.TXT", HH_TP_HELP_WM_HELP,
                                             reinterpret_cast<std::uintptr_t>(contexts.data()));
  Trace("HtmlHelp", m_dialogId, info.iCtrlId);
  return result != 0;
}

void CDlgWithHelp::ShowHlp(const std::string& hlp, std::uint32_t control_id) {
  platform::CWinApp& app = *platform::CWinApp::Current();
  const std::string before = std::exchange(app.m_helpFilePath, hlp);
  platform::WinHelp(GetHandle(), app.m_helpFilePath, platform::HELP_CONTEXTPOPUP, ContextNumber(control_id));
  Trace("WinHelp", m_dialogId, control_id);
  app.m_helpFilePath = before;
}

std::uint32_t CDlgWithHelp::ContextNumber(std::uint32_t control_id) const {
  return 0x80000000u + (m_dialogId << 16) + control_id;
}

}  // namespace pvw
