#include "locks/Seat.h"

#include <algorithm>

#include "locks/HostName.h"
#include "locks/LockTexts.h"
#include "locks/ServerTables.h"
#include "text/Utf8.h"

namespace fidaleon::locks {

namespace {

using store::Error;
using store::ErrorKind;

constexpr int NO_SUCH_FUNCTION = store::sqlState("42883");
constexpr int SHUT = store::sqlState("55P03");
constexpr std::int64_t NEVER = -2;  // no desk has this turn

/// How the link behaves: waits for the guard as long as the patience lasts, sees at once that the
/// program is gone, and leaves it to the server when a list reaches its disk.
constexpr const char* MANNERS =
    ", set_config('lock_timeout', $1 || 'ms', false), set_config('synchronous_commit', 'off', "
    "false), "
    "set_config('client_connection_check_interval', '500ms', false)";

/// Texts as the server reads a list of them.
class TextList {
 public:
  void add(std::string_view text) {
    begin();
    all_ += '"';
    for (const char c : text) {
      if (c == '"' || c == '\\') all_ += '\\';
      all_ += c;
    }
    all_ += '"';
  }
  void addNone() {
    begin();
    all_ += "NULL";
  }
  std::string take() { return std::move(all_) + "}"; }

 private:
  void begin() { all_ += all_.size() > 1 ? "," : ""; }
  std::string all_ = "{";
};

/// Locks as the functions of the server want them.
struct Columns {
  TextList kinds, tables, records, lines;

