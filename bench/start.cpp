#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "support/folder.h"

// From the beginning of the process to the first pixel of its window on an X server of our own, and
// the memory that is resident then; without a session bus, and with the one of the environment.
// Beside it the bare window: Qt alone, with the same widgets.

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

pid_t Spawn(std::vector<std::string> arguments, const std::vector<std::string>& environment) {
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  std::vector<std::string> settings = environment;
  for (char** entry = environ; *entry != nullptr; ++entry) settings.emplace_back(*entry);
  std::vector<char*> envp;
  for (std::string& setting : settings) envp.push_back(setting.data());
  envp.push_back(nullptr);
  pid_t process = 0;
  if (posix_spawnp(&process, argv[0], nullptr, nullptr, argv.data(), envp.data()) != 0) {
    throw std::runtime_error("cannot start " + arguments[0]);
  }
  return process;
}

void End(pid_t process) {
  kill(process, SIGTERM);
  waitpid(process, nullptr, 0);
}

/// An X server whose picture can be read while it runs.
class Screen {
 public:
  Screen() {
    std::array<int, 2> ready{};
    if (pipe(ready.data()) != 0) throw std::runtime_error("no pipe");
    server_ = Spawn({"Xvfb", "-displayfd", std::to_string(ready[1]), "-screen", "0", "1000x900x24",
                     "-nocursor", "-noreset", "-fbdir", folder_.Path()},
                    {});
    close(ready[1]);
    // The server says its number once it can be used.
    for (char digit = 0; read(ready[0], &digit, 1) == 1 && digit != '\n';) display_ += digit;
    close(ready[0]);
    const int file = open(folder_.Path("Xvfb_screen0").c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status {};
    fstat(file, &status);
    size_ = static_cast<std::size_t>(status.st_size);
    pixels_ = static_cast<const volatile unsigned char*>(
        mmap(nullptr, size_, PROT_READ, MAP_SHARED, file, 0));
    close(file);
    std::this_thread::sleep_for(500ms);
    empty_ = Sum();
  }
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  ~Screen() { End(server_); }

  const std::string& Display() const { return display_; }

  /// Until something shows. It rests between its looks, for the process and the server need both
  /// processors. Raises std::runtime_error when none comes up.
  void AwaitWindow(pid_t process) const {
    for (long look = 1; Sum() == empty_; ++look) {
      const bool ended = look % 100 == 0 && waitpid(process, nullptr, WNOHANG) != 0;
      if (ended || look > 100000) {
        throw std::runtime_error("no window came up");
      }
      std::this_thread::sleep_for(100us);
    }
  }
  void AwaitNone() const {
    while (Sum() != empty_) std::this_thread::sleep_for(1ms);
  }

 private:
  /// Of a thin grid of pixels; any window changes some of them.
  std::uint64_t Sum() const {
    std::uint64_t sum = 0;
    for (std::size_t at = size_ / 100; at < size_; at += 4001) sum += pixels_[at];
    return sum;
  }

  support::Folder folder_;
  pid_t server_ = 0;
  std::string display_ = ":";
  std::size_t size_ = 0;
  const volatile unsigned char* pixels_ = nullptr;
  std::uint64_t empty_ = 0;
};

double ResidentKib(pid_t process) {
  std::ifstream statistics("/proc/" + std::to_string(process) + "/statm");
  double pages = 0;
  statistics >> pages >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

void StartOf(benchmark::State& state, const char* program, std::vector<std::string> environment) {
  static const Screen screen;
  environment.push_back("DISPLAY=" + screen.Display());
  environment.emplace_back("QT_QPA_PLATFORM=xcb");
  double resident = 0;
  for (auto _ : state) {
    const auto begin = Clock::now();
    const pid_t process = Spawn({program}, environment);
    screen.AwaitWindow(process);
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begin).count());
    std::this_thread::sleep_for(200ms);
    resident += ResidentKib(process);
    End(process);
    screen.AwaitNone();
  }
  state.counters["resident_KiB"] = resident / static_cast<double>(state.iterations());
}

const std::vector<std::string> kNoBus = {"DBUS_SESSION_BUS_ADDRESS=disabled:"};

void Start(benchmark::State& state) { StartOf(state, PROGRAM, kNoBus); }
void StartBare(benchmark::State& state) { StartOf(state, BARE_WINDOW, kNoBus); }
void StartOnBus(benchmark::State& state) { StartOf(state, PROGRAM, {}); }
void StartOnBusBare(benchmark::State& state) { StartOf(state, BARE_WINDOW, {}); }

void EachStartByItself(benchmark::internal::Benchmark* start) {
  start->UseManualTime()->Iterations(1)->Repetitions(100)->Unit(benchmark::kMillisecond);
}

BENCHMARK(Start)->Apply(EachStartByItself);
BENCHMARK(StartBare)->Apply(EachStartByItself);
BENCHMARK(StartOnBus)->Apply(EachStartByItself);
BENCHMARK(StartOnBusBare)->Apply(EachStartByItself);

}  // namespace
