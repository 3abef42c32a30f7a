// What a user waits for when working in the view: a search, a choice of registers, another definition, a
// capture and a comparison.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "benchmarks/sizes.h"
#include "benchmarks/view.h"
#include "ioview/test/snapshot_text.h"
#include "platform/base/bstr.h"
#include "platform/gui/controls.h"
#include "platform/gui/dialog.h"
#include "platform/headless/user.h"

namespace bench {

namespace {

constexpr std::uint32_t kFindCommand = 32820;
constexpr std::uint32_t kSelectCommand = 32819;
constexpr platform::UINT kFindWhat = 13014;
constexpr platform::UINT kCheckAll = 13016;
// One register in so many is picked or captured.
constexpr int kOneIn = 10;

Definition DefinitionOf(const benchmark::State& state) {
  return Definition(Version(state), Registers(state));
}

// Names as the test client knows registers by: the generator makes no two alike.
std::vector<std::string> SomeNames(const Definition& definition) {
  std::vector<std::string> names;
  const DefinitionShape& shape = definition.Shape();
  for (int r = 0; r < shape.registers; r += kOneIn) {
    const std::string module = std::to_string(r / shape.registersPerModule + 1);
    names.push_back("M" + module + "R" + std::to_string(r % shape.registersPerModule));
  }
  return names;
}

// By an address that nothing has: every register is looked at.
void FindNothing(View& view) {
  view.Display().Give(platform::DialogAnswer{{[](platform::CDialog& dialog) {
    if (platform::CWnd* edit = dialog.GetDlgItem(kFindWhat)) edit->SetText("nothing has this address");
    platform::user::PressOk(dialog);
  }}});
  platform::SendMessage(view.Host().Pane(ioview::PaneIndex::kAll)->GetHandle(), platform::WM_COMMAND,
                        kFindCommand);
}

// Makes the rows of all modules on its way.
void WorkFindFirst(benchmark::State& state) {
  const Definition definition = DefinitionOf(state);
  View view(definition);
  for (auto _ : state) {
    state.PauseTiming();
    view.Host().Disconnect();
    view.Host().Start(true);
    view.Open();
    state.ResumeTiming();
    FindNothing(view);
  }
  CountRegisters(state);
}

void WorkFind(benchmark::State& state) {
  const Definition definition = DefinitionOf(state);
  View view(definition);
  view.Open();
  FindNothing(view);
  for (auto _ : state) FindNothing(view);
  CountRegisters(state);
}

// Opens the dialog, checks every register, and makes the second page of them, opening its rows.
void WorkSelectAll(benchmark::State& state) {
  const Definition definition = DefinitionOf(state);
  View view(definition);
  view.Open();
  for (auto _ : state) {
    view.Display().Give(platform::DialogAnswer{{[](platform::CDialog& dialog) {
      if (platform::CWnd* button = dialog.GetDlgItem(kCheckAll)) platform::user::ClickControl(*button);
      platform::user::PressOk(dialog);
    }}});
    platform::SendMessage(view.Host().Pane(ioview::PaneIndex::kAll)->GetHandle(), platform::WM_COMMAND,
                          kSelectCommand);
  }
  CountRegisters(state);
}

// From one file to another of the same shape, and a tenth of the registers is selected.
void WorkLoad(benchmark::State& state) {
  const Definition first = DefinitionOf(state);
  const Definition second = DefinitionOf(state);
  View view(first);
  view.Select(first.Selection(kOneIn));
  view.Open();
  bool other = false;
  for (auto _ : state) view.Host().LoadIOFile((other = !other) ? second.Path() : first.Path(), 0);
  CountRegisters(state);
}

void WorkCapture(benchmark::State& state) {
  const Definition definition = DefinitionOf(state);
  View view(definition);
  const platform::ScopedBstr request(ioview::SnapshotRequest(SomeNames(definition)));
  for (auto _ : state) {
    platform::ScopedBstr text;
    view.Host().Test()->SetTestData(request.Get());
    view.Host().Test()->GetTestData(text.Receive());
    benchmark::DoNotOptimize(text.Get());
  }
  CountRegisters(state);
}

// Every register that is captured differs.
void WorkCompare(benchmark::State& state) {
  const Definition definition = DefinitionOf(state);
  View view(definition);
  const platform::ScopedBstr request(ioview::SnapshotRequest(SomeNames(definition)));
  platform::ScopedBstr before;
  view.Host().Test()->SetTestData(request.Get());
  view.Host().Test()->GetTestData(before.Receive());
  view.ChangeEverything();
  for (auto _ : state) {
    platform::ScopedBstr summary, detail, words;
    std::uint32_t status = 0;
    view.Host().Test()->CompareWithTarget(before.Get(), summary.Receive(), detail.Receive(), &status);
    view.Host().Test()->FormatResult(detail.Get(), 0, words.Receive());
    benchmark::DoNotOptimize(words.Get());
  }
  CountRegisters(state);
}

void Sizes(benchmark::internal::Benchmark* run) {
  AddSizes(run, {1, 3});
}

BENCHMARK(WorkFindFirst)->Apply(Sizes);
BENCHMARK(WorkFind)->Apply(Sizes);
BENCHMARK(WorkSelectAll)->Apply(Sizes);
BENCHMARK(WorkLoad)->Apply(Sizes);
BENCHMARK(WorkCapture)->Apply(Sizes);
BENCHMARK(WorkCompare)->Apply(Sizes);

}  // namespace

}  // namespace bench
