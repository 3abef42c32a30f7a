#include "platform/gui/row_sequence.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace platform {

void RowSequence::Clear() {
  // The root's node also stands for no node.
  m_nodes.assign(1, {{0, 0}, 0, 0, -1, std::numeric_limits<std::int32_t>::max(), 0});
  m_free.clear();
}

bool RowSequence::Above(Row a, Row b) {
  // Maps the numbers one to one, so that no two priorities are equal.
  const auto priority = [](Row row) {
    row = (row ^ row >> 16) * 0x85EBCA6Bu;
    row = (row ^ row >> 13) * 0xC2B2AE35u;
    return row ^ row >> 16;
  };
  return priority(a) > priority(b);
}

void RowSequence::Update(Row row) {
  Node& node = m_nodes[row];
  const Node& left = m_nodes[node.child[kLeft]];
  const Node& right = m_nodes[node.child[kRight]];
  node.count = left.count + 1 + right.count;
  node.shallowest = std::min({left.shallowest, node.depth, right.shallowest});
}

void RowSequence::Hang(Row row, Side side, Row below) {
  m_nodes[row].child[side] = below;
  if (below != 0) m_nodes[below].up = row;
  Update(row);
}

void RowSequence::SetRun(Row owner, Row top) {
  m_nodes[owner].run = top;
  if (top != 0) m_nodes[top].up = owner | kOwner;
}

RowSequence::Row RowSequence::OwnerOf(Row row) const {
  while ((m_nodes[row].up & kOwner) == 0) row = m_nodes[row].up;
  return m_nodes[row].up & ~kOwner;
}

// The tops' own `up` is for the caller to set.
RowSequence::Row RowSequence::Join(Row a, Row b) {
  if (a == 0 || b == 0) return a | b;
  if (Above(a, b)) {
    Hang(a, kRight, Join(m_nodes[a].child[kRight], b));
    return a;
  }
  Hang(b, kLeft, Join(a, m_nodes[b].child[kLeft]));
  return b;
}

// The tops of what stands before the row in its run, and of the row and what stands behind it.
std::pair<RowSequence::Row, RowSequence::Row> RowSequence::CutBefore(Row row) {
  Row before = m_nodes[row].child[kLeft];
  Row behind = row;
  Row from = row;
  Row up = m_nodes[row].up;
  Hang(row, kLeft, 0);
  while ((up & kOwner) == 0) {
    const Row next = m_nodes[up].up;
    if (m_nodes[up].child[kLeft] == from) {
      Hang(up, kLeft, behind);
      behind = up;
    } else {
      Hang(up, kRight, before);
      before = up;
    }
    from = up;
    up = next;
  }
  return {before, behind};
}

// Takes the rows from `first` up to and without `end` out of their run; `end` 0 is the run's end.
RowSequence::Row RowSequence::CutOut(Row first, Row end) {
  const Row owner = OwnerOf(first);
  const auto [before, rest] = CutBefore(first);
  Row part = rest;
  Row behind = 0;
  if (end != 0) {
    SetRun(owner, rest);
    std::tie(part, behind) = CutBefore(end);
  }
  SetRun(owner, Join(before, behind));
  return part;
}

// Puts the rows under `top` into the owner's run, before one of it; 0 is the run's end.
void RowSequence::Insert(Row top, Row owner, Row before) {
  if (before == 0) {
    SetRun(owner, Join(m_nodes[owner].run, top));
  } else {
    const auto [left, right] = CutBefore(before);
    SetRun(owner, Join(Join(left, top), right));
  }
}

// The nearest row on that side in the run that is no deeper than `depth`.
RowSequence::Row RowSequence::Nearest(Row row, Side side, int depth) const {
  const Side back = side == kLeft ? kRight : kLeft;
  Row below = m_nodes[row].child[side];
  while (m_nodes[below].shallowest > depth) {
    Row from = row;
    row = m_nodes[row].up;
    while ((row & kOwner) == 0 && m_nodes[row].child[side] == from) {
      from = row;
      row = m_nodes[row].up;
    }
    if ((row & kOwner) != 0) return 0;
    if (m_nodes[row].depth <= depth) return row;
    below = m_nodes[row].child[side];
  }
  while (true) {
    const Node& node = m_nodes[below];
    if (m_nodes[node.child[back]].shallowest <= depth) {
      below = node.child[back];
    } else if (node.depth <= depth) {
      return below;
    } else {
      below = node.child[side];
    }
  }
}

// The first row of the run behind an open row and all that shows below it.
RowSequence::Row RowSequence::BlockEnd(Row row) const {
  return Nearest(row, kRight, m_nodes[row].depth);
}

RowSequence::Row RowSequence::Append(Row parent) {
  Row row;
  if (m_free.empty()) {
    row = static_cast<Row>(m_nodes.size());
    m_nodes.emplace_back();
  } else {
    row = m_free.back();
    m_free.pop_back();
    m_nodes[row] = Node();
  }
  m_nodes[row].depth = m_nodes[row].shallowest = m_nodes[parent].depth + 1;
  if (IsOpen(parent)) {
    Insert(row, OwnerOf(parent), BlockEnd(parent));
  } else {
    Insert(row, parent, 0);
  }
  return row;
}

void RowSequence::Erase(Row row, std::vector<Row>& erased) {
  std::size_t next = erased.size();
  const Row part = CutOut(row, IsOpen(row) ? BlockEnd(row) : Next(row));
  erased.push_back(row);
  if (part != row) erased.push_back(part);
  for (; next < erased.size(); ++next) {
    const Node& node = m_nodes[erased[next]];
    for (const Row below : {node.child[kLeft], node.child[kRight], node.run}) {
      if (below != 0 && below != kOpen && below != row) erased.push_back(below);
    }
    m_free.push_back(erased[next]);
  }
}

void RowSequence::Open(Row row) {
  if (IsOpen(row)) return;
  const Row hidden = std::exchange(m_nodes[row].run, kOpen);
  if (hidden != 0) Insert(hidden, OwnerOf(row), Next(row));
}

void RowSequence::Close(Row row) {
  if (!IsOpen(row)) return;
  const Row first = Next(row);
  const bool shows = first != 0 && m_nodes[first].depth > m_nodes[row].depth;
  SetRun(row, shows ? CutOut(first, BlockEnd(row)) : 0);
}

RowSequence::Row RowSequence::At(std::size_t index) const {
  Row row = m_nodes[kRoot].run;
  while (true) {
    const Node& node = m_nodes[row];
    const std::size_t before = m_nodes[node.child[kLeft]].count;
    if (index == before) return row;
    if (index < before) {
      row = node.child[kLeft];
    } else {
      index -= before + 1;
      row = node.child[kRight];
    }
  }
}

std::size_t RowSequence::IndexOf(Row row) const {
  std::size_t index = m_nodes[m_nodes[row].child[kLeft]].count;
  while ((m_nodes[row].up & kOwner) == 0) {
    const Row up = m_nodes[row].up;
    if (m_nodes[up].child[kRight] == row) index += m_nodes[m_nodes[up].child[kLeft]].count + 1;
    row = up;
  }
  return m_nodes[row].up == kOwner ? index : kHidden;
}

RowSequence::Row RowSequence::Next(Row row) const {
  return Nearest(row, kRight, std::numeric_limits<std::int32_t>::max() - 1);
}

RowSequence::Row RowSequence::AncestorAt(Row row, int depth) const {
  return m_nodes[row].depth == depth ? row : Nearest(row, kLeft, depth);
}

}  // namespace platform
