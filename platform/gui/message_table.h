// Tables that say which handler a window has for what. Stands in for the class library's message maps.
//
//   const MessageTable CPane::kMessages{&CBase::kMessages, {
//       OnMessage<&CPane::OnDestroy>(WM_DESTROY),
//       OnCommand<&CPane::OnRefresh>(32817),
//       OnUpdate<&CPane::OnUpdateRefresh>(32817),
//       OnNotify<&CPane::OnItemExpanding>(200, TVN_ITEMEXPANDING),
//       OnReflect<&CPane::OnUpdate>(EN_UPDATE),
//   }};
//
// A look-up takes the first row that fits, in the window's own table and then in its bases'. A class that has
// a table overrides GetMessageTable.
#pragma once

#include <initializer_list>
#include <utility>
#include <vector>

#include "platform/gui/messages.h"

namespace platform {

class CWnd;

// What an update handler sets for one command. Enabled and unchecked until it says otherwise.
class CCmdUI {
 public:
  explicit CCmdUI(UINT id) : m_id(id) {}
  UINT GetId() const { return m_id; }
  void Enable(bool on) { m_enabled = on; }
  void SetCheck(bool on) { m_checked = on; }
  bool IsEnabled() const { return m_enabled; }
  bool IsChecked() const { return m_checked; }

 private:
  UINT m_id;
  bool m_enabled = true;
  bool m_checked = false;
};

// The head of every notification record.
struct NMHDR {
  HWND hwndFrom = 0;
  UINT idFrom = 0;
  UINT code = 0;
};

struct MessageRow {
  enum class Kind { Message, Command, Update, Notify, Reflect };
  Kind kind;
  UINT code;  // message or notification code; 0 for commands
  UINT id;    // command or control id; 0 for messages and reflected codes
  LRESULT (*call)(CWnd& window, void* argument);
};

class MessageTable {
 public:
  MessageTable(const MessageTable* base, std::initializer_list<MessageRow> rows)
      : m_base(base), m_rows(rows) {}
  const MessageRow* Find(MessageRow::Kind kind, UINT code, UINT id) const {
    for (const MessageTable* table = this; table != nullptr; table = table->m_base) {
      for (const MessageRow& row : table->m_rows) {
        if (row.kind == kind && row.code == code && row.id == id) return &row;
      }
    }
    return nullptr;
  }
  const MessageTable* Base() const { return m_base; }
  const std::vector<MessageRow>& Rows() const { return m_rows; }

 private:
  const MessageTable* m_base;
  std::vector<MessageRow> m_rows;
};

namespace message_table {

template <typename Member>
struct MemberOf;
template <typename Class, typename Result, typename... Arguments>
struct MemberOf<Result (Class::*)(Arguments...)> {
  using Type = Class;
};

template <auto handler, typename Argument>
LRESULT Call(CWnd& window, void* argument) {
  using Class = typename MemberOf<decltype(handler)>::Type;
  return (static_cast<Class&>(window).*handler)(*static_cast<Argument*>(argument));
}
template <auto handler, typename Argument>
LRESULT CallVoid(CWnd& window, void* argument) {
  using Class = typename MemberOf<decltype(handler)>::Type;
  (static_cast<Class&>(window).*handler)(*static_cast<Argument*>(argument));
  return 0;
}
template <auto handler>
LRESULT CallPlain(CWnd& window, void*) {
  using Class = typename MemberOf<decltype(handler)>::Type;
  (static_cast<Class&>(window).*handler)();
  return 0;
}

}  // namespace message_table

// LRESULT Handler(const MSG&); it calls Default(message) of CWnd for the base's handling.
template <auto handler>
constexpr MessageRow OnMessage(UINT message) {
  return {MessageRow::Kind::Message, message, 0, &message_table::Call<handler, const MSG>};
}
// void Handler().
template <auto handler>
constexpr MessageRow OnCommand(UINT id) {
  return {MessageRow::Kind::Command, 0, id, &message_table::CallPlain<handler>};
}
// void Handler(CCmdUI&).
template <auto handler>
constexpr MessageRow OnUpdate(UINT id) {
  return {MessageRow::Kind::Update, 0, id, &message_table::CallVoid<handler, CCmdUI>};
}
// LRESULT Handler(NMHDR&); the handler knows the record behind the head by the code.
template <auto handler>
constexpr MessageRow OnNotify(UINT control, UINT code) {
  return {MessageRow::Kind::Notify, code, control, &message_table::Call<handler, NMHDR>};
}
// void Handler(), for a code that this control itself would send its parent; the parent then doesn't get it.
template <auto handler>
constexpr MessageRow OnReflect(UINT code) {
  return {MessageRow::Kind::Reflect, code, 0, &message_table::CallPlain<handler>};
}

}  // namespace platform
