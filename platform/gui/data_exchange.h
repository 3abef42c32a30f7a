// What a dialog's members and its controls tell each other. Stands in for the class library's data exchange.
//
// A dialog's DoDataExchange names each pair once, and runs in three passes: Bind before the controls are
// made, so that a member is the control itself; Show from members to controls; Save back.
#pragma once

#include <string>
#include <unordered_map>

#include "platform/gui/types.h"

namespace platform {

class CDialog;
class CWnd;

struct CDataExchange {
  enum class Pass { Bind, Show, Save };
  Pass pass;
  CDialog& dialog;
  std::unordered_map<UINT, CWnd*> bound;  // filled by Bind
};

// The member is the control of that id, and of the kind that the template gives it.
void DDX_Control(CDataExchange& dx, UINT id, CWnd& member);
// The text of an edit, of a combo box or of the entry that is picked in it.
void DDX_Text(CDataExchange& dx, UINT id, std::string& text);
void DDX_Check(CDataExchange& dx, UINT id, bool& checked);

}  // namespace platform