  void add(const HeldEntry& held, bool withLine) {
    const std::string line = encode({held});
    kinds.add(line.substr(0, 1));
    tables.add(text::foldCase(held.entry.table));
    records.add(held.entry.record);
    withLine ? lines.add(line) : lines.addNone();
  }
  std::vector<std::string> take() {
    return {kinds.take(), tables.take(), records.take(), lines.take()};
  }
};

std::vector<std::string> columns(const Seat::Entries& entries) {
  Columns all;
  for (const HeldEntry& held : entries) all.add(held, true);
  return all.take();
}

/// `more` are some of the wanted, in their order.
std::vector<std::string> columns(const LockSet& wanted, const Seat::Entries* more) {
  Columns all;
  auto next = more ? more->begin() : Seat::Entries::const_iterator();
  for (const HeldEntry& held : wanted.all()) {
    const bool isNew = more && next != more->end() && next->entry == held.entry;
    all.add(isNew ? *next++ : held, isNew);
  }
  std::vector<std::string> texts = all.take();
  if (!more) texts.back() = "{}";
  return texts;
}

bool isLostLink(const Error& error) {
  return error.kind() == ErrorKind::Connection;
}

}  // namespace

Seat::Seat(const store::ServerAddress& address, const std::string& password,
           std::chrono::milliseconds patience)
    : patience_(patience), link_(address, password, "Fidaleon (" + hostName() + ", bloqueos)") {
  arrive();
}

Seat::~Seat() {
  try {
    if (isHere()) link_.ask("SELECT bloqueos_irse($1)", {desk_});
  } catch (const std::exception&) {
    // The end of the link says as much.
  }
}

void Seat::arrive() {
  const std::string sql = std::string("SELECT bloqueos_llegar()") + MANNERS;
  const std::string patience = std::to_string(patience_.count());
  store::Answer answer;
  try {
    answer = link_.ask(sql, {patience});
  } catch (const Error& e) {
    if (e.number() != NO_SUCH_FUNCTION) throw;
    prepareServer(link_);
    answer = link_.ask(sql, {patience});
  }
  desk_ = answer.text(0, 0);
  turn_ = 0;
  generation_ = link_.generation();
}

// The turn is a new one: what the lost link has still on its way counts no more.
void Seat::comeBack(bool byNewLink) {
  if (guardian_ != "0")
    throw Error(ErrorKind::Connection,
                "Se ha perdido la conexión con el servidor mientras se trabajaba a solas en él.");
  if (byNewLink || !link_.isOpen()) link_.renew();
  std::string sessions;
  for (const auto& [number, list] : lists_)
    sessions += (sessions.empty() ? "" : ",") + std::to_string(number);
  turn_ += 2;
  const bool isKnown = link_
                           .ask(std::string("SELECT bloqueos_volver($2, $3, $4)") + MANNERS,
                                {std::to_string(patience_.count()), desk_, std::to_string(turn_),
                                 "{" + sessions + "}"})
                           .text(0, 0) == "t";
  if (!isKnown) arrive();
  for (auto& [number, list] : lists_) regain(number, list, isKnown);
  generation_ = link_.generation();
}

void Seat::regain(int session, List& list, bool isKnown) {
  if (list.isLost) return;
  const auto lines = columns(list.held);
  if (isKnown && ask("bloqueos_recobrar", session, {lines.back()}).text(0, 0) == "t") return;
  list.isLost = !list.comesBack && !list.held.empty();
  if (list.comesBack) put(session, list.held);
}

store::Answer Seat::ask(const char* function, int session, const std::vector<std::string>& rest) {
  std::vector<std::string> values{desk_, std::to_string(session)};
  values.insert(values.end(), rest.begin(), rest.end());
  std::string places;
  for (std::size_t i = 1; i <= values.size(); ++i)
    places += (i == 1 ? "$" : ", $") + std::to_string(i);
  return link_.ask(std::string("SELECT * FROM ") + function + "(" + places + ")", values);
}

store::Answer Seat::carryOut(const Step& step) {
  bool byNewLink = false;
  try {
    if (isHere()) return step();
  } catch (const Error& e) {
    byNewLink = isLostLink(e);
    if (!byNewLink && e.number() != LOCKS_LOST) refuse(e);
  }
  try {
    comeBack(byNewLink);
    return step();
  } catch (const Error& e) {
    refuse(e);
  }
}

void Seat::refuse(const Error& error) {
  if (isLostLink(error)) throw Unusable(error.what());
  const std::string beginning =
      "No se puede trabajar con los bloqueos de " + link_.address().shown() + ": ";
  if (error.number() != SHUT) throw Unusable(beginning + error.what());
  std::vector<HeldEntry> work;
  try {
    const store::Answer told = link_.ask("SELECT linea FROM bloqueos_aviso");
    if (told.rows() == 1) work = decode(told.text(0, 0));
  } catch (const Error&) {
    // It is told that somebody is there.
  }
  throw Unusable(work.size() == 1 ? goingOn(work.front())
                                  : beginning + "otro puesto los tiene ocupados y no responde.");
}

void Seat::requireOpen() const {
  if (guardian_ != "0")
    throw Unusable("Hay que esperar: este mismo equipo está trabajando a solas en la parroquia.");
}

void Seat::requireHeld(const List& list) {
  if (list.isLost) throw Unusable(whatIsLost(list));
}

std::string Seat::whatIsLost(const List& list) {
  LockSet wanted;
  for (const HeldEntry& held : list.held) wanted.add(held);
  std::optional<MeetingPlace::Clash> clash;
  for (auto& [number, one] : lists_)
    if (&one == &list) {
      one.isLost = false;  // for as long as it is asked
      try {
        clash = take(number, wanted, nullptr);
      } catch (const Unusable&) {
        // Nobody can be named.
      }
      one.isLost = true;
    }
  return lostMeanwhile(clash ? &clash->wanted : nullptr, clash ? &clash->held : nullptr);
}

int Seat::open() {
  const std::scoped_lock alone(mutex_);
  lists_[++last_];
  return last_;
}

void Seat::close(int session) noexcept {
  const std::scoped_lock alone(mutex_);
  withdraw(session);
  lists_.erase(session);
}

std::optional<MeetingPlace::Clash> Seat::take(int session, const LockSet& wanted,
                                              const Entries* more) {
  const std::scoped_lock alone(mutex_);
  requireOpen();
  List& list = lists_.at(session);
  const auto now = Watch::now();
  const store::Answer answer =
      inLine(list, session, columns(wanted, more), more ? now + std::min(patience_, IN_LINE) : now);
  if (answer.rows() > 0) {
    const auto held = decode(answer.text(0, 1));
    const auto place = static_cast<std::size_t>(answer.integer(0, 0) - 1);
    return MeetingPlace::Clash{wanted.all().at(place).entry,
                               held.empty() ? HeldEntry{} : held.front()};
  }
  if (!more) return std::nullopt;
  ++turn_;
  list.held.insert(list.held.end(), more->begin(), more->end());
  return std::nullopt;
}

store::Answer Seat::inLine(List& list, int session, const std::vector<std::string>& values,
                           Watch::time_point until) {
  for (;;) {
    const auto left = std::max(std::chrono::ceil<std::chrono::milliseconds>(until - Watch::now()),
                               std::chrono::milliseconds(0));
    store::Answer answer = carryOut([&] {
      requireHeld(list);
      std::vector<std::string> rest{std::to_string(turn_), std::to_string(left.count())};
      rest.insert(rest.end(), values.begin(), values.end());
      return ask("bloqueos_tomar", session, rest);
    });
    const bool byAnother = answer.rows() > 0 && answer.text(0, 2) == "t";
    if (!byAnother || left.count() == 0) return answer;
    waitForCall(left);
  }
}

void Seat::waitForCall(std::chrono::milliseconds most) {
  try {
    // It may have come with the last answer.
    if (link_.notices().empty() && link_.wait(most)) link_.notices();
  } catch (const Error&) {
    // Whoever asks next comes back.
  }
}

void Seat::put(int session, const Entries& entries) {
  std::vector<std::string> values = columns(entries);
  values.insert(values.begin(), std::to_string(turn_));
  ask("bloqueos_poner", session, values);
  ++turn_;
}

void Seat::publish(int session, const Entries& entries) {
  const std::scoped_lock alone(mutex_);
  List& list = lists_.at(session);
  carryOut([&] {
    requireHeld(list);
    put(session, entries);
    return store::Answer();
  });
  list.held = entries;
}

void Seat::join(int session, const Entries& entries) {
  publish(session, entries);
  lists_.at(session).comesBack = true;
}

std::vector<MeetingPlace::Session> Seat::others(int session) {
  const std::scoped_lock alone(mutex_);
  const store::Answer answer = carryOut([&] { return ask("bloqueos_sesiones", session, {}); });
  std::vector<MeetingPlace::Session> all;
  for (int row = 0; row < answer.rows(); ++row) {
    const bool same = row > 0 && answer.text(row, 0) == answer.text(row - 1, 0) &&
                      answer.text(row, 1) == answer.text(row - 1, 1);
    for (HeldEntry& held : decode(answer.text(row, 2))) {
      if (!same || all.empty()) all.push_back({held.holder, {}});
      all.back().held.push_back(std::move(held));
    }
  }
  return all;
}

// What cannot be given back now is given back when the link has come back.
void Seat::withdraw(int session) noexcept {
  const std::scoped_lock alone(mutex_);
  List& list = lists_[session];
  if (list.held.empty()) return;
  list = {};
  try {
    if (isHere()) return put(session, {});
  } catch (const std::exception&) {
    // It is as good as lost.
  }
  generation_ = -1;
}

void Seat::shut() {
  const std::scoped_lock alone(mutex_);
  requireOpen();
  guardian_ = carryOut([&] { return link_.ask("SELECT bloqueos_cerrar()"); }).text(0, 0);
}

void Seat::announce(const HeldEntry& work) {
  const std::scoped_lock alone(mutex_);
  link_.ask("INSERT INTO bloqueos_aviso VALUES ($1)", {encode({work})});
}

void Seat::reopen() noexcept {
  const std::scoped_lock alone(mutex_);
  guardian_ = "0";
  try {
    if (isHere()) link_.ask("SELECT bloqueos_abrir()");
  } catch (const std::exception&) {
    // The end of the link has opened it.
  }
}

std::string Seat::statement() {
  const std::scoped_lock alone(mutex_);
  const bool anyLost = std::ranges::any_of(lists_, [](const auto& l) { return l.second.isLost; });
  return "SELECT bloqueos_guardar(" + desk_ + ", " + std::to_string(anyLost ? NEVER : turn_) +
         ", " + guardian_ + ")";
}

void Seat::lost() {
  const std::scoped_lock alone(mutex_);
  try {
    comeBack(false);
  } catch (const Error& e) {
    if (!isLostLink(e) || guardian_ != "0") throw;
    comeBack(true);
  }
  for (const auto& [number, list] : lists_)
    if (list.isLost) throw Error(ErrorKind::Other, whatIsLost(list));
}

}  // namespace fidaleon::locks
