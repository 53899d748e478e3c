// A stand-in poker client: shows a table in a window of the right class, caption and size, plays
// hands and prints what it shows.
#include <atomic>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <random>
#include <stdexcept>
#include <thread>

#include "play.h"
#include "table_window.h"

namespace holdem::table_client {
namespace {

constexpr const char* kUsage =
    "usage: table_client [--layout 1..5] [--caption TEXT] [--position X,Y]\n"
    "    [--script FILE | --hero SEAT --seed N --hands N]\n"
    "    [--hold MILLISECONDS | --wait-for-go] [--noise LEVELS] [--aware]\n"
    "Each state of the table is on show for so long (1500), or until a line comes in.\n"
    "The lines of a script:\n"
    "    hand hero=3 cards=AS,KD button=7 seats=1,2,5    flop 2C 7D TH    turn QS    river 9H\n"
    "    fold 5    button 8    end    caption TEXT\n";

struct Options {
  WindowWanted window;
  std::string script;
  int heroSeat = 5;
  int seed = 1;
  int hands = 100;
  int holdMilliseconds = 1500;
  bool waitForGo = false;
  int noise = 0;
};

int Number(const std::string& text, int least, int most) {
  int value = 0;
  const char* const end = text.data() + text.size();
  if (std::from_chars(text.data(), end, value).ptr != end || text.empty() || value < least ||
      value > most) {
    throw std::invalid_argument("not a number from " + std::to_string(least) + " to " +
                                std::to_string(most) + ": " + text);
  }
  return value;
}

Options Parse(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--wait-for-go") {
      options.waitForGo = true;
      continue;
    }
    if (name == "--aware") {
      options.window.aware = true;
      continue;
    }
    if (i + 1 == arguments.size()) throw std::invalid_argument("not understood: " + name);
    const std::string& value = arguments[++i];
    if (name == "--layout") {
      options.window.layout = Number(value, 1, 5);
    } else if (name == "--caption") {
      options.window.caption = value;
    } else if (name == "--position") {
      const auto comma = std::min(value.find(','), value.size());
      options.window.position =
          Point{Number(value.substr(0, comma), -10000, 10000),
                Number(value.substr(std::min(comma + 1, value.size())), -10000, 10000)};
    } else if (name == "--script") {
      options.script = value;
    } else if (name == "--hero") {
      options.heroSeat = Number(value, 1, kSeatCount);
    } else if (name == "--seed") {
      options.seed = Number(value, 0, 2000000000);
    } else if (name == "--hands") {
      options.hands = Number(value, 0, 100000);
    } else if (name == "--hold") {
      options.holdMilliseconds = Number(value, 0, 3600000);
    } else if (name == "--noise") {
      options.noise = Number(value, 0, 100);
    } else {
      throw std::invalid_argument("not understood: " + name);
    }
  }
  WindowWanted& window = options.window;
  if (window.caption.empty()) window.caption = DefaultCaption(window.layout);
  if (!Table{.layout = window.layout}.HasSeat(options.heroSeat)) {
    throw std::invalid_argument("no seat of this table: " + std::to_string(options.heroSeat));
  }
  return options;
}

// All of them are tried before the window opens.
std::vector<std::string> LinesToPlay(const Options& options) {
  if (options.script.empty()) {
    return RandomHands(options.window.layout, options.heroSeat, options.hands,
                       static_cast<std::uint32_t>(options.seed));
  }
  std::ifstream file(options.script);
  if (!file) throw std::invalid_argument("cannot read " + options.script);
  std::vector<std::string> lines;
  Table table{.layout = options.window.layout, .heroSeat = options.heroSeat};
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    ++number;
    if (line.ends_with('\r')) line.pop_back();
    if (const auto wrong = Play(table, line)) {
      throw std::invalid_argument(options.script + ":" + std::to_string(number) + ": " + *wrong);
    }
    if (line.find_first_not_of(' ') != std::string::npos && line[0] != '#') lines.push_back(line);
  }
  return lines;
}

std::atomic<bool> stopped = false;  // by a signal or by the end of standard input
std::atomic<int> gos = 0;           // lines that have come in and not been used

// Reads on when main has ended, so it owns nothing.
void ReadGos() {
  for (std::string line; std::getline(std::cin, line);) ++gos;
  stopped = true;
}

void Print(const std::string& line) {
  std::puts(line.c_str());
  std::fflush(stdout);
}

class Client {
 public:
  explicit Client(const Options& options)
      : options_(options),
        table_{.layout = options.window.layout, .heroSeat = options.heroSeat},
        exact_(ExactPixels(options.window.layout)) {}

  void Run(const std::vector<std::string>& lines) {
    window_ = OpenTableWindow(options_.window);
    Print("window " + std::to_string(window_->Id()));
    if (!ShowAndWait()) return;
    for (const std::string& line : lines) {
      Play(table_, line);
      if (line.starts_with("caption ")) window_->SetCaption(line.substr(8));
      if (!ShowAndWait()) return;
    }
    Print("done");
  }

 private:
  // False when the client is to end.
  bool ShowAndWait() {
    Picture picture = DrawTable(table_);
    for (std::size_t i = 0; options_.noise > 0 && i < picture.pixels.size(); ++i) {
      if (!exact_[i]) {
        picture.pixels[i] =
            Noisy(picture.pixels[i], options_.noise, static_cast<std::uint32_t>(random_()));
      }
    }
    window_->Show(picture);
    Print("shows " + Describe(table_));
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::milliseconds(options_.holdMilliseconds);
    while (window_->Pump()) {
      if (options_.waitForGo && gos > 0) {
        --gos;
        return true;
      }
      if (stopped) return false;
      if (!options_.waitForGo && Clock::now() >= end) return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return false;
  }

  Options options_;
  Table table_;
  std::vector<bool> exact_;
  std::mt19937 random_;
  std::unique_ptr<TableWindow> window_;
};

int Main(const std::vector<std::string>& arguments) try {
  const Options options = Parse(arguments);
  const std::vector<std::string> lines = LinesToPlay(options);
  for (const int number : {SIGTERM, SIGINT}) std::signal(number, [](int) { stopped = true; });
  if (options.waitForGo) std::thread(ReadGos).detach();
  Client(options).Run(lines);
  return EXIT_SUCCESS;
} catch (const std::invalid_argument& wrong) {
  std::cerr << "table_client: " << wrong.what() << "\n" << kUsage;
  return 2;
} catch (const std::exception& wrong) {
  std::cerr << "table_client: " << wrong.what() << "\n";
  return EXIT_FAILURE;
}

}  // namespace
}  // namespace holdem::table_client

int main(int argc, char** argv) {
  // At once, since the reader of standard input may still be waiting.
  std::_Exit(holdem::table_client::Main({argv + 1, argv + argc}));
}
