#pragma once

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "search/Family.h"
#include "search/Searcher.h"
#include "store/TouchedRows.h"

namespace fidaleon::search {

class Indexer;

/// The search of an open parish: keeps its index up and answers, each on a thread and a connection
/// of its own, so that nobody waits for it. What it tells comes from those threads.
class Finder {
 public:
  struct Answer {
    std::string typed;
    Found found;
    std::string fault;  // why there is no answer; empty where there is one
  };
  struct Pages {
    std::vector<FamilyPage> pages;
    std::string fault;
  };
  struct Progress {
    bool whole = false;   // all entries have been looked at
    int thousandths = 0;  // of them, as long as it is not
  };
  /// What happens outside of it. They may be called until the Finder is gone.
  struct Listener {
    std::function<void(Answer)> answered;
    std::function<void(Pages)> familyFound;
    std::function<void(Progress)> progressed;  // there may be other answers now
  };
  /// Opens the parish once more.
  using Open = std::function<std::unique_ptr<store::Connection>()>;

  Finder(Open open, std::filesystem::path index, Listener listener);
  ~Finder();
  Finder(const Finder&) = delete;
  Finder& operator=(const Finder&) = delete;

  /// Of several that wait, only the last is answered.
  void find(std::string typed);
  /// Likewise.
  void familyOf(Register in, std::int32_t key);
  /// What this desk has stored.
  void touched(const store::TouchedRows::Rows& rows);
  /// Others have stored something: it will be looked for, but not all the time.
  void othersStored();

 private:
  using Key = std::pair<Register, std::int32_t>;

  void answerAll(const std::stop_token& stop);
  /// The answer, or why there is none.
  template <class Given, class Ask>
  Given answer(const Ask& ask);
  void answerFind(const std::string& typed);
  void answerFamily(Key key);
  Searcher& searcher();
  void keepUp(const std::stop_token& stop);
  void work(const std::stop_token& stop);
  void takeAllNew(Indexer& indexer, const std::stop_token& stop);
  void compareAll(Indexer& indexer, const std::stop_token& stop);
  void refreshTouched(store::Connection& parish, Indexer& indexer);
  bool isDue() const;
  void rest(const std::stop_token& stop, std::chrono::milliseconds atMost);
  template <class Change>
  void change(Change&& change);

  const Open open_;
  const std::filesystem::path file_;
  const Listener listener_;

  std::mutex mutex_;
  std::condition_variable_any wake_;
  std::string wanted_;  // to be found
  bool asked_ = false;
  std::optional<Key> family_;                  // to be put together
  std::vector<store::TouchedRows::Row> rows_;  // to be looked at
  std::vector<Key> keys_;                      // likewise
  bool compare_ = true;                        // all that is known is to be compared
  bool soon_ = true;                           // at once
  bool news_ = false;                          // others have stored something
  bool placesChanged_ = false;
  bool damaged_ = false;  // the index was taken away

  // Of the thread that answers.
  std::unique_ptr<store::Connection> parish_;
  std::unique_ptr<IndexFile> index_;
  std::unique_ptr<Searcher> searcher_;
  // Of the thread that keeps up.
  std::chrono::steady_clock::time_point compared_{};
  std::chrono::milliseconds lastRound_{0};

  std::jthread keeping_;
  std::jthread answering_;
};

}  // namespace fidaleon::search
