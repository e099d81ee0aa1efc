#include "search/Finder.h"

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>

#include "search/Indexer.h"
#include "search/Source.h"

namespace fidaleon::search {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto AT_LEAST_BETWEEN = 1min;  // rounds of comparing
constexpr int REST = 20;                 // times as long as a round has taken
constexpr auto AFTER_A_FAULT = 5s;

/// Whatever else wants the processor goes first.
void stepBack() {
  setpriority(PRIO_PROCESS, static_cast<id_t>(syscall(SYS_gettid)), 10);
}

bool isAmongPlaces(const std::string& table) {
  return table == "Municipio" || table == "Institucion" || table.starts_with("Libro_");
}

}  // namespace

Finder::Finder(Open open, std::filesystem::path index, Listener listener)
    : open_(std::move(open)),
      file_(std::move(index)),
      listener_(std::move(listener)),
      keeping_([this](const std::stop_token& stop) { keepUp(stop); }),
      answering_([this](const std::stop_token& stop) { answerAll(stop); }) {}

Finder::~Finder() {
  keeping_.request_stop();
  answering_.request_stop();
}

template <class Change>
void Finder::change(Change&& change) {
  {
    const std::lock_guard guard(mutex_);
    change();
  }
  wake_.notify_all();
}

void Finder::find(std::string typed) {
  change([&] {
    wanted_ = std::move(typed);
    asked_ = true;
  });
}

void Finder::touched(const store::TouchedRows::Rows& rows) {
  if (rows.none()) return;
  change([&] {
    if (rows.all) compare_ = soon_ = news_ = placesChanged_ = true;
    for (const auto& row : rows.rows) {
      placesChanged_ = placesChanged_ || isAmongPlaces(row.table);
      rows_.push_back(row);
    }
  });
}

void Finder::othersStored() {
  change([&] { compare_ = news_ = placesChanged_ = true; });
}

void Finder::familyOf(Register in, std::int32_t key) {
  change([&] { family_ = Key{in, key}; });
}

void Finder::answerAll(const std::stop_token& stop) {
  for (;;) {
    std::optional<std::string> typed;
    std::optional<Key> family;
    {
      std::unique_lock lock(mutex_);
      if (!wake_.wait(lock, stop, [this] { return asked_ || family_; })) return;
      if (std::exchange(asked_, false)) typed = wanted_;
      family = std::exchange(family_, {});
    }
    if (typed) answerFind(*typed);
    if (family) answerFamily(*family);
  }
}

template <class Given, class Ask>
Given Finder::answer(const Ask& ask) {
  Given given;
  try {
    ask(given);
  } catch (const store::Error& e) {
    given.fault = e.what();
    if (e.kind() == store::ErrorKind::NotADatabase && index_) {
      index_->remove();
      change([&] { damaged_ = soon_ = true; });
    }
    searcher_.reset();
    index_.reset();
    parish_.reset();
  }
  return given;
}

void Finder::answerFind(const std::string& typed) {
  Answer found = answer<Answer>([&](Answer& a) { a.found = searcher().find(typed); });
  found.typed = typed;
  if (!found.found.stale.empty())
    change([&] { keys_.insert(keys_.end(), found.found.stale.begin(), found.found.stale.end()); });
  listener_.answered(std::move(found));
}

void Finder::answerFamily(Key key) {
  listener_.familyFound(answer<Pages>([&](Pages& p) {
    Searcher& with = searcher();
    p.pages = search::familyOf(*parish_, with, key.first, key.second);
  }));
}

Searcher& Finder::searcher() {
  if (index_ && !index_->isInPlace()) {
    searcher_.reset();
    index_.reset();
    change([&] { damaged_ = true; });
    listener_.progressed({false, 0});  // until the other thread has seen what the new one holds
  }
  if (!parish_) parish_ = open_();
  if (!index_) index_ = std::make_unique<IndexFile>(file_);
  if (!searcher_) searcher_ = std::make_unique<Searcher>(*parish_, *index_);
  bool anew = false;
  change([&] { anew = std::exchange(placesChanged_, false); });
  if (anew) searcher_->placesChanged();
  return *searcher_;
}

