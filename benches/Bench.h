#pragma once
// Times a piece of work against its limit, the same work done by hand in the same run, or against
// itself on less data, and prints one line of the table that ./bench shows.

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>

namespace fidaleon::bench {

inline double millisecondsOf(clockid_t clock) {
  timespec t{};
  clock_gettime(clock, &t);
  return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

/// Processor time of this program in milliseconds: what other programs do does not count.
inline double now() {
  return millisecondsOf(CLOCK_PROCESS_CPUTIME_ID);
}

/// The same by the clock, where something is waited for that costs no processor time here.
inline double wall() {
  return millisecondsOf(CLOCK_MONOTONIC);
}

using Time = std::function<double()>;

/// The fastest of `runs` runs, in milliseconds.
inline double milliseconds(int runs, const std::function<void()>& work, const Time& time = now) {
  double best = 1e300;
  for (int i = 0; i < runs; ++i) {
    const double start = time();
    work();
    best = std::min(best, time() - start);
  }
  return best;
}

/// Ours and the limit run in turn, so that both meet the same state of the machine.
struct Pair {
  double ours = 1e300;
  double limit = 1e300;
};

inline Pair inTurn(int runs, const std::function<void()>& ours, const std::function<void()>& limit,
                   Time time = now) {
  Pair pair;
  for (int i = 0; i < runs; ++i) {
    pair.limit = std::min(pair.limit, milliseconds(1, limit, time));
    pair.ours = std::min(pair.ours, milliseconds(1, ours, time));
  }
  return pair;
}

inline void line(const std::string& measure, const std::string& ours, const std::string& limit,
                 const std::string& ratio, const std::string& aim, bool met) {
  std::printf("%s | %s | %s | %s | %s | %s\n", measure.c_str(), ours.c_str(), limit.c_str(),
              ratio.c_str(), aim.c_str(), met ? "sí" : "NO");
  std::fflush(stdout);
}

inline std::string shown(double number, const char* unit) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.*f%s", number < 10 ? 3 : 1, number, unit);
  return buffer;
}

/// At most `aim` times the limit.
inline void ratio(const std::string& measure, const Pair& pair, double aim) {
  const double times = pair.ours / pair.limit;
  line(measure, shown(pair.ours, " ms"), shown(pair.limit, " ms"), shown(times, ""),
       "<= " + shown(aim, ""), times <= aim);
}

/// The same work on little and on much data: at most `aim` times as long.
inline void growth(const std::string& measure, double onMuch, double onLittle, double aim) {
  ratio(measure, Pair{onMuch, onLittle}, aim);
}

/// Within `aim` milliseconds.
inline void within(const std::string& measure, double ours, double aim) {
  line(measure, shown(ours, " ms"), "-", "-", "<= " + shown(aim, " ms"), ours <= aim);
}

}  // namespace fidaleon::bench
