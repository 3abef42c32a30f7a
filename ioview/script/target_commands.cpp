// The simulated target, and what a host tells its components about it.

#include <cstdint>
#include <string>
#include <vector>

#include "ioview/memory_file.h"
#include "ioview/number_text.h"
#include "ioview/program_error.h"
#include "ioview/script/command_table.h"
#include "ioview/script/event_names.h"
#include "ioview/statuses.h"

namespace ioview {

namespace {

constexpr std::uint32_t kMostBytes = 1u << 20;  // of one line of output
constexpr std::string_view kDefinitionExtension = ".io";

void Memory(ScriptRun& run, Arguments& arguments) {
  const std::string file = run.places.Native(arguments.Text());
  arguments.End();
  LoadMemoryFile(run.Host().target, file);
}

void Poke(ScriptRun& run, Arguments& arguments) {
  const std::uint32_t address = arguments.Address();
  std::vector<std::uint8_t> bytes = {arguments.Byte()};
  while (arguments.HasMore()) bytes.push_back(arguments.Byte());
  if (!run.Host().target.Poke(address, bytes)) throw ScriptError("the bytes go past address FFFFFFFF");
}

void Peek(ScriptRun& run, Arguments& arguments) {
  const std::uint32_t address = arguments.Address();
  const std::uint32_t count = arguments.Number();
  arguments.End();
  if (count < 1 || count > kMostBytes) throw ScriptError("COUNT is 1 to " + DigitsText(kMostBytes, 10));
  std::vector<std::uint8_t> bytes(count);
  if (!run.Host().target.Peek(address, bytes)) throw ScriptError("the bytes go past address FFFFFFFF");
  std::string line = DigitsText(address, 16, 8) + ':';
  for (const std::uint8_t byte : bytes) line += ' ' + DigitsText(byte, 16, 2);
  run.out.Line(line);
}

void Endian(ScriptRun& run, Arguments& arguments) {
  MemoryArea area;
  area.order = arguments.Choice<ByteOrder>({{"big", ByteOrder::kBig}, {"little", ByteOrder::kLittle}});
  if (arguments.HasMore()) {
    area.first = arguments.Address();
    area.last = arguments.Address();
  }
  arguments.End();
  if (area.last < area.first) throw ScriptError("LAST lies before FIRST");
  run.Host().target.SetArea(area);
}

// The host names the file without its ending, which the component adds.
void Device(ScriptRun& run, Arguments& arguments) {
  std::string path = run.places.ForComponent(arguments.Text());
  const std::uint32_t base = arguments.HasMore() ? arguments.Address() : 0;
  arguments.End();
  if (path.ends_with(kDefinitionExtension)) path.resize(path.size() - kDefinitionExtension.size());
  run.Host().device.SetDefaultIOPath(path);
  run.Host().device.SetBaseAddress(base);
}

void TellOfTarget(ScriptRun& run, bool connected) {
  ScriptInstance& current = run.Current();
  if (!current.is_started) {
    current.target_connected = connected;
  } else if (connected) {
    current.instance.ConnectTarget();
  } else {
    current.instance.DisconnectTarget();
  }
}

void FailTarget(SimulatedTarget& target, Arguments& arguments) {
  enum class What { kReads, kWrites, kNone };
  const What what =
      arguments.Choice<What>({{"reads", What::kReads}, {"writes", What::kWrites}, {"none", What::kNone}});
  const platform::Status status = arguments.HasMore() ? arguments.Status() : kTargetAccessFailed;
  arguments.End();
  if (!platform::Failed(status)) throw ScriptError("STATUS is 80000000 or above");
  switch (what) {
    case What::kReads:
      return target.FailReads(status);
    case What::kWrites:
      return target.FailWrites(status);
    case What::kNone:
      return target.FailNothing();
  }
}

void Target(ScriptRun& run, Arguments& arguments) {
  enum class Verb { kConnect, kDisconnect, kRunning, kStopped, kPlatform, kFail };
  const Verb verb = arguments.Choice<Verb>({{"connect", Verb::kConnect},
                                            {"disconnect", Verb::kDisconnect},
                                            {"running", Verb::kRunning},
                                            {"stopped", Verb::kStopped},
                                            {"platform", Verb::kPlatform},
                                            {"fail", Verb::kFail}});
  HostServices& host = run.Host();
  if (verb == Verb::kFail) return FailTarget(host.target, arguments);
  if (verb == Verb::kPlatform) {
    const auto availability =
        arguments.Choice<Availability>({{"on", Availability::kOn}, {"off", Availability::kOff}});
    arguments.End();
    host.SetAvailability("IQDebugPlatform", availability);
    return;
  }
  arguments.End();
  if (verb == Verb::kRunning || verb == Verb::kStopped) {
    host.session.SetRunning(verb == Verb::kRunning);
  } else {
    TellOfTarget(run, verb == Verb::kConnect);
  }
}

pvw::IQSteppingClient& SteppingClient(ScriptRun& run) {
  pvw::IQSteppingClient* const client = run.Component().Stepping();
  if (client == nullptr) throw ScriptError("the component has no stepping client");
  return *client;
}

void Step(ScriptRun& run, Arguments& arguments) {
  const std::string_view verb = arguments.Peek();
  if (verb == "begin") {
    arguments.Text();
    const std::uint32_t count = arguments.Number();
    const std::uint32_t kind = arguments.Number();
    arguments.End();
    SteppingClient(run).OnStepBegin(count, kind);
  } else if (verb == "one" || verb == "end") {
    const bool one = arguments.Text() == "one";
    arguments.End();
    if (one) {
      SteppingClient(run).OnStep();
    } else {
      SteppingClient(run).OnStepEnd();
    }
  } else {
    const std::uint32_t count = arguments.Number();
    const std::uint32_t kind = arguments.Number();
    const std::uint32_t times = arguments.Number();
    arguments.End();
    SteppingClient(run);
    run.Component().Step(count, kind, times);
  }
}

void Event(ScriptRun& run, Arguments& arguments) {
  const std::string& name = arguments.Text();
  arguments.End();
  const std::optional<platform::GUID> event = EventOfName(name);
  if (!event) throw WrongArgument(Quoted(name) + " is no event");
  run.Component().SendEvent(*event);
}

void UpdateWindow(ScriptRun& run, Arguments& arguments) {
  arguments.End();
  pvw::IQUpdateWindowClient* const client = run.Component().Update();
  if (client == nullptr) throw ScriptError("the component has no update window client");
  client->UpdateWindow();
}

void Accesses(ScriptRun& run, Arguments& arguments) {
  arguments.End();
  for (const Access& access : run.Host().target.TakeAccesses()) run.out.Line(AccessText(access));
}

constexpr auto kPrepares = ScriptCommand::Prepares::kYes;

constexpr ScriptCommand kCommands[] = {
    {"memory", "FILE", Memory, kPrepares},
    {"poke", "ADDR BYTE...", Poke, kPrepares},
    {"peek", "ADDR COUNT", Peek},
    {"endian", "big|little [FIRST LAST]", Endian, kPrepares},
    {"device", "FILE.io [BASE]", Device, kPrepares},
    {"target", "connect|disconnect, running|stopped, platform on|off, or fail reads|writes|none [STATUS]",
     Target, kPrepares},
    {"step", "COUNT KIND TIMES, begin COUNT KIND, one, or end", Step},
    {"event", "memory-changed|refresh-1|refresh-2|refresh-3", Event},
    {"update-window", "", UpdateWindow},
    {"accesses", "", Accesses},
};

}  // namespace

std::span<const ScriptCommand> TargetCommands() {
  return kCommands;
}

}  // namespace ioview
