#include "platform/gui/row_sequence.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace platform {
namespace {

using Row = RowSequence::Row;

// The same tree by plain lists.
struct Model {
  struct Node {
    Row parent = 0;
    bool open = false;
    std::vector<Row> children;
  };
  std::map<Row, Node> nodes{{RowSequence::kRoot, {}}};

  void Show(Row row, int depth, std::vector<std::pair<Row, int>>& rows) const {
    for (const Row child : nodes.at(row).children) {
      rows.emplace_back(child, depth);
      if (nodes.at(child).open) Show(child, depth + 1, rows);
    }
  }
  void Below(Row row, std::vector<Row>& rows) const {
    rows.push_back(row);
    for (const Row child : nodes.at(row).children) Below(child, rows);
  }
};

void ExpectEqual(const RowSequence& sequence, const Model& model) {
  std::vector<std::pair<Row, int>> rows;
  model.Show(RowSequence::kRoot, 0, rows);
  ASSERT_EQ(sequence.Size(), rows.size());
  std::map<Row, std::size_t> places;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const auto [row, depth] = rows[i];
    places[row] = i;
    ASSERT_EQ(sequence.At(i), row) << "at " << i;
    ASSERT_EQ(sequence.Depth(row), depth);
    ASSERT_EQ(sequence.Next(row), i + 1 < rows.size() ? rows[i + 1].first : RowSequence::kRoot);
    Row ancestor = row;
    for (int level = depth; level >= 0; --level) {
      ASSERT_EQ(sequence.AncestorAt(row, level), ancestor);
      ancestor = model.nodes.at(ancestor).parent;
    }
  }
  for (const auto& [row, node] : model.nodes) {
    if (row == RowSequence::kRoot) continue;
    ASSERT_EQ(sequence.IsOpen(row), node.open);
    ASSERT_EQ(sequence.IndexOf(row), places.contains(row) ? places[row] : RowSequence::kHidden);
  }
}

TEST(RowSequence, AgreesWithPlainListsAfterEveryOperation) {
  for (unsigned seed = 0; seed < 12; ++seed) {
    std::mt19937 random(seed);
    RowSequence sequence;
    Model model;
    for (int step = 0; step < 400; ++step) {
      const auto pick = [&](std::size_t skip) {
        const auto at = static_cast<long>(skip + random() % (model.nodes.size() - skip));
        return std::next(model.nodes.begin(), at)->first;
      };
      const unsigned kind = model.nodes.size() < 3 ? 0 : random() % 10;
      if (kind < 5) {
        const Row parent = pick(0);
        const Row row = sequence.Append(parent);
        ASSERT_EQ(model.nodes.count(row), 0U) << "a number in use";
        model.nodes[row].parent = parent;
        model.nodes[parent].children.push_back(row);
      } else if (kind < 9) {
        const Row row = pick(1);
        model.nodes[row].open = kind < 7;
        kind < 7 ? sequence.Open(row) : sequence.Close(row);
      } else if (random() % 4 == 0) {
        const Row row = pick(1);
        std::vector<Row> erased;
        std::vector<Row> expected;
        sequence.Erase(row, erased);
        model.Below(row, expected);
        std::erase(model.nodes[model.nodes[row].parent].children, row);
        for (const Row gone : expected) model.nodes.erase(gone);
        std::sort(erased.begin(), erased.end());
        std::sort(expected.begin(), expected.end());
        ASSERT_EQ(erased, expected);
      }
      ExpectEqual(sequence, model);
      if (HasFatalFailure()) FAIL() << "seed " << seed << ", step " << step;
    }
  }
}

}  // namespace
}  // namespace platform