void Finder::keepUp(const std::stop_token& stop) {
  stepBack();
  while (!stop.stop_requested()) {
    try {
      work(stop);
    } catch (const store::Error& e) {
      if (e.kind() != store::ErrorKind::NotADatabase) rest(stop, AFTER_A_FAULT);
      change([&] { compare_ = soon_ = true; });
    }
  }
}

void Finder::rest(const std::stop_token& stop, std::chrono::milliseconds atMost) {
  std::unique_lock lock(mutex_);
  wake_.wait_for(lock, stop, atMost, [] { return false; });
}

bool Finder::isDue() const {
  const auto pause = std::max<Clock::duration>(AT_LEAST_BETWEEN, lastRound_ * REST);
  return compare_ && (soon_ || Clock::now() - compared_ >= pause);
}

/// Until the index is another one, or something fails.
void Finder::work(const std::stop_token& stop) {
  const auto parish = open_();
  IndexFile index(file_);
  Indexer indexer(*parish, index);
  change([&] { damaged_ = false; });
  try {
    takeAllNew(indexer, stop);
    while (!stop.stop_requested() && index.isInPlace()) {
      refreshTouched(*parish, indexer);
      bool news = false, due = false;
      {
        std::unique_lock lock(mutex_);
        const auto isWork = [&] {
          return !rows_.empty() || !keys_.empty() || news_ || damaged_ || isDue();
        };
        if (!isWork()) wake_.wait_for(lock, stop, AT_LEAST_BETWEEN, isWork);
        news = std::exchange(news_, false) | std::exchange(damaged_, false);
        due = rows_.empty() && keys_.empty() && isDue();
        if (due) compare_ = soon_ = false;
      }
      if (!index.isInPlace()) break;
      if (news) takeAllNew(indexer, stop);
      if (due) compareAll(indexer, stop);
    }
  } catch (const store::Error& e) {
    if (e.kind() == store::ErrorKind::NotADatabase) index.remove();
    throw;
  }
}

void Finder::takeAllNew(Indexer& indexer, const std::stop_token& stop) {
  bool more = true;
  while (more && !stop.stop_requested()) {
    more = indexer.takeNew();
    listener_.progressed({!more, more ? indexer.progress() : 1000});
  }
}

void Finder::compareAll(Indexer& indexer, const std::stop_token& stop) {
  const auto began = Clock::now();
  std::chrono::milliseconds busy{0};
  bool more = true;
  while (more && !stop.stop_requested()) {
    const auto piece = Clock::now();
    more = indexer.compare();
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - piece);
    busy += took;
    if (more) rest(stop, took);
  }
  lastRound_ = busy;
  compared_ = began;
  listener_.progressed({true, 1000});
}

/// What this desk has stored, and what was found to be no longer as the index had it.
void Finder::refreshTouched(store::Connection& parish, Indexer& indexer) {
  std::vector<store::TouchedRows::Row> rows;
  std::vector<Key> keys;
  change([&] {
    rows.swap(rows_);
    keys.swap(keys_);
  });
  if (rows.empty() && keys.empty()) return;
  for (const Source& source : sources()) {
    bool unknown = false;
    std::vector<std::int32_t> found;
    for (const Key& key : keys)
      if (key.first == source.in) found.push_back(key.second);
    for (const auto& row : rows) {
      if (row.table == source.table) found.push_back(static_cast<std::int32_t>(row.key));
      for (const Relative& relative : source.relatives) {
        if (row.table != relative.table) continue;
        unknown = unknown || relative.entriesOf == nullptr;
        if (!relative.entriesOf) continue;
        const std::string sql = relative.entriesOf + std::to_string(row.key);
        for (auto set = parish.Execute(sql); !set.EOF_(); set.MoveNext())
          found.push_back(static_cast<std::int32_t>(set.integer(0)));
      }
    }
    if (unknown && found.empty()) change([&] { compare_ = soon_ = true; });
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    indexer.refresh(source.in, found);
  }
  listener_.progressed({true, 1000});
}

}  // namespace fidaleon::search
