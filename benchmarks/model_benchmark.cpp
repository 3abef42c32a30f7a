// What a user waits for before there is a view: opening a definition, a stop of the target, a selection; and
// what each is held against.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "benchmarks/device.h"
#include "benchmarks/sizes.h"
#include "host/host_ptr.h"
#include "model/profile_text.h"
#include "platform/base/files.h"
#include "target/debugger_binding.h"

namespace bench {

namespace {

// One hash index of sections and keys as the standard library makes it: views into the text, no copies, names
// as they are written.
void ReadAndIndex(benchmark::State& state) {
  const Definition definition(Version(state), Registers(state));
  for (auto _ : state) {
    const auto contents = platform::ReadNativeFile(definition.NativePath());
    using Keys = std::unordered_map<std::string_view, std::string_view>;
    std::unordered_map<std::string_view, Keys> sections;
    Keys* section = nullptr;
    for (std::string_view rest = contents->bytes; !rest.empty();) {
      const std::size_t end = std::min(rest.find('\n'), rest.size());
      const pvw::ProfileLine line = pvw::ParseProfileLine(rest.substr(0, end));
      rest.remove_prefix(std::min(end + 1, rest.size()));
      if (line.kind == pvw::ProfileLine::Kind::kSection) section = &sections[line.name];
      if (line.kind == pvw::ProfileLine::Kind::kEntry) section->emplace(line.name, line.value);
    }
    benchmark::DoNotOptimize(sections.size());
    state.PauseTiming();
    sections = {};
    state.ResumeTiming();
  }
  CountRegisters(state);
}

// The index that lookups really use.
void ReadAndOwnIndex(benchmark::State& state) {
  const Definition definition(Version(state), Registers(state));
  for (auto _ : state) {
    auto contents = platform::ReadNativeFile(definition.NativePath());
    const pvw::ProfileText index(std::move(contents->bytes));
    benchmark::DoNotOptimize(index.FindSection("Modules"));
  }
  CountRegisters(state);
}

void Open(benchmark::State& state) {
  const Definition definition(Version(state), Registers(state));
  ioview::UserSettings settings;
  ioview::HostServices host(settings);
  for (auto _ : state) {
    pvw::CIODataFile file;
    std::optional<pvw::CIOData> data(std::in_place);
    OpenAll(definition, host, file, *data);
    state.PauseTiming();
    data.reset();
    state.ResumeTiming();
  }
  CountRegisters(state);
}

// One lookup by reading the file's lines up to the one that is asked for, as often as there are sections to
// ask.
void ScanLookup(benchmark::State& state) {
  const Definition definition(Version(state), Registers(state));
  const DefinitionShape& shape = definition.Shape();
  int next = 0;
  for (auto _ : state) {
    next = (next + 7919) % shape.registers;
    const std::string module = std::to_string(next / shape.registersPerModule + 1);
    const std::string name = "M" + module + "R" + std::to_string(next % shape.registersPerModule);
    const std::string section = "[" + (shape.version == 1 ? "MODULE" + module : name + "_DESC") + "]";
    const std::string key = shape.version == 1 ? name : shape.version == 2 ? "id" : "reladdr";
    std::ifstream file(definition.NativePath(), std::ios::binary);
    bool inside = false;
    for (std::string line; std::getline(file, line);) {
      if (!inside) {
        inside = line.compare(0, section.size(), section) == 0;
      } else if (line.compare(0, key.size(), key) == 0 && line[key.size()] == '=') {
        benchmark::DoNotOptimize(line.data());
        break;
      }
    }
  }
  state.counters["lookups"] = static_cast<double>(definition.LookupCount());
}

void Refresh(benchmark::State& state) {
  const Definition definition(Version(state), Registers(state));
  ioview::UserSettings settings;
  ioview::HostServices host(settings);
  pvw::CIODataFile file;
  pvw::CIOData data;
  OpenAll(definition, host, file, data);
  for (std::size_t m = 0; pvw::CIORec* module = data.GetModule(m); ++m) module->SetExpanded(true);
  pvw::BindDebuggerFunctions(&host.root, 1);
  for (auto _ : state) {
    data.ReadValues(&host.debugger);
    for (std::size_t m = 0; pvw::CIORec* module = data.GetModule(m); ++m) {
      for (const auto& reg : module->GetChildren()) {
        reg->UpdateEnabled();
        benchmark::DoNotOptimize(reg->GetValueText());
        for (const auto& field : reg->GetChildren()) benchmark::DoNotOptimize(field->GetValueText());
      }
    }
  }
  pvw::UnbindDebuggerFunctions(&host.root);
  CountRegisters(state);
}

// The host calls of such a refresh and nothing else: for each register two area lookups and a read, for each
// bit field a format.
void BareHostCalls(benchmark::State& state) {
  const Definition definition(Version(state), Registers(state));
  ioview::UserSettings settings;
  ioview::HostServices host(settings);
  auto* memory = pvw::GetService<pvw::IQTargetMemory>(&host.root, pvw::IID_IQTargetMemory);
  auto* format = pvw::GetService<pvw::IQNumberFormat>(&host.root, pvw::IID_IQNumberFormat);
  const int fields = definition.FieldCount() / definition.Shape().registers;
  for (auto _ : state) {
    for (int r = 0; r < definition.Shape().registers; ++r) {
      const auto address = static_cast<std::uint32_t>(0xFF0000 + r * 4);
      const std::uint32_t size = 1u << r % 3;
      for (int lookup = 0; lookup < 2; ++lookup) {
        auto* map = pvw::GetService<pvw::IQMemoryMap>(&host.root, pvw::IID_IQMemoryMap);
        std::uint32_t first = 0;
        std::uint32_t last = 0;
        std::uint32_t endian = 0;
        map->GetAreaInfo(address, &first, &last, &endian);
        benchmark::DoNotOptimize(endian);
      }
      std::uint8_t bytes[4] = {};
      memory->ReadDirect(address, address + size - 1, size, bytes);
      benchmark::DoNotOptimize(bytes);
      for (int f = 0; f < fields; ++f) {
        platform::ScopedBstr text;
        format->FormatByte(bytes[0], 16, text.Receive());
        benchmark::DoNotOptimize(text.Get());
      }
    }
  }
  CountRegisters(state);
}

void ApplySelection(benchmark::State& state) {
  const Definition definition(Version(state), Registers(state));
  const std::string selection = definition.WholeSelection();
  ioview::UserSettings settings;
  ioview::HostServices host(settings);
  for (auto _ : state) {
    pvw::CIODataFile file;
    file.Open(definition.Path(), 0);
    std::optional<pvw::CIOData> data(std::in_place);
    data->SetHost(&host.root);
    data->ParseSelection(selection);
    data->LoadModules(&file);
    data->ApplySelection();
    OpenModules(file, *data, true);
    state.PauseTiming();
    data.reset();
    state.ResumeTiming();
  }
  CountRegisters(state);
}

void Sizes(benchmark::internal::Benchmark* run) {
  AddSizes(run, {1, 2, 3});
}

// Definitions of about 60,000 lines.
void SixtyThousandLines(benchmark::internal::Benchmark* run) {
  run->ArgNames({"version", "registers"})->Unit(benchmark::kMillisecond)->MinWarmUpTime(0.2)->MinTime(0.4);
  run->Args({1, 58000})->Args({2, 10000})->Args({3, 3300});
}

BENCHMARK(ReadAndIndex)->Apply(Sizes);
BENCHMARK(ReadAndOwnIndex)->Apply(Sizes);
BENCHMARK(Open)->Apply(Sizes);
BENCHMARK(Refresh)->Apply(Sizes);
BENCHMARK(BareHostCalls)->Apply(Sizes);
BENCHMARK(ApplySelection)->Apply(Sizes);
BENCHMARK(Open)->Name("OpenSixtyThousandLines")->Apply(SixtyThousandLines);
BENCHMARK(ScanLookup)->Apply(SixtyThousandLines);

}  // namespace

}  // namespace bench
