// What a user waits for in the open view. All rows are open unless the name says otherwise.

#include <benchmark/benchmark.h>

#include <memory>

#include "benchmarks/sizes.h"
#include "benchmarks/view.h"
#include "platform/headless/recording_dc.h"

namespace bench {

namespace {

// A view that is open, with every row.
struct OpenView {
  explicit OpenView(const benchmark::State& state) : definition(Version(state), Registers(state)) {
    view.Open();
    view.ExpandAll();
  }
  // A stop that makes every row red.
  void StopChanged() {
    view.ChangeEverything();
    view.Host().Step(1, 0, 0);
  }

  Definition definition;
  View view{definition};
};

// Opens what is closed, and leaves a view with rows for every record.
void ViewOpen(benchmark::State& state) {
  const Definition definition(Version(state), Registers(state));
  View view(definition);
  for (auto _ : state) {
    view.Open();
    view.ExpandAll();
    state.PauseTiming();
    view.Host().Disconnect();
    view.Host().Start(true);
    state.ResumeTiming();
  }
  CountRegisters(state);
}

// The records are known, the rows are there, all closed.
void ViewExpandAll(benchmark::State& state) {
  OpenView open(state);
  View& view = open.view;
  for (auto _ : state) {
    state.PauseTiming();
    platform::SECTreeCtrl& grid = view.Grid();
    for (std::size_t row = grid.GetRowCount(); row-- > 0;) {
      grid.Expand(grid.GetItemAtRow(row), platform::TVE_COLLAPSE);
    }
    state.ResumeTiming();
    view.ExpandAll();
  }
  CountRegisters(state);
}

void ViewStopChanged(benchmark::State& state) {
  OpenView open(state);
  View& view = open.view;
  for (auto _ : state) {
    state.PauseTiming();
    view.ChangeEverything();
    state.ResumeTiming();
    view.Host().Step(1, 0, 0);
  }
  CountRegisters(state);
}

void ViewStopUnchanged(benchmark::State& state) {
  OpenView open(state);
  View& view = open.view;
  open.StopChanged();
  for (auto _ : state) view.Host().Step(1, 0, 0);
  CountRegisters(state);
}

// Every row is red: each row that is drawn is looked up among the marks.
void ViewRepaint(benchmark::State& state) {
  OpenView open(state);
  View& view = open.view;
  open.StopChanged();
  for (auto _ : state) {
    platform::RecordingDC dc(view.Grid().GetClientRect());
    view.Grid().Paint(dc, view.Grid().GetClientRect());
    benchmark::DoNotOptimize(dc.GetLines().size());
  }
}

void ViewScrollPage(benchmark::State& state) {
  OpenView open(state);
  View& view = open.view;
  for (auto _ : state) {
    platform::SECTreeCtrl& grid = view.Grid();
    const int next = grid.GetScrollPos(true) + grid.GetPageRows();
    grid.SetScrollPos(true, next < grid.GetScrollMax(true) ? next : 0);
    platform::RecordingDC dc(grid.GetClientRect());
    grid.Paint(dc, grid.GetClientRect());
    benchmark::DoNotOptimize(dc.GetLines().size());
  }
}

// Into a store that has nothing.
void ViewSessionFirstSave(benchmark::State& state) {
  OpenView open(state);
  View& view = open.view;
  for (auto _ : state) {
    state.PauseTiming();
    view.Host().host.session_values = {};
    state.ResumeTiming();
    view.Host().SaveSession();
  }
  CountRegisters(state);
}

// The store has every value already.
void ViewSessionSave(benchmark::State& state) {
  OpenView open(state);
  View& view = open.view;
  view.Host().SaveSession();
  for (auto _ : state) view.Host().SaveSession();
  CountRegisters(state);
}

void ViewSessionLoad(benchmark::State& state) {
  OpenView open(state);
  View& view = open.view;
  view.Host().SaveSession();
  for (auto _ : state) {
    state.PauseTiming();
    view.Host().Disconnect();
    view.Host().Connect();
    view.Host().ConnectTarget();
    state.ResumeTiming();
    view.Host().LoadSession();
  }
  CountRegisters(state);
}

void ViewTextDump(benchmark::State& state) {
  OpenView open(state);
  View& view = open.view;
  for (auto _ : state) benchmark::DoNotOptimize(view.Grid().GetDumpText().size());
  CountRegisters(state);
}

void Sizes(benchmark::internal::Benchmark* run) {
  AddSizes(run, {1, 3});
}

BENCHMARK(ViewOpen)->Apply(Sizes);
BENCHMARK(ViewExpandAll)->Apply(Sizes);
BENCHMARK(ViewStopChanged)->Apply(Sizes);
BENCHMARK(ViewStopUnchanged)->Apply(Sizes);
BENCHMARK(ViewRepaint)->Apply(Sizes);
BENCHMARK(ViewScrollPage)->Apply(Sizes);
BENCHMARK(ViewSessionFirstSave)->Apply(Sizes);
BENCHMARK(ViewSessionSave)->Apply(Sizes);
BENCHMARK(ViewSessionLoad)->Apply(Sizes);
BENCHMARK(ViewTextDump)->Apply(Sizes);

}  // namespace

}  // namespace bench
