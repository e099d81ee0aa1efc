#include "locks/Maker.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <fstream>
#include <vector>

#include "locks/HostName.h"

namespace fidaleon::locks {

namespace {

constexpr std::size_t PARTS = 5;
constexpr const char* UNKNOWN = "0";

std::string firstLine(const std::string& file) {
  std::ifstream in(file);
  std::string line;
  std::getline(in, line);
  return line;
}

/// Short and of letters and digits alone; not for secrets.
std::string digest(const std::string& text) {
  if (text.empty()) return UNKNOWN;
  std::uint64_t h = 14695981039346656037u;
  for (const unsigned char c : text) h = (h ^ c) * 1099511628211u;
  std::array<char, 16> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), h, 16).ptr;
  return {digits.data(), end};
}

std::string machineName() {
  const std::string id = firstLine("/etc/machine-id");
  return id.empty() ? UNKNOWN : digest(id + hostName());
}

std::string processSpace() {
  struct stat facts = {};
  return ::stat("/proc/self/ns/pid", &facts) == 0 ? std::to_string(facts.st_ino) : UNKNOWN;
}

/// The 22nd field; the second, the name in brackets, may hold anything. 0: there is none, or only
/// the exit code of one that has ended.
std::uint64_t startOf(std::int64_t process) {
  const std::string line = firstLine("/proc/" + std::to_string(process) + "/stat");
  std::size_t at = line.rfind(')');
  if (at != std::string::npos && line.substr(at, 3) == ") Z") return 0;
  for (int field = 2; field < 22 && at != std::string::npos; ++field) at = line.find(' ', at + 1);
  if (at == std::string::npos) return 0;
  std::uint64_t start = 0;
  std::from_chars(line.data() + at + 1, line.data() + line.size(), start);
  return start;
}

template <class Number>
bool parseNumber(const std::string& s, Number& n) {
  return std::from_chars(s.data(), s.data() + s.size(), n).ptr == s.data() + s.size() && !s.empty();
}

}  // namespace

std::string Maker::text() const {
  return machine + "-" + run + "-" + space + "-" + std::to_string(process) + "-" +
         std::to_string(started);
}

std::optional<Maker> Maker::parse(std::string_view text) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == '-')
      parts.emplace_back();
    else
      parts.back() += c;
  }
  if (parts.size() != PARTS) return std::nullopt;
  Maker maker{parts[0], parts[1], parts[2], 0, 0};
  if (!parseNumber(parts[3], maker.process) || !parseNumber(parts[4], maker.started))
    return std::nullopt;
  return maker;
}

Maker thisProgram() {
  static const Maker machine{machineName(), digest(firstLine("/proc/sys/kernel/random/boot_id")),
                             processSpace(), 0, 0};
  Maker self = machine;
  self.process = ::getpid();
  self.started = startOf(self.process);
  return self;
}

Life lifeOf(const Maker& program, const Maker& here) {
  if (program.run == UNKNOWN) return Life::Unknown;
  if (program.run != here.run) {  // has the machine been started again since?
    const bool sameMachine = program.machine == here.machine && program.machine != UNKNOWN;
    return sameMachine ? Life::Ended : Life::Unknown;
  }
  if (program.space != here.space) return Life::Unknown;
  return startOf(program.process) == program.started ? Life::Lives : Life::Ended;
}

}  // namespace fidaleon::locks
