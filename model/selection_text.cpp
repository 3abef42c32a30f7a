#include "model/selection_text.h"

#include <string>

#include "model/io_rec_module2.h"
#include "model/io_rec_reg2.h"

namespace pvw {
namespace {

constexpr char kOpen = '{';
constexpr char kClose = '}';
constexpr char kNameEnd = '?';

std::unique_ptr<CIORec> MakeModule(std::string_view name, IQComponentHost* host) {
  auto module = std::make_unique<CIORecModule2>(std::string(name), host);
  module->SetChildrenKnown(true);
  module->SetSelected(true);
  return module;
}

CIORec* AddRegister(CIORec* parent, std::string_view name) {
  auto reg = std::make_unique<CIORecReg2>(std::string(name), parent);
  RegisterDescription description;
  description.name = name;
  description.absolute = true;
  reg->Define(std::move(description));
  reg->SetSelected(true);
  reg->SetChildrenKnown(true);
  CIORec* const added = reg.get();
  parent->AddChild(std::move(reg));
  return added;
}

class Parser {
 public:
  explicit Parser(std::string_view text) : m_text(text) {}

  // The name that begins at the present position; false when the text has no more of them.
  bool Name(std::string_view& name) {
    const std::size_t end = m_text.find(kNameEnd, m_position);
    if (end == std::string_view::npos) return false;
    name = m_text.substr(m_position, end - m_position);
    m_position = end + 1;
    return true;
  }

  // A selection of what lies below `module`, if one begins here. Brackets that are open are as many as there
  // are records from the module down to the innermost parent, so the parents keep count of them.
  void Nested(CIORec* module) {
    CIORec* parent = module;
    if (!Skip(kOpen)) return;
    while (true) {
      if (Skip(kClose)) {
        if (parent == module) return;
        parent = parent->GetParent();
        continue;
      }
      std::string_view name;
      if (!Name(name)) return;
      CIORec* const added = AddRegister(parent, name);
      if (Skip(kOpen)) parent = added;
    }
  }

 private:
  bool Skip(char c) {
    if (m_position >= m_text.size() || m_text[m_position] != c) return false;
    ++m_position;
    return true;
  }

  std::string_view m_text;
  std::size_t m_position = 1;
};

}  // namespace

void ParseSelectionText(std::string_view text, IQComponentHost* host, CIORec::Records& modules) {
  Parser parser(text);
  std::string_view name;
  while (parser.Name(name)) {
    auto module = MakeModule(name, host);
    parser.Nested(module.get());
    module->MarkMissing();
    modules.push_back(std::move(module));
  }
}

}  // namespace pvw
