// The order in which a tree's rows stand on the screen, where a closed row hides what is below it.
//
// Every row lies in the run of its nearest closed ancestor; the rows that show are the run of the root.
// Closing a row cuts its part out of the run that it lies in, opening puts it back. A run is a balanced tree
// (a treap whose priorities follow from the row's number, so that equal calls give equal trees). All
// operations cost the logarithm of the number of rows, and no more stack than that, however deep the rows are
// nested.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace platform {

class RowSequence {
 public:
  // Numbers are small and are used again.
  using Row = std::uint32_t;
  // The parent of the top-level rows; isn't in the sequence itself. As a result: no such row.
  static constexpr Row kRoot = 0;
  static constexpr std::size_t kHidden = static_cast<std::size_t>(-1);

  RowSequence() { Clear(); }

  // A closed row behind the last child of `parent`.
  Row Append(Row parent);
  // Takes out the row and all below it, shown or not, and appends their numbers to `erased`, the row's first.
  void Erase(Row row, std::vector<Row>& erased);
  void Clear();

  // No change on a row that is in that state.
  void Open(Row row);
  void Close(Row row);
  bool IsOpen(Row row) const { return m_nodes[row].run == kOpen; }

  int Depth(Row row) const { return m_nodes[row].depth; }  // 0 at the top
  // Rows that show, and the one at an index below that.
  std::size_t Size() const { return m_nodes[m_nodes[kRoot].run].count; }
  Row At(std::size_t index) const;
  std::size_t IndexOf(Row row) const;  // kHidden under a closed row
  // The row behind it in its run.
  Row Next(Row row) const;
  // The ancestor at a depth from 0 to the row's own; of a row that shows.
  Row AncestorAt(Row row, int depth) const;

 private:
  enum Side { kLeft, kRight };
  static constexpr Row kOpen = ~Row{0};
  static constexpr Row kOwner = Row{1} << 31;

  struct Node {
    Row child[2] = {0, 0};
    Row up = 0;               // in its run; of the run's top: kOwner and the row whose run it is
    std::uint32_t count = 1;  // of rows from here down in the run
    std::int32_t depth = 0;
    std::int32_t shallowest = 0;  // the least depth from here down in the run
    Row run = 0;                  // top of the rows that it hides, 0 for none, kOpen when it hides nothing
  };

  static bool Above(Row a, Row b);
  void Update(Row row);
  void Hang(Row row, Side side, Row below);
  void SetRun(Row owner, Row top);
  Row OwnerOf(Row row) const;
  Row Join(Row a, Row b);
  std::pair<Row, Row> CutBefore(Row row);
  Row CutOut(Row first, Row end);
  void Insert(Row top, Row owner, Row before);
  Row Nearest(Row row, Side side, int depth) const;
  Row BlockEnd(Row row) const;

  std::vector<Node> m_nodes;
  std::vector<Row> m_free;
};

}  // namespace platform
