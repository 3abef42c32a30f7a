// Runs the benchmarks, then prints the ratios that count: each between two measurements of the same run.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace {

class RatioReporter : public benchmark::ConsoleReporter {
 public:
  RatioReporter() : ConsoleReporter(OO_Tabular) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.error_occurred || run.run_type != Run::RT_Iteration) continue;
      const std::string& args = run.run_name.args;
      m_seconds[run.run_name.function_name + " " + args] = run.cpu_accumulated_time / run.iterations;
      const auto lookups = run.counters.find("lookups");
      if (lookups != run.counters.end()) m_lookups[args] = lookups->second.value;
    }
    ConsoleReporter::ReportRuns(runs);
  }

  void PrintRatios() const {
    std::printf("\n%-58s %8s %8s\n", "ratio", "reached", "bound");
    for (int version = 1; version <= 3; ++version) {
      for (const int size : {1000, 10000, 100000}) {
        Quotient("open, against reading and indexing the file", "Open", "ReadAndIndex", version, size,
                 "<= 10");
      }
      for (const int size : {1000, 10000, 100000}) {
        Quotient("the same, against the index that it uses", "Open", "ReadAndOwnIndex", version, size, "");
      }
      for (const int size : {1000, 10000, 100000}) {
        Quotient("refresh, against its bare host calls", "Refresh", "BareHostCalls", version, size, "<= 5");
      }
      Growth("Open", version, "<= 1.3");
      for (const char* name : {"Refresh", "ApplySelection"}) Growth(name, version, "");
    }
    for (const int version : {1, 3}) {
      for (const int size : {1000, 10000, 100000}) {
        Quotient("stop without a change, against its bare host calls", "ViewStopUnchanged", "BareHostCalls",
                 version, size, "<= 3");
      }
      for (const char* name :
           {"ViewOpen", "ViewExpandAll", "ViewStopChanged", "ViewStopUnchanged", "ViewSessionFirstSave",
            "ViewSessionSave", "ViewSessionLoad", "ViewTextDump", "WorkFindFirst", "WorkFind",
            "WorkSelectAll", "WorkLoad", "WorkCapture", "WorkCompare"}) {
        Growth(name, version, "<= 1.5");
      }
      for (const char* name : {"ViewRepaint", "ViewScrollPage"}) {
        const double small = Seconds(std::string(name) + " " + Args(version, 1000));
        const double large = Seconds(std::string(name) + " " + Args(version, 100000));
        if (small <= 0 || large <= 0) continue;
        Print(std::string(name) + ": 100,000 registers against 1,000, v" + std::to_string(version),
              large / small, "<= 1.5");
      }
    }
    for (const auto& [args, lookups] : m_lookups) {
      const double open = Seconds("OpenSixtyThousandLines " + args);
      const double scan = Seconds("ScanLookup " + args) * lookups;
      if (open > 0) Print("scanning for every lookup, against open, " + args, scan / open, ">= 100");
    }
  }

 private:
  static std::string Args(int version, int size) {
    return "version:" + std::to_string(version) + "/registers:" + std::to_string(size);
  }
  double Seconds(const std::string& name) const {
    const auto found = m_seconds.find(name);
    return found == m_seconds.end() ? 0 : found->second;
  }
  static void Print(const std::string& what, double ratio, const char* bound) {
    std::printf("%-58s %8.2f %8s\n", what.c_str(), ratio, bound);
  }
  void Quotient(const char* what, const char* above, const char* below, int version, int size,
                const char* bound) const {
    const double divisor = Seconds(std::string(below) + " " + Args(version, size));
    const double value = Seconds(std::string(above) + " " + Args(version, size));
    if (divisor <= 0 || value <= 0) return;
    Print(std::string(what) + ", v" + std::to_string(version) + ", " + std::to_string(size), value / divisor,
          bound);
  }
  void Growth(const std::string& name, int version, const char* bound) const {
    const double small = Seconds(name + " " + Args(version, 1000)) / 1000;
    const double large = Seconds(name + " " + Args(version, 100000)) / 100000;
    if (small <= 0 || large <= 0) return;
    Print(name + ": cost per register, 100,000 against 1,000, v" + std::to_string(version), large / small,
          bound);
  }

  std::map<std::string, double> m_seconds;
  std::map<std::string, double> m_lookups;
};

}  // namespace

int main(int argc, char** argv) {
  // Memory stays with the process, so that what is measured is the program and not the kernel handing out
  // pages.
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
  mallopt(M_MMAP_MAX, 0);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.PrintRatios();
  return 0;
}
